#include "app/recovery/recovery_writer.h"

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <semaphore>
#include <thread>
#include <vector>

#include "support/test_support.h"

namespace kirto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::chrono::hours kFarAway{10};
constexpr std::chrono::seconds kAtOnce{0};

// Records what is written, as the document's name, and "removed". A write ends when it is let.
class RecordingTarget : public RecoveryTarget {
  public:
    status_t Write(const DocumentState& state) override {
        begun.release();
        if (held) go_on.acquire();
        const std::lock_guard lock(mutex_);
        done_.push_back(state.file_name);
        ended.release();
        return status;
    }
    void Remove() override {
        const std::lock_guard lock(mutex_);
        done_.emplace_back("removed");
        ended.release();
    }
    std::vector<std::string> Done() const {
        const std::lock_guard lock(mutex_);
        return done_;
    }

    std::counting_semaphore<> begun{0};
    std::counting_semaphore<> go_on{0};
    std::counting_semaphore<> ended{0};
    std::atomic<bool> held = false;
    std::atomic<status_t> status = B_OK;

  private:
    mutable std::mutex mutex_;
    std::vector<std::string> done_;
};

std::shared_ptr<DocumentState> EmptyStateNamed(const std::string& name, bool modified = true) {
    auto state = std::make_shared<DocumentState>();
    state->animation = std::make_shared<const Animation>();
    state->file_name = name;
    state->modified = modified;
    return state;
}

TEST(RecoveryWriter, WritesAChangeWhenItIsDue) {
    RecordingTarget target;
    RecoveryWriter writer(target, kAtOnce);

    writer.Update(EmptyStateNamed("one"));
    target.ended.acquire();

    EXPECT_THAT(target.Done(), ElementsAre("one"));
}

TEST(RecoveryWriter, WritesNothingBeforeItIsDue) {
    RecordingTarget target;
    {
        RecoveryWriter writer(target, kFarAway);
        writer.Update(EmptyStateNamed("one"));
    }
    EXPECT_THAT(target.Done(), IsEmpty());
}

TEST(RecoveryWriter, WritesTheNewestStateAtOnceWhenAsked) {
    RecordingTarget target;
    RecoveryWriter writer(target, kFarAway);
    writer.Update(EmptyStateNamed("one"));
    writer.Update(EmptyStateNamed("two"));

    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_THAT(target.Done(), ElementsAre("two"));
}

TEST(RecoveryWriter, HasNothingToWriteTwice) {
    RecordingTarget target;
    RecoveryWriter writer(target, kFarAway);
    EXPECT_EQ(writer.WriteNow(), B_OK);
    const auto state = EmptyStateNamed("one");
    writer.Update(state);
    writer.WriteNow();

    const auto same = std::make_shared<DocumentState>(*state);
    same->undo_steps = 7;
    same->undo_name = "Remove Frame";
    writer.Update(same);
    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_THAT(target.Done(), ElementsAre("one"));
}

TEST(RecoveryWriter, WritesAgainWhenAnythingInTheCopyHasChanged) {
    RecordingTarget target;
    RecoveryWriter writer(target, kFarAway);
    const auto state = EmptyStateNamed("one");
    writer.Update(state);
    writer.WriteNow();
    const auto other_frames = std::make_shared<DocumentState>(*state);
    other_frames->animation = std::make_shared<const Animation>();
    writer.Update(other_frames);
    writer.WriteNow();
    const auto other_folder = std::make_shared<DocumentState>(*other_frames);
    other_folder->file_directory = "/elsewhere";
    writer.Update(other_folder);
    writer.WriteNow();

    EXPECT_THAT(target.Done(), ElementsAre("one", "one", "one"));
}

TEST(RecoveryWriter, NeverBlocksWhoHandsOverDuringAWrite) {
    RecordingTarget target;
    target.held = true;
    RecoveryWriter writer(target, kAtOnce);
    writer.Update(EmptyStateNamed("one"));
    target.begun.acquire();

    writer.Update(EmptyStateNamed("two"));
    writer.Update(EmptyStateNamed("three"));
    target.go_on.release(2);
    target.ended.acquire();
    target.ended.acquire();

    EXPECT_THAT(target.Done(), ElementsAre("one", "three"));
}

TEST(RecoveryWriter, LetsGoOfAStateOnTheWayToTheNextOne) {
    RecordingTarget target;
    RecoveryWriter writer(target, kFarAway);
    std::weak_ptr<const DocumentState> first;
    {
        const auto state = EmptyStateNamed("one");
        first = state;
        writer.Update(state);
    }
    EXPECT_FALSE(first.expired());

    writer.Update(EmptyStateNamed("two"));

    EXPECT_TRUE(first.expired());
}

