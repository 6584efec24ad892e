#include "settings/prefs.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

#include "kit/attribute_file.h"
#include "support/environment.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <typename T>
std::string BytesOf(const T& value) {
    std::string bytes(sizeof(T), '\0');
    std::memcpy(bytes.data(), &value, sizeof(T));
    return bytes;
}

// Attributes in memory. Fails the reads and writes of the keys it is told, and the sync.
class FakeNode : public BNode {
  public:
    struct Attribute {
        type_code type;
        std::string bytes;

        friend bool operator==(const Attribute&, const Attribute&) = default;
    };

    status_t InitCheck() const override { return B_OK; }

    int64 ReadAttr(std::string_view name, type_code, void* buffer, size_t size) override {
        reads.emplace_back(name);
        if (name == failing_read) return B_IO_ERROR;
        const auto found = attributes.find(std::string(name));
        if (found == attributes.end()) return B_ENTRY_NOT_FOUND;
        return static_cast<int64>(found->second.bytes.copy(static_cast<char*>(buffer), size));
    }

    int64 WriteAttr(std::string_view name, type_code type, const void* buffer,
                    size_t size) override {
        if (name == failing_write) return B_IO_ERROR;
        writes.emplace_back(name);
        attributes[std::string(name)] = {type, {static_cast<const char*>(buffer), size}};
        return static_cast<int64>(size);
    }

    status_t Sync() override {
        ++syncs;
        return sync_status;
    }

    std::map<std::string, Attribute> attributes;
    std::string failing_read;
    std::string failing_write;
    status_t sync_status = B_OK;
    std::vector<std::string> reads;
    std::vector<std::string> writes;
    int syncs = 0;
};

const std::vector<std::string> kKeysInOrder = {
    "global_width",
    "global_height",
    "global_usepause",
    "global_useloop",
    "global_pauselength",
    "global_loopcount",
    "global_setdimensions",
    "global_pauseinseconds",
    "palette_mapping",
    "palette_filename",
    "palette_usetransparent",
    "palette_transparentindex",
    "palette_backgroundindex",
    "palette_dither",
    "thumbnail_height",
    "thumbnail_heightvalue",
    "thumbnail_maxheight",
    "thumbnail_minheight",
    "thumbnail_drawtransparent",
    "animation_gifdisposal",
    "animation_gifinterlaced",
    "animation_gifcomment",
    "animation_gifloadfullframe",
    "misc_savewindowdimensions",
    "misc_windowdimensions",
    "misc_tempfilelocation",
    "misc_preferredmode",
};
// Those that a file may lack.
const std::vector<std::string> kOptionalKeys = {"animation_faithful",    "animation_dithering",
                                                "animation_jointcolors", "animation_matte",
                                                "animation_threshold",   "animation_exactcolors"};

FakeNode::Attribute Int(int32 value) {
    return {B_INT32_TYPE, BytesOf(value)};
}

FakeNode::Attribute Bool(bool value) {
    return {B_BOOL_TYPE, std::string(1, static_cast<char>(value))};
}

FakeNode::Attribute Text(const std::string& value) {
    return {B_STRING_TYPE, value};
}

FakeNode::Attribute Rect(float left, float top, float right, float bottom) {
    return {B_RECT_TYPE, BytesOf(BRect(left, top, right, bottom))};
}

std::map<std::string, FakeNode::Attribute> DefaultAttributes() {
    return {
        {"global_width", Int(320)},
        {"global_height", Int(240)},
        {"global_usepause", Bool(true)},
        {"global_useloop", Bool(true)},
        {"global_pauselength", {B_DOUBLE_TYPE, BytesOf(100.0)}},
        {"global_loopcount", Int(0)},
        {"global_setdimensions", Bool(true)},
        {"global_pauseinseconds", Bool(false)},
        {"palette_mapping", Int(0)},
        {"palette_filename", Text("")},
        {"palette_usetransparent", Bool(false)},
        {"palette_transparentindex", Int(0)},
        {"palette_backgroundindex", Int(0)},
        {"palette_dither", Bool(false)},
        {"thumbnail_height", Int(0)},
        {"thumbnail_heightvalue", Int(100)},
        {"thumbnail_maxheight", Int(400)},
        {"thumbnail_minheight", Int(30)},
        {"thumbnail_drawtransparent", Bool(true)},
        {"animation_gifdisposal", Int(0)},
        {"animation_gifinterlaced", Bool(false)},
        {"animation_gifcomment", Bool(true)},
        {"animation_gifloadfullframe", Bool(true)},
        {"misc_savewindowdimensions", Bool(true)},
        {"misc_windowdimensions", Rect(100, 80, 649, 479)},
        {"misc_tempfilelocation", Text("/home/ann/")},
        {"misc_preferredmode", Int(0)},
    };
}

