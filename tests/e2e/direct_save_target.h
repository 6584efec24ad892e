#pragma once

namespace kirto::test {

// Opens a window that takes drags by the X direct save protocol only, and saves what is dropped on
// it into the folder. It speaks to the X server itself, so that what it understands owes nothing to
// the toolkit of the editor. Prints "ready", "entered TYPE...", "over", "refused", and for a drop
// "saved NAME" or "failed ANSWER". Returns when the server goes away or can't be reached.
int RunDirectSaveTarget(const char* folder, int x, int y);

}  // namespace kirto::test
