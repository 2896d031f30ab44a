#pragma once

namespace plandesk::desktop {

/// Gives the application the look that the system's own colours are made for, whatever the desktop around it wears.
/// Called once, before the first window.
void useTheme();

}  // namespace plandesk::desktop
