#include "kit/attribute_file.h"

#include <array>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

#include "base/allocation.h"
#include "kit/rect.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

using Attribute = AttributeFile::Attribute;
using Attributes = AttributeFile::Attributes;
using testing::EndsWith;
using testing::HasSubstr;

constexpr const char* kHeading =
    "# Settings, one per line. This file is replaced as a whole: comments in it are not kept.\n";

std::string TextOf(const std::string& path) {
    const std::vector<uint8> bytes = ReadBytes(path);
    return {bytes.begin(), bytes.end()};
}

void WriteSettings(const std::string& path, const std::string& text) {
    WriteBytes(path, {text.begin(), text.end()});
}

template <typename T>
std::string ValueBytes(const T& value) {
    std::string bytes(sizeof(T), '\0');
    std::memcpy(bytes.data(), &value, sizeof(T));
    return bytes;
}

Attributes Parsed(const std::string& text) {
    Attributes attributes;
    std::string reason;
    EXPECT_TRUE(AttributeFile::Parse(text, &attributes, &reason)) << reason;
    return attributes;
}

Attribute ParsedValue(const std::string& value) {
    return Parsed("x = " + value)["x"];
}

std::string ReasonAgainst(const std::string& text) {
    Attributes attributes{{"left over", {}}};
    std::string reason;
    EXPECT_FALSE(AttributeFile::Parse(text, &attributes, &reason)) << text;
    EXPECT_TRUE(attributes.empty());
    return reason;
}

// What stands behind "x = " for the attribute; also checks that it reads back to the same bytes.
std::string PrintedValue(const Attribute& attribute) {
    const std::string text = AttributeFile::Print({{"x", attribute}});
    EXPECT_EQ(ParsedValue(text.substr(text.find("x = ") + 4)), attribute);
    const size_t start = text.find("x = ") + 4;
    return text.substr(start, text.size() - start - 1);
}

std::string PrintedDouble(double value) {
    return PrintedValue({B_DOUBLE_TYPE, ValueBytes(value)});
}

int64 WriteInt(AttributeFile& file, std::string_view name, int32 value) {
    return file.WriteAttr(name, B_INT32_TYPE, &value, sizeof(value));
}

int64 ReadInt(AttributeFile& file, std::string_view name, int32* value) {
    return file.ReadAttr(name, B_INT32_TYPE, value, sizeof(*value));
}

// A folder that can't be written for the length of a test. A test that runs as root, whom no
// permission stops, takes the rights of another user for that time.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(const std::string& path) : path_(path) {
        done_ = chmod(path.c_str(), 0555) == 0 && (geteuid() != 0 || seteuid(65534) == 0);
    }
    ~ReadOnlyFolder() {
        EXPECT_EQ(seteuid(getuid()), 0);
        chmod(path_.c_str(), 0755);
    }
    bool Done() const { return done_; }

  private:
    std::string path_;
    bool done_;
};

TEST(AttributeFile, PrintsOneAttributeALineInTheOrderOfTheNames) {
    const Attributes attributes{
        {"global_width", {B_INT32_TYPE, ValueBytes<int32>(320)}},
        {"global_usepause", {B_BOOL_TYPE, ValueBytes<uint8>(1)}},
        {"global_pauselength", {B_DOUBLE_TYPE, ValueBytes(100.0)}},
        {"palette_filename", {B_STRING_TYPE, "/home/ann/colours.gif"}},
        {"misc_windowdimensions", {B_RECT_TYPE, ValueBytes(BRect(100, 80, 649, 479))}},
        {"odd", {B_INT32_TYPE, "\x40\x01"}},
    };

    EXPECT_EQ(AttributeFile::Print(attributes),
              std::string(kHeading) +
                  "global_pauselength = 100.0\n"
                  "global_usepause = true\n"
                  "global_width = 320\n"
                  "misc_windowdimensions = [100.0, 80.0, 649.0, 479.0]\n"
                  "odd = { type = \"LONG\", bytes = \"4001\" }\n"
                  "palette_filename = \"/home/ann/colours.gif\"\n");
    EXPECT_EQ(Parsed(AttributeFile::Print(attributes)), attributes);
}

TEST(AttributeFile, AnEmptyTextHoldsNoAttributes) {
    EXPECT_TRUE(Parsed("").empty());
    EXPECT_TRUE(Parsed(AttributeFile::Print({})).empty());
}

