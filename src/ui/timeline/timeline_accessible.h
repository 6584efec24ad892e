#pragma once

namespace kirto {

// From now on timelines tell screen readers of their blocks: of those in sight and of the current
// one, as items of a list by the names that TimelineView::NameOf gives them. Any number of calls do
// no more than one. GUI thread.
void InstallTimelineAccessibility();

}  // namespace kirto