const BRect kWindow{1, 2, 301, 202};

// Every test runs with a home and a settings folder of its own.
class PrefsTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    ScopedEnvironment home_{"HOME", "/home/ann"};
    ScopedEnvironment config_{"XDG_CONFIG_HOME", folder_.Path().c_str()};
    DebugRecorder debug_;
};

TEST_F(PrefsTest, BuiltInValuesAreTheDefaultsSaveForTheTemporaryFolder) {
    const Prefs prefs{Prefs::BuiltIn{}};

    EXPECT_EQ(prefs.misc_tempfilelocation, "/home/ann");
    BRect window(0, 0, 549, 399);
    window.OffsetBy(100, 80);
    EXPECT_EQ(prefs.misc_windowdimensions, window);
    EXPECT_FALSE(prefs.failed);
    EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
}

TEST_F(PrefsTest, ANodeWithoutAttributesGainsAllTwentySevenWithTheirDefaults) {
    FakeNode node;

    const Prefs prefs(node);

    EXPECT_EQ(node.attributes, DefaultAttributes());
    std::vector<std::string> reads = kKeysInOrder;
    reads.insert(reads.end(), kOptionalKeys.begin(), kOptionalKeys.end());
    EXPECT_EQ(node.reads, reads);
    EXPECT_EQ(node.writes, kKeysInOrder);
    EXPECT_EQ(node.syncs, 1);
    EXPECT_EQ(prefs.misc_tempfilelocation, "/home/ann/");
    EXPECT_FALSE(prefs.failed);
    EXPECT_EQ(debug_.Text(), "");
}

TEST_F(PrefsTest, AHomeAtTheRootIsTheTemporaryFolderWithOneSlash) {
    const ScopedEnvironment home("HOME", "/");
    FakeNode node;

    const Prefs prefs(node);

    EXPECT_EQ(prefs.misc_tempfilelocation, "/");
}

TEST_F(PrefsTest, ANodeThatLacksOnlyTheSmallestThumbnailHeightGainsThatOne) {
    FakeNode node;
    node.attributes = DefaultAttributes();
    node.attributes["global_width"] = Int(17);
    node.attributes["thumbnail_maxheight"] = Int(18);
    node.attributes["misc_preferredmode"] = Int(1);
    node.attributes.erase("thumbnail_minheight");

    const Prefs prefs(node);

    EXPECT_EQ(node.attributes["thumbnail_minheight"], Int(30));
    EXPECT_THAT(node.writes, ElementsAre("thumbnail_minheight"));
    EXPECT_EQ(prefs.thumbnail_minheight, 30);
    EXPECT_EQ(prefs.global_width, 17);
    EXPECT_EQ(prefs.thumbnail_maxheight, 18);
    EXPECT_EQ(prefs.misc_preferredmode, 1);
}

TEST_F(PrefsTest, FaithfulReadingStandsInTheFileOnlyOnceItWasOn) {
    FakeNode node;
    Prefs prefs(node);
    EXPECT_FALSE(prefs.animation_faithful);
    prefs.Save(node, kWindow);
    EXPECT_EQ(node.attributes.count("animation_faithful"), 0u);

    prefs.animation_faithful = true;
    prefs.Save(node, kWindow);
    EXPECT_EQ(node.writes.back(), "animation_faithful");
    EXPECT_TRUE(Prefs(node).animation_faithful);

    prefs.animation_faithful = false;
    prefs.Save(node, kWindow);
    EXPECT_EQ(node.attributes["animation_faithful"], Bool(false));
    EXPECT_FALSE(Prefs(node).animation_faithful);
}

TEST_F(PrefsTest, FaithfulReadingIsNotLookedForAfterAFailure) {
    FakeNode node;
    node.attributes["animation_faithful"] = Bool(true);
    node.failing_read = "misc_preferredmode";

    EXPECT_FALSE(Prefs(node).animation_faithful);
    EXPECT_EQ(node.reads.back(), "misc_preferredmode");
}

