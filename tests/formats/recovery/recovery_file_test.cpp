#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "base/byte_writer.h"
#include "formats/recovery/recovery_block_writer.h"
#include "formats/recovery/recovery_file_reader.h"
#include "formats/recovery/recovery_file_writer.h"
#include "support/full_disk.h"
#include "support/random_document.h"
#include "support/same_animation.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

constexpr int64 kWritten = 1700000000;

DocumentState StateOf(Animation animation) {
    DocumentState state;
    state.animation = std::make_shared<const Animation>(std::move(animation));
    state.file_name = "birds.gif";
    state.file_directory = "/home/ann/pictures";
    state.modified = true;
    return state;
}

std::vector<uint8> Written(const DocumentState& state) {
    const auto file = BFile::OnMemory();
    const RecoveryFileWriter writer(*file, state, kWritten);
    EXPECT_EQ(writer.Status(), B_OK);
    return file->Memory();
}

struct ReadBack {
    std::optional<RecoveryDocument> document;
    status_t status;
    std::string reason;
};

ReadBack Read(const std::vector<uint8>& bytes, std::shared_ptr<PixelBudget> budget = nullptr) {
    const auto file = BFile::OnMemory(bytes);
    RecoveryFileReader reader(*file);
    auto document = reader.ReadDocument(std::move(budget));
    return {std::move(document), reader.Status(), reader.Reason()};
}

Frame FrameWith(std::shared_ptr<const Picture> picture) {
    Frame frame("frame", picture->Width(), picture->Height());
    frame.bitmap = std::move(picture);
    return frame;
}

Frame FrameWith(std::shared_ptr<const BBitmap> bitmap) {
    return FrameWith(Picture::Of(std::move(bitmap)));
}

void Append(Animation& animation, Frame frame) {
    InsertFrame(animation, animation.frames.Size(),
                std::make_shared<const Frame>(std::move(frame)));
}

// Pixels that can't be packed.
std::shared_ptr<BBitmap> Noise(int32 width, int32 height) {
    SeededChoices choices(1);
    std::vector<uint32> argb;
    for (int32 i = 0; i < width * height; ++i)
        argb.push_back(choices.Below(std::numeric_limits<uint32>::max()));
    return PictureOf(width, height, argb);
}

// Two frames that share a picture of 2 x 1 pixels and have different palettes.
Animation SmallAnimation() {
    Animation animation;
    animation.width = 2;
    animation.height = 1;
    const auto picture = PictureOf(2, 1, {0xff102030, 0x00405060}, B_RGBA32);
    Append(animation, FrameWith(picture));
    Frame second = FrameWith(picture);
    second.palette = SharePalette(Palette(kPaletteGreyscale));
    Append(animation, std::move(second));
    return animation;
}

TEST(RecoveryFile, BringsBackEveryFieldAndPixelOfRandomAnimations) {
    for (uint32 seed = 0; seed < 60; ++seed) {
        DocumentFixture made;
        SeededChoices choices(seed);
        DocumentStyle style;
        style.max_frames = 12;
        style.oddities = seed % 2 == 1;
        ChooseSettings(choices, style, &made.prefs);
        FillDocument(choices, style, made.document);
        const Animation& animation = *made.document.Current();

        const ReadBack read = Read(Written(StateOf(animation)));

        ASSERT_TRUE(read.document) << seed << ": " << read.reason;
        EXPECT_TRUE(SameAnimation(read.document->animation, animation)) << seed;
    }
}

TEST(RecoveryFile, BringsBackUnusualValues) {
    Animation animation;
    animation.width = std::numeric_limits<int32>::max();
    animation.height = std::numeric_limits<int32>::min();
    animation.loop_count = -1;
    animation.use_loop = true;
    animation.pause_length = std::numeric_limits<double>::quiet_NaN();
    EditPalette(animation, [](Palette& palette) {
        palette.mode = -5;
        palette.size = 0;
        palette.bits = 1;
        palette.unique_colors = 7;
        palette.background_index = 1000;
        palette.transparent_index = -1;
        palette.use_transparent = true;
        palette.dither = true;
        palette.colors[255] = {1, 2, 3, 4};
    });
    auto shifted = std::make_shared<BBitmap>(BRect(3, 4, 12.5f, 5), B_GRAY1);
    Frame frame = FrameWith(shifted);
    frame.name = std::string("a\0\xff/", 4);
    frame.x_offset = -70000;
    frame.pause_length = -0.0;
    Append(animation, std::move(frame));

    const ReadBack read = Read(Written(StateOf(animation)));

    ASSERT_TRUE(read.document) << read.reason;
    EXPECT_TRUE(SameAnimation(read.document->animation, animation));
}

TEST(RecoveryFile, BringsBackAnAnimationWithoutFrames) {
    Animation animation;
    animation.width = 320;

    const ReadBack read = Read(Written(StateOf(animation)));

    ASSERT_TRUE(read.document) << read.reason;
    EXPECT_TRUE(SameAnimation(read.document->animation, animation));
}

