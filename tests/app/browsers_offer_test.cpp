// What is offered where a file is refused that browsers open.
#include <gtest/gtest.h>

#include "app/open_animation.h"
#include "support/fli_builder.h"
#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr const char* kPlainAlert =
    "WARNING [] The animation can't be opened because it was corrupted or unreadable. | Salvage | "
    "OK";
constexpr const char* kOffer =
    "WARNING [] The animation can't be opened because it was corrupted or unreadable. | Open as "
    "Browsers Do | Salvage | OK";
constexpr int32 kAsBrowsers = 0;
constexpr int32 kSalvageButton = 1;
constexpr int32 kOkButton = 2;

const std::vector<uint32> kFourColors = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF};
const std::vector<uint32> kEightColors(8, 0xFF0000);

GifBuilder::Image ImageOf(int32 width, int32 code_size) {
    GifBuilder::Image image;
    image.width = width;
    image.indices.assign(static_cast<size_t>(width), 1);
    image.min_code_size = code_size;
    return image;
}

std::vector<uint8> WithoutTrailer() {
    return GifBuilder(1, 1, kFourColors).Add(ImageOf(1, 2));
}

std::vector<uint8> WithShortCodes() {
    GifBuilder gif(1, 1, kEightColors);
    return gif.Add(ImageOf(1, 3)).Add(ImageOf(1, 2)).Trailer();
}

std::vector<uint8> WithLargeImage() {
    return GifBuilder(1, 1, kFourColors).Add(ImageOf(2, 2)).Trailer();
}

// The first record is of a type that nobody knows.
std::vector<uint8> WithPrefix(int32 claimed_size) {
    FliBuilder fli(2, 1);
    fli.Record(0xF100).Bytes({1, 2, 3}).RecordSize(claimed_size);
    return fli.Record().Color256({{0, {0x010203}}}).Copy({0, 0}).FrameCount(1);
}

class BrowsersOfferTest : public testing::Test {
  protected:
    struct Answered {
        HarmlessCause cause;
        bool accepted;
        std::string alert;
    };
    // Refused, with that answer.
    Answered Open(AnimationType type, const std::vector<uint8>& bytes, int32 answer = kOkButton) {
        const AlertRecorder alerts({answer});
        BrowsersOffer offer;
        AnimationDocument& document = fixture_.document;
        EXPECT_FALSE(OpenAnimation(type, BFile::OnMemory(bytes).get(), document.FrameCount(),
                                   document, &offer));
        EXPECT_EQ(alerts.Lines().size(), 1U);
        return {offer.cause, offer.accepted, alerts.Lines().front()};
    }
    HarmlessCause CauseOf(const std::vector<uint8>& bytes) {
        const Answered answered = Open(AnimationType::kGif, bytes);
        EXPECT_EQ(answered.alert, answered.cause == HarmlessCause::kNone ? kPlainAlert : kOffer);
        return answered.cause;
    }
    HarmlessCause CauseOfFlic(const std::vector<uint8>& bytes) {
        return Open(AnimationType::kFli, bytes).cause;
    }

    DocumentFixture fixture_;
    const DebugRecorder debug_;
};

}  // namespace

TEST_F(BrowsersOfferTest, NamesWhatBrowsersDoNotMind) {
    EXPECT_EQ(CauseOf(WithoutTrailer()), HarmlessCause::kMissingTrailer);
    EXPECT_EQ(CauseOf(WithShortCodes()), HarmlessCause::kShortCodes);
    EXPECT_EQ(CauseOf(WithLargeImage()), HarmlessCause::kImageBeyondScreen);
    EXPECT_EQ(CauseOfFlic(WithPrefix(19)), HarmlessCause::kUnknownRecord);
}