TEST(AttributeFile, IntegersOfThirtyTwoBitsAreLongs) {
    EXPECT_EQ(ParsedValue("-2147483648"),
              (Attribute{B_INT32_TYPE, ValueBytes(std::numeric_limits<int32>::min())}));
    EXPECT_EQ(ParsedValue("2147483647"),
              (Attribute{B_INT32_TYPE, ValueBytes(std::numeric_limits<int32>::max())}));
}

TEST(AttributeFile, LargerIntegersBecomeEightByteAttributes) {
    EXPECT_EQ(ParsedValue("2147483648"), (Attribute{B_INT64_TYPE, ValueBytes<int64>(2147483648)}));
    EXPECT_EQ(PrintedValue({B_INT64_TYPE, ValueBytes<int64>(-2147483649)}), "-2147483649");
}

TEST(AttributeFile, AnEightByteAttributeOfASmallIntegerKeepsItsType) {
    EXPECT_EQ(PrintedValue({B_INT64_TYPE, ValueBytes<int64>(1)}),
              "{ type = \"LLNG\", bytes = \"0100000000000000\" }");
}

TEST(AttributeFile, BooleansAreWords) {
    EXPECT_EQ(PrintedValue({B_BOOL_TYPE, ValueBytes<uint8>(0)}), "false");
    EXPECT_EQ(PrintedValue({B_BOOL_TYPE, ValueBytes<uint8>(1)}), "true");
}

TEST(AttributeFile, ABooleanOfAnotherByteIsKeptAsItIs) {
    EXPECT_EQ(PrintedValue({B_BOOL_TYPE, "\x02"}), "{ type = \"BOOL\", bytes = \"02\" }");
}

