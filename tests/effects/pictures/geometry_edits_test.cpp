// Cropping, turning, fitting and resizing, held against what each pixel of the canvas shows.
#include <gtest/gtest.h>
#include <limits>

#include "effects/pictures/canvas_pixels.h"
#include "effects/pictures/crop_edit.h"
#include "effects/pictures/edit_pictures.h"
#include "effects/pictures/fit_edit.h"
#include "effects/pictures/resize_edit.h"
#include "effects/pictures/turn_edit.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

FrameSet All(const AnimationDocument& document) {
    return FrameSet::AllOf(document.FrameCount());
}

bool HasRows(const Frame& frame) {
    return frame.bitmap && frame.bitmap->HasRows();
}

// A made-up document with what it was before an edit.
struct Edited : DocumentFixture {
    explicit Edited(uint32 seed) : choices(seed) {
        FillSomehow(choices, document);
        before = document.Current();
    }
    void Apply(const PictureEdit& edit) {
        EXPECT_EQ(EditPictures(document, edit, All(document)), EditEnd::kDone);
        after = document.Current();
    }
    // place: where what stands at x,y of the canvas stood before.
    template <typename Place>
    void ExpectEachPixelFrom(const Place& place) const {
        ASSERT_EQ(after->frames.Size(), before->frames.Size());
        for (int32 i = 0; i < before->frames.Size(); ++i) {
            const Frame& was = *before->frames.At(i);
            const Frame& is = *after->frames.At(i);
            if (!HasRows(was)) continue;
            EXPECT_EQ(is.width, is.bitmap->Width());
            EXPECT_EQ(is.height, is.bitmap->Height());
            EXPECT_GE(is.x_offset, 0);
            EXPECT_GE(is.y_offset, 0);
            for (int32 y = 0; y < after->height; ++y) {
                for (int32 x = 0; x < after->width; ++x) {
                    const auto [from_x, from_y] = place(x, y);
                    ASSERT_EQ(PixelOnPlane(is, x, y), PixelOnPlane(was, from_x, from_y))
                        << "frame " << i << " at " << x << ',' << y;
                }
            }
        }
    }
    // Nothing is left off the canvas.
    void ExpectNothingBesideTheCanvas() const {
        for (const FramePointer& frame : after->frames) {
            if (!HasRows(*frame)) continue;
            EXPECT_LE(frame->x_offset + frame->width, after->width);
            EXPECT_LE(frame->y_offset + frame->height, after->height);
        }
    }

    SeededChoices choices;
    std::shared_ptr<const Animation> before;
    std::shared_ptr<const Animation> after;
};

struct Place {
    int32 x;
    int32 y;
};

constexpr uint32 kSeeds = 60;

TEST(CropEdit, ShowsThatPartOfThePlane) {
    for (uint32 seed = 1; seed <= kSeeds; ++seed) {
        Edited edited(seed);
        const PlaneRect part = {edited.choices.Between(-10, 20), edited.choices.Between(-10, 20),
                                edited.choices.Between(1, 30), edited.choices.Between(1, 30)};
        edited.Apply(CropEdit(part));
        EXPECT_EQ(edited.after->width, part.width);
        EXPECT_EQ(edited.after->height, part.height);
        edited.ExpectNothingBesideTheCanvas();
        edited.ExpectEachPixelFrom([&](int32 x, int32 y) {
            // What was left of the plane's origin has never been there.
            return Place{x + part.left, y + part.top};
        });
    }
}

TEST(CropEdit, LeavesATransparentPixelOfAFrameThatHasNothingThere) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(2, 2, {1, 2, 3, 4}), "a")->use_pause = true;
    EditOf(fixture.document)->width = 10;
    EditOf(fixture.document)->height = 10;
    EXPECT_EQ(EditPictures(fixture.document, CropEdit({5, 5, 2, 2}), All(fixture.document)),
              EditEnd::kDone);
    const Frame& frame = *fixture.document.FrameAt(0);
    EXPECT_EQ(PixelsOf(*frame.bitmap), std::vector<uint32>{0});
    EXPECT_EQ(frame.x_offset + frame.y_offset, 0);
    EXPECT_TRUE(frame.use_pause);
}

TEST(CropEdit, KeepsIndicesAndSharesWholeRows) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(3, 2, {1, 2, 3, 4, 5, 6}), "a");
    EditOf(fixture.document)->width = 3;
    EditOf(fixture.document)->height = 2;
    const auto before = fixture.document.FrameAt(0)->bitmap;
    EditPictures(fixture.document, CropEdit({0, 1, 3, 1}), All(fixture.document));
    const Strip& row = *fixture.document.FrameAt(0)->bitmap->AllStrips().front();
    EXPECT_EQ(row.Indices(), before->AllStrips().front()->Indices() + 3);
    EditPictures(fixture.document, CropEdit({1, 0, 2, 1}), All(fixture.document));
    const auto after = fixture.document.FrameAt(0)->bitmap;
    EXPECT_NE(after->AllStrips().front()->Indices(), nullptr);
    EXPECT_EQ(PixelsOf(*after), (std::vector<uint32>{5, 6}));
}

