#include "effects/insert_images.h"

#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/fake_roster.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Lines = std::vector<std::string>;

constexpr const char* kOutOfMemory = "WARNING [] Out of memory. | OK";

std::string Unsupported(const std::string& leaf) {
    return "WARNING [] This file can't be inserted because this file type is unsupported: " + leaf +
           " | OK";
}

// A document, a folder of raw pictures "one.raw" (2 x 1), "two.raw" (1 x 3) and "three.raw"
// (1 x 1), and a text.
struct InsertFixture : DocumentFixture {
    TemporaryFolder folder;
    FakeRoster roster;
    AlertRecorder alerts;

    InsertFixture() {
        WriteBytes(folder.File("one.raw"), RawPicture(*PictureOf(2, 1, {0xFF0000FF, 0xFF00FF00})));
        WriteBytes(folder.File("two.raw"), RawPicture(*PictureOf(1, 3, {1, 2, 3}, B_RGBA32)));
        WriteBytes(folder.File("three.raw"), RawPicture(*PictureOf(1, 1, {0xFF123456})));
        WriteBytes(folder.File("notes.txt"), {'n', 'o', 't', 'e', 's'});
    }

    BMessage Files(const Lines& names) const {
        BMessage message(kInsertFiles);
        for (const std::string& name : names)
            message.AddRef("refs", entry_ref(folder.File(name)));
        return message;
    }
    BMessage FilesAt(int32 position, const Lines& names) const {
        BMessage message = Files(names);
        message.AddInt32("position", position);
        return message;
    }
    void Insert(const BMessage& message) {
        ImagesAhead images(roster, document.pixel_budget, document.work);
        InsertImages(document, message, images);
    }
    void AppendOld(int32 count) {
        for (int32 i = 0; i < count; ++i)
            AppendFrame(document, PictureOf(1, 1, {0}), "old");
        port->TakeTranscript();
    }

    // The frames' names in order, with the current one in brackets.
    Lines Names() const {
        Lines names;
        for (const FramePointer& frame : document.Current()->frames) {
            const bool current = static_cast<int32>(names.size()) == document.Selected();
            names.push_back(current ? "[" + frame->name + "]" : frame->name);
        }
        return names;
    }
};

TEST(InsertImages, InsertsFilesInOrderAndMakesTheLastOneCurrent) {
    InsertFixture fixture;

    fixture.Insert(fixture.Files({"one.raw", "two.raw", "three.raw"}));

    EXPECT_EQ(fixture.Names(), (Lines{"one.raw", "two.raw", "[three.raw]"}));
    EXPECT_TRUE(fixture.document.Modified());
    EXPECT_EQ(fixture.port->Transcript(),
              "svup(Status: loading frame 1 of 3...) tvff auns "
              "svup(Status: loading frame 2 of 3...) auns "
              "svup(Status: loading frame 3 of 3...) auns");
    EXPECT_EQ(fixture.alerts.Lines(), Lines{});
}

TEST(InsertImages, KeepsThePictureAsTheTranslatorDeliversIt) {
    InsertFixture fixture;

    fixture.Insert(fixture.Files({"two.raw"}));

    const Frame& frame = *fixture.document.FirstFrame();
    EXPECT_EQ(frame.width, 1);
    EXPECT_EQ(frame.height, 3);
    EXPECT_EQ(frame.bitmap->ColorSpace(), B_RGBA32);
    EXPECT_EQ(PixelsOf(*frame.bitmap), (std::vector<uint32>{1, 2, 3}));
    EXPECT_EQ(frame.palette->mode, kPaletteOptimal);
    EXPECT_EQ(frame.palette->unique_colors, 3);
    EXPECT_FALSE(frame.local_palette);
}

TEST(InsertImages, InsertsBehindTheCurrentFrameWithoutAPosition) {
    for (const bool minus_one : {false, true}) {
        InsertFixture fixture;
        fixture.AppendOld(6);
        fixture.document.Select(4);

        fixture.Insert(minus_one ? fixture.FilesAt(-1, {"one.raw"}) : fixture.Files({"one.raw"}));

        EXPECT_EQ(fixture.Names(), (Lines{"old", "old", "old", "old", "old", "[one.raw]", "old"}));
        EXPECT_EQ(fixture.port->Transcript(), "svup(Status: loading frame 1 of 1...) auns");
    }
}

TEST(InsertImages, InsertsAtThePositionAsked) {
    InsertFixture fixture;
    fixture.AppendOld(2);

    fixture.Insert(fixture.FilesAt(1, {"one.raw", "two.raw"}));
    EXPECT_EQ(fixture.Names(), (Lines{"old", "one.raw", "[two.raw]", "old"}));
    fixture.Insert(fixture.FilesAt(0, {"three.raw"}));

    EXPECT_EQ(fixture.Names(), (Lines{"[three.raw]", "old", "one.raw", "two.raw", "old"}));
}