TEST(RecoveryWriter, RemovesTheCopyOfADocumentThatIsSaved) {
    RecordingTarget target;
    RecoveryWriter writer(target, kFarAway);
    writer.Update(EmptyStateNamed("one"));
    writer.WriteNow();

    writer.Update(EmptyStateNamed("one", false));
    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_THAT(target.Done(), ElementsAre("one", "removed"));
}

TEST(RecoveryWriter, RemovesTheCopyWithoutTheDelay) {
    RecordingTarget target;
    RecoveryWriter writer(target, kFarAway);
    writer.Update(EmptyStateNamed("one"));
    writer.Update(EmptyStateNamed("one", false));
    target.ended.acquire();

    EXPECT_THAT(target.Done(), ElementsAre("removed"));
}

TEST(RecoveryWriter, ADocumentThatIsSavedDuringAWriteHasNoCopyInTheEnd) {
    RecordingTarget target;
    target.held = true;
    RecoveryWriter writer(target, kAtOnce);
    writer.Update(EmptyStateNamed("one"));
    target.begun.acquire();
    writer.Update(EmptyStateNamed("one", false));
    target.go_on.release();

    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_THAT(target.Done(), ElementsAre("one", "removed"));
}

TEST(RecoveryWriter, AnOldCopyGoesThoughTheNextChangeComesSoon) {
    RecordingTarget target;
    target.held = true;
    RecoveryWriter writer(target, kFarAway);
    writer.Update(EmptyStateNamed("one"));
    std::thread first([&writer] { writer.WriteNow(); });
    target.begun.acquire();
    writer.Update(EmptyStateNamed("one", false));
    writer.Update(EmptyStateNamed("two"));
    target.held = false;
    target.go_on.release();
    first.join();
    writer.WriteNow();

    EXPECT_THAT(target.Done(), ElementsAre("one", "removed", "two"));
}

TEST(RecoveryWriter, ANewDocumentHasNothingToRemove) {
    RecordingTarget target;
    RecoveryWriter writer(target, kAtOnce);
    writer.Update(EmptyStateNamed("untitled", false));
    writer.Update(EmptyStateNamed("other", false));

    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_THAT(target.Done(), IsEmpty());
}

TEST(RecoveryWriter, AFailedWriteIsReportedAndTriedAgainWhenAsked) {
    const DebugRecorder lines;
    RecordingTarget target;
    target.status = B_IO_ERROR;
    RecoveryWriter writer(target, kFarAway);
    writer.Update(EmptyStateNamed("one"));

    EXPECT_EQ(writer.WriteNow(), B_IO_ERROR);
    EXPECT_EQ(writer.WriteNow(), B_IO_ERROR);
    target.status = B_OK;
    EXPECT_EQ(writer.WriteNow(), B_OK);
    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_THAT(target.Done(), ElementsAre("one", "one", "one"));
    const std::string line = "RecoveryWriter::WriteCopy() - The copy can't be written (" +
                             StatusText(B_IO_ERROR) + ")\n";
    EXPECT_EQ(lines.Text(), line + line);
}

TEST(RecoveryWriter, AFailedWriteIsTriedAgainAtTheNextChange) {
    const DebugRecorder lines;
    RecordingTarget target;
    target.status = B_IO_ERROR;
    RecoveryWriter writer(target, kAtOnce);
    writer.Update(EmptyStateNamed("one"));
    target.ended.acquire();
    target.status = B_OK;

    writer.Update(EmptyStateNamed("two"));
    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_THAT(target.Done(), ElementsAre("one", "two"));
}

TEST(RecoveryWriter, AFailureIsForgottenWithTheChangeThatItWasOf) {
    const DebugRecorder lines;
    RecordingTarget target;
    target.status = B_IO_ERROR;
    RecoveryWriter writer(target, kFarAway);
    writer.Update(EmptyStateNamed("one"));
    writer.WriteNow();

    writer.Update(EmptyStateNamed("one", false));

    EXPECT_EQ(writer.WriteNow(), B_OK);
    EXPECT_THAT(target.Done(), ElementsAre("one", "removed"));
}

TEST(RecoveryWriter, TakesChangesFromSeveralThreads) {
    RecordingTarget target;
    RecoveryWriter writer(target, kAtOnce);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&writer, i] {
            for (int n = 0; n < 50; ++n) {
                writer.Update(EmptyStateNamed("some", (n + i) % 7 != 0));
                if (n % 10 == 0) writer.WriteNow();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    writer.Update(EmptyStateNamed("last"));

    EXPECT_EQ(writer.WriteNow(), B_OK);

    EXPECT_EQ(target.Done().back(), "last");
}

}  // namespace
}  // namespace kirto::test
