#include "main/editor/editor_arguments.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

using Lines = std::vector<std::string>;

// A command line that is read.
struct Parsed {
    explicit Parsed(std::vector<const char*> words, bool information_only = false) {
        words.insert(words.begin(), "kirto");
        const int count = static_cast<int>(words.size());
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        status = information_only ? ParseInformation(count, words.data())
                                  : ParseArguments(count, words.data(), &arguments);
        out = testing::internal::GetCapturedStdout();
        err = testing::internal::GetCapturedStderr();
    }

    EditorArguments arguments;
    std::optional<int> status;
    std::string out;
    std::string err;
};

TEST(EditorArguments, MayBeNone) {
    const Parsed parsed({});

    EXPECT_FALSE(parsed.status);
    EXPECT_TRUE(parsed.arguments.files.empty());
    EXPECT_EQ(parsed.arguments.screenshot, "");
    EXPECT_EQ(parsed.out + parsed.err, "");
}

TEST(EditorArguments, NameFilesInOrder) {
    const Parsed parsed({"b.gif", "a file.png", "c.flc"});

    EXPECT_FALSE(parsed.status);
    EXPECT_EQ(parsed.arguments.files, (Lines{"b.gif", "a file.png", "c.flc"}));
}

TEST(EditorArguments, NameFilesThatLookLikeOptionsAfterTwoDashes) {
    const Parsed parsed({"--", "--help", "-x.gif"});

    EXPECT_FALSE(parsed.status);
    EXPECT_EQ(parsed.arguments.files, (Lines{"--help", "-x.gif"}));
}

TEST(EditorArguments, MayAskForAScreenshot) {
    const Parsed parsed({"--screenshot", "out.png", "a.gif"});

    EXPECT_FALSE(parsed.status);
    EXPECT_EQ(parsed.arguments.screenshot, "out.png");
    EXPECT_EQ(parsed.arguments.files, Lines{"a.gif"});
}

TEST(EditorArguments, HelpIsPrintedAndEndsTheProgram) {
    for (const bool information_only : {false, true}) {
        const Parsed parsed({"--help"}, information_only);
        EXPECT_EQ(parsed.status, 0);
        for (const char* text : {"Edits frame animations.", "--help", "--version", "--screenshot",
                                 "FILE", "-platform NAME"}) {
            EXPECT_NE(parsed.out.find(text), std::string::npos) << text;
        }
        EXPECT_EQ(parsed.err, "");
    }
}

TEST(EditorArguments, VersionIsPrintedAndEndsTheProgram) {
    for (const bool information_only : {false, true}) {
        const Parsed parsed({"--version"}, information_only);
        EXPECT_EQ(parsed.status, 0);
        EXPECT_EQ(parsed.out, "kirto " KIRTO_VERSION_TEXT "\n");
    }
}

TEST(EditorArguments, UnknownOnesEndTheProgramWithStatusTwo) {
    for (const char* word : {"--unknown", "-x"}) {
        const Parsed parsed({word});
        EXPECT_EQ(parsed.status, 2);
        EXPECT_NE(parsed.err.find(word), std::string::npos) << parsed.err;
    }
}

TEST(EditorArguments, AScreenshotNeedsAPath) {
    const Parsed parsed({"--screenshot"});

    EXPECT_EQ(parsed.status, 2);
    EXPECT_NE(parsed.err.find("--screenshot"), std::string::npos) << parsed.err;
}

TEST(EditorArguments, InformationIsFoundAmongTheToolkitsOptions) {
    const Parsed parsed({"-style", "fusion", "--version", "-platform", "none"}, true);

    EXPECT_EQ(parsed.status, 0);
    EXPECT_EQ(parsed.out, "kirto " KIRTO_VERSION_TEXT "\n");
}

TEST(EditorArguments, InformationIsGivenOnlyWhenAskedFor) {
    const Parsed parsed({"a.gif", "-style", "fusion"}, true);

    EXPECT_FALSE(parsed.status);
    EXPECT_EQ(parsed.out + parsed.err, "");
}

TEST(EditorArguments, AFileCalledLikeAnOptionIsNoRequestForInformation) {
    const Parsed parsed({"--", "--help"}, true);

    EXPECT_FALSE(parsed.status);
    EXPECT_EQ(parsed.out, "");
}

}  // namespace

}  // namespace kirto::test