TEST_F(PrefsTest, StoredValuesOfEveryTypeAreRead) {
    FakeNode node;
    node.attributes = DefaultAttributes();
    node.attributes["global_height"] = Int(-5);
    node.attributes["global_useloop"] = Bool(false);
    node.attributes["global_pauselength"] = {B_DOUBLE_TYPE, BytesOf(0.25)};
    node.attributes["palette_filename"] = Text("abc");
    node.attributes["misc_windowdimensions"] = Rect(1, 2, 3, 4);

    const Prefs prefs(node);

    EXPECT_EQ(prefs.global_height, -5);
    EXPECT_FALSE(prefs.global_useloop);
    EXPECT_EQ(prefs.global_pauselength, 0.25);
    EXPECT_EQ(prefs.palette_filename, "abc");
    EXPECT_EQ(prefs.misc_windowdimensions, BRect(1, 2, 3, 4));
    EXPECT_THAT(node.writes, IsEmpty());
    EXPECT_EQ(node.syncs, 0);
}

TEST_F(PrefsTest, AnIntegerStoredInTwoBytesFillsTheLowBytesOnly) {
    FakeNode node;
    node.attributes["global_width"] = {B_INT32_TYPE, std::string("\x41\x00", 2)};
    EXPECT_EQ(Prefs(node).global_width, 0x41);  // the built-in 320 is 0x140

    int32 value = 0x01020304;
    const int32 unused = 0;
    Prefs prefs{Prefs::BuiltIn{}};
    EXPECT_TRUE(prefs.GetInt(node, "global_width", &value, &unused));
    EXPECT_EQ(value, 0x01020041);
}

TEST_F(PrefsTest, AnIntegerStoredInMoreBytesIsCut) {
    FakeNode node;
    node.attributes["global_width"] = {B_INT64_TYPE, BytesOf<int64>(0x700000009)};

    EXPECT_EQ(Prefs(node).global_width, 9);
}

TEST_F(PrefsTest, TheStoredTypeIsNotChecked) {
    FakeNode node;
    node.attributes["global_width"] = Text("abcd");
    node.attributes["global_usepause"] = Int(256);
    node.attributes["palette_filename"] = Int(0x00636261);

    const Prefs prefs(node);

    EXPECT_EQ(prefs.global_width, 0x64636261);
    EXPECT_FALSE(prefs.global_usepause);
    EXPECT_EQ(prefs.palette_filename, "abc");
    EXPECT_FALSE(prefs.failed);
}

TEST_F(PrefsTest, EmptyAttributesLeaveNumbersAsTheyAreAndMakeStringsEmpty) {
    FakeNode node;
    for (const std::string& key : kKeysInOrder)
        node.attributes[key] = Text("");

    const Prefs prefs(node);

    EXPECT_EQ(prefs.global_width, 320);
    EXPECT_TRUE(prefs.global_usepause);
    EXPECT_EQ(prefs.global_pauselength, 100.0);
    EXPECT_EQ(prefs.misc_windowdimensions, BRect(100, 80, 649, 479));
    EXPECT_EQ(prefs.misc_tempfilelocation, "");
}

TEST_F(PrefsTest, AnyByteButZeroIsTrue) {
    FakeNode node;
    node.attributes["palette_dither"] = {B_BOOL_TYPE, "\x80"};

    const Prefs prefs(node);

    EXPECT_TRUE(prefs.palette_dither);
}

TEST_F(PrefsTest, AStringEndsAfterTheBytesRead) {
    FakeNode node;
    node.attributes["palette_filename"] = Text("abc");
    std::string value = "longer than abc";
    const std::string unused;

    Prefs prefs{Prefs::BuiltIn{}};

    EXPECT_TRUE(prefs.GetString(node, "palette_filename", &value, &unused));
    EXPECT_EQ(value, "abc");
}

TEST_F(PrefsTest, AtMostTwoHundredAndFiftyFiveBytesOfAStringAreRead) {
    FakeNode node;
    node.attributes["palette_filename"] = Text(std::string(255, 'a') + "b");
    node.attributes["misc_tempfilelocation"] = Text(std::string(1023, 'c'));

    const Prefs prefs(node);

    EXPECT_EQ(prefs.palette_filename, std::string(255, 'a'));
    EXPECT_EQ(prefs.misc_tempfilelocation, std::string(255, 'c'));
}

TEST_F(PrefsTest, ALongStringIsWrittenWhole) {
    FakeNode node;
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.misc_tempfilelocation = std::string(1023, 'c');

    prefs.Save(node, kWindow);

    EXPECT_EQ(node.attributes["misc_tempfilelocation"], Text(std::string(1023, 'c')));
}

