#include "document/document_state.h"

#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <latch>
#include <thread>
#include <vector>

#include "document/document_checks.h"
#include "document/document_scope.h"
#include "support/sleeping_thread.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using StatePointer = std::shared_ptr<const DocumentState>;

// What a state says, as one text.
std::string TextOf(const DocumentState& state) {
    const Animation& animation = *state.animation;
    std::string text = state.file_directory + "/" + state.file_name;
    text += state.modified ? " modified" : "";
    text += " selected " + std::to_string(animation.selected);
    text += " palette " + std::to_string(animation.palette->mode);
    text += " thumbnails " + std::to_string(state.settings->thumbnail_height);
    for (const FramePointer& frame : animation.frames)
        text += " " + frame->name + "@" + std::to_string(frame->x_offset);
    return text;
}

// Frames of the one name, one of them current where there are any.
bool IsWhole(const Animation& animation) {
    for (const FramePointer& frame : animation.frames) {
        if (frame->name != "frame") return false;
    }
    return animation.frames.Empty() ? animation.selected == -1
                                    : animation.CurrentFrame() != nullptr;
}

Animation Wider(const AnimationDocument& document) {
    Animation wider = *document.Current();
    ++wider.width;
    return wider;
}

// All ways in which the document publishes a state. A step with a change of its own has begun.
std::vector<std::pair<const char*, void (*)(AnimationDocument&)>> KindsOfChange() {
    using Document = AnimationDocument;
    return {
        {"commit", [](Document& document) { document.Commit(Wider(document)); }},
        {"commit modified", [](Document& document) { document.CommitModified(Wider(document)); }},
        {"modified", [](Document& document) { document.SetModified(false); }},
        {"file", [](Document& document) { document.SetFile("/films", "movie.gif"); }},
        {"restore",
         [](Document& document) { document.Restore(Wider(document), "/films", "movie.gif"); }},
        {"settings", [](Document& document) { document.PublishSettings(); }},
        {"end of a step", [](Document& document) { document.EndStep("Widen again"); }},
        {"undo", [](Document& document) { document.Undo(); }},
        {"new history", [](Document& document) { document.StartHistory(); }},
        {"saved", [](Document& document) { document.MarkSaved(); }},
        {"reset", [](Document& document) { document.Reset(); }},
        {"insertion", [](Document& document) { Insert(document, "three", 0); }},
        {"removal", [](Document& document) { document.RemoveFrame(); }},
        {"move", [](Document& document) { document.MoveFrame(false); }},
        {"reversal", [](Document& document) { document.ReverseFrames(); }},
        {"selection", [](Document& document) { document.Select(1); }},
    };
}

}  // namespace

TEST(DocumentState, StaysAsItWasThroughEveryKindOfEdit) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    const std::function<void()> edits[] = {[&] { Insert(document, "one", 0); },
                                           [&] { Insert(document, "two", 0); },
                                           [&] { Insert(document, "three", 0); },
                                           [&] { document.Select(2); },
                                           [&] { document.MoveFrame(true); },
                                           [&] { document.ReverseFrames(); },
                                           [&] { FrameEditOf(document, 0)->x_offset = 9; },
                                           [&] { PaletteEditOf(document)->Set(kPaletteGreyscale); },
                                           [&] { document.RemoveFrame(); },
                                           [&] { document.SetFile("/films", "movie.gif"); },
                                           [&] {
                                               fixture.prefs.thumbnail_height = 2;
                                               document.PublishSettings();
                                           },
                                           [&] { document.Reset(); }};
    std::vector<std::pair<StatePointer, std::string>> kept;
    for (const auto& edit : edits) {
        kept.emplace_back(document.CurrentState(), TextOf(*document.CurrentState()));
        edit();
    }

    for (size_t i = 0; i < kept.size(); ++i) {
        EXPECT_EQ(TextOf(*kept[i].first), kept[i].second) << "state " << i;
        EXPECT_TRUE(i == 0 || kept[i].second != kept[i - 1].second) << "edit " << i;
    }
}

TEST(DocumentState, KeepsAllThatAnEditDoesNotConcern) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    Insert(document, "one", 0);
    document.SetFile("/films", "movie.gif");
    document.SetModified(true);
    const StatePointer before = document.CurrentState();

    document.Change([](Animation& animation) { animation.width = 7; });

    const StatePointer after = document.CurrentState();
    EXPECT_EQ(after->animation->width, 7);
    EXPECT_EQ(after->animation->FirstFrame(), before->animation->FirstFrame());
    EXPECT_EQ(after->animation->palette, before->animation->palette);
    EXPECT_EQ(after->settings, before->settings);
    EXPECT_EQ(after->file_directory, "/films");
    EXPECT_EQ(after->file_name, "movie.gif");
    EXPECT_TRUE(after->modified);
}

TEST(DocumentState, IsModifiedByACommitThatSaysSo) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;

    document.Commit(*document.Current());
    EXPECT_FALSE(document.Modified());
    document.CommitModified(*document.Current());
    EXPECT_TRUE(document.Modified());
    document.Commit(*document.Current());
    EXPECT_TRUE(document.Modified());
}