TEST(AttributeFile, DoublesReadBackExactly) {
    EXPECT_EQ(PrintedDouble(0.1), "0.1");
    EXPECT_EQ(PrintedDouble(3), "3.0");
    EXPECT_EQ(PrintedDouble(1e22), "1e+22");
    EXPECT_EQ(PrintedDouble(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(PrintedDouble(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
    EXPECT_EQ(PrintedDouble(std::numeric_limits<double>::denorm_min()), "5e-324");
}

TEST(AttributeFile, SpecialDoublesReadBackExactly) {
    EXPECT_EQ(PrintedDouble(-0.0), "-0.0");
    EXPECT_EQ(PrintedDouble(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(PrintedDouble(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(PrintedDouble(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(AttributeFile, ANanWithAPayloadIsKeptAsItIs) {
    EXPECT_EQ(PrintedValue({B_DOUBLE_TYPE, ValueBytes<uint64>(0x7FF8000000000001)}),
              "{ type = \"DBLE\", bytes = \"010000000000f87f\" }");
    const std::array<uint32, 4> edges{0, 0, 0x7FC00001, 0};
    EXPECT_EQ(PrintedValue({B_RECT_TYPE, ValueBytes(edges)}),
              "{ type = \"RECT\", bytes = \"00000000000000000100c07f00000000\" }");
}

TEST(AttributeFile, RandomDoublesAndRectanglesReadBackExactly) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const std::array<uint64, 2> bits{random(), random()};
        PrintedValue({B_DOUBLE_TYPE, ValueBytes(bits[0])});
        PrintedValue({B_RECT_TYPE, ValueBytes(bits)});
    }
}

TEST(AttributeFile, RectanglesOfSpecialEdgesReadBackExactly) {
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(PrintedValue({B_RECT_TYPE, ValueBytes(BRect(-0.0F, 0.1F, infinity, -infinity))}),
              "[-0.0, 0.1, inf, -inf]");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(PrintedValue({B_RECT_TYPE, ValueBytes(BRect(nan, 1e-45F, 3e38F, 0))}),
              "[nan, 1e-45, 3e+38, 0.0]");
}

TEST(AttributeFile, ARectangleMayBeWrittenInWholeNumbers) {
    EXPECT_EQ(ParsedValue("[100, 80, 649, 479]"),
              (Attribute{B_RECT_TYPE, ValueBytes(BRect(100, 80, 649, 479))}));
}

TEST(AttributeFile, StringsAreEscaped) {
    EXPECT_EQ(PrintedValue({B_STRING_TYPE, ""}), "\"\"");
    EXPECT_EQ(PrintedValue({B_STRING_TYPE, "C:\\\"quoted\"\n\t\x7F"}),
              "\"C:\\\\\\\"quoted\\\"\\u000a\\u0009\\u007f\"");
    EXPECT_EQ(PrintedValue({B_STRING_TYPE, std::string("a\0b", 3)}), "\"a\\u0000b\"");
    EXPECT_EQ(PrintedValue({B_STRING_TYPE, "größer 日本 🎞"}), "\"größer 日本 🎞\"");
}

TEST(AttributeFile, AStringThatIsNoUtf8IsKeptAsItIs) {
    EXPECT_EQ(PrintedValue({B_STRING_TYPE, "a\xFF"}), "{ type = \"CSTR\", bytes = \"61ff\" }");
}

TEST(AttributeFile, UnusualSizesAndTypesAreKeptAsTheyAre) {
    EXPECT_EQ(PrintedValue({B_INT32_TYPE, ""}), "{ type = \"LONG\", bytes = \"\" }");
    EXPECT_EQ(PrintedValue({B_BOOL_TYPE, "ab"}), "{ type = \"BOOL\", bytes = \"6162\" }");
    EXPECT_EQ(PrintedValue({B_DOUBLE_TYPE, "abc"}), "{ type = \"DBLE\", bytes = \"616263\" }");
    EXPECT_EQ(PrintedValue({B_RECT_TYPE, "abcd"}), "{ type = \"RECT\", bytes = \"61626364\" }");
    EXPECT_EQ(PrintedValue({B_INT64_TYPE, "a"}), "{ type = \"LLNG\", bytes = \"61\" }");
    EXPECT_EQ(PrintedValue({FourCharCode("a\"\\ "), "z"}),
              "{ type = \"a\\\"\\\\ \", bytes = \"7a\" }");
    EXPECT_EQ(PrintedValue({0x01FF0A00, "z"}), "{ type = \"0x01ff0a00\", bytes = \"7a\" }");
}

TEST(AttributeFile, NamesThatAreNoBareKeysAreQuoted) {
    const Attribute one{B_INT32_TYPE, ValueBytes<int32>(1)};
    const Attributes attributes{{"", one}, {"a.b", one}, {"gr\xC3\xB6\xC3\x9F", one}, {"x\n", one}};

    const std::string text = AttributeFile::Print(attributes);

    EXPECT_EQ(text, std::string(kHeading) +
                        "\"\" = 1\n\"a.b\" = 1\n\"gr\xC3\xB6\xC3\x9F\" = 1\n\"x\\u000a\" = 1\n");
    EXPECT_EQ(Parsed(text), attributes);
}

TEST(AttributeFile, CommentsAndBlankLinesAreAllowed) {
    const Attributes attributes = Parsed("\n# a 'comment.of.\"its own\nx = 'it' # \"more\n\n");

    EXPECT_EQ(attributes, (Attributes{{"x", {B_STRING_TYPE, "it"}}}));
}

TEST(AttributeFile, TextThatIsNoTomlIsRefusedWithItsLine) {
    EXPECT_THAT(ReasonAgainst("x = 1\nx = \n"), testing::StartsWith("line 2: "));
    EXPECT_THAT(ReasonAgainst("x = 1\nx = 2"), testing::StartsWith("line 2: "));
    EXPECT_THAT(ReasonAgainst("x = \"\xFF\""), testing::StartsWith("line 1: "));
    EXPECT_THAT(ReasonAgainst(std::string(100000, '[')), testing::StartsWith("line 1: "));
    EXPECT_THAT(ReasonAgainst("x = " + std::string(100000, '[')), testing::StartsWith("line 1: "));
}

TEST(AttributeFile, ValuesThatAreNoAttributesAreRefused) {
    for (const char* value : {
             "1979-05-27",
             "07:32:00",
             "1979-05-27T07:32:00Z",  // dates
             "[]",
             "[1, 2, 3]",
             "[1, 2, 3, 4, 5]",
             "[1, 2, 3, \"4\"]",  // no rectangles
             "{}",
             "{ type = \"LONG\" }",
             "{ bytes = \"00\" }",                             // incomplete
             "{ type = \"LONG\", bytes = \"00\", more = 1 }",  // too much
             "{ type = 1, bytes = \"00\" }",
             "{ type = \"LONG\", bytes = 0 }",
             "{ type = \"LON\", bytes = \"00\" }",
             "{ type = \"0x0102030g\", bytes = \"00\" }",
             "{ type = \"LONG\", bytes = \"0\" }",
             "{ type = \"LONG\", bytes = \"0g\" }",
             "{ type = \"LONG\", bytes = \"-1\" }",
             "{ type = \"0x-1020304\", bytes = \"00\" }",
         }) {
        EXPECT_EQ(ReasonAgainst(std::string("y = 1\nx = ") + value),
                  "line 2: not the value of a setting")
            << value;
    }
    EXPECT_EQ(ReasonAgainst("[table]\nx = 1"), "line 1: not the value of a setting");
    EXPECT_EQ(ReasonAgainst("a.b = 1"), "line 1: not the value of a setting");
}

TEST(AttributeFile, KeysOfTooManyPartsAreRefusedBeforeTheyAreNested) {
    std::string key = "a";
    for (int i = 0; i < 200000; ++i)
        key += ".a";
    const std::string reason = "a multi-line string, or a key with too many parts";

    EXPECT_EQ(ReasonAgainst(key + " = 1"), reason);
    EXPECT_EQ(ReasonAgainst("[" + key + "]"), reason);
    EXPECT_EQ(ReasonAgainst("x = {" + key + " = 1}"), reason);
    EXPECT_EQ(ReasonAgainst("# \"comment\nx = 'a\\'\ny = \"\\\"\"\n" + key + " = 1"), reason);
}

TEST(AttributeFile, StringsOfSeveralLinesAreRefused) {
    const std::string reason = "a multi-line string, or a key with too many parts";

    EXPECT_EQ(ReasonAgainst("x = \"\"\"a\nb\"\"\""), reason);
    EXPECT_EQ(ReasonAgainst("x = '''a\nb'''"), reason);
    EXPECT_EQ(ReasonAgainst("x = \"a\nb\""), reason);
}

TEST(AttributeFile, AStringMayHoldAnyNumberOfDots) {
    const std::string dots(5000, '.');

    EXPECT_EQ(ParsedValue("\"" + dots + "\"").bytes, dots);
    EXPECT_EQ(ParsedValue("'" + dots + "'").bytes, dots);
}

TEST(AttributeFile, AttributesComeBackFromTheFile) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    {
        AttributeFile file(path);
        EXPECT_EQ(file.InitCheck(), B_OK);
        EXPECT_EQ(WriteInt(file, "width", 640), 4);
        EXPECT_EQ(file.WriteAttr("name", B_STRING_TYPE, "abc", 3), 3);
        EXPECT_EQ(file.Sync(), B_OK);
    }

    AttributeFile file(path);
    int32 width = 0;
    EXPECT_EQ(ReadInt(file, "width", &width), 4);
    EXPECT_EQ(width, 640);
    std::string name(10, '-');
    EXPECT_EQ(file.ReadAttr("name", B_STRING_TYPE, name.data(), name.size()), 3);
    EXPECT_EQ(name, "abc-------");
    EXPECT_EQ(file.DamagedCopy(), "");
}

TEST(AttributeFile, AReadTakesAtMostTheBytesAskedFor) {
    const TemporaryFolder folder;
    WriteSettings(folder.File("settings"), "name = \"abcdef\"\n");
    AttributeFile file(folder.File("settings"));

    std::string name = "------";
    EXPECT_EQ(file.ReadAttr("name", B_STRING_TYPE, name.data(), 4), 4);
    EXPECT_EQ(name, "abcd--");
}

TEST(AttributeFile, NumbersAreReadAsTheTypeAskedFor) {
    const TemporaryFolder folder;
    WriteSettings(folder.File("settings"),
                  "pause = 5\nlarge = 5000000000\nwidth = 320.0\npart = -7.9\nfar = -1e300\n"
                  "not_a_number = nan\n");
    AttributeFile file(folder.File("settings"));
    const auto as_double = [&](const char* name) {
        double value = 0;
        EXPECT_EQ(file.ReadAttr(name, B_DOUBLE_TYPE, &value, sizeof(value)), 8) << name;
        return value;
    };
    const auto as_int = [&](const char* name) {
        int32 value = -1;
        EXPECT_EQ(ReadInt(file, name, &value), 4) << name;
        return value;
    };
    EXPECT_EQ(as_double("pause"), 5.0);
    EXPECT_EQ(as_double("large"), 5e9);
    EXPECT_EQ(as_int("width"), 320);
    EXPECT_EQ(as_int("part"), -7);
    EXPECT_EQ(as_int("large"), std::numeric_limits<int32>::max());
    EXPECT_EQ(as_int("far"), std::numeric_limits<int32>::min());
    EXPECT_EQ(as_int("not_a_number"), 0);
}

TEST(AttributeFile, OnlyNumbersAreConverted) {
    const TemporaryFolder folder;
    WriteSettings(folder.File("settings"), "text = \"5\"\n");
    AttributeFile file(folder.File("settings"));
    double value = 0;
    EXPECT_EQ(file.ReadAttr("text", B_DOUBLE_TYPE, &value, sizeof(value)), 1);
}

TEST(AttributeFile, BytesAreReadAsTheyAreWhateverTheirType) {
    const TemporaryFolder folder;
    const std::string text =
        std::string(kHeading) + "pause = { type = \"LONG\", bytes = \"05000000\" }\n";
    WriteSettings(folder.File("settings"), text);
    for (int i = 0; i < 2; ++i) {
        AttributeFile file(folder.File("settings"));
        std::array<uint8, 8> bytes{9, 9, 9, 9, 9, 9, 9, 9};
        EXPECT_EQ(file.ReadAttr("pause", B_DOUBLE_TYPE, bytes.data(), bytes.size()), 4);
        EXPECT_EQ(bytes, (std::array<uint8, 8>{5, 0, 0, 0, 9, 9, 9, 9}));
        // Writing something else leaves the form of this one as it is.
        EXPECT_EQ(WriteInt(file, "width", 1), 4);
        EXPECT_EQ(file.Sync(), B_OK);
    }
    EXPECT_EQ(TextOf(folder.File("settings")), text + "width = 1\n");
}

TEST(AttributeFile, AMissingAttributeIsNotFound) {
    const TemporaryFolder folder;
    AttributeFile file(folder.File("settings"));

    int32 value = 0;
    EXPECT_EQ(ReadInt(file, "width", &value), B_ENTRY_NOT_FOUND);
}

TEST(AttributeFile, WritesStayInMemoryUntilTheSync) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    WriteSettings(path, "width = 1\n");
    AttributeFile file(path);

    WriteInt(file, "width", 2);
    int32 width = 0;
    ReadInt(file, "width", &width);
    EXPECT_EQ(width, 2);
    EXPECT_EQ(TextOf(path), "width = 1\n");

    EXPECT_EQ(file.Sync(), B_OK);
    EXPECT_EQ(TextOf(path), std::string(kHeading) + "width = 2\n");
}

TEST(AttributeFile, AnEmptyAttributeIsKept) {
    const TemporaryFolder folder;
    AttributeFile file(folder.File("settings"));

    EXPECT_EQ(file.WriteAttr("name", B_STRING_TYPE, nullptr, 0), 0);
    EXPECT_EQ(file.Sync(), B_OK);

    char byte = 'x';
    EXPECT_EQ(AttributeFile(folder.File("settings")).ReadAttr("name", B_STRING_TYPE, &byte, 1), 0);
    EXPECT_EQ(byte, 'x');
}

TEST(AttributeFile, WithoutAChangeTheSyncLeavesTheFileAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    WriteSettings(path, "width = 1 # mine\n");
    AttributeFile file(path);

    EXPECT_EQ(WriteInt(file, "width", 1), 4);
    EXPECT_EQ(file.Sync(), B_OK);

    EXPECT_EQ(TextOf(path), "width = 1 # mine\n");
}

TEST(AttributeFile, NoTemporaryFilesAreLeftNotEvenThoseOfAKilledSync) {
    const TemporaryFolder folder;
    const std::string leftover = folder.File(".kirto-0123456789abcdef");
    WriteBytes(leftover, {1, 2, 3});
    std::filesystem::last_write_time(
        leftover, std::filesystem::file_time_type::clock::now() - std::chrono::hours(2));
    AttributeFile file(folder.File("settings"));
    WriteInt(file, "width", 1);
    file.Sync();

    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        names.push_back(entry.path().filename().string());
    }
    EXPECT_EQ(names, std::vector<std::string>{"settings"});
}

TEST(AttributeFile, ANameThatIsNoUtf8IsRefused) {
    const TemporaryFolder folder;
    AttributeFile file(folder.File("settings"));

    EXPECT_EQ(WriteInt(file, "\xFF", 1), B_BAD_VALUE);
}

TEST(AttributeFile, MissingFoldersAreMadeForTheUserOnly) {
    const TemporaryFolder folder;
    AttributeFile file(folder.File("a/b/settings"));

    EXPECT_EQ(file.InitCheck(), B_OK);
    for (const char* made : {"a", "a/b"}) {
        struct stat info;
        ASSERT_EQ(stat(folder.File(made).c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 07777, 0700U) << made;
    }
}

TEST(AttributeFile, ALinkToTheFileStaysALink) {
    const TemporaryFolder folder;
    WriteSettings(folder.File("real"), "width = 1\n");
    std::filesystem::create_symlink("real", folder.File("settings"));
    AttributeFile file(folder.File("settings"));

    WriteInt(file, "width", 2);
    EXPECT_EQ(file.Sync(), B_OK);

    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("settings")));
    EXPECT_THAT(TextOf(folder.File("real")), EndsWith("width = 2\n"));
}

TEST(AttributeFile, ADamagedFileIsPutAsideAndTheAttributesStartEmpty) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    WriteSettings(path, "y = 2\nx = [1]\n");
    const DebugRecorder debug;

    AttributeFile file(path);

    EXPECT_EQ(file.InitCheck(), B_OK);
    int32 value = 0;
    EXPECT_EQ(ReadInt(file, "y", &value), B_ENTRY_NOT_FOUND);
    EXPECT_EQ(file.DamagedCopy(), path + ".damaged");
    EXPECT_EQ(TextOf(path + ".damaged"), "y = 2\nx = [1]\n");
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(debug.Text(), "AttributeFile::PutAside() - " + path +
                                " is damaged (line 2: not the value of a setting), kept as " +
                                path + ".damaged\n");

    WriteInt(file, "y", 3);
    EXPECT_EQ(file.Sync(), B_OK);
    EXPECT_EQ(TextOf(path), std::string(kHeading) + "y = 3\n");
}

TEST(AttributeFile, AHealthyFileStaysWhereItIsWhenMemoryIsShort) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    WriteSettings(path, "width = 1\n");
    {
        const AllocationFault fault(1);
        AttributeFile file(path);
        EXPECT_EQ(file.InitCheck(), B_NO_MEMORY);
        EXPECT_EQ(file.DamagedCopy(), "");
        int32 width = 7;
        EXPECT_EQ(ReadInt(file, "width", &width), B_NO_MEMORY);
        EXPECT_EQ(WriteInt(file, "width", 2), B_NO_MEMORY);
        EXPECT_EQ(file.Sync(), B_NO_MEMORY);
    }
    EXPECT_EQ(TextOf(path), "width = 1\n");
    AttributeFile file(path);
    int32 width = 7;
    EXPECT_EQ(ReadInt(file, "width", &width), 4);
    EXPECT_EQ(width, 1);
}

TEST(AttributeFile, EarlierDamagedCopiesAreNeverOverwritten) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    const DebugRecorder debug;
    for (const char* text : {"first", "second", "third"}) {
        WriteSettings(path, text);
        const AttributeFile file(path);
    }

    EXPECT_EQ(TextOf(path + ".damaged"), "first");
    EXPECT_EQ(TextOf(path + ".damaged-2"), "second");
    EXPECT_EQ(TextOf(path + ".damaged-3"), "third");
}

TEST(AttributeFile, BehindALinkTheFileItselfIsPutAside) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.File("dots"));
    WriteSettings(folder.File("dots/real"), "damaged");
    std::filesystem::create_symlink("dots/real", folder.File("settings"));
    const DebugRecorder debug;

    AttributeFile file(folder.File("settings"));
    WriteInt(file, "x", 1);
    EXPECT_EQ(file.Sync(), B_OK);

    EXPECT_THAT(file.DamagedCopy(), EndsWith("/dots/real.damaged"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("settings")));
    EXPECT_THAT(TextOf(folder.File("dots/real")), EndsWith("x = 1\n"));
}

