#include "ui/controls/frame_images.h"

#include <gtest/gtest.h>

#include "support/test_support.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

using Wanted = FrameImages::Wanted;

class FrameImagesTest : public ::testing::Test {
  protected:
    QImage Await(const Wanted& wanted) {
        images.Want({wanted});
        EXPECT_TRUE(WaitFor([&] {
            bool made = false;
            images.Find(wanted, &made);
            return made;
        }));
        return images.Find(wanted);
    }

    int ready = 0;
    FrameImages images{[this] { ++ready; }};
};

TEST_F(FrameImagesTest, MakesWhatIsWantedAndTellsWhenItIsReady) {
    const Wanted wanted{FramePictureOf(2, 1, {0xFFFF0000, 0xFF00FF00}), {}};
    EXPECT_TRUE(images.Find(wanted).isNull());

    const QImage image = Await(wanted);

    EXPECT_EQ(image.pixel(0, 0), 0xFFFF0000);
    EXPECT_EQ(image.pixel(1, 0), 0xFF00FF00);
    EXPECT_TRUE(WaitFor([this] { return ready > 0; }));
}

TEST_F(FrameImagesTest, ScalesSmoothlyAndKeepsColorsOutOfTransparentPixels) {
    const Wanted wanted{FramePictureOf(2, 1, {0xFFFF0000, 0x0000FF00}, B_RGBA32), {1, 1}};

    const QColor color = Await(wanted).pixelColor(0, 0);

    EXPECT_NEAR(color.alpha(), 128, 2);
    EXPECT_GE(color.red(), 250);
    EXPECT_EQ(color.green(), 0);
}

TEST_F(FrameImagesTest, MakesTheColorsOfASave) {
    const auto picture = FramePictureOf(1, 1, {0xFFFA0502});
    Animation animation;
    animation.width = animation.height = 1;
    Frame frame("frame", 1, 1);
    frame.bitmap = picture;
    InsertFrame(animation, 0, std::make_shared<const Frame>(frame));
    DocumentState state;
    state.animation = std::make_shared<const Animation>(animation);
    state.settings = std::make_shared<const Prefs>(Prefs(Prefs::BuiltIn{}));

    const QImage image = Await({picture, {}, std::make_shared<const DocumentState>(state), 0});

    EXPECT_EQ(image.pixel(0, 0), 0xFFFF0000);
}

TEST_F(FrameImagesTest, ForgetsWhatIsNoLongerWantedWhereMemoryIsBounded) {
    const QSize size(2000, 2000);
    const int32 room = FrameImages::RoomFor(size);
    ASSERT_LT(room, 20);
    std::vector<Wanted> wanted;
    for (int i = 0; i < 20; ++i) {
        wanted.push_back({Picture::Solid(0xFF123456, 2000, 2000, B_RGB32, nullptr), {}});
        Await(wanted.back());
    }
    bool made = false;
    images.Find(wanted.back(), &made);
    EXPECT_TRUE(made);
    images.Find(wanted.front(), &made);
    EXPECT_FALSE(made);
}

TEST_F(FrameImagesTest, KeepsNoPictureAlive) {
    auto picture = FramePictureOf(2, 1, {0x80FF0000, 0xFF00FF00}, B_RGBA32);
    const std::weak_ptr<const Picture> watched = picture;
    Await({picture, {}});

    picture = nullptr;

    EXPECT_TRUE(WaitFor([&] { return watched.expired(); }));
}

TEST_F(FrameImagesTest, HasRoomForSomeImagesOfAnySize) {
    EXPECT_EQ(FrameImages::RoomFor({1, 1}), 32);
    EXPECT_EQ(FrameImages::RoomFor({1920, 1080}), 24);
    EXPECT_EQ(FrameImages::RoomFor({60000, 60000}), 3);
    EXPECT_EQ(FrameImages::RoomFor({}), 32);
}

TEST_F(FrameImagesTest, EndsAtOnceWithWorkLeft) {
    FrameImages others([] {});
    std::vector<Wanted> wanted;
    for (uint32 i = 0; i < 1000; ++i)
        wanted.push_back({FramePictureOf(1, 1, {0xFF000000 + i}), {}});
    others.Want(wanted);
}

}  // namespace

}  // namespace kirto::test