TEST_F(PrefsTest, AFailedReadLeavesItsKeyAndAllLaterOnesAtTheBuiltInValues) {
    FakeNode node;
    for (const std::string& key : kKeysInOrder)
        node.attributes[key] = Text("zzzzzzzzzzzzzzzz");
    node.failing_read = "palette_mapping";

    const Prefs prefs(node);

    EXPECT_EQ(prefs.global_width, 0x7A7A7A7A);
    EXPECT_EQ(prefs.palette_mapping, 0);
    EXPECT_EQ(prefs.palette_filename, "");
    EXPECT_EQ(prefs.thumbnail_heightvalue, 100);
    EXPECT_EQ(prefs.misc_windowdimensions, BRect(100, 80, 649, 479));
    EXPECT_EQ(prefs.misc_tempfilelocation, "/home/ann");
    EXPECT_TRUE(prefs.failed);
    EXPECT_EQ(node.reads.back(), "palette_mapping");
    EXPECT_EQ(debug_.Text(), "Prefs::GetInt() - Unknown error reading palette_mapping\n");
}

TEST_F(PrefsTest, WhatWasWrittenBeforeAFailedReadIsSynced) {
    FakeNode node;
    node.failing_read = "global_usepause";

    const Prefs prefs(node);

    EXPECT_THAT(node.writes, ElementsAre("global_width", "global_height"));
    EXPECT_EQ(node.syncs, 1);
}

struct FailingKey {
    const char* key;
    const char* line;
};

TEST_F(PrefsTest, AFailedReadPrintsTheLineOfItsHelper) {
    const std::string io_error = StatusText(B_IO_ERROR);
    const std::pair<const char*, std::string> cases[] = {
        {"global_width", "Prefs::GetInt() - Unknown error reading global_width\n"},
        {"global_useloop", "Prefs::GetBool() - Unknown error reading global_useloop\n"},
        {"global_pauselength", "Prefs::GetDouble() - Unknown error reading global_pauselength\n"},
        {"palette_filename",
         "Prefs::GetString() - Unknown error reading palette_filename:\n" + io_error + "\n"},
        {"misc_windowdimensions",
         "Prefs::GetRect() - Unknown error reading misc_windowdimensions:\n" + io_error + "\n"},
    };
    for (const auto& [key, line] : cases) {
        const DebugRecorder debug;
        FakeNode node;
        node.failing_read = key;

        const Prefs prefs(node);

        EXPECT_EQ(debug.Text(), line);
        EXPECT_TRUE(prefs.failed);
        EXPECT_EQ(node.reads.back(), key);
    }
}

TEST_F(PrefsTest, AFailedWriteOfADefaultPrintsTheLineOfItsHelperAndStops) {
    const FailingKey cases[] = {
        {"global_width", "Prefs::GetInt() - WriteAttr on global_width died\n"},
        {"global_useloop", "Prefs::GetBool() - WriteAttr on global_useloop died\n"},
        {"global_pauselength", "Prefs::GetDouble() - WriteAttr on global_pauselength died\n"},
        {"palette_filename", "Prefs::GetString() - WriteAttr on palette_filename died\n"},
        {"misc_windowdimensions", "Prefs::GetRect() - WriteAttr on misc_windowdimensions died\n"},
    };
    for (const auto& [key, line] : cases) {
        const DebugRecorder debug;
        FakeNode node;
        node.failing_write = key;

        const Prefs prefs(node);

        EXPECT_EQ(debug.Text(), line);
        EXPECT_TRUE(prefs.failed);
        EXPECT_EQ(node.reads.back(), key);
    }
}

TEST_F(PrefsTest, AFailedWriteOfADefaultStillLeavesTheDefaultInItsField) {
    FakeNode node;
    node.failing_write = "misc_tempfilelocation";

    EXPECT_EQ(Prefs(node).misc_tempfilelocation, "/home/ann/");
}

TEST_F(PrefsTest, AFailedWriteInSavePrintsTheLineOfItsHelperAndStops) {
    const FailingKey cases[] = {
        {"global_width", "Prefs::PutInt() - WriteAttr on global_width died\n"},
        {"global_useloop", "Prefs::PutBool() - WriteAttr on global_useloop died\n"},
        {"global_pauselength", "Prefs::PutDouble() - WriteAttr on global_pauselength died\n"},
        {"palette_filename", "Prefs::PutString() - WriteAttr on palette_filename died\n"},
        {"misc_windowdimensions", "Prefs::PutRect() - WriteAttr on misc_windowdimensions died\n"},
    };
    for (const auto& [key, line] : cases) {
        const DebugRecorder debug;
        FakeNode node;
        node.failing_write = key;
        Prefs prefs{Prefs::BuiltIn{}};

        prefs.Save(node, kWindow);

        EXPECT_EQ(debug.Text(), line);
        EXPECT_TRUE(prefs.failed);
        const auto stop = std::find(kKeysInOrder.begin(), kKeysInOrder.end(), key);
        EXPECT_EQ(node.writes, std::vector<std::string>(kKeysInOrder.begin(), stop));
    }
}

