#include "desktop/browser_variable.h"

#include <gtest/gtest.h>

#include "support/environment.h"

namespace kirto::test {

TEST(BrowserVariable, NamesNoProgramsWhereItIsUnsetOrEmpty) {
    {
        const ScopedEnvironment unset("BROWSER", nullptr);
        EXPECT_TRUE(BrowserVariableCalls("/a.gif").empty());
    }
    const ScopedEnvironment empty("BROWSER", "");
    EXPECT_TRUE(BrowserVariableCalls("/a.gif").empty());
}

TEST(BrowserVariable, NamesProgramsInTheOrderOfTheirTrying) {
    const ScopedEnvironment variable("BROWSER", "first:/opt/second: :third");

    EXPECT_EQ(BrowserVariableCalls("/a b.gif"),
              (std::vector<ProgramCall>{
                  {"first", "/a b.gif"}, {"/opt/second", "/a b.gif"}, {"third", "/a b.gif"}}));
}

TEST(BrowserVariable, PutsTheFileWhereAProgramWantsIt) {
    const ScopedEnvironment variable("BROWSER", "show --url=%s  -q:lynx -force");

    EXPECT_EQ(
        BrowserVariableCalls("/a.gif"),
        (std::vector<ProgramCall>{{"show", "--url=/a.gif", "-q"}, {"lynx", "-force", "/a.gif"}}));
}

TEST(BrowserVariable, GivesAShellNothingToDo) {
    const ScopedEnvironment variable("BROWSER", "show;reboot $HOME");

    EXPECT_EQ(BrowserVariableCalls("/`x`$(y).gif"),
              (std::vector<ProgramCall>{{"show;reboot", "$HOME", "/`x`$(y).gif"}}));
}

}  // namespace kirto::test
