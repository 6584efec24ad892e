#include "base/debug_line.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "support/test_support.h"

namespace kirto::test {

TEST(DebugLine, FormatsLikePrintfAndAddsNothing) {
    const DebugRecorder recorder;
    DebugLine("GifLoad::Test - Code %d of %s\n", 3, "file");
    DebugLine("second");
    EXPECT_EQ(recorder.Text(), "GifLoad::Test - Code 3 of file\nsecond");
}

TEST(DebugLine, GoesToStandardOutputWithoutSink) {
    DebugSink previous = InstallDebugSink({});
    testing::internal::CaptureStdout();
    DebugLine("Kirto::Test - %s\n", "printed");
    std::fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Kirto::Test - printed\n");
    InstallDebugSink(std::move(previous));
}

TEST(InstallDebugSink, GivesBackTheOneBefore) {
    const DebugRecorder outer;
    {
        const DebugRecorder inner;
        DebugLine("inner\n");
        EXPECT_EQ(inner.Text(), "inner\n");
    }
    DebugLine("outer\n");
    EXPECT_EQ(outer.Text(), "outer\n");
}

TEST(DebugLine, LinesOfSeveralThreadsStayWhole) {
    std::string text;  // not locked: the sink is called by one thread at a time
    DebugSink previous = InstallDebugSink([&text](const std::string& line) { text += line; });
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int line = 0; line < 50; ++line)
                DebugLine("0123456789\n");
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    InstallDebugSink(std::move(previous));
    std::string expected;
    for (int line = 0; line < 200; ++line)
        expected += "0123456789\n";
    EXPECT_EQ(text, expected);
}

}  // namespace kirto::test
