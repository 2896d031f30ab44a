#pragma once

class QWidget;

namespace plandesk::desktop {

/// Shows the window that tells what the keys do, beside whatever is open in `parent`; brings it to the front when it is
/// there already. Esc closes it.
void showKeyHelp(QWidget& parent);

}  // namespace plandesk::desktop
