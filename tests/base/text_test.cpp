#include "base/text.h"

#include <gtest/gtest.h>

namespace kirto::test {

TEST(Format, FormatsLikePrintf) {
    EXPECT_EQ(Format("%s has %d frame(s), %5.2f", "a.gif", 12, 0.5),
              "a.gif has 12 frame(s),  0.50");
}

TEST(Format, GivesTextsOfAnyLength) {
    const std::string text(100000, 'x');
    EXPECT_EQ(Format("<%s>", text.c_str()), "<" + text + ">");
}

TEST(Format, GivesNothingForNothing) {
    EXPECT_EQ(Format("%s", ""), "");
}

TEST(CutUtf8, KeepsTextsThatFit) {
    EXPECT_EQ(CutUtf8("abc", 3), "abc");
    EXPECT_EQ(CutUtf8("", 0), "");
}

TEST(CutUtf8, CutsBetweenCharacters) {
    EXPECT_EQ(CutUtf8("abc", 2), "ab");
    EXPECT_EQ(CutUtf8("a\u00e9b", 2), "a");
    EXPECT_EQ(CutUtf8("a\u00e9b", 3), "a\u00e9");
    EXPECT_EQ(CutUtf8("\u20ac\u20ac", 5), "\u20ac");
    EXPECT_EQ(CutUtf8("\U0001F600", 3), "");
}

TEST(CutUtf8, CountsBytesThatAreNoUtf8AsCharacters) {
    EXPECT_EQ(CutUtf8("\xff\xfe\xfd", 2), "\xff\xfe");
    EXPECT_EQ(CutUtf8("\xe2\x82zz", 3), "\xe2\x82z");
    EXPECT_EQ(CutUtf8("zz\xe2\x82", 3), "zz\xe2");
}

TEST(Contains, FindsThePartAnywhere) {
    EXPECT_TRUE(Contains("walk.gif.old", ".gif"));
    EXPECT_TRUE(Contains("walk", ""));
    EXPECT_FALSE(Contains("walk.GIF", ".gif"));
}

TEST(IsValidUtf8, TakesEveryLengthOfSequence) {
    EXPECT_TRUE(IsValidUtf8(""));
    EXPECT_TRUE(IsValidUtf8("a\u00e9\u20ac\U0001F600\U0010FFFF"));
    EXPECT_TRUE(IsValidUtf8(std::string_view("\0", 1)));
}

TEST(IsValidUtf8, RefusesIllFormedBytes) {
    for (const std::string_view text :
         {"\x80", "\xc3", "\xc3(", "\xe2\x82", "\xe2\x28\xa1", "\xf0\x9f\x98", "\xff"}) {
        EXPECT_FALSE(IsValidUtf8(text));
    }
}

TEST(IsValidUtf8, RefusesOverlongForms) {
    EXPECT_FALSE(IsValidUtf8("\xc0\xaf"));
    EXPECT_FALSE(IsValidUtf8("\xe0\x9f\xbf"));
    EXPECT_FALSE(IsValidUtf8("\xf0\x8f\xbf\xbf"));
}

TEST(IsValidUtf8, RefusesSurrogatesAndNumbersPastUnicode) {
    EXPECT_FALSE(IsValidUtf8("\xed\xa0\x80"));
    EXPECT_FALSE(IsValidUtf8("\xf4\x90\x80\x80"));
    EXPECT_FALSE(IsValidUtf8("\xf5\x80\x80\x80"));
}

}  // namespace kirto::test
