#pragma once

#include <QApplication>
#include <functional>

namespace plandesk::desktop {

/// The application object, and the net below ScreenView::guarded: an exception that gets as far as the event loop ends
/// its event and is told, and the program goes on. Without it the toolkit would end the program, with everything typed.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Told within the catch; writes to the error stream until somebody else listens.
    std::function<void()> failed = writeFailure;
    static void writeFailure();
};

}  // namespace plandesk::desktop
