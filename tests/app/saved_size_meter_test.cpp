#include "app/saved_size_meter.h"

#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>

#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

class SavedSizeMeterTest : public testing::Test {
  protected:
    std::shared_ptr<const DocumentState> Squares(int32 frames, int32 side, uint32 color = kRed) {
        DocumentFixture fixture;
        AnimationDocument& document = fixture.document;
        const size_t pixels = static_cast<size_t>(side) * static_cast<size_t>(side);
        for (int32 i = 0; i < frames; ++i)
            AppendFrame(document, PictureOf(side, side, std::vector<uint32>(pixels, color)), "");
        EditOf(document)->width = side;
        EditOf(document)->height = side;
        return document.CurrentState();
    }
    void Told() {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (meter_) sizes_.push_back(meter_->Last());
        told_.notify_one();
    }
    // Waits until an exact size is told.
    SavedSizeMeter::Size WaitForExact() {
        std::unique_lock<std::mutex> lock(mutex_);
        told_.wait(lock,
                   [this] { return !sizes_.empty() && sizes_.back() && sizes_.back()->is_exact; });
        return *sizes_.back();
    }
    void Forget() {
        const std::lock_guard<std::mutex> lock(mutex_);
        sizes_.clear();
    }

    std::mutex mutex_;
    std::condition_variable told_;
    std::vector<std::optional<SavedSizeMeter::Size>>
        sizes_;  // at each change, guarded by the mutex
    std::unique_ptr<SavedSizeMeter> meter_ = std::make_unique<SavedSizeMeter>([this] { Told(); });
};

TEST_F(SavedSizeMeterTest, TellsAboutHowMuchAndThenExactly) {
    const auto state = Squares(30, 20);

    meter_->Measure(state);
    const SavedSizeMeter::Size size = WaitForExact();

    EXPECT_EQ(size.bytes, SavedSize(*state).Exact());
    ASSERT_EQ(sizes_.size(), 2U);
    ASSERT_TRUE(sizes_[0]);
    EXPECT_FALSE(sizes_[0]->is_exact);
}

TEST_F(SavedSizeMeterTest, MeasuresTheLastOfManyEditsOnly) {
    const auto last = Squares(2, 8);
    for (int32 i = 1; i <= 20; ++i)
        meter_->Measure(Squares(20, i));

    meter_->Measure(last);
    const SavedSizeMeter::Size size = WaitForExact();

    EXPECT_EQ(size.bytes, SavedSize(*last).Exact());
    EXPECT_EQ(sizes_.size(), 2U);
}

TEST_F(SavedSizeMeterTest, BeginsAnewWhenSomethingIsEditedMeanwhile) {
    const auto large = Squares(300, 200);
    const auto edited = Squares(3, 200);
    meter_->Measure(large);
    {
        std::unique_lock<std::mutex> lock(mutex_);
        told_.wait(lock, [this] { return !sizes_.empty(); });
    }

    meter_->Measure(edited);

    EXPECT_FALSE(meter_->Last());
    Forget();
    EXPECT_EQ(WaitForExact().bytes, SavedSize(*edited).Exact());
}

TEST_F(SavedSizeMeterTest, KeepsTheSizeWhileTheFileWouldBeTheSame) {
    DocumentFixture fixture;
    for (int32 i = 0; i < 3; ++i)
        AppendFrame(fixture.document, PictureOf(1, 1, {kRed}), "frame");
    EditOf(fixture.document)->width = 1;
    EditOf(fixture.document)->height = 1;
    meter_->Measure(fixture.document.CurrentState());
    const SavedSizeMeter::Size size = WaitForExact();

    fixture.document.Select(1);
    meter_->Measure(fixture.document.CurrentState());

    EXPECT_EQ(meter_->Last(), size);
}

TEST_F(SavedSizeMeterTest, KnowsNothingOfWhatCanNotBeSaved) {
    meter_->Measure(Squares(3, 5));
    WaitForExact();
    Forget();
    meter_->Measure(Squares(0, 5));
    std::unique_lock<std::mutex> lock(mutex_);
    told_.wait(lock, [this] { return !sizes_.empty(); });

    EXPECT_FALSE(sizes_.back());
}

}  // namespace

}  // namespace kirto::test