TEST_F(PrefsTest, AFailedSyncAfterLoadingIsTheFailureOfTheLastWrite) {
    FakeNode node;
    node.attributes = DefaultAttributes();
    node.attributes.erase("global_width");
    node.attributes.erase("palette_dither");
    node.sync_status = B_IO_ERROR;

    const Prefs prefs(node);

    EXPECT_EQ(debug_.Text(), "Prefs::GetBool() - WriteAttr on palette_dither died\n");
    EXPECT_TRUE(prefs.failed);
}

TEST_F(PrefsTest, AFailedSyncAfterSavingIsTheFailureOfTheLastWrite) {
    FakeNode node;
    node.sync_status = B_IO_ERROR;
    Prefs prefs{Prefs::BuiltIn{}};

    prefs.Save(node, kWindow);

    EXPECT_EQ(debug_.Text(), "Prefs::PutInt() - WriteAttr on misc_preferredmode died\n");
    EXPECT_TRUE(prefs.failed);
}

TEST_F(PrefsTest, AFailedSyncAfterAFailedReadPrintsNoSecondLine) {
    FakeNode node;
    node.failing_read = "global_height";
    node.sync_status = B_IO_ERROR;

    const Prefs prefs(node);

    EXPECT_EQ(debug_.Text(), "Prefs::GetInt() - Unknown error reading global_height\n");
}

TEST_F(PrefsTest, TheFailedFlagIsNeverCleared) {
    FakeNode node;
    node.failing_read = "global_width";
    Prefs prefs(node);

    prefs.Save(node, kWindow);

    EXPECT_EQ(node.writes, kKeysInOrder);
    EXPECT_TRUE(prefs.failed);
}

TEST_F(PrefsTest, SaveWritesEveryValueInOrder) {
    FakeNode node;
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.global_width = 12;
    prefs.global_usepause = false;
    prefs.global_pauselength = 1.5;
    prefs.palette_filename = "abc";
    prefs.misc_tempfilelocation = "/home/ann/";

    prefs.Save(node, kWindow);

    auto expected = DefaultAttributes();
    expected["global_width"] = Int(12);
    expected["global_usepause"] = Bool(false);
    expected["global_pauselength"] = {B_DOUBLE_TYPE, BytesOf(1.5)};
    expected["palette_filename"] = Text("abc");
    expected["misc_windowdimensions"] = Rect(1, 2, 301, 202);
    EXPECT_EQ(node.attributes, expected);
    EXPECT_EQ(node.writes, kKeysInOrder);
    EXPECT_EQ(node.syncs, 1);
    EXPECT_FALSE(prefs.failed);
}

TEST_F(PrefsTest, SaveWritesTheWindowsFrameEvenIfItIsNotToBeRestored) {
    FakeNode node;
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.misc_savewindowdimensions = false;

    prefs.Save(node, kWindow);

    EXPECT_EQ(node.attributes["misc_windowdimensions"], Rect(1, 2, 301, 202));
    EXPECT_EQ(prefs.misc_windowdimensions, BRect(100, 80, 649, 479));
}

TEST_F(PrefsTest, EachHelperReadsWhatItsCounterpartWrote) {
    FakeNode node;
    Prefs prefs{Prefs::BuiltIn{}};
    const int32 whole = 7;
    const bool truth = true;
    const double number = 0.1;
    const std::string text = "abc";
    const BRect rect(1, 2, 3, 4);
    EXPECT_TRUE(prefs.PutInt(node, "i", &whole));
    EXPECT_TRUE(prefs.PutBool(node, "b", &truth));
    EXPECT_TRUE(prefs.PutDouble(node, "d", &number));
    EXPECT_TRUE(prefs.PutString(node, "s", &text));
    EXPECT_TRUE(prefs.PutRect(node, "r", &rect));

    int32 whole_read = 0;
    bool truth_read = false;
    double number_read = 0;
    std::string text_read;
    BRect rect_read;
    EXPECT_TRUE(prefs.GetInt(node, "i", &whole_read, &whole_read));
    EXPECT_TRUE(prefs.GetBool(node, "b", &truth_read, &truth_read));
    EXPECT_TRUE(prefs.GetDouble(node, "d", &number_read, &number_read));
    EXPECT_TRUE(prefs.GetString(node, "s", &text_read, &text_read));
    EXPECT_TRUE(prefs.GetRect(node, "r", &rect_read, &rect_read));

    EXPECT_EQ(whole_read, whole);
    EXPECT_EQ(truth_read, truth);
    EXPECT_EQ(number_read, number);
    EXPECT_EQ(text_read, text);
    EXPECT_EQ(rect_read, rect);
}

