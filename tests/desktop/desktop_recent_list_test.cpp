#include "desktop/qt/desktop_recent_list.h"

#include <QFile>
#include <QXmlStreamReader>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/environment.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

const QDateTime kTime(QDate(2026, 11, 23), QTime(5, 30), Qt::UTC);
const DesktopRecentFile kFile{"file:///tmp/a%20b.gif", "image/gif", kTime};

constexpr const char* kOthers =
    "<?xml version=\"1.0\"?>\n<xbel version=\"1.0\" xmlns:bookmark='b' xmlns:mime='m'>\n"
    "  <!-- kept -->\n  <bookmark href='file:///other.txt' added=\"x\"><info/></bookmark>\n";

// The elements of that name, as their attributes tell.
QStringList Attributes(const QString& list, const char* element, const char* attribute) {
    QStringList values;
    QXmlStreamReader reader(list);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.qualifiedName() == QLatin1String(element))
            values.append(reader.attributes().value(QLatin1String(attribute)).toString());
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return values;
}

TEST(DesktopRecentList, BeginsWhereThereIsNone) {
    const auto list = WithRecentFile({}, kFile);

    ASSERT_TRUE(list);
    EXPECT_EQ(Attributes(*list, "bookmark", "href"), QStringList{kFile.uri});
    EXPECT_EQ(Attributes(*list, "bookmark", "visited"), QStringList{"2026-11-23T05:30:00.000000Z"});
    EXPECT_EQ(Attributes(*list, "mime:mime-type", "type"), QStringList{"image/gif"});
    EXPECT_EQ(Attributes(*list, "bookmark:application", "exec"), QStringList{"'kirto %u'"});
}

TEST(DesktopRecentList, LeavesWhatOthersHaveWrittenAsItIs) {
    const auto list = WithRecentFile(QString(kOthers) + "</xbel>\n", kFile);

    ASSERT_TRUE(list);
    EXPECT_TRUE(list->startsWith(kOthers));
    EXPECT_EQ(Attributes(*list, "bookmark", "href"), (QStringList{"file:///other.txt", kFile.uri}));
}

TEST(DesktopRecentList, CountsHowOftenAFileWasUsed) {
    auto list = WithRecentFile({}, kFile);
    for (int i = 0; i < 2; ++i)
        list = WithRecentFile(*list, kFile);

    ASSERT_TRUE(list);
    EXPECT_EQ(Attributes(*list, "bookmark", "href").size(), 1);
    EXPECT_EQ(Attributes(*list, "bookmark:application", "count"), QStringList{"3"});
}

TEST(DesktopRecentList, StandsBesideOtherProgramsThatUsedTheFile) {
    const QString theirs = QString(kOthers) +
                           "<bookmark href='file:///tmp/a%20b.gif'><info><metadata owner='o'>"
                           "<bookmark:applications><bookmark:application name='Viewer' count='7'/>"
                           "</bookmark:applications></metadata></info></bookmark></xbel>";
    const auto list = WithRecentFile(theirs, kFile);

    ASSERT_TRUE(list);
    EXPECT_EQ(Attributes(*list, "bookmark:application", "name"), (QStringList{"Viewer", "Kirto"}));
    EXPECT_EQ(Attributes(*list, "bookmark:application", "count"), (QStringList{"7", "1"}));
}

TEST(DesktopRecentList, ReplacesABookmarkOfTheFileThatTellsOfNoProgram) {
    const auto list =
        WithRecentFile(QString(kOthers) + "<bookmark href='file:///tmp/a%20b.gif'/></xbel>", kFile);

    ASSERT_TRUE(list);
    EXPECT_EQ(Attributes(*list, "bookmark:application", "name"), QStringList{"Kirto"});
}

TEST(DesktopRecentList, EscapesWhatItWrites) {
    DesktopRecentFile file = kFile;
    file.uri = "file:///a&b.gif";
    file.type = "\"<>";
    const auto list = WithRecentFile({}, file);

    ASSERT_TRUE(list);
    EXPECT_EQ(Attributes(*list, "bookmark", "href"), QStringList{file.uri});
    EXPECT_EQ(Attributes(*WithRecentFile(*list, file), "bookmark", "href").size(), 1);
}

TEST(DesktopRecentList, IsLeftAloneWhereItIsDamaged) {
    for (const char* list : {"nonsense", "<xbel>", "<other/>", "<xbel></bookmark></xbel>"})
        EXPECT_FALSE(WithRecentFile(list, kFile)) << list;
}

class DesktopRecentListFile : public ::testing::Test {
  protected:
    QByteArray Read() const {
        QFile file(QString::fromStdString(DesktopRecentListPath()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    TemporaryFolder folder_;
    ScopedEnvironment data_{"XDG_DATA_HOME", folder_.File("data").c_str()};
};

TEST_F(DesktopRecentListFile, IsMadeForTheUserAlone) {
    TellDesktopOfRecentFile("/tmp/100% & more.gif", "image/gif");

    EXPECT_TRUE(Read().contains("href=\"file:///tmp/100%25%20&amp;%20more.gif\""));
    struct stat info;
    ASSERT_EQ(stat(DesktopRecentListPath().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
}

TEST_F(DesktopRecentListFile, IsNotTouchedWhereItIsDamagedOrEmpty) {
    for (const char* damaged : {"<xbel>", ""}) {
        std::filesystem::create_directory(folder_.File("data"));
        WriteBytes(DesktopRecentListPath(), {damaged, damaged + std::strlen(damaged)});
        TellDesktopOfRecentFile("/tmp/a.gif", "image/gif");
        EXPECT_EQ(Read(), damaged);
    }
}

}  // namespace

}  // namespace kirto::test