TEST_F(BrowsersOfferTest, DamageIsNoSuchCause) {
    std::vector<uint8> short_of_data = WithLargeImage();
    short_of_data.resize(short_of_data.size() - 2);
    std::vector<uint8> in_a_block = WithoutTrailer();
    in_a_block.push_back(0x21);
    GifBuilder wide_codes(1, 1, kFourColors);
    wide_codes.AddData(ImageOf(1, 13), {0, 0}).Trailer();
    GifBuilder no_codes(1, 1, kFourColors);
    no_codes.AddData(ImageOf(1, 0), {0, 0}).Trailer();

    EXPECT_EQ(CauseOf(short_of_data), HarmlessCause::kNone);
    EXPECT_EQ(CauseOf(in_a_block), HarmlessCause::kNone);
    EXPECT_EQ(CauseOf(wide_codes), HarmlessCause::kNone);
    EXPECT_EQ(CauseOf(no_codes), HarmlessCause::kNone);
    EXPECT_EQ(CauseOf(GifBuilder(1, 1, kFourColors)), HarmlessCause::kNone);
    EXPECT_EQ(CauseOf({}), HarmlessCause::kNone);
    // Its end can't be found.
    EXPECT_EQ(CauseOfFlic(WithPrefix(15)), HarmlessCause::kNone);
    EXPECT_EQ(CauseOfFlic(WithPrefix(100000)), HarmlessCause::kNone);
}

TEST_F(BrowsersOfferTest, TheUserChooses) {
    const Answered browsers = Open(AnimationType::kGif, WithoutTrailer(), kAsBrowsers);
    EXPECT_TRUE(browsers.accepted);
    EXPECT_EQ(browsers.alert, kOffer);
    EXPECT_EQ(fixture_.document.FrameCount(), 1);

    EXPECT_FALSE(Open(AnimationType::kGif, WithoutTrailer(), kSalvageButton).accepted);
    EXPECT_EQ(fixture_.document.FrameCount(), 2);

    EXPECT_FALSE(Open(AnimationType::kGif, WithoutTrailer(), kOkButton).accepted);
    EXPECT_EQ(fixture_.document.FrameCount(), 0);
}

TEST_F(BrowsersOfferTest, EnterSalvagesWhereOtherFramesWouldBeLost) {
    class DefaultButton : public AlertPresenter {
      public:
        DefaultButton() : previous_(InstallAlertPresenter(this)) {}
        ~DefaultButton() override { InstallAlertPresenter(previous_); }
        int32 Present(const BAlert& alert) override { return alert.DefaultButton(); }

      private:
        AlertPresenter* previous_;
    };
    const DefaultButton user;
    BrowsersOffer offer;
    AppendFrame(fixture_.document, PictureOf(1, 1, {0}), "old");

    EXPECT_FALSE(OpenGif(BFile::OnMemory(WithoutTrailer()).get(), 1, fixture_.document, &offer));

    EXPECT_FALSE(offer.accepted);
    EXPECT_EQ(fixture_.document.FrameCount(), 2);
}

TEST_F(BrowsersOfferTest, NothingIsOfferedWhereFilesAreReadThatWayAlready) {
    fixture_.prefs.animation_faithful = true;

    EXPECT_EQ(CauseOf(GifBuilder(1, 1, kFourColors)), HarmlessCause::kNone);
    EXPECT_EQ(CauseOfFlic(WithPrefix(15)), HarmlessCause::kNone);
}

TEST_F(BrowsersOfferTest, EveryCauseHasWords) {
    EXPECT_STREQ(TextOf(HarmlessCause::kShortCodes),
                 "an image has codes for fewer colors than its palette has");
    EXPECT_STREQ(TextOf(HarmlessCause::kImageBeyondScreen), "an image is larger than the screen");
    EXPECT_STREQ(TextOf(HarmlessCause::kMissingTrailer), "the file ends without its trailer");
    EXPECT_STREQ(TextOf(HarmlessCause::kUnknownRecord), "it has a record of an unknown type");
    EXPECT_EQ(TextOf(HarmlessCause::kNone), nullptr);
}

}  // namespace kirto::test