TEST_F(PrefsTest, AHelperReportsItsFailure) {
    FakeNode node;
    node.failing_write = "x";
    Prefs prefs{Prefs::BuiltIn{}};
    int32 value = 1;
    const int32 standard = 2;

    EXPECT_FALSE(prefs.GetInt(node, "x", &value, &standard));
    EXPECT_FALSE(prefs.PutInt(node, "x", &value));

    EXPECT_EQ(value, 2);
    EXPECT_TRUE(prefs.failed);
    EXPECT_EQ(debug_.Text(),
              "Prefs::GetInt() - WriteAttr on x died\nPrefs::PutInt() - WriteAttr on x died\n");
}

TEST_F(PrefsTest, SettingsStandInTheUsersConfigurationFolder) {
    EXPECT_EQ(Prefs::SettingsPath(), folder_.File("Kirto_settings"));
}

TEST_F(PrefsTest, TheFirstStartMakesTheFileWithAllDefaults) {
    const Prefs prefs;

    EXPECT_FALSE(prefs.failed);
    const std::vector<uint8> bytes = ReadBytes(Prefs::SettingsPath());
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()),
              "# Settings, one per line. This file is replaced as a whole: comments in it are not "
              "kept.\n"
              "animation_gifcomment = true\n"
              "animation_gifdisposal = 0\n"
              "animation_gifinterlaced = false\n"
              "animation_gifloadfullframe = true\n"
              "global_height = 240\n"
              "global_loopcount = 0\n"
              "global_pauseinseconds = false\n"
              "global_pauselength = 100.0\n"
              "global_setdimensions = true\n"
              "global_useloop = true\n"
              "global_usepause = true\n"
              "global_width = 320\n"
              "misc_preferredmode = 0\n"
              "misc_savewindowdimensions = true\n"
              "misc_tempfilelocation = \"/home/ann/\"\n"
              "misc_windowdimensions = [100.0, 80.0, 649.0, 479.0]\n"
              "palette_backgroundindex = 0\n"
              "palette_dither = false\n"
              "palette_filename = \"\"\n"
              "palette_mapping = 0\n"
              "palette_transparentindex = 0\n"
              "palette_usetransparent = false\n"
              "thumbnail_drawtransparent = true\n"
              "thumbnail_height = 0\n"
              "thumbnail_heightvalue = 100\n"
              "thumbnail_maxheight = 400\n"
              "thumbnail_minheight = 30\n");
}

TEST_F(PrefsTest, SavedSettingsComeBackAtTheNextStart) {
    {
        Prefs prefs;
        prefs.global_width = 640;
        prefs.palette_filename = "/pictures/\xFF.gif";
        prefs.Save(kWindow);
        EXPECT_FALSE(prefs.failed);
    }

    const Prefs prefs;

    EXPECT_EQ(prefs.global_width, 640);
    EXPECT_EQ(prefs.palette_filename, "/pictures/\xFF.gif");
    EXPECT_EQ(prefs.misc_windowdimensions, kWindow);
    EXPECT_FALSE(prefs.failed);
}

TEST_F(PrefsTest, AttributesOfOthersInTheFileAreKept) {
    const std::string text = "zoom = 3\n";
    WriteBytes(Prefs::SettingsPath(), {text.begin(), text.end()});

    Prefs prefs;
    prefs.Save(kWindow);

    int32 zoom = 0;
    AttributeFile file(Prefs::SettingsPath());
    EXPECT_EQ(file.ReadAttr("zoom", B_INT32_TYPE, &zoom, sizeof(zoom)), 4);
    EXPECT_EQ(zoom, 3);
}

TEST_F(PrefsTest, NumbersMayBeWrittenWithAndWithoutAPoint) {
    const std::string text = "global_pauselength = 5\nglobal_width = 111.0\n";
    WriteBytes(Prefs::SettingsPath(), {text.begin(), text.end()});

    const Prefs prefs;

    EXPECT_EQ(prefs.global_pauselength, 5.0);
    EXPECT_EQ(prefs.global_width, 111);
}

TEST_F(PrefsTest, ADamagedFileIsPutAsideAndReplacedByTheDefaults) {
    WriteBytes(Prefs::SettingsPath(), {'?'});

    const Prefs prefs;

    EXPECT_EQ(prefs.damaged_copy, Prefs::SettingsPath() + ".damaged");
    EXPECT_EQ(ReadBytes(prefs.damaged_copy), std::vector<uint8>{'?'});
    EXPECT_FALSE(prefs.failed);
    EXPECT_EQ(Prefs().damaged_copy, "");
}

