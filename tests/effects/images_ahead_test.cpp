// What is inserted of image files, and what is said about it, with any number of threads.
#include "effects/images_ahead.h"

#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <random>

#include "base/abandonable.h"
#include "effects/insert_images.h"
#include "support/fake_roster.h"
#include "support/same_animation.h"
#include "support/stopping_recorder.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

// All that comes of inserting files.
struct Inserted {
    std::shared_ptr<const Animation> animation;
    bool complete = false;
    bool modified = false;
    std::string messages;
    std::string debug_lines;
    Lines alerts;
};

// A folder of pictures, and of files that are none.
class ImagesAheadTest : public testing::Test {
  protected:
    // The circumstances under which files are inserted.
    struct Circumstances {
        uint64 limit = PixelBudget::DefaultLimit();
        std::string stop_at;  // a status text
    };

    std::string AddPicture(int32 width, int32 height, uint32 seed, uint32 mask = 0xFFFFFF,
                           color_space space = B_RGB32) {
        std::mt19937 random(seed);
        std::vector<uint32> argb(static_cast<size_t>(width) * static_cast<size_t>(height));
        for (uint32& pixel : argb)
            pixel = 0xFF000000U | (static_cast<uint32>(random()) & mask);
        return AddFile(RawPicture(*PictureOf(width, height, argb, space)));
    }
    std::string AddFile(const std::vector<uint8>& bytes) {
        const std::string name = "file" + std::to_string(names_.size());
        WriteBytes(folder_.File(name), bytes);
        names_.push_back(name);
        return name;
    }
    void AddPictures(int32 count, uint32 mask = 0xFFFFFF) {
        for (int32 i = 0; i < count; ++i)
            AddPicture(20 + i % 5, 30, static_cast<uint32>(names_.size()), mask);
    }

    Inserted Insert(int32 thread_count, const Circumstances& circumstances) {
        const ScopedThreads threads(thread_count);
        Prefs prefs{Prefs::BuiltIn{}};
        const auto port = std::make_shared<StoppingRecorder>();
        AnimationDocument document(prefs, BMessenger(port));
        document.pixel_budget->SetLimit(circumstances.limit);
        port->StopAt(document, circumstances.stop_at);
        const DebugRecorder debug;
        const AlertRecorder alerts;
        BMessage message(kInsertFiles);
        for (const std::string& name : names_)
            message.AddRef("refs", entry_ref(folder_.File(name)));
        Inserted inserted;
        {
            ImagesAhead images(roster_, document.pixel_budget, document.work);
            document.work.Begin();
            inserted.complete = InsertImages(document, message, images);
            document.work.End();
        }
        inserted.animation = document.Current();
        inserted.modified = document.Modified();
        inserted.messages = port->TakeTranscript();
        inserted.debug_lines = debug.Text();
        inserted.alerts = alerts.Lines();
        return inserted;
    }
    Inserted ExpectTheSameOfAnyNumberOfThreads(const Circumstances& circumstances) {
        const Inserted alone = Insert(1, circumstances);
        for (const int32 threads : kThreadCounts) {
            const Inserted inserted = Insert(threads, circumstances);
            EXPECT_TRUE(SameAnimation(*inserted.animation, *alone.animation)) << threads;
            EXPECT_EQ(inserted.complete, alone.complete) << threads;
            EXPECT_EQ(inserted.modified, alone.modified) << threads;
            EXPECT_EQ(inserted.messages, alone.messages) << threads;
            EXPECT_EQ(inserted.debug_lines, alone.debug_lines) << threads;
            EXPECT_EQ(inserted.alerts, alone.alerts) << threads;
        }
        return alone;
    }

    TemporaryFolder folder_;
    Lines names_;
    FakeRoster roster_;
};

TEST_F(ImagesAheadTest, TheNumberOfThreadsMakesNoDifference) {
    AddPictures(20);
    AddPictures(20, 0x030303);
    AddPicture(300, 200, 1);

    const Inserted inserted = ExpectTheSameOfAnyNumberOfThreads({});

    EXPECT_EQ(inserted.animation->frames.Size(), 41);
    EXPECT_TRUE(inserted.complete);
}

TEST_F(ImagesAheadTest, FilesThatAreNoImagesAreToldOfAtTheirTurn) {
    for (int32 i = 0; i < 6; ++i) {
        AddPictures(3);
        AddFile({'t', 'e', 'x', 't'});
    }
    names_.insert(names_.begin() + 4, "missing");
    AddPictures(3);

    const Inserted inserted = ExpectTheSameOfAnyNumberOfThreads({});

    EXPECT_EQ(inserted.animation->frames.Size(), 21);
    EXPECT_EQ(inserted.alerts.size(), 4u);
}

