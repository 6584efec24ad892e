// Reads the document without its lock while the application edits. A ThreadSanitizer that does not
// report this would not report a true mistake either.
#include <cstdio>

#include "app/kirto.h"
#include "document/command_codes.h"
#include "support/fake_desktop.h"
#include "support/fake_roster.h"
#include "support/test_support.h"

int main() {
    using namespace kirto::test;

    Prefs prefs{Prefs::BuiltIn{}};
    FakeDesktop desktop;
    FakeRoster roster;
    Kirto app(prefs, desktop, roster);
    AppendFrame(app, PictureOf(1, 1, {0}), "one");
    AppendFrame(app, PictureOf(1, 1, {0}), "two");
    app.Run();

    app.PostMessage(kirto::kMoveFrameDown);
    // The read that sees the change has nothing that orders it behind the write.
    while (app.Selected() == 0)
        snooze(100);
    std::puts("The frame has moved.");
    return 0;
}
