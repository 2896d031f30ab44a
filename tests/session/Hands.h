#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>
#include <functional>

namespace plandesk::session {

/// Keyboard and mouse of a real display, worked from a thread of their own. What they do reaches the window through the
/// display as a person's doing would. Every wait ends with an exception when what should happen does not.
class Hands {
public:
    /// Runs something in the window's thread and waits for it.
    static void inWindow(const std::function<void()>& look);
    /// Waits until that holds in the window's thread.
    static void waitUntil(const std::function<bool()>& condition, const QString& what);
    static bool holds(const std::function<bool()>& condition);

    static void click(QPoint place);
    static void turnWheel(QPoint place, bool down);
    /// A key as the display's tool names it: "Return", "ctrl+a".
    static void key(const QString& name);
    static void type(const QString& text);

private:
    static void run(const QStringList& arguments);
};

}  // namespace plandesk::session
