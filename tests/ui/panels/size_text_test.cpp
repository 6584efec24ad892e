#include "ui/panels/size_text.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

TEST(SizeText, CountsFewBytes) {
    EXPECT_EQ(SizeText(0, 3), "0 bytes");
    EXPECT_EQ(SizeText(999, 2), "999 bytes");
}

TEST(SizeText, HasAsManyDigitsAsCount) {
    EXPECT_EQ(SizeText(1000, 3), "1.00 kB");
    EXPECT_EQ(SizeText(1234567, 3), "1.23 MB");
    EXPECT_EQ(SizeText(1234567, 2), "1.2 MB");
    EXPECT_EQ(SizeText(123456789, 2), "120 MB");
    EXPECT_EQ(SizeText(123456789, 3), "123 MB");
    EXPECT_EQ(SizeText(5000000000, 1), "5 GB");
}

TEST(SizeText, GoesOnToTheNextUnitWhereItRoundsUpToIt) {
    EXPECT_EQ(SizeText(999400, 3), "999 kB");
    EXPECT_EQ(SizeText(999600, 3), "1.00 MB");
    EXPECT_EQ(SizeText(int64{7000} * 1000 * 1000 * 1000, 3), "7000 GB");
}

}  // namespace

}  // namespace kirto::test
