#include "kit/entry_ref.h"

#include <gtest/gtest.h>

namespace kirto::test {

TEST(EntryRef, SplitsIntoDirectoryAndLeaf) {
    const entry_ref ref("/home/ann/walk cycle.gif");
    EXPECT_EQ(ref.Leaf(), "walk cycle.gif");
    EXPECT_EQ(ref.Directory(), "/home/ann");
}

TEST(EntryRef, ABareNameIsInTheCurrentDirectory) {
    EXPECT_EQ(entry_ref("walk.gif").Leaf(), "walk.gif");
    EXPECT_EQ(entry_ref("walk.gif").Directory(), ".");
    EXPECT_EQ(entry_ref("clips/walk.gif").Directory(), "clips");
}

TEST(EntryRef, EntriesOfTheRootAreInTheRoot) {
    EXPECT_EQ(entry_ref("/walk.gif").Directory(), "/");
    EXPECT_EQ(entry_ref("/walk.gif").Leaf(), "walk.gif");
    EXPECT_EQ(entry_ref("/").Directory(), "/");
    EXPECT_EQ(entry_ref("/").Leaf(), "");
}

TEST(EntryRef, SuperfluousSlashesDoNotCount) {
    EXPECT_EQ(entry_ref("/home/ann/").Leaf(), "ann");
    EXPECT_EQ(entry_ref("/home/ann//").Directory(), "/home");
    EXPECT_EQ(entry_ref("/home//ann").Directory(), "/home");
    EXPECT_EQ(entry_ref("//ann").Directory(), "/");
}

TEST(EntryRef, KeepsBytesThatAreNoUtf8) {
    EXPECT_EQ(entry_ref("/tmp/\xff\xfe.gif").Leaf(), "\xff\xfe.gif");
}

TEST(EntryRef, AnEmptyPathHasNoLeaf) {
    EXPECT_EQ(entry_ref().Leaf(), "");
    EXPECT_EQ(entry_ref().Directory(), ".");
}

TEST(EntryRef, ComparesByPath) {
    EXPECT_EQ(entry_ref("/a"), entry_ref("/a"));
    EXPECT_NE(entry_ref("/a"), entry_ref("/b"));
}

}  // namespace kirto::test
