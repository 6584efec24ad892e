#include "ui/help/guide_folder.h"

#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <gtest/gtest.h>

#include "support/source_folder.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

class GuideFolderTest : public ::testing::Test {
  protected:
    // Makes a guide of one page at that place.
    QString MakeGuide(const std::string& place) {
        fs::create_directories(fs::path(folder.Path()) / place);
        WriteBytes(folder.File(place + "/README.md"), {'#'});
        return QFileInfo(QString::fromStdString(folder.File(place))).canonicalFilePath();
    }
    QString Found() const { return GuideFolder(QString::fromStdString(folder.File("bin"))); }

    TemporaryFolder folder;
};

TEST_F(GuideFolderTest, IsEmptyWhereNoGuideIsInstalled) {
    fs::create_directories(folder.File("share/kirto/guide"));

    EXPECT_EQ(Found(), "");
}

TEST_F(GuideFolderTest, IsAmongTheDataOfTheInstalledProgramOrAmongItsDocuments) {
    fs::create_directory(folder.File("bin"));
    const QString documents = MakeGuide("share/doc/kirto/guide");
    EXPECT_EQ(Found(), documents);

    const QString data = MakeGuide("share/kirto/guide");
    EXPECT_EQ(Found(), data);
}

TEST_F(GuideFolderTest, IsThatOfTheSourcesForAProgramThatWasJustBuilt) {
    MakeGuide("share/kirto/guide");
    fs::create_directory(folder.File("bin"));
    fs::create_directory_symlink(SourceFolder() / "docs", folder.File("bin/docs"));

    const fs::path guide = fs::canonical(SourceFolder() / "docs/guide");
    EXPECT_EQ(Found(), QFile::decodeName(guide.c_str()));
}

}  // namespace

}  // namespace kirto::test
