// What is written of a sequence, and what is said about it, with any number of threads.
#include "app/sequence_save.h"

#include <condition_variable>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <thread>

#include "base/abandonable.h"
#include "support/fake_roster.h"
#include "support/full_disk.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;
using Content = std::map<std::string, std::vector<uint8>>;

constexpr const char* kNotCreatedLine =
    "WARNING [] The animation can't be saved because the file could not be created at this "
    "location. | OK";
constexpr const char* kInvalidLine =
    "WARNING [] The animation can't be saved because the selected translator is not valid. | OK";

// Does something else with the picture of one width.
class ChoosyRoster : public FakeRoster {
  public:
    enum class Deed { kNothing, kFail, kThrow, kGetStuck };

    ChoosyRoster(int32 width, Deed deed) : width_(width), deed_(deed) {}

    using FakeRoster::Translate;
    status_t Translate(const BBitmap& source, translator_id translator, uint32 format,
                       const BMessage& settings, BFile& destination) override {
        if (source.Width() == width_) {
            if (deed_ == Deed::kFail) return B_ERROR;
            if (deed_ == Deed::kThrow) throw std::bad_alloc();
            if (deed_ == Deed::kGetStuck) WaitForRelease();
        }
        return FakeRoster::Translate(source, translator, format, settings, destination);
    }
    void Release() {
        const std::lock_guard lock(mutex_);
        is_released_ = true;
        released_.notify_all();
    }

  private:
    void WaitForRelease() {
        std::unique_lock lock(mutex_);
        released_.wait(lock, [this] { return is_released_; });
    }

    const int32 width_;
    const Deed deed_;
    std::mutex mutex_;
    std::condition_variable released_;
    bool is_released_ = false;
};

using Deed = ChoosyRoster::Deed;

// A document of 12 frames, 1 to 12 pixels wide, that is saved into a folder of its own.
struct SequenceFixture {
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document{prefs};
    TemporaryFolder folder;
    AlertRecorder alerts;
    int32 written = 0;

    SequenceFixture() {
        for (int32 width = 1; width <= 12; ++width) {
            std::vector<uint32> argb(static_cast<size_t>(width) * 2, 0xFF102030);
            argb[0] = static_cast<uint32>(width);
            AppendFrame(document, PictureOf(width, 2, argb), "frame");
        }
        document.SetFile(folder.Path(), "movie.raw");
    }
    status_t Save(BTranslatorRoster& roster) {
        SequenceSave save(document, roster, {FakeRoster::kRaw, FakeRoster::kRawFormat, {}});
        document.work.Begin();
        const status_t status = save.Save();
        document.work.End();
        written = save.Written();
        return status;
    }
    Content Files() const {
        Content files;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
            const std::string name = entry.path().filename().string();
            files[name] =
                entry.is_regular_file() ? ReadBytes(entry.path().string()) : std::vector<uint8>();
        }
        return files;
    }
};

TEST(SequenceSave, WritesTheSameFilesWithAnyNumberOfThreads) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        SequenceFixture fixture;
        FakeRoster roster;

        EXPECT_EQ(fixture.Save(roster), B_OK);

        const Content files = fixture.Files();
        ASSERT_EQ(files.size(), 12u) << count;
        EXPECT_EQ(fixture.written, 12);
        EXPECT_EQ(files.at("movie0010.raw"), RawPicture(*fixture.document.FrameAt(10)->bitmap));
    }
}

TEST(SequenceSave, EndsAtAFrameThatCanNotBeTranslated) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        SequenceFixture fixture;
        ChoosyRoster roster(6, Deed::kFail);

        EXPECT_EQ(fixture.Save(roster), B_ERROR);

        EXPECT_EQ(fixture.Files().size(), 5u) << count;
        EXPECT_EQ(fixture.alerts.Lines(), Lines{kInvalidLine}) << count;
    }
}

TEST(SequenceSave, ThrowsWhatATranslatorThrowsAtItsTurn) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        SequenceFixture fixture;
        ChoosyRoster roster(4, Deed::kThrow);

        EXPECT_THROW(fixture.Save(roster), std::bad_alloc) << count;

        EXPECT_EQ(fixture.Files().size(), 3u) << count;
    }
}

TEST(SequenceSave, EndsAtAFileThatCanNotBeCreated) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        SequenceFixture fixture;
        std::filesystem::create_directory(fixture.folder.File("movie0007.raw"));
        FakeRoster roster;

        EXPECT_EQ(fixture.Save(roster), B_IO_ERROR);

        EXPECT_EQ(fixture.written, 7) << count;
        EXPECT_EQ(fixture.Files().size(), 8u) << count;
        EXPECT_EQ(fixture.alerts.Lines(), Lines{kNotCreatedLine}) << count;
    }
}

TEST(SequenceSave, LeavesNoFileThatTheDiskHasNoRoomFor) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        SequenceFixture fixture;
        FakeRoster roster;
        {
            const FullDisk disk;
            EXPECT_EQ(fixture.Save(roster), B_IO_ERROR);
        }

        EXPECT_EQ(fixture.Files(), Content{}) << count;
        EXPECT_EQ(fixture.alerts.Lines(), Lines{kNotCreatedLine}) << count;
    }
}

TEST(SequenceSave, AbandonsAnEncoderThatIsStuckWhenTheWorkIsStopped) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        SequenceFixture fixture;
        ChoosyRoster roster(3, Deed::kGetStuck);
        std::thread stopper([&] {
            while (fixture.Files().size() < 2)
                std::this_thread::sleep_for(1ms);
            std::this_thread::sleep_for(20ms);
            fixture.document.work.Stop(fixture.document.work.Running());
        });

        EXPECT_EQ(fixture.Save(roster), B_CANCELED);

        stopper.join();
        EXPECT_EQ(fixture.written, 2) << count;
        roster.Release();
        EXPECT_TRUE(WaitForAbandoned(10s));
        EXPECT_EQ(fixture.Files().size(), 2u) << count;
    }
}

}  // namespace

}  // namespace kirto::test
