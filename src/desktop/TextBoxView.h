#pragma once

#include "desktop/ControlView.h"

namespace plandesk {
class TextBox;
}

namespace plandesk::desktop {

/// The view of a text box of one line or of several.
ControlView& makeTextBoxView(TextBox& box, QWidget& parent, ScreenView& screen);

}  // namespace plandesk::desktop
