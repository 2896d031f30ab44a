#pragma once

#include <QIcon>
#include <QPixmap>

namespace plandesk::desktop {

/// The picture in the middle of the main window: a floor plan.
QPixmap floorPlanPicture();

/// The program's mark, a small floor plan, in the sizes that desktops ask for.
QIcon programIcon();

/// A sheet with a pen, for the icons that open further details; `side` in pixels.
QIcon detailsIcon(int side);

}  // namespace plandesk::desktop