TEST(AttributeFile, AFileOfMoreThanOneMebibyteCountsAsDamaged) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    const DebugRecorder debug;
    WriteSettings(path, std::string(1024 * 1024, '\n'));
    EXPECT_EQ(AttributeFile(path).DamagedCopy(), "");
    WriteSettings(path, std::string(1024 * 1024 + 1, '\n'));

    EXPECT_EQ(AttributeFile(path).DamagedCopy(), path + ".damaged");
    EXPECT_THAT(debug.Text(), HasSubstr("(larger than 1 MiB)"));
}

TEST(AttributeFile, AFileThatWouldCountAsDamagedIsNotWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    WriteSettings(path, "x = 1\n");
    AttributeFile file(path);
    const std::string large(1024 * 1024, 'a');
    file.WriteAttr("large", B_STRING_TYPE, large.data(), large.size());

    EXPECT_EQ(file.Sync(), B_BAD_VALUE);
    EXPECT_EQ(TextOf(path), "x = 1\n");
}

TEST(AttributeFile, AFolderInPlaceOfTheFileCanNotBeUsed) {
    const TemporaryFolder folder;
    AttributeFile file(folder.Path());

    int32 value = 1;
    EXPECT_EQ(file.InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(ReadInt(file, "x", &value), B_NOT_ALLOWED);
    EXPECT_EQ(WriteInt(file, "x", 1), B_NOT_ALLOWED);
    EXPECT_EQ(file.Sync(), B_NOT_ALLOWED);
}

TEST(AttributeFile, AFileThatCanNotBeMadeDoesNotLookLikeOneWithoutAttributes) {
    const TemporaryFolder folder;
    WriteSettings(folder.File("file"), "");
    AttributeFile file(folder.File("file/settings"));

    int32 value = 1;
    EXPECT_EQ(file.InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(ReadInt(file, "x", &value), B_NOT_ALLOWED);
}

TEST(AttributeFile, AWriteFailsAtOnceWhereTheFolderIsReadOnly) {
    const TemporaryFolder folder;
    WriteSettings(folder.File("settings"), "x = 1\n");
    const ReadOnlyFolder read_only(folder.Path());
    if (!read_only.Done()) GTEST_SKIP() << "this user can't give up its rights";
    AttributeFile file(folder.File("settings"));

    int32 value = 0;
    EXPECT_EQ(ReadInt(file, "x", &value), 4);
    EXPECT_EQ(value, 1);
    EXPECT_EQ(WriteInt(file, "x", 2), B_NOT_ALLOWED);
    EXPECT_EQ(WriteInt(file, "y", 2), B_NOT_ALLOWED);
    EXPECT_EQ(ReadInt(file, "x", &value), 4);
    EXPECT_EQ(value, 1);
}

TEST(AttributeFile, ADamagedFileThatCanNotBePutAsideCanNotBeUsed) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings");
    WriteSettings(path, "damaged");
    const ReadOnlyFolder read_only(folder.Path());
    if (!read_only.Done()) GTEST_SKIP() << "this user can't give up its rights";
    const DebugRecorder debug;

    AttributeFile file(path);

    EXPECT_EQ(file.InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(file.DamagedCopy(), "");
    EXPECT_EQ(TextOf(path), "damaged");
    EXPECT_THAT(debug.Text(), testing::StartsWith("AttributeFile::PutAside() - " + path +
                                                  " is damaged (line 1: "));
}

TEST(AttributeFile, AFailedSyncLeavesTheOldFileAndIsTriedAgain) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.File("a"));
    AttributeFile file(folder.File("a/settings"));
    WriteInt(file, "x", 1);

    std::filesystem::rename(folder.File("a"), folder.File("b"));
    EXPECT_LT(file.Sync(), B_OK);
    std::filesystem::rename(folder.File("b"), folder.File("a"));
    EXPECT_EQ(file.Sync(), B_OK);

    EXPECT_EQ(TextOf(folder.File("a/settings")), std::string(kHeading) + "x = 1\n");
}

}  // namespace
}  // namespace kirto::test
