// Reads what is the application thread's alone while that thread changes it. A ThreadSanitizer that
// does not report this would not report a true mistake either.
#include <cstdio>
#include <memory>

#include "app/kirto.h"
#include "document/command_codes.h"
#include "support/fake_desktop.h"
#include "support/fake_roster.h"

int main() {
    using namespace kirto::test;

    Prefs prefs{Prefs::BuiltIn{}};
    FakeDesktop desktop;
    FakeRoster roster;
    // Not among the local variables: Clang 14 leaves out reads of their members.
    const auto app = std::make_unique<Kirto>(prefs, desktop, roster);
    app->Run();

    BMessage open(kirto::kOpenFile);
    open.AddRef("refs", entry_ref("/missing/movie.png"));
    app->PostMessage(open);
    // The read that sees the change has nothing that orders it behind the write.
    while (!app->open_panel_delivered)
        snooze(100);
    std::puts("The panel has delivered.");
    return 0;
}
