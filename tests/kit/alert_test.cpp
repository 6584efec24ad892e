#include "kit/alert.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

using ::testing::ElementsAre;

TEST(BAlert, KeepsWhatItWasMadeOf) {
    const BAlert alert("Title", "Text", "Cancel", "No", "Yes", B_STOP_ALERT);
    EXPECT_EQ(alert.Title(), "Title");
    EXPECT_EQ(alert.Text(), "Text");
    EXPECT_THAT(alert.Buttons(), ElementsAre("Cancel", "No", "Yes"));
    EXPECT_EQ(alert.Type(), B_STOP_ALERT);
}

TEST(BAlert, EmptySecondAndThirdTextsAreNoButtons) {
    EXPECT_THAT(BAlert("", "Text", "OK").Buttons(), ElementsAre("OK"));
    EXPECT_THAT(BAlert("", "Text", "No", "Yes").Buttons(), ElementsAre("No", "Yes"));
    EXPECT_THAT(BAlert("", "Text", "").Buttons(), ElementsAre(""));
}

TEST(BAlert, IsAWarningUnlessSaidOtherwise) {
    EXPECT_EQ(BAlert("", "Text", "OK").Type(), B_WARNING_ALERT);
}

TEST(BAlert, HasItsLastButtonAsTheDefaultUnlessSaidOtherwise) {
    BAlert alert("", "Text", "Cancel", "No", "Yes");
    EXPECT_EQ(BAlert("", "Text", "OK").DefaultButton(), 0);
    EXPECT_EQ(alert.DefaultButton(), 2);
    alert.SetDefaultButton(1);
    EXPECT_EQ(alert.DefaultButton(), 1);
}

TEST(BAlert, GivesThePresentersAnswer) {
    AlertRecorder recorder({0, 1});
    EXPECT_EQ(BAlert("Quit", "Save?", "Cancel", "Save", "", B_IDEA_ALERT).Go(), 0);
    EXPECT_EQ(BAlert("", "Sure?", "No", "Yes", "", B_INFO_ALERT).Go(), 1);
    EXPECT_THAT(recorder.Lines(),
                ElementsAre("IDEA [Quit] Save? | Cancel | Save", "INFO [] Sure? | No | Yes"));
}

TEST(BAlert, IsAnsweredWithTheLastButtonWithoutPresenter) {
    AlertPresenter* previous = InstallAlertPresenter(nullptr);
    EXPECT_EQ(BAlert("", "Text", "OK").Go(), 0);
    EXPECT_EQ(BAlert("", "Text", "Cancel", "No", "Yes").Go(), 2);
    InstallAlertPresenter(previous);
}

TEST(InstallAlertPresenter, GivesBackTheOneBefore) {
    AlertPresenter* original = InstallAlertPresenter(nullptr);
    EXPECT_EQ(InstallAlertPresenter(original), nullptr);
    {
        const AlertRecorder outer;
        AlertRecorder inner;
        EXPECT_EQ(InstallAlertPresenter(&inner), &inner);
    }
    EXPECT_EQ(InstallAlertPresenter(original), original);
}

TEST(Warn, ShowsAWarningWithOneButton) {
    const AlertRecorder recorder;
    Warn("The file can't be written.");
    WarnOutOfMemory();
    EXPECT_THAT(recorder.Lines(), ElementsAre("WARNING [] The file can't be written. | OK",
                                              "WARNING [] Out of memory. | OK"));
}

TEST(TellQuietly, IsAnAlertWhereThePresenterKnowsNothingQuieter) {
    const AlertRecorder recorder;
    TellQuietly("The file can't be written.");
    EXPECT_THAT(recorder.Lines(), ElementsAre("WARNING [] The file can't be written. | OK"));
}

TEST(TellQuietly, IsNothingWithoutPresenter) {
    AlertPresenter* const previous = InstallAlertPresenter(nullptr);
    TellQuietly("The file can't be written.");
    InstallAlertPresenter(previous);
}

}  // namespace kirto::test
