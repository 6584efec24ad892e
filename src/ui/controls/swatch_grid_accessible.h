#pragma once

namespace kirto {

class SwatchGrid;

// From now on grids of swatches tell screen readers of their colors, as items of a list by the
// names that SwatchGrid::NameOf gives them, in the order in which they stand. Any number of calls
// do no more than one. GUI thread.
void InstallSwatchAccessibility();
// The grid's current color is another one.
void TellFocusedSwatch(SwatchGrid& grid);

}  // namespace kirto
