#include "base/number.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace kirto::test {

namespace {

constexpr int32 kLargest = std::numeric_limits<int32>::max();
constexpr int32 kLowest = std::numeric_limits<int32>::lowest();
constexpr double kLargestReal = std::numeric_limits<double>::max();

TEST(Number, ParsesATextThatIsANumberAndNothingElse) {
    int32 number = 7;
    EXPECT_TRUE(ParseNumber("-12", &number));
    EXPECT_EQ(number, -12);
    for (const char* text : {"", " 1", "+1", "1 ", "1x", "99999999999"})
        EXPECT_FALSE(ParseNumber(text, &number)) << text;
    EXPECT_EQ(number, -12);
}

TEST(Number, ReadsTheNumberThatATextOpensWith) {
    EXPECT_EQ(LeadingInteger("12"), 12);
    EXPECT_EQ(LeadingInteger("-12"), -12);
    EXPECT_EQ(LeadingInteger("12.5"), 12);
    EXPECT_EQ(LeadingInteger("12 rows"), 12);
    EXPECT_EQ(LeadingInteger("1e3"), 1);
    EXPECT_EQ(LeadingReal("12.5"), 12.5);
    EXPECT_EQ(LeadingReal("-.5s"), -0.5);
}

TEST(Number, PassesOverBlanksAndAPlusSignInFront) {
    EXPECT_EQ(LeadingInteger(" \t\n\v\f\r+7"), 7);
    EXPECT_EQ(LeadingInteger("  -7"), -7);
    EXPECT_EQ(LeadingReal(" \t\n\v\f\r+0.5"), 0.5);
}

TEST(Number, IsZeroWhereATextOpensWithNone) {
    for (const char* text : {"", " ", "abc", "-", "+", "+-5", "- 5", "nan", "inf", "-inf", "e3"}) {
        EXPECT_EQ(LeadingInteger(text), 0) << text;
        EXPECT_EQ(LeadingReal(text), 0.0) << text;
    }
}

TEST(Number, MayHaveAnExponentWhereItIsReal) {
    EXPECT_EQ(LeadingReal("1e3"), 1000.0);
    EXPECT_EQ(LeadingReal("2.5E-1"), 0.25);
    EXPECT_EQ(LeadingReal("1e"), 1.0);
}

TEST(Number, IsTheBoundOfItsTypeBeyondIt) {
    EXPECT_EQ(LeadingInteger("99999999999"), kLargest);
    EXPECT_EQ(LeadingInteger(" -99999999999"), kLowest);
    EXPECT_EQ(LeadingReal("1e999"), kLargestReal);
    EXPECT_EQ(LeadingReal("-1e999"), -kLargestReal);
    EXPECT_EQ(LeadingReal(std::string(400, '9')), kLargestReal);
    EXPECT_EQ(LeadingReal("1e-999"), 0.0);
}

}  // namespace

}  // namespace kirto::test
