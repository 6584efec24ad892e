#include "ui/thumbnails/frame_label.h"

#include <QImage>
#include <gtest/gtest.h>

#include "animation/gif_source.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {

namespace {

constexpr QSize kThumbnail{120, 90};

Animation OneFrame(const std::function<void(Frame&)>& change = {}) {
    auto frame = std::make_shared<Frame>(*FrameOf(4, 3));
    if (change) change(*frame);
    Animation animation;
    animation.frames = SequenceOf({frame});
    return animation;
}

// Over a thumbnail in a colour that no label has.
QImage Painted(const FrameLabel& label, QSize size = kThumbnail) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    label.Paint(painter, image.rect(), QPalette(Qt::lightGray));
    return image;
}

bool IsUntouched(const QImage& image) {
    QImage plain(image.size(), image.format());
    plain.fill(Qt::magenta);
    return image == plain;
}

TEST(FrameLabel, TellsTheNumberAndThePause) {
    Animation animation = OneFrame();
    animation.use_pause = true;
    animation.pause_length = 25;

    const FrameLabel label = FrameLabel::Of(animation, 0, false);

    EXPECT_EQ(label.number, "0");
    EXPECT_EQ(label.pause, "0.25 s");
    EXPECT_TRUE(label.Marks().isEmpty());
    EXPECT_EQ(FrameLabel::Of(animation, 0, true).pause, "25.00 s");
}

TEST(FrameLabel, MarksWhatTheFrameDoesNotShare) {
    const Animation animation = OneFrame([](Frame& frame) {
        frame.local_palette = true;
        frame.damaged = true;
        frame.use_pause = true;
        frame.pause_length = 4;
        GifSource source;
        source.disposal = Disposal::kPrevious;
        frame.source = std::make_shared<const GifSource>(source);
    });

    const FrameLabel label = FrameLabel::Of(animation, 0, false);

    EXPECT_EQ(label.pause, "0.04 s");
    EXPECT_EQ(label.Marks(),
              "damaged, what was good was kept, own pause, own palette, what was before comes back "
              "after it");
}

TEST(FrameLabel, CoversTheFootOfTheThumbnailOnly) {
    const QImage image = Painted(FrameLabel::Of(OneFrame(), 0, false));

    EXPECT_TRUE(IsUntouched(image.copy(0, 0, kThumbnail.width(), 2 * kThumbnail.height() / 3)));
    EXPECT_FALSE(IsUntouched(image.copy(0, kThumbnail.height() - 1, kThumbnail.width(), 1)));
}

TEST(FrameLabel, IsLeftOutOfLowAndOfNarrowThumbnails) {
    const FrameLabel label = FrameLabel::Of(OneFrame(), 0, false);

    EXPECT_TRUE(IsUntouched(Painted(label, {120, FrameLabel::kLeastHeight - 1})));
    EXPECT_FALSE(IsUntouched(Painted(label, {120, FrameLabel::kLeastHeight})));
    EXPECT_TRUE(IsUntouched(Painted(label, {6, 90})));
}

TEST(FrameLabel, LeavesOutThePauseWhereThereIsNoRoomForIt) {
    FrameLabel label = FrameLabel::Of(OneFrame(), 0, false);
    FrameLabel without = label;
    without.pause.clear();

    EXPECT_EQ(Painted(label, {24, 90}), Painted(without, {24, 90}));
    EXPECT_NE(Painted(label), Painted(without));
}

TEST(FrameLabel, PaintsEachMark) {
    const FrameLabel plain = FrameLabel::Of(OneFrame(), 0, false);
    FrameLabel palette = plain;
    palette.own_palette = true;
    FrameLabel cleared = plain;
    cleared.disposal = Disposal::kBackground;
    FrameLabel restored = plain;
    restored.disposal = Disposal::kPrevious;
    FrameLabel damaged = plain;
    damaged.damaged = true;

    const QList<QImage> images{Painted(plain), Painted(palette), Painted(cleared),
                               Painted(restored), Painted(damaged)};

    for (int i = 0; i < images.size(); ++i)
        EXPECT_EQ(images.indexOf(images[i]), i);
}

}  // namespace

}  // namespace kirto::test
