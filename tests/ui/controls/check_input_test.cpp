#include "ui/controls/check_input.h"

#include <gtest/gtest.h>
#include <limits>

#include "support/test_support.h"

namespace kirto::test {

using Lines = std::vector<std::string>;

namespace {

Lines AlertOf(const std::string& text) {
    return {"WARNING [] " + text + " | OK"};
}

class CheckInputTest : public ::testing::Test {
  protected:
    // What the check returns for the text in the field called "Width".
    int32 Whole(const QString& text, int32 min = 0, int32 max = kNoUpperBound) {
        field.setText(text);
        field.setModified(true);
        return CheckInput(field, min, max, "Width");
    }
    double Real(const QString& text, double min = 0.0, double max = kNoUpperBoundReal) {
        field.setText(text);
        field.setModified(true);
        return CheckInput(field, min, max, "Pause length");
    }

    AlertRecorder alerts;
    TextControl field{"Width", BMessage(), BMessenger()};
};

TEST_F(CheckInputTest, LeavesANumberAsItIs) {
    EXPECT_EQ(Whole("12"), 12);

    EXPECT_EQ(field.text(), "12");
    EXPECT_FALSE(field.IsBeingEdited());
    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(CheckInputTest, CutsAFractionOff) {
    EXPECT_EQ(Whole("12.5"), 12);

    EXPECT_EQ(field.text(), "12");
    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(CheckInputTest, DropsWhatFollowsTheNumber) {
    EXPECT_EQ(Whole("12 pixels"), 12);
    EXPECT_EQ(field.text(), "12");
    EXPECT_EQ(Real("1.25s"), 1.25);
    EXPECT_EQ(field.text(), "1.25");
}

TEST_F(CheckInputTest, SkipsBlanksAndAPlusSignInFrontOfTheNumber) {
    EXPECT_EQ(Whole(" \t+7"), 7);
    EXPECT_EQ(field.text(), "7");
    EXPECT_EQ(Real(" +0.5"), 0.5);
    EXPECT_EQ(field.text(), "0.50");
}

TEST_F(CheckInputTest, ReadsAnEmptyFieldAsZero) {
    EXPECT_EQ(Whole(""), 0);
    EXPECT_EQ(field.text(), "0");
    EXPECT_EQ(Real(""), 0.0);
    EXPECT_EQ(field.text(), "0.00");
    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(CheckInputTest, ReadsWordsAsZero) {
    for (const char* word : {"abc", "nan", "NAN", "inf", "-inf", "infinity", "-", "+", "."}) {
        EXPECT_EQ(Whole(word), 0) << word;
        EXPECT_EQ(field.text(), "0") << word;
        EXPECT_EQ(Real(word), 0.0) << word;
        EXPECT_EQ(field.text(), "0.00") << word;
    }
    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(CheckInputTest, TellsThatANumberIsTooLowAndTakesTheBound) {
    EXPECT_EQ(Whole("-3"), 0);

    EXPECT_EQ(field.text(), "0");
    EXPECT_EQ(alerts.Lines(), AlertOf("Width can't be less than 0."));
}

TEST_F(CheckInputTest, TellsThatANumberIsTooHighAndTakesTheBound) {
    EXPECT_EQ(Whole("256", 0, 255), 255);

    EXPECT_EQ(field.text(), "255");
    EXPECT_EQ(alerts.Lines(), AlertOf("Width can't be greater than 255."));
}

TEST_F(CheckInputTest, AllowsTheBoundsThemselves) {
    EXPECT_EQ(Whole("2", 2, 9), 2);
    EXPECT_EQ(Whole("9", 2, 9), 9);
    EXPECT_EQ(Real("2", 2.0, 9.0), 2.0);
    EXPECT_EQ(Real("9", 2.0, 9.0), 9.0);

    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(CheckInputTest, ShowsTheTextAsItWasTypedWhileTheAlertIsUp) {
    struct Presenter : AlertPresenter {
        explicit Presenter(TextControl& control) : field(control) {}
        int32 Present(const BAlert&) override {
            seen = field.text();
            return 0;
        }
        TextControl& field;
        QString seen;
    } presenter{field};
    AlertPresenter* previous = InstallAlertPresenter(&presenter);

    Whole("-3");

    InstallAlertPresenter(previous);
    EXPECT_EQ(presenter.seen, "-3");
}

TEST_F(CheckInputTest, TakesTheLargestNumberThereIsForALargerOne) {
    EXPECT_EQ(Whole("99999999999"), std::numeric_limits<int32>::max());
    EXPECT_EQ(field.text(), "2147483647");
    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(CheckInputTest, FindsTheLowestNumberThereIsTooLow) {
    EXPECT_EQ(Whole("-99999999999"), 0);

    EXPECT_EQ(alerts.Lines(), AlertOf("Width can't be less than 0."));
}

TEST_F(CheckInputTest, ShowsRealNumbersWithTwoDecimals) {
    EXPECT_EQ(Real("100"), 100.0);
    EXPECT_EQ(field.text(), "100.00");
    EXPECT_EQ(Real("0.5"), 0.5);
    EXPECT_EQ(field.text(), "0.50");
    EXPECT_EQ(Real(".25"), 0.25);
    EXPECT_EQ(field.text(), "0.25");
}

TEST_F(CheckInputTest, TakesTheRealNumberThatTheFieldShows) {
    EXPECT_EQ(Real("0.129"), 0.13);

    EXPECT_EQ(field.text(), "0.13");
}

TEST_F(CheckInputTest, TakesAnExponentInRealNumbersOnly) {
    EXPECT_EQ(Real("1e3"), 1000.0);
    EXPECT_EQ(field.text(), "1000.00");
    EXPECT_EQ(Real("25e-2"), 0.25);
    EXPECT_EQ(field.text(), "0.25");
    EXPECT_EQ(Whole("1e3"), 1);
    EXPECT_EQ(field.text(), "1");
}

TEST_F(CheckInputTest, TellsThatARealNumberIsTooLowWithTwoDecimals) {
    EXPECT_EQ(Real("-0.5"), 0.0);

    EXPECT_EQ(field.text(), "0.00");
    EXPECT_EQ(alerts.Lines(), AlertOf("Pause length can't be less than 0.00."));
}

TEST_F(CheckInputTest, TellsThatARealNumberIsTooHighWithTwoDecimals) {
    EXPECT_EQ(Real("9.75", 0.0, 9.5), 9.5);

    EXPECT_EQ(field.text(), "9.50");
    EXPECT_EQ(alerts.Lines(), AlertOf("Pause length can't be greater than 9.50."));
}

TEST_F(CheckInputTest, TakesTheLargestRealNumberThereIsForALargerOne) {
    const QString beyond(400, '9');

    EXPECT_EQ(Real(beyond), std::numeric_limits<double>::max());
    EXPECT_EQ(Real(beyond, 0.0, 9.5), 9.5);
    EXPECT_EQ(Real("-" + beyond), 0.0);
}

}  // namespace

}  // namespace kirto::test
