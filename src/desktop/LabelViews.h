#pragma once

#include "desktop/ControlView.h"

namespace plandesk {
class Captioned;
}

namespace plandesk::desktop {

/// The view of a label or frame; a label that can be clicked is a link.
ControlView& makeLabelView(Captioned& captioned, QWidget& parent, ScreenView& screen);

}  // namespace plandesk::desktop