TEST(DocumentState, CutsALongFileNameAfterAWholeCharacter) {
    DocumentFixture fixture;
    const std::string fits = std::string(253, 'n') + "\xC3\xA4";

    fixture.document.SetFile("/films", fits);
    EXPECT_EQ(fixture.document.CurrentState()->file_name, fits);
    fixture.document.SetFile("/films", "n" + fits);
    EXPECT_EQ(fixture.document.CurrentState()->file_name, std::string(254, 'n'));
    EXPECT_EQ(fixture.document.CurrentState()->file_directory, "/films");
}

TEST(DocumentState, HasTheSettingsOfTheMomentTheyWerePublished) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    fixture.prefs.global_width = 11;
    document.SetModified(true);
    EXPECT_EQ(document.CurrentState()->settings->global_width, 320);

    document.PublishSettings();
    fixture.prefs.global_width = 12;

    EXPECT_EQ(document.CurrentState()->settings->global_width, 11);
}

TEST(DocumentState, OutlivesItsDocument) {
    StatePointer state;
    {
        DocumentFixture fixture;
        Insert(fixture.document, "one", 0);
        state = fixture.document.CurrentState();
    }

    EXPECT_EQ(PixelsOf(*state->animation->FirstFrame()->bitmap), std::vector<uint32>{0xFF000000});
}

TEST(DocumentState, IsReadWhileAWriterIsInside) {
    DocumentFixture fixture;
    Insert(fixture.document, "one", 0);
    const WriterScope writer(fixture.document);

    EXPECT_EQ(fixture.document.CurrentFrame()->name, "one");
}

TEST(DocumentState, ChangesInNoWayBeforeTheReadersInsideHaveLeft) {
    for (const auto& [name, change] : KindsOfChange()) {
        SCOPED_TRACE(name);
        DocumentFixture fixture;
        AnimationDocument& document = fixture.document;
        Insert(document, "one", 0);
        Insert(document, "two", 0);
        document.BeginStep();
        document.CommitModified(Wider(document));
        document.EndStep("Widen");
        document.BeginStep();
        document.CommitModified(Wider(document));
        const StatePointer before = document.CurrentState();
        document.ReaderEnter();
        std::latch started(1);
        pid_t number = 0;
        std::atomic<bool> changed = false;
        std::thread editor([&, &change = change] {
            number = ThreadNumber();
            started.count_down();
            change(document);
            changed = true;
        });
        started.wait();
        WaitUntilAsleep(number);

        EXPECT_EQ(document.CurrentState(), before);
        EXPECT_FALSE(changed);
        document.ReaderExit();
        editor.join();
        EXPECT_NE(document.CurrentState(), before);
    }
}

TEST(DocumentState, IsWholeForReadersWhileTheDocumentIsEdited) {
    constexpr int32 kReaders = 4;
    constexpr int32 kEdits = 2000;
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    std::latch all_reading(kReaders + 1);
    std::atomic<bool> finished = false;
    std::atomic<int32> broken_lists = 0;

    std::vector<std::thread> readers;
    for (int32 i = 0; i < kReaders; ++i) {
        readers.emplace_back([&] {
            all_reading.arrive_and_wait();
            while (!finished) {
                if (!IsWhole(*document.Current())) ++broken_lists;
            }
        });
    }
    all_reading.arrive_and_wait();
    for (int32 edit = 0; edit < kEdits; ++edit) {
        Insert(document, "frame", edit % (document.FrameCount() + 1));
        if (edit % 3 == 0) document.MoveFrame(edit % 2 == 0);
        if (edit % 4 == 0) document.RemoveFrame();
        if (edit % 5 == 0) document.ReverseFrames();
        document.Select(edit % 7);
        if (edit % 100 == 99) document.Reset();
    }
    finished = true;
    for (std::thread& reader : readers)
        reader.join();

    EXPECT_EQ(broken_lists, 0);
    ExpectConsistent(document);
}

TEST(DocumentState, MissesNoChangeThatIsCarriedOutWhileItIsAskedForUnsavedOnes) {
    constexpr int32 kRounds = 300;
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    AppendFrame(document, PictureOf(1, 1, {0}), "frame");
    std::atomic<int32> round = 0;
    std::thread editor([&] {
        for (int32 i = 1; i <= kRounds; ++i) {
            while (round != i)
                std::this_thread::yield();
            document.SetModified(true);
            document.changes_waiting = 0;
        }
    });
    int32 missed = 0;

    for (int32 i = 1; i <= kRounds; ++i) {
        document.changes_waiting = 1;
        document.SetModified(false);
        round = i;
        do {
            if (!document.HasUnsavedChanges()) ++missed;
        } while (document.changes_waiting > 0);
    }
    editor.join();

    EXPECT_EQ(missed, 0);
}

}  // namespace kirto::test
