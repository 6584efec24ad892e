#include "formats/sheet/sheet_description.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

// A text with one frame of which these are the members.
std::string WithFrame(const std::string& members) {
    return R"({"frames": [{)" + members + "}]}";
}

const std::string kRect = R"("frame": {"x": 1, "y": 2, "w": 3, "h": 4})";

TEST(SheetDescription, ComesBackAsItWasWritten) {
    SheetDescription sheet;
    sheet.image = "walk.png";
    sheet.width = 64;
    sheet.height = 32;
    sheet.frames = {{"one", 0, 0, 5, 6, 1, 2, 10, 9, 40.0},
                    {"two \"\xC3\xA4\"", 7, 8, 10, 9, 0, 0, 10, 9, std::nullopt}};

    const auto read = ReadSheetDescription(SheetDescriptionText(sheet));

    ASSERT_TRUE(read);
    EXPECT_EQ(read->image, "walk.png");
    ASSERT_EQ(read->frames.size(), 2u);
    const SheetFrame& one = read->frames[0];
    EXPECT_EQ(one.name, "one");
    EXPECT_EQ((std::vector{one.left, one.top, one.width, one.height}), (std::vector{0, 0, 5, 6}));
    EXPECT_EQ((std::vector{one.x_offset, one.y_offset, one.whole_width, one.whole_height}),
              (std::vector{1, 2, 10, 9}));
    EXPECT_EQ(one.milliseconds, 40.0);
    EXPECT_EQ(read->frames[1].name, "two \"\xC3\xA4\"");
    EXPECT_EQ(read->frames[1].milliseconds, std::nullopt);
}

TEST(SheetDescription, IsWrittenInTheArrayForm) {
    SheetDescription sheet;
    sheet.image = "a.png";
    sheet.width = 4;
    sheet.height = 2;
    sheet.frames = {{"f", 0, 0, 4, 2, 0, 0, 4, 2, 33.4}};
    EXPECT_EQ(SheetDescriptionText(sheet), R"({
  "frames": [
    {
      "filename": "f",
      "frame": {
        "x": 0,
        "y": 0,
        "w": 4,
        "h": 2
      },
      "rotated": false,
      "trimmed": false,
      "spriteSourceSize": {
        "x": 0,
        "y": 0,
        "w": 4,
        "h": 2
      },
      "sourceSize": {
        "w": 4,
        "h": 2
      },
      "duration": 33
    }
  ],
  "meta": {
    "image": "a.png",
    "format": "RGBA8888",
    "size": {
      "w": 4,
      "h": 2
    },
    "scale": "1"
  }
}
)");
}

TEST(SheetDescription, NeedsNothingButTheRectangles) {
    const auto read = ReadSheetDescription(WithFrame(kRect));
    ASSERT_TRUE(read);
    const SheetFrame& frame = read->frames.front();
    EXPECT_EQ(frame.name, "");
    EXPECT_EQ(frame.whole_width, 3);
    EXPECT_EQ(frame.whole_height, 4);
    EXPECT_EQ(frame.x_offset, 0);
    EXPECT_EQ(read->image, "");
}

TEST(SheetDescription, IsNotReadFromOtherTexts) {
    for (const std::string text : {"", "{", "[]", "7", "{}", R"({"frames": 3})",
                                   R"({"frames": [3]})", R"({"frames": {"a": {}}})"})
        EXPECT_FALSE(ReadSheetDescription(text)) << text;
    EXPECT_FALSE(ReadSheetDescription(std::string(100000, '[')));
}

TEST(SheetDescription, IsNotReadWithNumbersOutOfTheirBounds) {
    for (const char* members :
         {R"("frame": {"x": -1, "y": 2, "w": 3, "h": 4})",
          R"("frame": {"x": 1, "y": 2, "w": 0, "h": 4})",
          R"("frame": {"x": 1, "y": 2, "w": 3, "h": 2147483648})",
          R"("frame": {"x": 1.5, "y": 2, "w": 3, "h": 4})",
          R"("frame": {"x": "1", "y": 2, "w": 3, "h": 4})", R"("frame": {"x": 1, "y": 2, "w": 3})"})
        EXPECT_FALSE(ReadSheetDescription(WithFrame(members))) << members;
    for (const char* members :
         {R"("rotated": true)", R"("duration": -1)", R"("duration": 1e999)", R"("duration": "5")",
          R"("sourceSize": {"w": 0, "h": 1})", R"("spriteSourceSize": {"x": -1, "y": 0})"})
        EXPECT_FALSE(ReadSheetDescription(WithFrame(kRect + ", " + members))) << members;
    EXPECT_TRUE(ReadSheetDescription(WithFrame(kRect + R"(, "rotated": false, "duration": 0.5)")));
}

}  // namespace

}  // namespace kirto::test
