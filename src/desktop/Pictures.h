#pragma once

#include <QIcon>
#include <QSize>

class QPainter;

namespace plandesk::desktop {

constexpr QSize floorPlanSize{520, 360};

/// The picture in the middle of the main window, a floor plan, from (0, 0) to `floorPlanSize`. It is drawn and not
/// kept, since a start should not wait for it, nor have three quarters of a megabyte more for it.
void drawFloorPlan(QPainter& painter);

/// The program's mark, a small floor plan, in the sizes that desktops ask for.
QIcon programIcon();

/// A sheet with a pen, for the icons that open further details.
QIcon detailsIcon();

/// Two arrow heads, for a bar that has more entries than room.
QIcon moreIcon();

}  // namespace plandesk::desktop
