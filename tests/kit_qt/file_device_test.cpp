#include "kit/qt/file_device.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

TEST(FileDevice, ReadsFromTheStartWhereverTheFileStood) {
    const auto file = BFile::OnMemory({1, 2, 3, 4});
    file->Seek(3, SEEK_FROM_START);

    FileDevice device(*file, QIODevice::ReadOnly);

    EXPECT_FALSE(device.isSequential());
    EXPECT_EQ(device.size(), 4);
    EXPECT_EQ(device.read(2), QByteArray("\1\2"));
    EXPECT_EQ(device.pos(), 2);
    EXPECT_EQ(device.readAll(), QByteArray("\3\4"));
    EXPECT_TRUE(device.atEnd());
    EXPECT_EQ(device.read(1), QByteArray());
}

TEST(FileDevice, ReadsWhereItIsToldTo) {
    const auto file = BFile::OnMemory({1, 2, 3, 4});
    FileDevice device(*file, QIODevice::ReadOnly);

    EXPECT_TRUE(device.seek(2));
    EXPECT_EQ(device.peek(1), QByteArray("\3"));
    EXPECT_EQ(device.read(1), QByteArray("\3"));
    EXPECT_TRUE(device.seek(0));
    EXPECT_EQ(device.read(1), QByteArray("\1"));
    EXPECT_FALSE(device.seek(-1));
}

TEST(FileDevice, WritesWhereItIsToldToAndGrowsTheFile) {
    const auto file = BFile::OnMemory();
    FileDevice device(*file, QIODevice::WriteOnly);

    EXPECT_EQ(device.write("abc", 3), 3);
    EXPECT_TRUE(device.seek(1));
    EXPECT_EQ(device.write("X", 1), 1);
    EXPECT_TRUE(device.seek(3));
    EXPECT_EQ(device.write("d", 1), 1);

    EXPECT_EQ(device.size(), 4);
    EXPECT_EQ(file->Memory(), (std::vector<uint8>{'a', 'X', 'c', 'd'}));
}

TEST(FileDevice, ReportsWritesThatFail) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("read_only"), {1});
    BFile file(folder.File("read_only"), B_READ_ONLY);
    FileDevice device(file, QIODevice::WriteOnly);

    EXPECT_EQ(device.write("abc", 3), -1);
}

TEST(FileDevice, ReportsReadsThatFail) {
    const TemporaryFolder folder;
    BFile file(folder.File("missing"), B_READ_ONLY);
    FileDevice device(file, QIODevice::ReadOnly);
    char byte = 0;

    EXPECT_EQ(device.read(&byte, 1), -1);
}

}  // namespace kirto::test
