#pragma once

class QMessageBox;

namespace plandesk::desktop {

/// Lets a text that could be taller than the screen scroll in its message, so that the buttons stay on the screen. A
/// shorter text is left as it is. To be called last: a text that is set later is not shown in the place that scrolls.
void scrollLongText(QMessageBox& box);

}  // namespace plandesk::desktop