TEST(RecoveryFile, BringsBackWhatBelongsToTheDocument) {
    DocumentState state = StateOf(SmallAnimation());
    state.file_directory = std::string(kMaxRecoveryDirectory, 'd');
    state.file_name = std::string(kMaxRecoveryName, 'n');
    for (const bool modified : {false, true}) {
        state.modified = modified;

        const ReadBack read = Read(Written(state));

        ASSERT_TRUE(read.document) << read.reason;
        EXPECT_EQ(read.document->head,
                  (RecoveryHead{kWritten, modified, state.file_name, state.file_directory, 2}));
    }
}

TEST(RecoveryFile, TellsOfADocumentByTheHeadAlone) {
    std::vector<uint8> bytes = Written(StateOf(SmallAnimation()));
    bytes.resize(200);  // the first palette goes further
    const auto file = BFile::OnMemory(bytes);
    RecoveryFileReader reader(*file);

    const auto head = reader.ReadHead();

    ASSERT_TRUE(head) << reader.Reason();
    EXPECT_EQ(*head, (RecoveryHead{kWritten, true, "birds.gif", "/home/ann/pictures", 2}));
}

TEST(RecoveryFile, GivesTheFramesNewIds) {
    const Animation animation = SmallAnimation();

    const ReadBack read = Read(Written(StateOf(animation)));

    ASSERT_TRUE(read.document) << read.reason;
    for (const FramePointer& frame : read.document->animation.frames)
        EXPECT_EQ(animation.frames.Find(frame->id), -1);
}

TEST(RecoveryFile, SharedPicturesAndPalettesAreWrittenOnceAndSharedAgain) {
    const auto noise = Noise(64, 64);
    const auto palette = SharePalette(Palette(kPaletteGreyscale));
    const auto picture = Picture::Of(noise);
    Animation animation;
    Append(animation, FrameWith(picture));
    const size_t size_of_one = Written(StateOf(animation)).size();
    ASSERT_GT(size_of_one, noise->BitsLength() * 9 / 10);
    for (int i = 0; i < 9; ++i) {
        Frame frame = FrameWith(picture);
        frame.palette = palette;
        Append(animation, std::move(frame));
    }

    const std::vector<uint8> bytes = Written(StateOf(animation));

    EXPECT_LT(bytes.size(), size_of_one + 3000);
    const auto budget =
        std::make_shared<PixelBudget>(noise->BitsLength() + PixelBudget::kFrameCost);
    const ReadBack read = Read(bytes, budget);
    ASSERT_TRUE(read.document) << read.reason;
    const FrameSequence& frames = read.document->animation.frames;
    EXPECT_EQ(frames.At(9)->bitmap, frames.At(0)->bitmap);
    EXPECT_EQ(frames.At(9)->palette, frames.At(1)->palette);
    EXPECT_NE(frames.At(9)->palette, frames.At(0)->palette);
}

TEST(RecoveryFile, APictureOfManyBlocksOfMemoryComesBack) {
    Animation animation;
    Append(animation, FrameWith(Noise(700, 600)));  // 1.6 MiB, more than the packer's window

    const ReadBack read = Read(Written(StateOf(animation)));

    ASSERT_TRUE(read.document) << read.reason;
    EXPECT_TRUE(SameAnimation(read.document->animation, animation));
}

TEST(RecoveryFile, IsRefusedWhereverItIsCutOff) {
    const std::vector<uint8> whole = Written(StateOf(SmallAnimation()));
    for (size_t size = 0; size < whole.size(); ++size) {
        const ReadBack read = Read({whole.begin(), whole.begin() + static_cast<int64>(size)});
        EXPECT_FALSE(read.document) << size;
        EXPECT_EQ(read.status, B_BAD_DATA) << size;
    }
}

TEST(RecoveryFile, IsRefusedWithMoreBehindItsEnd) {
    std::vector<uint8> bytes = Written(StateOf(SmallAnimation()));
    bytes.push_back(0);

    EXPECT_EQ(Read(bytes).status, B_BAD_DATA);
}

TEST(RecoveryFile, IsRefusedOrReadRightWhateverBitIsFlipped) {
    const Animation animation = SmallAnimation();
    std::vector<uint8> bytes = Written(StateOf(animation));
    int refused = 0;
    for (size_t i = 0; i < bytes.size() * 8; ++i) {
        const auto bit = static_cast<uint8>(1 << (i % 8));
        bytes[i / 8] ^= bit;
        const ReadBack read = Read(bytes);
        if (read.document) {
            EXPECT_TRUE(SameAnimation(read.document->animation, animation)) << i;
            EXPECT_EQ(read.document->head.file_name, "birds.gif") << i;
        } else {
            ++refused;
        }
        bytes[i / 8] ^= bit;
    }
    EXPECT_GT(refused, static_cast<int>(bytes.size() * 7));
}

