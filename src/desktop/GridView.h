#pragma once

#include "desktop/ControlView.h"

namespace plandesk {
class Grid;
}

namespace plandesk::desktop {

/// The view of a grid: a table, a line to type in over the current cell, and the editors of the form that float over
/// cells.
ControlView& makeGridView(Grid& grid, QWidget& parent, ScreenView& screen, const ViewMaker& maker);

}  // namespace plandesk::desktop