TEST_F(PrefsTest, AFileThatIsFoundDamagedWhenSavingIsPutAsideToo) {
    Prefs prefs;
    WriteBytes(Prefs::SettingsPath(), {'?'});

    prefs.Save(kWindow);

    EXPECT_EQ(prefs.damaged_copy, Prefs::SettingsPath() + ".damaged");
    EXPECT_EQ(Prefs().misc_windowdimensions, kWindow);
}

TEST_F(PrefsTest, ASettingsFileThatCanNotBeOpenedLeavesAllBuiltInValues) {
    std::filesystem::create_directory(Prefs::SettingsPath());

    Prefs prefs;

    EXPECT_TRUE(prefs.failed);
    EXPECT_EQ(prefs.global_width, 320);
    EXPECT_EQ(prefs.misc_tempfilelocation, "/home/ann");
    EXPECT_EQ(debug_.Text(), "Prefs::GetInt() - Unknown error reading global_width\n");

    const DebugRecorder debug;
    prefs.Save(kWindow);
    EXPECT_EQ(debug.Text(), "Prefs::PutInt() - WriteAttr on global_width died\n");
}

// The reason why the text does not fit; empty where it does.
std::string Refusal(Prefs& prefs, const std::string& key, const std::string& text) {
    std::string reason;
    const bool set = prefs.SetFromText(key, text, &reason);
    EXPECT_EQ(set, reason.empty());
    return reason;
}

TEST_F(PrefsTest, TextSetsASettingOfEachType) {
    Prefs prefs{Prefs::BuiltIn{}};

    EXPECT_EQ(Refusal(prefs, "global_width", "-12"), "");
    EXPECT_EQ(Refusal(prefs, "global_usepause", "false"), "");
    EXPECT_EQ(Refusal(prefs, "palette_dither", "true"), "");
    EXPECT_EQ(Refusal(prefs, "global_pauselength", "0.5"), "");
    EXPECT_EQ(Refusal(prefs, "palette_filename", "any, text"), "");
    EXPECT_EQ(Refusal(prefs, "misc_windowdimensions", "-1,2.5,3,4e1"), "");

    EXPECT_EQ(prefs.global_width, -12);
    EXPECT_FALSE(prefs.global_usepause);
    EXPECT_TRUE(prefs.palette_dither);
    EXPECT_EQ(prefs.global_pauselength, 0.5);
    EXPECT_EQ(prefs.palette_filename, "any, text");
    EXPECT_EQ(prefs.misc_windowdimensions, BRect(-1, 2.5, 3, 40));
    EXPECT_FALSE(std::filesystem::exists(Prefs::SettingsPath()));
}

TEST_F(PrefsTest, EveryKeyCanBeSetFromText) {
    Prefs prefs{Prefs::BuiltIn{}};
    for (const std::string& key : kKeysInOrder) {
        const bool fits = Refusal(prefs, key, "1").empty() || Refusal(prefs, key, "true").empty() ||
                          Refusal(prefs, key, "1,1,1,1").empty();
        EXPECT_TRUE(fits) << key;
    }
}

TEST_F(PrefsTest, AnUnknownKeyIsRefused) {
    Prefs prefs{Prefs::BuiltIn{}};

    EXPECT_EQ(Refusal(prefs, "x", "1"), "There is no setting named \"x\".");
}

TEST_F(PrefsTest, TextThatDoesNotFitIsRefusedAndChangesNothing) {
    Prefs prefs{Prefs::BuiltIn{}};

    for (const std::string text : {"abc", "", "12 ", " 12", "12a", "1.5", "2147483648", "0x10"}) {
        EXPECT_EQ(Refusal(prefs, "global_width", text),
                  "global_width: \"" + text + "\" is not a whole number.");
    }
    for (const std::string text : {"1", "True", "", "yes"}) {
        EXPECT_EQ(Refusal(prefs, "global_usepause", text),
                  "global_usepause: \"" + text + "\" is neither true nor false.");
    }
    for (const std::string text : {"abc", "", "1,5", "nan", "inf", "1e999"}) {
        EXPECT_EQ(Refusal(prefs, "global_pauselength", text),
                  "global_pauselength: \"" + text + "\" is not a number.");
    }
    for (const std::string text : {"", "1,2,3", "1,2,3,4,5", "1,2,3,", "a,2,3,4", "1,2,3,inf"}) {
        EXPECT_EQ(Refusal(prefs, "misc_windowdimensions", text),
                  "misc_windowdimensions: \"" + text +
                      "\" is not a rectangle of the form left,top,right,bottom.");
    }

    EXPECT_EQ(prefs.global_width, 320);
    EXPECT_TRUE(prefs.global_usepause);
    EXPECT_EQ(prefs.global_pauselength, 100.0);
    EXPECT_EQ(prefs.misc_windowdimensions, BRect(100, 80, 649, 479));
}

