#pragma once

#include <QKeyEvent>
#include <QString>
#include <functional>
#include <string_view>

namespace plandesk::desktop {

/// Name of a key that the system handles itself, as user::press takes it: "Enter", "Tab", "Shift+Tab", "F2", "F3" or
/// "Esc". Empty for any other key.
std::string_view systemKeyName(const QKeyEvent& event);

/// Name of an arrow key without modifiers, as user::press takes it: "Left", "Right", "Up" or "Down". Empty for any
/// other key.
std::string_view arrowKeyName(const QKeyEvent& event);

/// The keys that open a list everywhere on the desktop: F4 and Alt+Down.
bool opensList(const QKeyEvent& event);

/// The characters that an editor would put in for this key; empty when the key types nothing.
QString typedText(const QKeyEvent& event);

/// What is left of typed characters behind a filter that makes 0 of a swallowed key.
QString filteredText(const QString& typed, const std::function<int(int)>& filter);

}  // namespace plandesk::desktop
