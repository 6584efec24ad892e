#include "resources/window_layout.h"

#include <gtest/gtest.h>

#include "resources/window_archive.h"
#include "support/source_folder.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

constexpr char kPlainWindow[] =
    "class = 'BWindow'\nname = 'Plain'\ntitle = 'A plain window'\nframe = [1, 2, 30, 40]\n";

// Compiles a layout of the given text.
struct Compiled {
    explicit Compiled(const std::string& text) {
        const TemporaryFolder folder;
        const std::string path = folder.File("layout.toml");
        WriteBytes(path, {text.begin(), text.end()});
        sound = CompileWindowLayout(path, &archive, &error);
        if (error.starts_with(path)) error.erase(0, path.size());
    }

    BMessage archive;
    std::string error;  // without the file's name
    bool sound = false;
};

std::string TextOf(const BMessage& archive, const char* field, int32 index = 0) {
    std::string text = "none";
    archive.FindString(field, &text, index);
    return text;
}

int32 NumberOf(const BMessage& archive, const char* field) {
    int32 number = -1;
    archive.FindInt32(field, &number);
    return number;
}

float FloatOf(const BMessage& archive, const char* field, int32 index = 0) {
    float number = -1;
    archive.FindFloat(field, &number, index);
    return number;
}

BRect LayoutFrameOf(const BMessage& archive) {
    BRect frame;
    archive.FindRect(kArchiveFrame, &frame);
    return frame;
}

BMessage MessageOf(const BMessage& archive, const char* field, int32 index = 0) {
    BMessage message;
    archive.FindMessage(field, &message, index);
    return message;
}

// What the compiler says about a layout that has one more line, or a view of this text.
std::string ErrorWithLine(const std::string& line) {
    return Compiled(std::string(kPlainWindow) + "views = []\n" + line + "\n").error;
}

std::string ErrorWithView(const std::string& view) {
    return Compiled(std::string(kPlainWindow) + "views = [\n{" + view + "},\n]\n").error;
}

TEST(WindowLayout, ArchivesAWindowWithWhatItSaysOfItself) {
    const Compiled layout(std::string(kPlainWindow) +
                          "flags = ['not resizable', 'not zoomable']\n"
                          "framework_flags = ['centered']\nfont_height = 11.9873046875\n"
                          "limits = [400, 401, 313, 314]\nviews = []\n");

    ASSERT_TRUE(layout.sound) << layout.error;
    EXPECT_EQ(TextOf(layout.archive, "class"), "BWindow");
    EXPECT_EQ(TextOf(layout.archive, "_name"), "Plain");
    EXPECT_EQ(TextOf(layout.archive, "_title"), "A plain window");
    EXPECT_EQ(LayoutFrameOf(layout.archive), BRect(1, 2, 30, 40));
    EXPECT_EQ(NumberOf(layout.archive, "_type"), 1);
    EXPECT_EQ(NumberOf(layout.archive, "_wlook"), 1);
    EXPECT_EQ(NumberOf(layout.archive, "_wfeel"), 0);
    EXPECT_EQ(NumberOf(layout.archive, "_flags"), 0x42);
    EXPECT_EQ(NumberOf(layout.archive, "IEflags"), 1);
    EXPECT_EQ(FloatOf(layout.archive, "designfsize"), 11.9873046875f);
    EXPECT_EQ(FloatOf(layout.archive, "minWidth"), 400);
    EXPECT_EQ(FloatOf(layout.archive, "maxWidth"), 401);
    EXPECT_EQ(FloatOf(layout.archive, "minHeight"), 313);
    EXPECT_EQ(FloatOf(layout.archive, "maxHeight"), 314);
    EXPECT_EQ(FloatOf(layout.archive, "_sizel", 3), 314);
}

TEST(WindowLayout, LeavesOutWhatTheSourceDoesNotSay) {
    const Compiled layout(std::string(kPlainWindow) + "views = []\n");

    ASSERT_TRUE(layout.sound) << layout.error;
    EXPECT_EQ(NumberOf(layout.archive, "_flags"), 0);
    EXPECT_EQ(NumberOf(layout.archive, "IEflags"), 0);
    EXPECT_FALSE(layout.archive.HasField("designfsize"));
    EXPECT_FALSE(layout.archive.HasField("minWidth"));
    EXPECT_FALSE(layout.archive.HasField("_views"));
}

