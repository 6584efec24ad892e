#include "app/save_check.h"

#include <future>
#include <gtest/gtest.h>
#include <thread>

#include "app/save_animation.h"
#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr uint64 kEnough = uint64{64} << 20;
constexpr uint32 kOffPalette = 0xFF123456;

class SaveCheckTest : public testing::Test {
  protected:
    // A save of one frame of that color.
    SaveCheck::Save Saved(const std::string& name, uint32 pixel, int32 size = 1) {
        DocumentFixture fixture;
        AnimationDocument& document = fixture.document;
        const size_t pixels = static_cast<size_t>(size) * static_cast<size_t>(size);
        AppendFrame(document, PictureOf(size, size, std::vector<uint32>(pixels, pixel)), "frame");
        EditOf(document)->width = size;
        EditOf(document)->height = size;
        EXPECT_EQ(SaveAnimatedGif(document, folder_.File(name)), SaveResult::kSaved);
        return {folder_.File(name), document.Current(), {}, kEnough};
    }
    // Returns when the save has been compared: nobody else has the animation.
    void StartAndWait(SaveCheck::Save save) {
        const std::weak_ptr<const Animation> animation = save.animation;
        check_.Start(std::move(save));
        while (!animation.expired())
            std::this_thread::yield();
    }
    void WaitUntilFound() { found_.get_future().wait(); }

    TemporaryFolder folder_;
    std::promise<void> found_;
    SaveCheck check_{[this] { found_.set_value(); }};
};

}  // namespace

TEST_F(SaveCheckTest, FindsWhatASaveShowsOtherwise) {
    const SaveCheck::Save save = Saved("other.gif", kOffPalette);

    check_.Start(save);
    WaitUntilFound();

    const auto finding = check_.Last();
    ASSERT_TRUE(finding);
    EXPECT_EQ(finding->path, save.path);
    EXPECT_EQ(finding->saved, save.animation);
    EXPECT_EQ(finding->differences.recolored, 1);
    EXPECT_EQ(finding->read->frames.Size(), 1);
}

TEST_F(SaveCheckTest, FindsNothingInTheSaveBeforeTheLast) {
    const SaveCheck::Save before = Saved("before.gif", kOffPalette, 400);
    const SaveCheck::Save last = Saved("last.gif", kOffPalette);

    for (int32 i = 0; i < 20; ++i)
        check_.Start(before);
    check_.Start(last);
    WaitUntilFound();

    EXPECT_EQ(check_.Last()->path, last.path);
}

TEST_F(SaveCheckTest, FindsNothingWhereNothingDiffers) {
    StartAndWait(Saved("same.gif", kRed));

    EXPECT_FALSE(check_.Last());
}

TEST_F(SaveCheckTest, FindsNothingOnceItWasStopped) {
    SaveCheck check([] {});
    SaveCheck::Save save = Saved("other.gif", kOffPalette, 500);
    const std::weak_ptr<const Animation> animation = save.animation;

    check.Start(std::move(save));
    check.Stop();
    const auto found_before = check.Last();
    while (!animation.expired() && !found_before)
        std::this_thread::yield();

    EXPECT_EQ(check.Last(), found_before);
}

TEST_F(SaveCheckTest, ForgetsWhatItFound) {
    check_.Start(Saved("other.gif", kOffPalette));
    WaitUntilFound();

    check_.Stop();
    EXPECT_TRUE(check_.Last());
    check_.Forget();
    EXPECT_FALSE(check_.Last());
}

TEST_F(SaveCheckTest, EndsWithWorkUnderWay) {
    const SaveCheck::Save save = Saved("other.gif", kOffPalette, 500);
    for (int32 i = 0; i < 10; ++i) {
        SaveCheck check([] {});
        check.Start(save);
        if (i % 2 == 0) check.Stop();
    }
}

}  // namespace kirto::test
