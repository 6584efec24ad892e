#include "base/types.h"

#include <gtest/gtest.h>
#include <set>

namespace kirto::test {

TEST(FourCharCode, PutsTheFirstCharacterHighest) {
    EXPECT_EQ(FourCharCode("aofp"), 0x616f6670u);
    EXPECT_EQ(FourCharCode("\xff\x00\x80z"), 0xff00807au);
}

TEST(FourCharCode, GivesTheWellKnownCodes) {
    EXPECT_EQ(B_QUIT_REQUESTED, 0x5f515251u);
    EXPECT_EQ(B_STRING_TYPE, 0x43535452u);
    EXPECT_EQ(B_INT32_TYPE, 0x4c4f4e47u);
}

TEST(StatusText, HasASentenceForEveryStatus) {
    EXPECT_EQ(StatusText(B_OK), "No error");
    EXPECT_EQ(StatusText(B_ERROR), "General error");
    EXPECT_EQ(StatusText(B_NO_MEMORY), "Out of memory");
    EXPECT_EQ(StatusText(B_IO_ERROR), "Input/output error");
    EXPECT_EQ(StatusText(B_BAD_VALUE), "Invalid argument");
    EXPECT_EQ(StatusText(B_ENTRY_NOT_FOUND), "No such file or attribute");
    EXPECT_EQ(StatusText(B_NAME_NOT_FOUND), "Name not found");
    EXPECT_EQ(StatusText(B_BAD_INDEX), "Index out of range");
    EXPECT_EQ(StatusText(B_BAD_TYPE), "Wrong type");
    EXPECT_EQ(StatusText(B_BAD_SEM_ID), "No such semaphore");
    EXPECT_EQ(StatusText(B_WOULD_BLOCK), "Operation would block");
    EXPECT_EQ(StatusText(B_NOT_ALLOWED), "Operation not allowed");
    EXPECT_EQ(StatusText(B_NO_INIT), "Not initialized");
    EXPECT_EQ(StatusText(B_BAD_DATA), "Damaged data");
    EXPECT_EQ(StatusText(B_NO_TRANSLATOR), "No translator for this format");
    EXPECT_EQ(StatusText(B_CANCELED), "Cancelled");
}

TEST(StatusText, UnknownStatusesAreGeneralErrors) {
    EXPECT_EQ(StatusText(-1000), "General error");
    EXPECT_EQ(StatusText(1), "General error");
}

TEST(StatusText, EveryStatusHasItsOwnNumberAndText) {
    std::set<std::string> texts;
    for (status_t status = B_CANCELED; status <= B_OK; ++status)
        texts.insert(StatusText(status));
    EXPECT_EQ(texts.size(), 16u);
}

TEST(RgbColor, ComparesAllComponents) {
    EXPECT_EQ((rgb_color{1, 2, 3, 4}), (rgb_color{1, 2, 3, 4}));
    EXPECT_NE((rgb_color{1, 2, 3, 4}), (rgb_color{1, 2, 3, 5}));
    EXPECT_EQ(rgb_color(), (rgb_color{0, 0, 0, 0}));
}

}  // namespace kirto::test