TEST(WindowLayout, GivesAModalWindowItsTypeAndFeel) {
    const Compiled layout(std::string(kPlainWindow) + "type = 'modal'\nviews = []\n");

    EXPECT_EQ(NumberOf(layout.archive, "_type"), 3);
    EXPECT_EQ(NumberOf(layout.archive, "_wfeel"), 1);
}

TEST(WindowLayout, NestsViewsInTheirParents) {
    const Compiled layout(std::string(kPlainWindow) +
                          "views = [ { class = 'BView', name = 'outer', frame = [0, 0, 9, 9], "
                          "views = [ { class = 'BTextControl', name = 'width', label = 'Width:', "
                          "message = 'pwgw', divider = 7.5, frame = [1, 1, 8, 8] } ] } ]\n");

    ASSERT_TRUE(layout.sound) << layout.error;
    const BMessage outer = MessageOf(layout.archive, "_views");
    EXPECT_EQ(TextOf(outer, "_name"), "outer");
    EXPECT_FALSE(outer.HasField("_label"));
    EXPECT_FALSE(outer.HasField("_msg"));
    const BMessage field = MessageOf(outer, "_views");
    EXPECT_EQ(TextOf(field, "class"), "BTextControl");
    EXPECT_EQ(TextOf(field, "_label"), "Width:");
    EXPECT_EQ(FloatOf(field, "_divide"), 7.5f);
    EXPECT_EQ(LayoutFrameOf(field), BRect(1, 1, 8, 8));
    EXPECT_EQ(MessageOf(field, "_msg").what, 0x70776777u);
}

TEST(WindowLayout, KeepsTheViewsOfATabViewAndTheirTabsInFieldsOfTheirOwn) {
    const Compiled layout(
        std::string(kPlainWindow) +
        "views = [ { class = 'BTabView', name = 'tabs', frame = [0, 0, 9, 9], "
        "views = [ { class = 'BView', name = 'container', frame = [0, 2, 9, 9] } ], "
        "tabs = [ { class = 'BView', name = 'First', frame = [0, 0, 9, 7] },\n"
        "{ class = 'BView', name = 'Second', frame = [0, 0, 9, 7] } ] } ]\n");

    ASSERT_TRUE(layout.sound) << layout.error;
    const BMessage tabs = MessageOf(layout.archive, "_views");
    EXPECT_EQ(tabs.CountItems("_views"), 1);
    EXPECT_EQ(tabs.CountItems("_view_list"), 2);
    EXPECT_EQ(tabs.CountItems("_l_items"), 2);
    EXPECT_EQ(TextOf(MessageOf(tabs, "_view_list", 1), "_name"), "Second");
    EXPECT_EQ(TextOf(MessageOf(tabs, "_l_items", 1), "class"), "BTab");
    EXPECT_EQ(TextOf(MessageOf(tabs, "_l_items", 1), "_label"), "Second");
}

TEST(WindowLayout, SaysInWhichLineTheSourceIsWrong) {
    EXPECT_EQ(Compiled("class = 'BWindow'\n").error, ":1: \"name\" is missing.");
    EXPECT_EQ(ErrorWithLine("tilte = 'x'"), ":6: \"tilte\" is not allowed here.");
    EXPECT_EQ(ErrorWithLine("type = 'round'"), ":6: \"round\" is not a valid value here.");
    EXPECT_EQ(ErrorWithLine("type = 3"), ":6: \"\" is not a valid value here.");
    EXPECT_EQ(ErrorWithLine("flags = 'not resizable'"),
              ":6: \"flags\" must be an array of strings.");
    EXPECT_EQ(ErrorWithLine("framework_flags = ['upright']"),
              ":6: \"upright\" is not a valid value here.");
    EXPECT_EQ(ErrorWithLine("font_height = 'high'"), ":6: \"font_height\" must be a number.");
    EXPECT_EQ(ErrorWithLine("limits = [1, 2, 3]"), ":6: \"limits\" must be 4 numbers.");
    EXPECT_EQ(ErrorWithLine("limits = [2, 1, 3, 4]"),
              ":6: \"limits\" must be minimum and maximum width, minimum and maximum height.");
}

