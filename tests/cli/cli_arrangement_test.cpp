#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

// A home with "three.gif", and what becomes of its frames 0, 1 and 2.
struct ArrangementHome : CliHome {
    ArrangementHome() { Write("three.gif", ThreeFrameGif()); }

    static Arguments Opened(const Arguments& edits) {
        Arguments arguments = {"--open", "three.gif"};
        arguments.insert(arguments.end(), edits.begin(), edits.end());
        return arguments;
    }
    Json Edited(const Arguments& edits) const { return Info(Opened(edits)); }
    // The last digits of the frames' names.
    std::string Order(const Arguments& edits) const {
        std::string order;
        for (const std::string& name : NamesIn(Edited(edits)))
            order += name.back();
        return order;
    }
    std::vector<double> Pauses(const Arguments& edits) const {
        const Json info = Edited(edits);
        std::vector<double> pauses;
        for (const Json& frame : info["frames"]) {
            const bool own = frame["use_pause"];
            pauses.push_back(own ? frame["pause_length"] : info["pause_length_global"]);
        }
        return pauses;
    }
};

void ExpectArrangementRefused(const Arguments& edits, const std::string& line, int status = 2) {
    const ArrangementHome home;
    const RunResult result = home.Run(ArrangementHome::Opened(edits));
    EXPECT_EQ(result.status, status) << edits.front() << " " << edits.back();
    EXPECT_EQ(result.err, "kirto-cli: " + line + "\n");
}

using Numbers = std::vector<double>;

}  // namespace

TEST(KirtoCli, WorksOnSeveralSelectedFrames) {
    const ArrangementHome home;

    EXPECT_EQ(home.Order({"--select", "0,2", "--remove"}), "1");
    EXPECT_EQ(home.Order({"--select", "1-2", "--move-up"}), "120");
    EXPECT_EQ(home.Order({"--select", "0-1", "--reverse"}), "102");
    EXPECT_EQ(home.Order({"--select", "all", "--reverse", "--undo"}), "012");
    EXPECT_EQ(home.Order({"--select", "0--1/2", "--duplicate"}), "01202");
}

TEST(KirtoCli, MovesAndCopiesFramesToAPlace) {
    const ArrangementHome home;

    EXPECT_EQ(home.Order({"--select", "1-2", "--move-to", "0"}), "120");
    EXPECT_EQ(home.Order({"--select", "0", "--copy-to", "3"}), "0120");
    ExpectArrangementRefused({"--move-to", "4"},
                             "There is no place 4; the animation has 3 frame(s).", 1);
    ExpectArrangementRefused({"--copy-to", "-1"},
                             "There is no place -1; the animation has 3 frame(s).", 1);
    ExpectArrangementRefused({"--move-to", "x"}, "--move-to: \"x\" is not a number.");
}

TEST(KirtoCli, PlaysForwardAndBack) {
    const ArrangementHome home;

    EXPECT_EQ(home.Order({"--ping-pong"}), "0121");
    EXPECT_EQ(home.Order({"--select", "1", "--shift-start"}), "120");
}

TEST(KirtoCli, DropsFramesAndKeepsTheDuration) {
    const ArrangementHome home;

    EXPECT_EQ(home.Pauses({"--delay", "4", "--every", "2"}), (Numbers{8, 4}));
    ExpectArrangementRefused({"--every", "1"}, "--every: \"1\" is not a number from 2 up.");
}

TEST(KirtoCli, MergesDuplicates) {
    const ArrangementHome home;

    EXPECT_EQ(home.Order({"--duplicate", "--duplicate", "--remove-duplicates"}), "012");
    EXPECT_EQ(home.Order({"--remove-duplicates", "255"}), "0");
    ExpectArrangementRefused({"--remove-duplicates", "256"},
                             "--remove-duplicates: \"256\" is not a number from 0 to 255.");
}

TEST(KirtoCli, SetsPausesInTheUnitsOfPeople) {
    const ArrangementHome home;

    EXPECT_EQ(home.Pauses({"--delay", "40ms"}), (Numbers{4, 4, 4}));
    EXPECT_EQ(home.Pauses({"--fps", "20"}), (Numbers{5, 5, 5}));
    EXPECT_EQ(home.Pauses({"--delay", "4", "--delay", "1-2:60ms"}), (Numbers{4, 6, 6}));
    EXPECT_EQ(home.Pauses({"--delay", "4", "--speed", "200%"}), (Numbers{2, 2, 2}));
    EXPECT_EQ(home.Pauses({"--delay", "4", "--select", "0-1", "--delay", "7"}), (Numbers{7, 7, 4}));
}

TEST(KirtoCli, RefusesWhatIsNoPause) {
    ExpectArrangementRefused({"--delay", "x"},
                             "--delay: \"x\": expected [FRAMES:]PAUSE, such as 3-9:40ms.");
    ExpectArrangementRefused({"--delay", "3-4:2"},
                             "There are not all frames of \"3-4\"; the animation has 3 frame(s).",
                             1);
    ExpectArrangementRefused({"--fps", "0"}, "--fps: \"0\" is not a number above 0.");
    ExpectArrangementRefused({"--speed", "2"},
                             "--speed: \"2\": expected a percentage such as 150%.");
}

}  // namespace kirto::test