TEST(CropEdit, LeavesTheAnchoredPlaceOfALargerOrSmallerCanvas) {
    Animation animation;
    animation.width = 10;
    animation.height = 7;
    EXPECT_EQ(AnchoredCanvas(animation, 20, 20, 0), (PlaneRect{0, 0, 20, 20}));
    EXPECT_EQ(AnchoredCanvas(animation, 21, 20, 4), (PlaneRect{-5, -6, 21, 20}));
    EXPECT_EQ(AnchoredCanvas(animation, 4, 4, 4), (PlaneRect{3, 1, 4, 4}));
    EXPECT_EQ(AnchoredCanvas(animation, 4, 9, 8), (PlaneRect{6, -2, 4, 9}));
    EXPECT_EQ(AnchoredCanvas(animation, 4, 9, 2), (PlaneRect{6, 0, 4, 9}));
    EXPECT_EQ(AnchoredCanvas(animation, 4, 9, 6), (PlaneRect{0, -2, 4, 9}));
}

TEST(TurnEdit, TurnsWhatIsOnTheCanvas) {
    for (uint32 seed = 1; seed <= kSeeds; ++seed) {
        for (const Turn turn :
             {Turn::kRight, Turn::kHalf, Turn::kLeft, Turn::kFlipAcross, Turn::kFlipDown}) {
            Edited edited(seed);
            edited.Apply(TurnEdit(turn));
            const int32 width = edited.before->width;
            const int32 height = edited.before->height;
            EXPECT_EQ(edited.after->width, SwapsSides(turn) ? height : width);
            edited.ExpectNothingBesideTheCanvas();
            edited.ExpectEachPixelFrom([&](int32 x, int32 y) {
                switch (turn) {
                    case Turn::kRight:
                        return Place{y, height - 1 - x};
                    case Turn::kLeft:
                        return Place{width - 1 - y, x};
                    case Turn::kHalf:
                        return Place{width - 1 - x, height - 1 - y};
                    case Turn::kFlipAcross:
                        return Place{width - 1 - x, y};
                    default:
                        return Place{x, height - 1 - y};
                }
            });
        }
    }
}

TEST(TurnEdit, TurnsPicturesOfManyStripsAndColors) {
    std::vector<uint32> pixels;
    for (uint32 i = 0; i < 100 * 300; ++i)
        pixels.push_back(0xFF000000 | i * 7919);
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(100, 300, pixels), "a");
    EditOf(fixture.document)->width = 100;
    EditOf(fixture.document)->height = 300;
    EditPictures(fixture.document, TurnEdit(Turn::kRight), All(fixture.document));
    const auto turned = PixelsOf(*fixture.document.FrameAt(0)->bitmap);
    for (uint32 y = 0; y < 100; ++y) {
        for (uint32 x = 0; x < 300; ++x)
            ASSERT_EQ(turned[y * 300 + x], pixels[(299 - x) * 100 + y]);
    }
}

TEST(FitEdit, PadsToTheCanvas) {
    for (uint32 seed = 1; seed <= kSeeds; ++seed) {
        Edited edited(seed);
        edited.Apply(FitEdit(Fit::kPad, ScaleFilter::kNearest));
        edited.ExpectEachPixelFrom([](int32 x, int32 y) { return Place{x, y}; });
        for (const FramePointer& frame : edited.after->frames) {
            if (!HasRows(*frame)) continue;
            EXPECT_EQ(frame->width, edited.after->width);
            EXPECT_EQ(frame->height, edited.after->height);
            EXPECT_EQ(frame->x_offset + frame->y_offset, 0);
        }
    }
}

TEST(FitEdit, CutsWhatOverhangsTheCanvas) {
    for (uint32 seed = 1; seed <= kSeeds; ++seed) {
        Edited edited(seed);
        edited.Apply(FitEdit(Fit::kCrop, ScaleFilter::kNearest));
        edited.ExpectNothingBesideTheCanvas();
        edited.ExpectEachPixelFrom([](int32 x, int32 y) { return Place{x, y}; });
    }
}

// Width, height and offset of a frame of that size that is scaled to a canvas of 20 x 10.
std::array<int32, 4> ScaledPlace(int32 width, int32 height) {
    DocumentFixture fixture;
    const std::vector<uint32> pixels(static_cast<size_t>(width * height), 0xFF123456);
    AppendFrame(fixture.document, PictureOf(width, height, pixels), "a");
    EditOf(fixture.document)->width = 20;
    EditOf(fixture.document)->height = 10;
    EditPictures(fixture.document, FitEdit(Fit::kScale, ScaleFilter::kLanczos),
                 All(fixture.document));
    const Frame& frame = *fixture.document.FrameAt(0);
    EXPECT_EQ(PixelOnPlane(frame, frame.x_offset, frame.y_offset), 0xFF123456);
    return {frame.width, frame.height, frame.x_offset, frame.y_offset};
}

