#include "ui/thumbnails/file_urls.h"

#include <QSysInfo>
#include <gtest/gtest.h>

namespace kirto::test {
namespace {

QUrl Url(const char* text) {
    return QUrl::fromEncoded(text);
}

TEST(FileUrls, NameFilesOfThisMachine) {
    EXPECT_EQ(LocalPathOf(Url("file:///tmp/a%20b.png")), "/tmp/a b.png");
    EXPECT_EQ(LocalPathOf(Url("file://localhost/tmp/a")), "/tmp/a");
    const QByteArray host = QSysInfo::machineHostName().toLatin1();
    EXPECT_EQ(LocalPathOf(Url("file://" + host + "/tmp/a")), "/tmp/a");
}

TEST(FileUrls, KeepBytesThatAreNoText) {
    EXPECT_EQ(LocalPathOf(Url("file:///tmp/%FF%25")), "/tmp/\xFF%");
    EXPECT_EQ(LocalPathOf(QUrl::fromEncoded(FileUrlOf("/tmp/\xFF %#?"))), "/tmp/\xFF %#?");
}

TEST(FileUrls, NameNoFilesOfOtherMachines) {
    EXPECT_EQ(LocalPathOf(Url("file://elsewhere.example/tmp/a")), std::nullopt);
    EXPECT_EQ(LocalPathOf(Url("https://example.org/a.png")), std::nullopt);
    EXPECT_EQ(LocalPathOf(Url("file:///tmp/a%00b")), std::nullopt);
    EXPECT_EQ(LocalPathOf(Url("file://")), std::nullopt);
}

TEST(FileUrls, BecomeRefsOfAMessage) {
    QMimeData data;
    data.setUrls({Url("file:///a"), Url("https://example.org/b"), Url("file:///c")});
    BMessage message;
    EXPECT_TRUE(AddRefs(data, &message));
    entry_ref second;
    EXPECT_EQ(message.CountItems("refs"), 2);
    EXPECT_EQ(message.FindRef("refs", &second, 1), B_OK);
    EXPECT_EQ(second.path, "/c");
    data.setUrls({Url("https://example.org/b")});
    EXPECT_FALSE(AddRefs(data, &message));
}

}  // namespace
}  // namespace kirto::test
