#include "ui/thumbnails/frame_drag.h"

#include <QUrl>
#include <gtest/gtest.h>

#include "app/frames_exchange.h"
#include "ui/thumbnails/direct_save.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {
namespace {

TEST(DirectSave, DoesNothingWhereWindowsDoNotSpeakX) {
    EXPECT_FALSE(IsDirectSavePossible());
    OfferDirectSave("a.tga");
    EXPECT_EQ(DirectSavePath(), std::nullopt);
}

// What a drag asked for, and whether it gets it.
struct Saves {
    std::vector<std::string> paths;
    bool succeed = true;

    FrameDrag::Save Function() {
        return [this](BMessage* message) {
            entry_ref directory;
            std::string name;
            EXPECT_EQ(message->what, B_COPY_TARGET);
            EXPECT_EQ(message->FindRef("directory", &directory), B_OK);
            EXPECT_EQ(message->FindString("name", &name), B_OK);
            paths.push_back(directory.path + "/" + name);
            return succeed;
        };
    }
};

TEST(FrameDrag, CarriesItsMessageInsideKirto) {
    BMessage message(B_SIMPLE_DATA);
    message.AddInt32("Kirto", 1);
    Saves saves;
    const FrameDrag drag(message, "a.tga", "/folder", saves.Function());
    const QByteArray bytes = drag.data(kDragMessageType);
    BMessage carried;
    const std::vector<uint8> flattened(bytes.begin(), bytes.end());
    ASSERT_EQ(carried.Unflatten(flattened.data(), flattened.size()), B_OK);
    EXPECT_EQ(carried, message);
    EXPECT_TRUE(BeganInKirto(drag));
    EXPECT_TRUE(saves.paths.empty());
}

TEST(FrameDrag, CarriesTheSelectedFramesToOtherEditors) {
    DocumentFixture fixture;
    ShownDocument shown;
    ShowFrames(shown, fixture.document, SameFrames(2, 4, 2), 1);
    const FrameDrag drag(BMessage(B_SIMPLE_DATA), "a.tga", "/folder", {}, shown.StatePointer());
    EXPECT_EQ(drag.data(kFramesType).toStdString(), [packed = PackFrames(shown.State())] {
        return std::string(packed.begin(), packed.end());
    }());
    EXPECT_FALSE(BeganInAnotherEditor(drag));

    QMimeData other;
    other.setData("application/x-kirto-process", "1");
    EXPECT_TRUE(BeganInAnotherEditor(other));
    EXPECT_FALSE(BeganInAnotherEditor(QMimeData()));
}

TEST(FrameDrag, WritesItsFileOnceAndOnlyWhenSomebodyAsks) {
    Saves saves;
    const FrameDrag drag(BMessage(B_SIMPLE_DATA), "a b.tga", "/folder", saves.Function());
    EXPECT_TRUE(drag.hasUrls());
    EXPECT_TRUE(saves.paths.empty());
    EXPECT_EQ(drag.urls(), QList<QUrl>{QUrl("file:///folder/a%20b.tga")});
    EXPECT_EQ(drag.data("text/uri-list"), "file:///folder/a%20b.tga\r\n");
    EXPECT_EQ(saves.paths, std::vector<std::string>{"/folder/a b.tga"});
}

TEST(FrameDrag, OffersNoFileThatCouldNotBeWritten) {
    Saves saves;
    saves.succeed = false;
    const FrameDrag drag(BMessage(B_SIMPLE_DATA), "a.tga", "/folder", saves.Function());
    EXPECT_TRUE(drag.urls().isEmpty());
    EXPECT_TRUE(drag.urls().isEmpty());
    EXPECT_EQ(saves.paths.size(), 1u);
}

TEST(FrameDrag, OffersNothingElseWithoutX) {
    Saves saves;
    const FrameDrag drag(BMessage(B_SIMPLE_DATA), "a.tga", "/folder", saves.Function());
    EXPECT_EQ(drag.formats(), (QStringList{kDragMessageType, "text/uri-list"}));
    EXPECT_FALSE(drag.hasFormat("image/png"));
    EXPECT_TRUE(drag.data("image/png").isEmpty());
    EXPECT_EQ(drag.data(kDirectSaveType), kDirectSaveFailed);
    EXPECT_TRUE(saves.paths.empty());
}

TEST(FrameDrag, IsTakenForNoOtherPrograms) {
    QMimeData data;
    EXPECT_FALSE(BeganInKirto(data));
    data.setData(kDragMessageType, "no message");
    EXPECT_FALSE(BeganInKirto(data));
    const std::vector<uint8> bytes = BMessage(B_SIMPLE_DATA).Flatten();
    data.setData(kDragMessageType, QByteArray(reinterpret_cast<const char*>(bytes.data()),
                                              static_cast<qsizetype>(bytes.size())));
    EXPECT_FALSE(BeganInKirto(data));
}

}  // namespace
}  // namespace kirto::test