TEST(WindowLayout, SaysWhatIsWrongWithAView) {
    const std::string view = "class = 'BView', name = 'v', ";
    EXPECT_EQ(ErrorWithView("class = 'BView', name = 'v'"), ":6: \"frame\" is missing.");
    EXPECT_EQ(ErrorWithView("class = 1, name = 'v', frame = [0, 0, 1, 1]"),
              ":6: \"class\" must be a string.");
    EXPECT_EQ(ErrorWithView(view + "frame = [0, 0, 1]"), ":6: \"frame\" must be 4 numbers.");
    EXPECT_EQ(ErrorWithView(view + "frame = [0, 0, 1, 'x']"), ":6: \"frame\" must be 4 numbers.");
    EXPECT_EQ(ErrorWithView(view + "frame = [5, 0, 1, 1]"),
              ":6: \"frame\" must be left, top, right and bottom.");
    EXPECT_EQ(ErrorWithView(view + "frame = [0, 0, 1, 1], label = 7"),
              ":6: \"label\" must be a string.");
    EXPECT_EQ(ErrorWithView(view + "frame = [0, 0, 1, 1], message = 'long one'"),
              ":6: \"message\" must be the four characters of a command code.");
    EXPECT_EQ(ErrorWithView(view + "frame = [0, 0, 1, 1], divider = 'x'"),
              ":6: \"divider\" must be a number.");
    EXPECT_EQ(ErrorWithView(view + "frame = [0, 0, 1, 1], views = 1"),
              ":6: \"views\" must be an array of tables.");
    EXPECT_EQ(ErrorWithView(view + "frame = [0, 0, 1, 1], tabs = [1]"),
              ":6: \"tabs\" must be an array of tables.");
}

TEST(WindowLayout, RefusesViewsThatNestTooDeep) {
    std::string view = "{class = 'BView', name = 'v', frame = [0, 0, 1, 1]}";
    for (int i = 0; i < 70; ++i) {
        view = "{class = 'BView', name = 'v', frame = [0, 0, 1, 1], views = [" + view + "]}";
    }
    EXPECT_EQ(Compiled(std::string(kPlainWindow) + "views = [" + view + "]\n").error,
              ":5: Views are nested too deeply.");
}

TEST(WindowLayout, LeavesTheArchiveAloneWhereTheSourceIsWrong) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("damaged.toml"), {'=', '\n'});
    BMessage archive(7);
    const BMessage before = archive;
    std::string error;

    EXPECT_FALSE(CompileWindowLayout(folder.File("damaged.toml"), &archive, &error));
    EXPECT_TRUE(error.starts_with(folder.File("damaged.toml") + ":1: ")) << error;
    EXPECT_FALSE(CompileWindowLayout(folder.File("missing.toml"), &archive, &error));
    EXPECT_TRUE(error.starts_with(folder.File("missing.toml") + ":")) << error;
    EXPECT_EQ(archive, before);
}

TEST(WindowLayout, MakesThePreferencesWindowOfItsSource) {
    BMessage archive;
    std::string error;

    ASSERT_TRUE(
        CompileWindowLayout(SourceFolder() / "resources/preferences_window.toml", &archive, &error))
        << error;

    EXPECT_EQ(TextOf(archive, "_title"), "Preferences");
    EXPECT_EQ(LayoutFrameOf(archive), BRect(171, 21, 571, 334));
    EXPECT_EQ(FloatOf(archive, "minWidth"), 400);
    EXPECT_EQ(FloatOf(archive, "maxHeight"), 313);
    const BMessage top = MessageOf(archive, "_views");
    EXPECT_EQ(TextOf(top, "_name"), "topview");
    const BMessage tabs = MessageOf(top, "_views");
    EXPECT_EQ(TextOf(tabs, "_name"), "tabview");
    EXPECT_EQ(TextOf(MessageOf(tabs, "_view_list", 4), "_name"), "Miscellaneous");
    EXPECT_EQ(TextOf(MessageOf(archive, "_views", 1), "_name"), "BottomView");
}

}  // namespace
}  // namespace kirto::test
