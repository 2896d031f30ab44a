#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "controls/Colour.h"

namespace plandesk::desktop {

/// A text of the system as Qt holds it, and back. There and back gives the same bytes for every text, also for one that
/// begins with a byte order mark, holds a zero, or is no valid UTF-8.
QString toQt(std::string_view text);
std::string fromQt(const QString& text);

QColor toQt(Colour colour);

}  // namespace plandesk::desktop
