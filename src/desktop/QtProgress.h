#pragma once

#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <string>

#include "controls/Ports.h"

class QFrame;
class QProgressBar;

namespace plandesk::desktop {

/// Shows work that takes long in a panel before the window `parent`: its name and how far it has come. Meanwhile the
/// window is painted, but what the user does waits for the end. Work within other work is part of that. Short work
/// shows nothing.
class QtProgress : public Progress {
public:
    using Time = std::chrono::steady_clock::time_point;

    explicit QtProgress(std::function<Time()> now = std::chrono::steady_clock::now);
    ~QtProgress() override;
    QtProgress(const QtProgress&) = delete;
    QtProgress& operator=(const QtProgress&) = delete;

    void begin(std::string_view work, int steps) override;
    void step() override;
    void end() override;

    QPointer<QWidget> parent;

private:
    void showPanel();
    void hidePanel();

    std::function<Time()> now;
    std::string name;
    int steps = 0;
    int done = 0;
    int depth = 0;  ///< pieces of work under way, each within the one before
    Time due;       ///< when the window is to be looked after next
    QPointer<QFrame> panel;
    QPointer<QProgressBar> bar;
};

}  // namespace plandesk::desktop