TEST_F(ImagesAheadTest, WhatAPaletteCanNotBeMadeOfIsToldOfAtItsTurn) {
    AddPictures(3);
    AddFile(RawPicture(BBitmap(BRect::OfSize(4, 4), B_RGB16)));
    AddPictures(3);

    const Inserted inserted = ExpectTheSameOfAnyNumberOfThreads({});

    EXPECT_EQ(inserted.debug_lines, "Palette::BuildHashtable() - Wrong color space given\n");
    EXPECT_EQ(inserted.animation->frames.Size(), 7);
}

TEST_F(ImagesAheadTest, MemoryRunsOutAtTheSameFile) {
    AddPictures(12);
    AddPicture(200, 200, 3);
    AddPictures(4, 0x010101);
    int32 ran_out = 0;
    for (uint64 limit = 1000; limit < 300000; limit += 33001)
        ran_out += ExpectTheSameOfAnyNumberOfThreads({limit, {}}).alerts.empty() ? 0 : 1;
    EXPECT_GE(ran_out, 4);
}

TEST_F(ImagesAheadTest, AStopKeepsWhatWasInsertedBefore) {
    AddPictures(20);

    const Inserted inserted = ExpectTheSameOfAnyNumberOfThreads(
        {PixelBudget::DefaultLimit(), "Status: loading frame 7 of 20..."});

    EXPECT_FALSE(inserted.complete);
    EXPECT_EQ(inserted.animation->frames.Size(), 6);
}

TEST_F(ImagesAheadTest, AnExceptionComesAtItsTurn) {
    AddPictures(5);
    roster_.out_of_memory = true;
    for (const int32 threads : kThreadCounts)
        EXPECT_THROW(Insert(threads, {}), std::bad_alloc) << threads;
}

// A roster that gets stuck at one picture, known by its width.
class StuckAtWidth : public FakeRoster {
  public:
    explicit StuckAtWidth(int32 width) : width_(width) {}

    status_t Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                       std::shared_ptr<BBitmap>* result) override {
        const status_t status = FakeRoster::Translate(source, std::move(budget), result);
        if (!*result || (*result)->Width() != width_) return status;
        std::unique_lock lock(mutex_);
        released_.wait(lock, [this] { return is_released_; });
        return status;
    }
    using FakeRoster::Translate;
    void Release() {
        const std::lock_guard lock(mutex_);
        is_released_ = true;
        released_.notify_all();
    }

  private:
    const int32 width_;
    std::mutex mutex_;
    std::condition_variable released_;
    bool is_released_ = false;
};

TEST_F(ImagesAheadTest, ADecoderThatIsStuckIsAbandonedWhenTheWorkIsStopped) {
    AddPictures(3);
    const std::string stuck = folder_.File(AddPicture(99, 1, 1));
    const std::string last = folder_.File(AddPicture(5, 1, 1));
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        StuckAtWidth roster(99);
        Work work;
        work.Begin();
        ImagesAhead images(roster, std::make_shared<PixelBudget>(), work);
        EXPECT_EQ(images.Read({folder_.File(names_[0]), stuck, last}).status, B_OK);
        std::thread stopper([&] {
            std::this_thread::sleep_for(50ms);
            work.Stop(work.Running());
        });

        EXPECT_EQ(images.Read({stuck, last}).status, B_CANCELED) << count;

        stopper.join();
        roster.Release();
        EXPECT_TRUE(WaitForAbandoned(10s));
    }
}

TEST_F(ImagesAheadTest, LettingGoDoesNotWaitForADecoderThatIsStuck) {
    AddPictures(1);
    const std::string stuck = folder_.File(AddPicture(99, 1, 1));
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        StuckAtWidth roster(99);
        Work work;
        {
            ImagesAhead images(roster, std::make_shared<PixelBudget>(), work);
            EXPECT_EQ(images.Read({folder_.File(names_[0]), stuck}).status, B_OK);
        }
        roster.Release();
        EXPECT_TRUE(WaitForAbandoned(10s));
    }
}

TEST_F(ImagesAheadTest, FilesThatWereNotAnnouncedAreReadAllTheSame) {
    AddPictures(6);
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        Work work;
        ImagesAhead images(roster_, std::make_shared<PixelBudget>(), work);
        const auto file = [&](size_t i) { return folder_.File(names_[i]); };

        EXPECT_EQ(images.Read({file(0), file(1), file(2)}).width, 20);
        EXPECT_EQ(images.Read({file(3), file(4)}).width, 23);
        EXPECT_EQ(images.Read({file(2)}).width, 22);
        EXPECT_EQ(images.Read({file(4), file(1)}).width, 24);
        EXPECT_EQ(images.Read({file(1), file(2), file(3)}).width, 21);
    }
}

}  // namespace

}  // namespace kirto::test