TEST(RecoveryFile, IsRefusedWhereTheBudgetDoesNotSuffice) {
    Animation animation;
    Append(animation, FrameWith(Noise(20, 20)));
    Append(animation, FrameWith(Noise(20, 20)));
    const std::vector<uint8> bytes = Written(StateOf(animation));
    const uint64 needed = 2 * (1600 + PixelBudget::kFrameCost);
    const auto budget = std::make_shared<PixelBudget>(needed - 1);

    const ReadBack read = Read(bytes, budget);

    EXPECT_FALSE(read.document);
    EXPECT_EQ(read.status, B_NO_MEMORY);
    EXPECT_EQ(budget->Used(), 0u);
    budget->SetLimit(needed);
    EXPECT_TRUE(Read(bytes, budget).document);
}

TEST(RecoveryFile, AReaderThatFailedKeepsNoPictures) {
    std::vector<uint8> bytes = Written(StateOf(SmallAnimation()));
    bytes.pop_back();
    const auto file = BFile::OnMemory(bytes);
    RecoveryFileReader reader(*file);
    const auto budget = std::make_shared<PixelBudget>();

    EXPECT_FALSE(reader.ReadDocument(budget));

    EXPECT_EQ(budget->Used(), 0u);
}

TEST(RecoveryFile, ReadingReportsEachFailedAllocation) {
    const Animation animation = SmallAnimation();
    const std::vector<uint8> bytes = Written(StateOf(animation));
    const auto budget = std::make_shared<PixelBudget>();
    int64 failing = 1;
    for (bool done = false; !done; ++failing) {
        const AllocationFault fault(failing);
        const ReadBack read = Read(bytes, budget);
        done = fault.Calls() < failing;
        // A picture that finds no memory to be packed in stays as it is.
        const bool complete = read.document.has_value();
        EXPECT_TRUE(complete || !done) << failing;
        EXPECT_EQ(read.status, complete ? B_OK : B_NO_MEMORY) << failing;
        EXPECT_EQ(budget->Used() > 0, complete) << failing;
    }
    EXPECT_GT(failing, 5);  // the unpacker, its buffer, two palettes, a picture
}

TEST(RecoveryFile, WritingReportsEachFailedAllocation) {
    const DocumentState state = StateOf(SmallAnimation());
    int64 failing = 1;
    for (bool done = false; !done; ++failing) {
        const auto file = BFile::OnMemory();
        const AllocationFault fault(failing);
        const RecoveryFileWriter writer(*file, state, kWritten);
        done = fault.Calls() < failing;
        EXPECT_EQ(writer.Status(), done ? B_OK : B_NO_MEMORY) << failing;
    }
    EXPECT_GT(failing, 3);  // the packer and its buffer
}

TEST(RecoveryFile, WritingReportsAFullDisk) {
    const TemporaryFolder folder;
    Animation large;
    Append(large, FrameWith(Noise(300, 300)));
    const FullDisk full;
    const auto file = BFile::CreatePrivate(folder.File("file"));
    ASSERT_EQ(file->InitCheck(), B_OK);

    const RecoveryFileWriter writer(*file, StateOf(std::move(large)), kWritten);

    EXPECT_EQ(writer.Status(), B_IO_ERROR);
}

TEST(RecoveryFile, DocumentsThatNobodyWouldReadAreNotWritten) {
    const auto status = [](const DocumentState& state) {
        const auto file = BFile::OnMemory();
        return RecoveryFileWriter(*file, state, kWritten).Status();
    };
    const auto changed = [](auto edit) {
        Animation animation = SmallAnimation();
        EditFrame(animation, 1, edit);
        return StateOf(std::move(animation));
    };
    EXPECT_EQ(status(changed([](Frame&) {})), B_OK);
    EXPECT_EQ(status(changed([](Frame& frame) { frame.bitmap.reset(); })), B_BAD_VALUE);
    EXPECT_EQ(status(changed([](Frame& frame) {
                  frame.bitmap = Picture::Of(std::make_shared<const BBitmap>(BRect(), B_RGB32));
              })),
              B_BAD_VALUE);
    EXPECT_EQ(status(changed([](Frame& frame) { frame.width = 3; })), B_BAD_VALUE);
    EXPECT_EQ(status(changed([](Frame& frame) { frame.height = 0; })), B_BAD_VALUE);
    EXPECT_EQ(status(changed([](Frame& frame) { frame.name = std::string(256, 'n'); })),
              B_BAD_VALUE);
    EXPECT_EQ(status(changed([](Frame& frame) {
                  Palette palette;
                  palette.bits = 9;
                  frame.palette = SharePalette(palette);
              })),
              B_BAD_VALUE);
    DocumentState state = StateOf(SmallAnimation());
    state.file_name = std::string(256, 'n');
    EXPECT_EQ(status(state), B_BAD_VALUE);
    state = StateOf(SmallAnimation());
    state.file_directory = std::string(65536, 'd');
    EXPECT_EQ(status(state), B_BAD_VALUE);
}

TEST(RecoveryFile, AFileThatCantBeOpenedIsNotDamaged) {
    const TemporaryFolder folder;
    BFile missing(folder.File("missing"), B_READ_ONLY);
    RecoveryFileReader reader(missing);

    EXPECT_FALSE(reader.ReadHead());
    EXPECT_EQ(reader.Status(), B_IO_ERROR);
}

}  // namespace
}  // namespace kirto::test
