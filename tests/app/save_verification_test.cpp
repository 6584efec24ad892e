#include "app/save_verification.h"

#include <gtest/gtest.h>
#include <thread>

#include "app/save_animation.h"
#include "support/colors.h"
#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Result = SaveVerification::Result;

constexpr uint64 kEnoughMemory = uint64{64} << 20;

class SaveVerificationTest : public testing::Test {
  protected:
    // A document of two pictures of one pixel, saved.
    std::shared_ptr<const Animation> Save(uint32 first, uint32 second) {
        AnimationDocument& document = fixture_.document;
        AppendFrame(document, PictureOf(1, 1, {first}), "first");
        AppendFrame(document, PictureOf(1, 1, {second}), "second");
        EditOf(document)->width = 1;
        EditOf(document)->height = 1;
        EXPECT_EQ(SaveAnimatedGif(document, Path()), SaveResult::kSaved);
        return document.Current();
    }
    std::string Path() const { return folder_.File("saved.gif"); }

    TemporaryFolder folder_;
    DocumentFixture fixture_;
    const AlertRecorder alerts_;
    const DebugRecorder debug_;
};

}  // namespace

TEST_F(SaveVerificationTest, FindsNothingWhereTheFileShowsTheSame) {
    const auto saved = Save(kRed, kGreen);
    SaveVerification verification(kEnoughMemory);

    EXPECT_EQ(verification.Run(Path(), *saved, {}), Result::kEqual);
    EXPECT_EQ(verification.Read()->frames.Size(), 2);
    EXPECT_EQ(debug_.Text(), "");
}

TEST_F(SaveVerificationTest, FindsWhatTheFileShowsOtherwise) {
    const auto saved = Save(kRed, 0);
    SaveVerification verification(kEnoughMemory);

    EXPECT_EQ(verification.Run(Path(), *saved, {}), Result::kDifferent);
    EXPECT_EQ(verification.Differences().filled, 1);
    EXPECT_EQ(verification.Differences().pairs.size(), 1U);
}

TEST_F(SaveVerificationTest, ComparesAFileThatBreaksOffAsFarAsItGoes) {
    const auto saved = Save(kRed, kGreen);
    std::vector<uint8> bytes = ReadBytes(Path());
    bytes.resize(bytes.size() - 8);
    WriteBytes(Path(), bytes);
    SaveVerification verification(kEnoughMemory);

    EXPECT_EQ(verification.Run(Path(), *saved, {}), Result::kDifferent);
    EXPECT_TRUE(alerts_.Lines().empty());
}

TEST_F(SaveVerificationTest, CantTellWithoutTheFileOrWithoutMemory) {
    const auto saved = Save(kRed, kGreen);
    SaveVerification missing(kEnoughMemory);
    SaveVerification cramped(PixelBudget::kFrameCost);

    EXPECT_EQ(missing.Run(folder_.File("missing.gif"), *saved, {}), Result::kUnreadable);
    EXPECT_EQ(cramped.Run(Path(), *saved, {}), Result::kNoMemory);
    EXPECT_TRUE(alerts_.Lines().empty());
}

TEST_F(SaveVerificationTest, EndsWhereItIsStopped) {
    const auto saved = Save(kRed, 0);
    SaveVerification before(kEnoughMemory);
    before.RequestStop();
    EXPECT_EQ(before.Run(Path(), *saved, {}), Result::kStopped);

    SaveVerification meanwhile(kEnoughMemory);
    std::thread stopper([&meanwhile] { meanwhile.RequestStop(); });
    const Result result = meanwhile.Run(Path(), *saved, {});
    stopper.join();
    EXPECT_TRUE(result == Result::kStopped || result == Result::kDifferent);
}

TEST_F(SaveVerificationTest, KnowsFromTheSettingsWhatFramesShow) {
    Prefs prefs{Prefs::BuiltIn{}};
    EXPECT_FALSE(SaveVerification::OptionsOf(prefs).parts);
    EXPECT_FALSE(SaveVerification::OptionsOf(prefs).pauses_in_seconds);
    EXPECT_FALSE(SaveVerification::OptionsOf(prefs).own_palettes);

    prefs.animation_gifloadfullframe = false;
    prefs.global_pauseinseconds = true;
    EXPECT_TRUE(SaveVerification::OptionsOf(prefs).parts);
    EXPECT_TRUE(SaveVerification::OptionsOf(prefs).pauses_in_seconds);

    prefs.animation_faithful = true;
    EXPECT_FALSE(SaveVerification::OptionsOf(prefs).parts);
    EXPECT_TRUE(SaveVerification::OptionsOf(prefs).own_palettes);
}

}  // namespace kirto::test