TEST(InsertImages, ClampsPositionsOutsideTheAnimation) {
    InsertFixture fixture;
    fixture.AppendOld(1);

    fixture.Insert(fixture.FilesAt(99, {"one.raw", "two.raw"}));
    fixture.Insert(fixture.FilesAt(-2, {"three.raw", "three.raw"}));

    EXPECT_EQ(fixture.Names(), (Lines{"three.raw", "[three.raw]", "old", "one.raw", "two.raw"}));
}

TEST(InsertImages, PassesOverUnreadableFilesWithoutAGap) {
    InsertFixture fixture;

    fixture.Insert(fixture.Files({"one.raw", "notes.txt", "missing.raw", "three.raw"}));

    EXPECT_EQ(fixture.Names(), (Lines{"one.raw", "[three.raw]"}));
    EXPECT_EQ(fixture.alerts.Lines(),
              (Lines{Unsupported("notes.txt"), Unsupported("missing.raw")}));
    EXPECT_EQ(fixture.port->Transcript(),
              "svup(Status: loading frame 1 of 4...) tvff auns "
              "svup(Status: loading frame 2 of 4...) "
              "svup(Status: loading frame 3 of 4...) "
              "svup(Status: loading frame 4 of 4...) auns");
}

TEST(InsertImages, LeavesTheDocumentUnmodifiedWhenNoFileIsReadable) {
    InsertFixture fixture;

    fixture.Insert(fixture.Files({"notes.txt"}));

    EXPECT_EQ(fixture.document.FrameCount(), 0);
    EXPECT_FALSE(fixture.document.Modified());
}

TEST(InsertImages, TakesTheAnimationsSizeFromTheFirstPictureOnly) {
    InsertFixture fixture;

    fixture.Insert(fixture.Files({"two.raw", "one.raw"}));
    fixture.Insert(fixture.Files({"three.raw"}));

    EXPECT_EQ(fixture.document.Current()->width, 1);
    EXPECT_EQ(fixture.document.Current()->height, 3);
}

TEST(InsertImages, KeepsTheAnimationsSizeWhereTheSettingsSaySo) {
    InsertFixture fixture;
    fixture.prefs.global_setdimensions = false;

    fixture.Insert(fixture.Files({"two.raw"}));

    EXPECT_EQ(fixture.document.Current()->width, 320);
    EXPECT_EQ(fixture.document.Current()->height, 240);
}

TEST(InsertImages, PostsTheThumbnailSizeOfTheSettingsWithTheFirstFrame) {
    for (const auto& [setting, command] :
         {std::pair{0, "tvff "}, std::pair{1, "tvfh "}, std::pair{2, "tvpv "}, std::pair{3, ""}}) {
        InsertFixture fixture;
        fixture.prefs.thumbnail_height = setting;

        fixture.Insert(fixture.Files({"one.raw"}));

        EXPECT_EQ(fixture.port->Transcript(),
                  "svup(Status: loading frame 1 of 1...) " + std::string(command) + "auns");
    }
}

TEST(InsertImages, TellsOfUpToThreeUnreadableFilesOneByOne) {
    InsertFixture fixture;

    fixture.Insert(fixture.Files({"a.txt", "b.txt", "one.raw", "c.txt"}));

    EXPECT_EQ(fixture.alerts.Lines(),
              (Lines{Unsupported("a.txt"), Unsupported("b.txt"), Unsupported("c.txt")}));
}

TEST(InsertImages, TellsOfMoreUnreadableFilesTogetherAtTheEnd) {
    InsertFixture fixture;
    Lines names;
    for (int i = 0; i < 40; ++i)
        names.push_back("file" + std::to_string(i));
    names.emplace_back("one.raw");

    fixture.Insert(fixture.Files(names));

    std::string rest =
        "WARNING [] These files can't be inserted because their types are unsupported:";
    for (int i = 3; i < 23; ++i)
        rest += "\nfile" + std::to_string(i);
    EXPECT_EQ(fixture.alerts.Lines(), (Lines{Unsupported("file0"), Unsupported("file1"),
                                             Unsupported("file2"), rest + "\nand 17 more | OK"}));
    EXPECT_EQ(fixture.Names(), Lines{"[one.raw]"});
}

TEST(InsertImages, TellsOfAFourthUnreadableFileAsOfTheFirst) {
    InsertFixture fixture;

    fixture.Insert(fixture.Files({"a", "b", "c", "d"}));

    EXPECT_EQ(fixture.alerts.Lines(),
              (Lines{Unsupported("a"), Unsupported("b"), Unsupported("c"), Unsupported("d")}));
}

