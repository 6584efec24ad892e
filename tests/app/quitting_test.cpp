// The application is told to quit while two threads send it work that takes a while. Made for
// ThreadSanitizer.
#include <atomic>
#include <gtest/gtest.h>
#include <random>
#include <thread>

#include "app/kirto_fixture.h"
#include "formats/gif/gif_load.h"

namespace kirto::test {

namespace {

constexpr uint32 kRounds = 200;
constexpr uint32 kMostCommands = 12;  // of each side before the application is told to quit

class Quitting : public KirtoFixture {
  protected:
    Quitting() {
        Write("anim.gif", GifOf({10, 10, 20, 5, 5}));
        Write("anim.flc", SmallFlc());
        Write("one.raw", RawPicture(*PictureOf(2, 1, {0xFF0000FF, 0x00FF0000})));
    }

    BMessage Command(std::mt19937& random) const {
        BMessage fade(kFadeToColor);
        fade.AddInt32("count", 3);
        fade.AddInt32("color", 0x102030);
        BMessage open = Files(kOpenFile, {random() % 2 == 0 ? "anim.gif" : "anim.flc"});
        open.AddBool("reset", random() % 2 == 0);
        const BMessage commands[] = {open,
                                     Files(kInsertFiles, {"one.raw", "one.raw"}),
                                     fade,
                                     SaveTo(folder_.Path(), "out.gif"),
                                     SaveTo(folder_.Path(), "out.raw", 1),
                                     BMessage(kUndo),
                                     BMessage(kReverseFrames)};
        return commands[random() % std::size(commands)];
    }

    // Posts commands until the application takes none anymore.
    void Send(uint32 seed, std::atomic<uint32>& sent) const {
        std::mt19937 random(seed);
        while (app_->PostMessage(Command(random)) == B_OK && sent < 4 * kMostCommands)
            ++sent;
    }

    void ExpectWhole(const std::string& name) const {
        if (!std::filesystem::exists(File(name))) return;
        const DebugRecorder debug;
        DocumentFixture fixture;
        const auto file = BFile::OnMemory(ReadBytes(File(name)));
        EXPECT_FALSE(GifLoad(file.get(), 0, fixture.document).failed);
    }
};

TEST_F(Quitting, InTheMiddleOfAnythingEndsWithWholeFiles) {
    std::mt19937 random(12);
    for (uint32 round = 0; round < kRounds && !HasFailure(); ++round) {
        Make();
        Run();
        std::atomic<uint32> sent = 0;
        const uint32 seed = static_cast<uint32>(random());
        std::thread one([&] { Send(seed, sent); });
        std::thread other([&] { Send(seed + 1, sent); });
        const uint32 enough = static_cast<uint32>(random()) % (2 * kMostCommands);
        while (sent < enough)
            std::this_thread::yield();
        if (random() % 2 == 0) app_->RequestStop();
        app_->Quit();
        one.join();
        other.join();
        app_.reset();
        ExpectWhole("out.gif");
        for (const std::string& name : FolderContent())
            EXPECT_FALSE(name.starts_with('.') && name.find("out.gif") != std::string::npos)
                << name;
    }
}

}  // namespace
}  // namespace kirto::test
