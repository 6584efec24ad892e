#include "formats/gif/gif_save.h"

#include <gtest/gtest.h>
#include <limits>
#include <sys/xattr.h>

#include "base/allocation.h"
#include "formats/gif/plain_document.h"
#include "formats/gif/reference_gif_encoder.h"
#include "support/colors.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

TEST(GifSave, WritesAPaletteOfTwoColoursWithCodeSizeTwo) {
    PlainDocument plain;
    plain.Add(1, 1, {kWhite});
    const Bytes expected = {'G',  'I',  'F',  '8', '9', 'a', 4, 0, 4, 0, 0xF0, 0, 0,  // header
                            0,    0,    0,    255, 255, 255,                          // colours
                            0x21, 0xF9, 4,    0,   0,   0,   0, 0,                    // control
                            ',',  0,    0,    0,   0,   1,   0, 1, 0, 0,              // image
                            2,    2,    0x4C, 1,   0,                                 // data
                            ';'};
    EXPECT_EQ(plain.Save(), expected);
}

TEST(GifSave, WritesTheScreenSizeWithTheLowByteFirst) {
    PlainDocument plain;
    EditOf(plain.document)->width = 0x0102;
    EditOf(plain.document)->height = 0xFFFE;
    const Bytes header = plain.SaveParts().header;
    EXPECT_EQ(Bytes(header.begin() + 6, header.begin() + 10), (Bytes{2, 1, 0xFE, 0xFF}));
}

TEST(GifSave, WritesPaletteDepthBackgroundAndTableForEveryNumberOfBits) {
    for (int32 bits = 1; bits <= 8; ++bits) {
        PlainDocument plain;
        PaletteEditOf(plain.document)->Set(kPaletteWebSafe);
        PaletteEditOf(plain.document)->bits = bits;
        PaletteEditOf(plain.document)->background_index = 0x1FE;
        const GifParts parts = plain.SaveParts();
        EXPECT_EQ(parts.header[10], 0xF0 | (bits - 1));
        EXPECT_EQ(parts.header[11], 0xFE);
        EXPECT_EQ(parts.header[12], 0);
        ASSERT_EQ(parts.table.size(), size_t{3} << bits);
        for (size_t i = 0; i < parts.table.size(); i += 3) {
            const rgb_color& color = kWebSafeColors[i / 3];
            EXPECT_EQ(Bytes(&parts.table[i], &parts.table[i] + 3),
                      (Bytes{color.red, color.green, color.blue}));
        }
    }
}

TEST(GifSave, AnEmptyDocumentIsHeaderLoopCommentAndTrailer) {
    PlainDocument plain;
    EditOf(plain.document)->use_loop = true;
    plain.prefs.animation_gifcomment = true;
    const GifParts parts = plain.SaveParts();
    EXPECT_FALSE(parts.loop.empty());
    EXPECT_FALSE(parts.comment.empty());
    EXPECT_TRUE(parts.images.empty());
}

TEST(GifSave, WritesTheLoopCountWithTheLowByteFirst) {
    PlainDocument plain;
    EditOf(plain.document)->use_loop = true;
    EditOf(plain.document)->loop_count = 0x10203;
    const Bytes expected = {0x21, 0xFF, 0x0B, 'N', 'E', 'T', 'S', 'C', 'A', 'P',
                            'E',  '2',  '.',  '0', 3,   1,   3,   2,   0};
    EXPECT_EQ(plain.SaveParts().loop, expected);
}

TEST(GifSave, WithoutTheLoopFlagThereIsNoApplicationBlock) {
    PlainDocument plain;
    EditOf(plain.document)->loop_count = 5;
    EXPECT_TRUE(plain.SaveParts().loop.empty());
}

TEST(GifSave, WritesTheCommentAsOneSubBlock) {
    PlainDocument plain;
    plain.prefs.animation_gifcomment = true;
    const std::string text = "Created by Kirto v1.4 by Morvik on BeOS";
    Bytes expected = {0x21, 0xFE, static_cast<uint8>(text.size())};
    expected.insert(expected.end(), text.begin(), text.end());
    expected.push_back(0);
    EXPECT_EQ(plain.SaveParts().comment, expected);
}

TEST(GifSave, WithTheCommentSettingOffThereIsNoCommentBlock) {
    PlainDocument plain;
    EditOf(plain.document)->use_loop = true;
    EXPECT_TRUE(plain.SaveParts().comment.empty());
}

