#include "main/editor/termination_signals.h"

#include <QCoreApplication>
#include <cstdio>
#include <gtest/gtest.h>

namespace kirto::test {

namespace {

using testing::KilledBySignal;

// Handles events until a signal ends the process.
void WaitForSignal(int signal) {
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    const TerminationSignals termination([] { std::fputs("copy written\n", stderr); });
    std::raise(signal);
    QCoreApplication::exec();
}

class TerminationSignalsTest : public ::testing::TestWithParam<int> {
  protected:
    // The process of the death must have no threads but its own.
    TerminationSignalsTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_P(TerminationSignalsTest, EndTheProgramAfterTheAction) {
    EXPECT_EXIT(WaitForSignal(GetParam()), KilledBySignal(GetParam()), "copy written");
}

INSTANTIATE_TEST_SUITE_P(All, TerminationSignalsTest, testing::Values(SIGTERM, SIGHUP, SIGINT));

TEST(TerminationSignalsDeathTest, AnIgnoredSignalStaysIgnored) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hang_up_then_terminate = [] {
        std::signal(SIGHUP, SIG_IGN);
        int argc = 1;
        char name[] = "test";
        char* argv[] = {name, nullptr};
        const QCoreApplication application(argc, argv);
        const TerminationSignals termination([] {});
        std::raise(SIGHUP);
        std::raise(SIGTERM);
        QCoreApplication::exec();
    };
    EXPECT_EXIT(hang_up_then_terminate(), KilledBySignal(SIGTERM), "");
}

TEST(TerminationSignalsDeathTest, WithoutTheObjectASignalEndsTheProgramAtOnce) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto terminate = [] {
        int argc = 1;
        char name[] = "test";
        char* argv[] = {name, nullptr};
        const QCoreApplication application(argc, argv);
        {
            const TerminationSignals termination([] { std::fputs("copy written\n", stderr); });
        }
        std::raise(SIGTERM);
    };
    EXPECT_EXIT(terminate(), KilledBySignal(SIGTERM), "^$");
}

}  // namespace

}  // namespace kirto::test