TEST(FitEdit, ScalesToTheMiddleOfTheCanvasAndKeepsTheRatio) {
    EXPECT_EQ(ScaledPlace(40, 20), (std::array<int32, 4>{20, 10, 0, 0}));
    EXPECT_EQ(ScaledPlace(4, 4), (std::array<int32, 4>{10, 10, 5, 0}));
    EXPECT_EQ(ScaledPlace(40, 4), (std::array<int32, 4>{20, 2, 0, 4}));
    EXPECT_EQ(ScaledPlace(1, 300), (std::array<int32, 4>{1, 10, 9, 0}));
}

TEST(FitEdit, ChangesNothingWhereTheCanvasIsLargerThanPictures) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(2, 1, {~0u, ~0u}), "a");
    EditOf(fixture.document)->width = std::numeric_limits<int32>::max();
    EditOf(fixture.document)->height = std::numeric_limits<int32>::max();
    const auto before = fixture.document.Current();
    for (const Fit fit : {Fit::kScale, Fit::kPad}) {
        const FitEdit edit(fit, ScaleFilter::kNearest);
        EXPECT_EQ(EditPictures(fixture.document, edit, All(fixture.document)),
                  EditEnd::kOutOfMemory);
    }
    const FitEdit crop(Fit::kCrop, ScaleFilter::kNearest);
    EXPECT_EQ(EditPictures(fixture.document, crop, All(fixture.document)), EditEnd::kDone);
    EXPECT_EQ(fixture.document.Current(), before);
}

TEST(ResizeEdit, ShowsEachPixelLargerWhereTheFilterIsTheNearest) {
    for (uint32 seed = 1; seed <= kSeeds; ++seed) {
        Edited edited(seed);
        const int32 factor = edited.choices.Between(1, 3);
        edited.Apply(ResizeEdit(*edited.before, edited.before->width * factor,
                                edited.before->height * factor, ScaleFilter::kNearest));
        edited.ExpectEachPixelFrom([factor](int32 x, int32 y) {
            return Place{x / factor, y / factor};
        });
    }
}

// Frames of one color whose edges meet go on meeting: no pixel between them is left out or covered
// twice, and none of them has a pixel less than one.
TEST(ResizeEdit, KeepsFramesTogetherThatMeet) {
    for (int32 width = 1; width <= 40; ++width) {
        DocumentFixture fixture;
        for (const int32 x : {0, 3, 4, 9}) {
            const int32 size = x == 0 ? 3 : x == 3 ? 1 : x == 4 ? 5 : 8;
            AppendFrame(fixture.document,
                        PictureOf(size, 1, std::vector<uint32>(static_cast<size_t>(size), ~0u)),
                        "a")
                ->x_offset = x;
        }
        EditOf(fixture.document)->width = 17;
        EditOf(fixture.document)->height = 1;
        const ResizeEdit edit(*fixture.document.Current(), width, 1, ScaleFilter::kLanczos);
        EditPictures(fixture.document, edit, All(fixture.document));
        int32 end = 0;
        for (const FramePointer& frame : fixture.document.Current()->frames) {
            if (width >= 17) {
                EXPECT_EQ(frame->x_offset, end);
            }
            EXPECT_LE(frame->x_offset, end);
            EXPECT_GE(frame->width, 1);
            end = frame->x_offset + frame->width;
        }
        EXPECT_GE(end, width);
    }
}

TEST(ResizeEdit, TakesOffsetsAndSizesOfAnyMagnitude) {
    DocumentFixture fixture;
    const auto frame = AppendFrame(fixture.document, PictureOf(2, 1, {~0u, ~0u}), "a");
    frame->x_offset = std::numeric_limits<int32>::max();
    frame->y_offset = std::numeric_limits<int32>::max() - 5;
    EditOf(fixture.document)->width = 1;
    EditOf(fixture.document)->height = 1;
    for (const Turn turn : {Turn::kRight, Turn::kFlipDown}) {
        const auto before = fixture.document.Current();
        EXPECT_EQ(EditPictures(fixture.document, TurnEdit(turn), All(fixture.document)),
                  EditEnd::kDone);
        fixture.document.Commit(*before);
    }
    const ResizeEdit edit(*fixture.document.Current(), 65535, 3, ScaleFilter::kLanczos);
    EXPECT_EQ(EditPictures(fixture.document, edit, All(fixture.document)), EditEnd::kDone);
    EXPECT_LE(fixture.document.FrameAt(0)->width, 65535);
    EXPECT_GE(fixture.document.FrameAt(0)->x_offset, 0);
}

}  // namespace

}  // namespace kirto::test
