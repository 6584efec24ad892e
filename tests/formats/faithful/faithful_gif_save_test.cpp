// What is saved faithfully, as browsers show it.
#include "formats/faithful/faithful_gif_save.h"

#include <gtest/gtest.h>

#include "formats/gif/gif_load.h"
#include "support/random_gif.h"
#include "support/shown_animation.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

#ifdef KIRTO_SANITIZED
constexpr uint32 kAnimations = 150;
#else
constexpr uint32 kAnimations = 200;
#endif

// A document that is read and saved faithfully.
struct FaithfulDocument : DocumentFixture {
    FaithfulDocument() {
        prefs.animation_faithful = true;
        prefs.animation_gifcomment = false;
    }

    Bytes Save() {
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        FaithfulGifSave(file, document);
        return file->Memory();
    }
    bool Load(const Bytes& bytes) {
        const auto file = BFile::OnMemory(bytes);
        return !GifLoad(file.get(), 0, document).failed;
    }
    std::vector<ShownFrame> Shown() const { return ShownFrames(*document.Current()); }
};

std::vector<ShownFrame> ShownInFile(const Bytes& bytes) {
    FaithfulDocument loaded;
    EXPECT_TRUE(loaded.Load(bytes));
    return loaded.Shown();
}

// Where the promise is not kept.
testing::AssertionResult ShowsTheSame(const std::vector<ShownFrame>& meant,
                                      const std::vector<ShownFrame>& saved) {
    if (meant.size() != saved.size()) {
        return testing::AssertionFailure() << meant.size() << " frames became " << saved.size();
    }
    for (size_t i = 0; i < meant.size(); ++i) {
        if (meant[i].delay != saved[i].delay)
            return testing::AssertionFailure() << "frame " << i << " has another pause";
        if (meant[i].promised && meant[i].pixels != saved[i].pixels)
            return testing::AssertionFailure() << "frame " << i << " has other pixels";
    }
    return testing::AssertionSuccess();
}

TEST(FaithfulGifSave, ShowsWhatRandomAnimationsShow) {
    for (uint32 seed = 1; seed <= kAnimations; ++seed) {
        SeededChoices choices(seed);
        FaithfulDocument made;
        FillWithScenes(choices, 30, made.document);
        const Bytes bytes = made.Save();
        const std::vector<ShownFrame> meant = made.Shown();
        const std::vector<ShownFrame> saved = ShownInFile(bytes);
        // Frames that are only nearly as they were may be alike now.
        const bool exact = std::all_of(meant.begin(), meant.end(),
                                       [](const ShownFrame& frame) { return frame.promised; });
        if (!exact && saved.size() < meant.size()) continue;
        ASSERT_TRUE(ShowsTheSame(meant, saved)) << "seed " << seed;
    }
}

TEST(FaithfulGifSave, ShowsWhatRandomFilesShow) {
    for (uint32 seed = 1; seed <= kAnimations; ++seed) {
        FaithfulDocument opened;
        if (!opened.Load(RandomGif(seed))) continue;
        ASSERT_TRUE(ShowsTheSame(opened.Shown(), ShownInFile(opened.Save()))) << "seed " << seed;
        // Some of the frames can't be written with the bytes that they were read from.
        SeededChoices choices(seed);
        opened.document.Change([&](Animation& animation) {
            for (int32 edits = choices.Between(1, 4); edits > 0; --edits) {
                const int32 last = animation.frames.Size() - 1;
                const int32 at = choices.Between(0, last);
                if (choices.OneIn(2) && last > 0) {
                    animation.frames.Remove(at);
                } else {
                    animation.frames.Swap(at, choices.Between(0, last));
                }
            }
            animation.selected = 0;
        });
        ASSERT_TRUE(ShowsTheSame(opened.Shown(), ShownInFile(opened.Save()))) << "seed " << seed;
    }
}

}  // namespace

}  // namespace kirto::test