TEST(GifSave, TheCommentFollowsTheLoop) {
    PlainDocument plain;
    EditOf(plain.document)->use_loop = true;
    plain.prefs.animation_gifcomment = true;
    plain.Add(1, 1, {kBlack});
    EXPECT_EQ(plain.Save()[19 + 1], 0xFF);
    EXPECT_EQ(plain.Save()[19 + 19 + 1], 0xFE);
}

TEST(GifSave, ADisposalSettingOutsideZeroToTwoIsWrittenAsThree) {
    const std::vector<std::pair<int32, int32>> written = {{0, 0}, {1, 1},  {2, 2},  {3, 3},
                                                          {4, 3}, {99, 3}, {-1, 3}, {-8, 3}};
    for (const auto& [setting, disposal] : written) {
        PlainDocument plain;
        plain.prefs.animation_gifdisposal = setting;
        plain.Add(1, 1, {kBlack});
        EXPECT_EQ(plain.SaveParts().images.at(0).control,
                  (Bytes{0x21, 0xF9, 4, static_cast<uint8>(disposal << 2), 0, 0, 0, 0}))
            << "setting " << setting;
    }
}

TEST(GifSave, EveryFrameNamesTheGlobalTransparentIndex) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->use_transparent = true;
    PaletteEditOf(plain.document)->transparent_index = 0x101;
    plain.prefs.animation_gifdisposal = 2;
    plain.Add(1, 1, {kBlack});
    plain.Add(1, 1, {kBlack})->local_palette = true;
    const GifParts parts = plain.SaveParts();
    for (const GifImageParts& image : parts.images)
        EXPECT_EQ(image.control, (Bytes{0x21, 0xF9, 4, 2 << 2 | 1, 0, 0, 1, 0}));
}

TEST(GifSave, WithoutTransparencyTheTransparentIndexIsWrittenAsZero) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->transparent_index = 1;
    const FrameHandle frame = plain.Add(1, 1, {kBlack});
    frame->local_palette = true;
    frame.Palette()->use_transparent = true;
    EXPECT_EQ(plain.SaveParts().images.at(0).control, (Bytes{0x21, 0xF9, 4, 0, 0, 0, 0, 0}));
}

TEST(GifSave, AFramesOwnDelayGoesBeforeTheAnimations) {
    PlainDocument plain;
    EditOf(plain.document)->pause_length = 20;
    const FrameHandle frame = plain.Add(1, 1, {kBlack});
    frame->pause_length = 30;
    EXPECT_EQ(plain.SaveDelay(), 0);
    EditOf(plain.document)->use_pause = true;
    EXPECT_EQ(plain.SaveDelay(), 20);
    frame->use_pause = true;
    EXPECT_EQ(plain.SaveDelay(), 30);
    frame->pause_length = 0;
    EXPECT_EQ(plain.SaveDelay(), 0);
}

TEST(GifSave, DelaysAreCutToTheirLow16Bits) {
    PlainDocument plain;
    const FrameHandle frame = plain.Add(1, 1, {kBlack});
    frame->use_pause = true;
    const std::vector<std::pair<double, int32>> written = {
        {65535, 65535}, {65536, 0}, {66000.9, 464}, {4294967296.0 * 3 + 7, 7},
        {-1, 65535},    {-0.5, 0},  {-2.7, 65534},  {std::numeric_limits<double>::quiet_NaN(), 0}};
    for (const auto& [pause, field] : written) {
        frame->pause_length = pause;
        EXPECT_EQ(plain.SaveDelay(), field) << "pause " << pause;
    }
    // Whatever an endless pause is, it does no harm.
    for (const double sign : {1, -1}) {
        frame->pause_length = sign * std::numeric_limits<double>::infinity();
        EXPECT_EQ(plain.SaveParts().images.size(), 1U);
    }
}

TEST(GifSave, DelaysInSecondsAreWrittenAsHundredths) {
    PlainDocument plain;
    plain.prefs.global_pauseinseconds = true;
    EditOf(plain.document)->use_pause = true;
    EditOf(plain.document)->pause_length = 1.5;
    plain.Add(1, 1, {kBlack});
    EXPECT_EQ(plain.SaveDelay(), 150);
}

TEST(GifSave, EveryWholeNumberOfHundredthsSurvivesAsSeconds) {
    PlainDocument plain;
    plain.prefs.global_pauseinseconds = true;
    const FrameHandle frame = plain.Add(1, 1, {kBlack});
    frame->use_pause = true;
    for (int32 hundredths = 0; hundredths < 65536; hundredths += hundredths < 400 ? 1 : 997) {
        frame->pause_length = hundredths / 100.0;
        ASSERT_EQ(plain.SaveDelay(), hundredths);
    }
}

