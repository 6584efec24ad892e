#include "ui/file_panels/filter_proxy.h"

#include <QFileSystemModel>
#include <filesystem>
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

// Offers what leads to files, and files of one type; notes the types of the links and files.
struct GifFilter : BRefFilter {
    std::map<std::string, std::string>& types;
    explicit GifFilter(std::map<std::string, std::string>& noted) : types(noted) {}

    bool Filter(const entry_ref& ref, const TypeSource& type) const override {
        types[ref.path] = type();
        return LeadsToFiles(type()) || type() == "image/gif";
    }
};

struct FilterProxyTest : testing::Test {
    TemporaryFolder folder;
    std::map<std::string, std::string> types;
    QFileSystemModel files;
    FilterProxy proxy{std::make_unique<GifFilter>(types)};

    void AddFile(const std::string& name, size_t size) const {
        WriteBytes(folder.File(name), std::vector<uint8>(size, 'x'));
    }
    void Show() {
        proxy.setSourceModel(&files);
        files.setRootPath(QString::fromStdString(folder.Path()));
    }
    QModelIndex Root() const {
        return proxy.mapFromSource(files.index(QString::fromStdString(folder.Path())));
    }
    QStringList Rows(int count) {
        EXPECT_TRUE(WaitFor([&] { return proxy.rowCount(Root()) == count; }));
        QStringList names;
        for (int row = 0; row < proxy.rowCount(Root()); ++row)
            names.append(proxy.index(row, 0, Root()).data().toString());
        return names;
    }
    // The names that are offered, in their order; waits until they are as many.
    std::string Names(int count) { return Rows(count).join(' ').toStdString(); }
    // The same by the alphabet: what was never sorted comes in the order of the file system.
    std::string AnyNames(int count) {
        QStringList names = Rows(count);
        names.sort();
        return names.join(' ').toStdString();
    }
};

}  // namespace

TEST_F(FilterProxyTest, ShowsWhatTheFilterOffers) {
    AddFile("a.gif", 1);
    AddFile("b.txt", 1);
    AddFile("c.gif", 1);
    Show();
    EXPECT_EQ(AnyNames(2), "a.gif c.gif");
}

TEST_F(FilterProxyTest, TellsFoldersAndLinksFromFiles) {
    AddFile("a.gif", 1);
    fs::create_directory(folder.File("folder"));
    fs::create_symlink("folder", folder.File("to_folder"));
    fs::create_symlink("a.gif", folder.File("to_gif"));
    Show();

    Names(4);

    EXPECT_EQ(types["/"], "application/x-vnd.Be-volume");
    EXPECT_EQ(types[folder.File("a.gif")], "image/gif");
    EXPECT_EQ(types[folder.File("folder")], "application/x-vnd.Be-directory");
    for (const char* link : {"to_folder", "to_gif"})
        EXPECT_EQ(types[folder.File(link)], "application/x-vnd.Be-symlink");
}

TEST_F(FilterProxyTest, SortsAsTheFilesAreAndNotAsTheyAreWritten) {
    AddFile("a.gif", 3000);
    AddFile("b.gif", 20000);
    AddFile("c.gif", 100);
    fs::create_directory(folder.File("z"));
    Show();
    Names(4);
    constexpr int kSizeColumn = 1;

    proxy.sort(kSizeColumn, Qt::AscendingOrder);
    EXPECT_EQ(Names(4), "z c.gif a.gif b.gif");
    proxy.sort(0, Qt::DescendingOrder);
    EXPECT_EQ(Names(4), "c.gif b.gif a.gif z");
}

TEST_F(FilterProxyTest, LooksATypeUpOnceUntilItIsToldToForget) {
    AddFile("a", 0);
    AddFile("b.gif", 0);
    Show();
    Names(1);
    const std::string gif = "GIF89a";
    WriteBytes(folder.File("a"), {gif.begin(), gif.end()});

    proxy.invalidate();
    EXPECT_EQ(Names(1), "b.gif");
    proxy.ForgetTypes();
    EXPECT_EQ(AnyNames(2), "a b.gif");
}

}  // namespace kirto::test