TEST(InsertImages, TellsOfUnreadableFilesBeforeMemoryRunsOut) {
    InsertFixture fixture;
    int64 calls = 0;
    {
        InsertFixture trial;
        const AllocationFault fault(1000000);
        trial.Insert(trial.Files({"a", "b", "c", "d", "e"}));
        calls = fault.Calls();
    }

    const AllocationFault fault(calls + 1);
    fixture.Insert(fixture.Files({"a", "b", "c", "d", "e", "one.raw"}));

    const Lines lines = fixture.alerts.Lines();
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_TRUE(lines[3].ends_with("\nd\ne | OK")) << lines[3];
    EXPECT_EQ(lines[4], kOutOfMemory);
}

TEST(InsertImages, DoesNothingWithoutReferences) {
    InsertFixture fixture;

    fixture.Insert(BMessage(kInsertFiles));

    EXPECT_EQ(fixture.port->Transcript(), "");
    EXPECT_FALSE(fixture.document.Modified());
}

TEST(InsertImages, EndsAtAReferenceThatIsNone) {
    InsertFixture fixture;
    BMessage message(kInsertFiles);
    message.AddString("refs", fixture.folder.File("one.raw"));
    message.AddString("refs", fixture.folder.File("two.raw"));

    fixture.Insert(message);

    EXPECT_EQ(fixture.port->Transcript(), "svup(Status: loading frame 1 of 2...)");
    EXPECT_EQ(fixture.document.FrameCount(), 0);
    EXPECT_EQ(fixture.alerts.Lines(), Lines{});
}

TEST(InsertImages, KeepsTheLongestNameThatAFileCanHave) {
    InsertFixture fixture;
    const std::string name = std::string(251, 'n') + ".raw";
    WriteBytes(fixture.folder.File(name), RawPicture(*PictureOf(1, 1, {0})));

    fixture.Insert(fixture.Files({name}));

    EXPECT_EQ(fixture.document.FirstFrame()->name, name);
}

TEST(InsertImages, StopsWithOutOfMemoryAndKeepsTheFramesInsertedSoFar) {
    InsertFixture fixture;
    // The second frame can't be made once the first has taken all allocations it needs.
    int64 calls_for_one = 0;
    {
        InsertFixture trial;
        const AllocationFault fault(1000000);
        trial.Insert(trial.Files({"one.raw"}));
        calls_for_one = fault.Calls();
    }

    const AllocationFault fault(calls_for_one + 1);
    fixture.Insert(fixture.Files({"one.raw", "two.raw", "three.raw"}));

    EXPECT_EQ(fixture.Names(), Lines{"[one.raw]"});
    EXPECT_TRUE(fixture.document.Modified());
    EXPECT_EQ(fixture.alerts.Lines(), Lines{kOutOfMemory});
    EXPECT_EQ(fixture.port->Transcript(),
              "svup(Status: loading frame 1 of 3...) tvff auns "
              "svup(Status: loading frame 2 of 3...)");
}

TEST(InsertImages, SurvivesAFailureOfEachAllocation) {
    for (int64 failing = 1;; ++failing) {
        InsertFixture fixture;
        int64 calls = 0;
        {
            const AllocationFault fault(failing);
            fixture.Insert(fixture.Files({"one.raw", "two.raw"}));
            calls = fault.Calls();
        }
        ASSERT_EQ(fixture.document.Modified(), fixture.document.FrameCount() > 0);
        if (calls < failing) {
            ASSERT_EQ(fixture.Names(), (Lines{"one.raw", "[two.raw]"}));
            break;
        }
        ASSERT_FALSE(fixture.alerts.Lines().empty());
        for (const std::string& line : fixture.alerts.Lines()) {
            ASSERT_TRUE(line == kOutOfMemory || line == Unsupported("one.raw") ||
                        line == Unsupported("two.raw"))
                << line;
        }
    }
}

TEST(InsertImages, RefusesPicturesBeyondTheDocumentsPixelMemory) {
    InsertFixture fixture;
    fixture.document.pixel_budget->SetLimit(PixelBudget::kFrameCost + 8);

    fixture.Insert(fixture.Files({"one.raw", "two.raw"}));

    EXPECT_EQ(fixture.Names(), Lines{"[one.raw]"});
    EXPECT_EQ(fixture.alerts.Lines(), Lines{kOutOfMemory});
}

TEST(InsertImages, EndsBeforeTheNextFileWhenAskedToStop) {
    InsertFixture fixture;
    fixture.document.RequestStop();

    fixture.Insert(fixture.Files({"one.raw"}));

    EXPECT_EQ(fixture.document.FrameCount(), 0);
    EXPECT_EQ(fixture.port->Transcript(), "");
}

}  // namespace

}  // namespace kirto::test
