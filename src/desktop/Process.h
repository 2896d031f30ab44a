#pragma once

#include <QMessageLogContext>
#include <QSocketNotifier>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// The program as a process of the machine: what the system and the desktop's session tell it.

namespace plandesk::desktop {

/// From now on a write that cannot be made fails instead of ending the program with all that was typed: to an error
/// stream that nobody reads any longer (SIGPIPE), or of a file beyond the size limit (SIGXFSZ).
void surviveFailedWrites();

/// While it lives, the toolkit is starting: when it gives up since it finds no display, the program ends with one line
/// on the error stream and status 1, where the toolkit would abort. Its other messages are written when it is up.
class ToolkitStart {
public:
    ToolkitStart();
    ~ToolkitStart();
    ToolkitStart(const ToolkitStart&) = delete;
    ToolkitStart& operator=(const ToolkitStart&) = delete;

private:
    static void hear(QtMsgType type, const QMessageLogContext& context, const QString& text);
    static std::vector<std::string> held;
};

/// Turns the signals that ask the program to end (SIGTERM, SIGHUP, SIGINT) into calls from the event loop. One at a
/// time may live.
class EndSignals {
public:
    explicit EndSignals(const std::function<void()>& asked);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> arrived;
};

/// The desktop's session is about to end: asks as closing the window does, and stops the end unless the window closed.
/// A manager that allows no question gets none; there is nothing that one could do then. `Manager`: QSessionManager.
template <class Manager>
void answerEndOfSession(QWidget& window, Manager& manager) {
    if (!manager.allowsInteraction())
        return;
    if (!window.close())
        manager.cancel();
    manager.release();
}

}  // namespace plandesk::desktop