// Settings of which none has its built-in value.
Prefs OtherSettings() {
    Prefs prefs{Prefs::BuiltIn{}};
    for (const std::string& key : kKeysInOrder) {
        std::string reason;
        if (!prefs.SetFromText(key, "false", &reason) && !prefs.SetFromText(key, "7", &reason)) {
            prefs.SetFromText(key, "1,2,3,4", &reason);
        }
    }
    for (bool Prefs::*member : {&Prefs::global_pauseinseconds, &Prefs::palette_usetransparent,
                                &Prefs::palette_dither, &Prefs::animation_gifinterlaced}) {
        prefs.*member = true;
    }
    return prefs;
}

BMessage MessageOf(const Prefs& prefs) {
    BMessage message;
    prefs.AddTo(&message);
    return message;
}

TEST(PrefsMessage, HasAFieldForEveryKeyInOrder) {
    const BMessage message = MessageOf(Prefs(Prefs::BuiltIn{}));

    std::vector<std::string> keys;
    for (int32 i = 0; i < message.CountNames(); ++i)
        keys.emplace_back(message.NameAt(i));
    std::vector<std::string> expected = kKeysInOrder;
    expected.insert(expected.end(), kOptionalKeys.begin(), kOptionalKeys.end());
    EXPECT_EQ(keys, expected);
}

TEST(PrefsMessage, HasAFieldOfEachTypeWithTheSettingsValue) {
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.global_width = 7;
    prefs.global_useloop = false;
    prefs.global_pauselength = 2.5;
    prefs.palette_filename = "some.gif";
    prefs.misc_windowdimensions = BRect(1, 2, 3, 4);

    const BMessage message = MessageOf(prefs);

    int32 number = 0;
    bool flag = true;
    double real = 0;
    std::string text;
    BRect rect;
    EXPECT_EQ(message.FindInt32("global_width", &number), B_OK);
    EXPECT_EQ(message.FindBool("global_useloop", &flag), B_OK);
    EXPECT_EQ(message.FindDouble("global_pauselength", &real), B_OK);
    EXPECT_EQ(message.FindString("palette_filename", &text), B_OK);
    EXPECT_EQ(message.FindRect("misc_windowdimensions", &rect), B_OK);
    EXPECT_EQ(number, 7);
    EXPECT_FALSE(flag);
    EXPECT_EQ(real, 2.5);
    EXPECT_EQ(text, "some.gif");
    EXPECT_EQ(rect, BRect(1, 2, 3, 4));
}

TEST(PrefsMessage, CarriesEverySettingOver) {
    const Prefs other = OtherSettings();
    Prefs prefs{Prefs::BuiltIn{}};
    const BMessage built_in = MessageOf(prefs);

    prefs.TakeFrom(MessageOf(other));

    EXPECT_EQ(MessageOf(prefs), MessageOf(other));
    for (const std::string& key : kKeysInOrder) {
        std::string_view before;
        std::string_view after;
        type_code type = 0;
        int32 count = 0;
        ASSERT_EQ(built_in.GetInfo(key, &type, &count), B_OK) << key;
        const BMessage taken = MessageOf(prefs);
        ASSERT_EQ(built_in.FindData(key, type, 0, &before), B_OK) << key;
        ASSERT_EQ(taken.FindData(key, type, 0, &after), B_OK) << key;
        EXPECT_NE(before, after) << key;
    }
}

TEST(PrefsMessage, LeavesAloneWhatItLacksOrHasInAnotherType) {
    Prefs prefs{Prefs::BuiltIn{}};
    const BMessage before = MessageOf(prefs);
    BMessage message;
    message.AddString("global_width", "7");
    message.AddInt32("global_usepause", 0);
    message.AddInt32("unknown", 1);

    prefs.TakeFrom(message);

    EXPECT_EQ(MessageOf(prefs), before);
}

TEST(PrefsMessage, LeavesWhatIsKeptBesidesTheSettings) {
    Prefs other{Prefs::BuiltIn{}};
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.failed = true;
    prefs.damaged_copy = "/copy";

    prefs.TakeFrom(MessageOf(other));

    EXPECT_TRUE(prefs.failed);
    EXPECT_EQ(prefs.damaged_copy, "/copy");
}

}  // namespace
}  // namespace kirto::test
