#include "ui/thumbnails/frames_mime_data.h"

#include <QImage>
#include <QUrl>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {

namespace {

std::string TypeOf(const std::optional<BMessage>& command) {
    std::string type = "none";
    if (command) command->FindString("type", &type);
    return type;
}

struct Fixture {
    DocumentFixture fixture;
    ShownDocument shown;
    Fixture() { ShowFrames(shown, fixture.document, SameFrames(3, 4, 2), 1); }
};

}  // namespace

TEST(FramesMimeData, OffersFramesAnAnimationAndAnImage) {
    const Fixture fixture;
    const FramesMimeData data(fixture.shown.StatePointer());

    EXPECT_TRUE(data.hasFormat(kFramesType));
    EXPECT_TRUE(data.data(kGifType).startsWith("GIF89a"));
    EXPECT_TRUE(data.hasImage());
    EXPECT_EQ(qvariant_cast<QImage>(data.imageData()).size(), QSize(4, 2));
    EXPECT_FALSE(data.data(kFramesType).isEmpty());
    EXPECT_TRUE(data.data("text/plain").isEmpty());
}

TEST(PasteCommand, PrefersFramesToAnimationsAndThoseToImages) {
    const Fixture fixture;
    const FramesMimeData frames(fixture.shown.StatePointer());
    EXPECT_EQ(TypeOf(PasteCommand(frames)), kFramesType);

    QMimeData animation;
    animation.setData("image/gif", "GIF89a");
    animation.setImageData(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_EQ(TypeOf(PasteCommand(animation)), kGifType);

    QMimeData image;
    image.setImageData(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_EQ(TypeOf(PasteCommand(image)), "image/png");
}

TEST(PasteCommand, TakesTheBytesOfImagesAsTheyAre) {
    QMimeData image;
    image.setData("image/bmp", "BM, and what Qt makes nothing of");
    const auto command = PasteCommand(image);

    ASSERT_TRUE(command);
    std::string_view bytes;
    ASSERT_EQ(command->FindData("bytes", B_RAW_TYPE, 0, &bytes), B_OK);
    EXPECT_EQ(bytes, "BM, and what Qt makes nothing of");
}

TEST(PasteCommand, TakesFilesAsIfTheyWereDropped) {
    QMimeData files;
    files.setUrls({QUrl("file:///b.png"), QUrl("file:///a.png")});
    const auto command = PasteCommand(files);

    ASSERT_TRUE(command);
    EXPECT_EQ(command->what, uint32{B_SIMPLE_DATA});
    EXPECT_EQ(command->CountItems("refs"), 2);
}

TEST(PasteCommand, HasNoneForTextAndNothing) {
    QMimeData text;
    text.setText("text");

    EXPECT_FALSE(PasteCommand(text));
    EXPECT_FALSE(PasteCommand(QMimeData()));
}

}  // namespace kirto::test