TEST(GifSave, AFractionOfADelayIsCutOffUnlessNothingIsMissing) {
    PlainDocument plain;
    const FrameHandle frame = plain.Add(1, 1, {kBlack});
    frame->use_pause = true;
    const std::vector<std::pair<double, int32>> written = {{28.9, 28},       {28.99999, 28},
                                                           {28.999998, 28},  {28.9999995, 29},
                                                           {29.0000005, 29}, {29.9, 29}};
    for (const auto& [pause, field] : written) {
        frame->pause_length = pause;
        EXPECT_EQ(plain.SaveDelay(), field) << "pause " << pause;
    }
}

TEST(GifSave, SaysWhichFrameItIsWriting) {
    PlainDocument plain;
    plain.Add(1, 1, {kBlack});
    plain.Add(1, 1, {kBlack});
    const std::string before = plain.port->Transcript();
    plain.Save();
    EXPECT_EQ(plain.port->Transcript().substr(before.size()),
              " svup(Status: writing frame 1 of 2...) svup(Status: writing frame 2 of 2...)");
}

TEST(GifSave, AStopThatWasAskedForEndsTheFramesButNotTheFile) {
    PlainDocument plain;
    plain.Add(1, 1, {kBlack});
    plain.document.RequestStop();
    EXPECT_TRUE(plain.SaveParts().images.empty());
}

TEST(GifSave, GoesOnToTheEndWhenTheFileTakesNothing) {
    PlainDocument plain;
    plain.Add(1, 1, {kBlack});
    plain.Add(1, 1, {kBlack});
    const TemporaryFolder folder;
    WriteBytes(folder.File("old.gif"), {1, 2, 3});
    const auto file = std::make_shared<BFile>(folder.File("old.gif"), B_READ_ONLY);
    GifSave(file, plain.document);
    EXPECT_EQ(file->WriteStatus(), B_NOT_ALLOWED);
    EXPECT_EQ(plain.port->Messages().back().what, FourCharCode("svup"));
    EXPECT_EQ(ReadBytes(folder.File("old.gif")), (Bytes{1, 2, 3}));
}

TEST(GifSave, LeavesTheFileToBeCommittedByTheCaller) {
    PlainDocument plain;
    plain.Add(1, 1, {kBlack});
    const TemporaryFolder folder;
    const std::shared_ptr<BFile> file = BFile::CreateReplacing(folder.File("new.gif"));
    GifSave(file, plain.document);
    EXPECT_TRUE(ReadBytes(folder.File("new.gif")).empty());
    ASSERT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(ReadBytes(folder.File("new.gif")), plain.Save());
}

TEST(GifSave, SetsTheFilesMimeType) {
    PlainDocument plain;
    const TemporaryFolder folder;
    const std::string probe = folder.File("probe");
    WriteBytes(probe, {0});
    if (setxattr(probe.c_str(), "user.probe", "x", 1, 0) != 0) {
        GTEST_SKIP() << "the file system has no attributes of users";
    }
    const std::shared_ptr<BFile> file = BFile::CreateReplacing(folder.File("new.gif"));
    GifSave(file, plain.document);
    ASSERT_EQ(file->Commit(), B_OK);
    char type[64] = {};
    const ssize_t length =
        getxattr(folder.File("new.gif").c_str(), "user.mime_type", type, sizeof(type) - 1);
    EXPECT_EQ(length, 9);
    EXPECT_STREQ(type, "image/gif");
}

TEST(GifSave, LacksMemoryForNothingButDithering) {
    PlainDocument plain;
    plain.Add(2, 2, {0xFF646464, 0xFF646464, 0xFF646464, 0xFF646464});
    const Bytes undithered = plain.Save();
    PaletteEditOf(plain.document)->dither = true;
    const Bytes dithered = plain.Save();
    ASSERT_NE(dithered, undithered);
    // The cache's two blocks and the row of errors.
    for (int32 call = 1; call <= 6; ++call) {
        const AllocationFault fault(call);
        EXPECT_EQ(plain.Save(), call <= 3 ? undithered : dithered) << "allocation " << call;
    }
}

TEST(GifSave, ACanvasOfAnySizeTakesNoMemoryOfItsOwn) {
    PlainDocument plain;
    EditOf(plain.document)->width = std::numeric_limits<int32>::max();
    PaletteEditOf(plain.document)->dither = true;
    plain.Add(2, 1, {0xFF646464, 0xFF646464});
    EXPECT_EQ(plain.SaveParts().images.at(0).image_data, ReferenceImageData({0, 1}, 2));
}

}  // namespace

}  // namespace kirto::test
