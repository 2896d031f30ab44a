#include "session/Hands.h"

#include <QApplication>
#include <QProcess>
#include <QThread>
#include <stdexcept>

namespace plandesk::session {

void Hands::inWindow(const std::function<void()>& look) {
    QMetaObject::invokeMethod(qApp, look, Qt::BlockingQueuedConnection);
}

bool Hands::holds(const std::function<bool()>& condition) {
    bool result = false;
    inWindow([&] { result = condition(); });
    return result;
}

void Hands::waitUntil(const std::function<bool()>& condition, const QString& what) {
    constexpr unsigned long pause = 5;  // milliseconds
    constexpr int patience = 1000;
    for (int look = 0; look < patience; ++look) {
        if (holds(condition))
            return;
        QThread::msleep(pause);
    }
    throw std::runtime_error(("waited in vain until " + what).toStdString());
}

void Hands::run(const QStringList& arguments) {
    if (QProcess::execute("xdotool", arguments) != 0)
        throw std::runtime_error("xdotool " + arguments.join(' ').toStdString() + " failed");
}

void Hands::click(QPoint place) {
    run({"mousemove", "--sync", QString::number(place.x()), QString::number(place.y()), "click", "1"});
}

void Hands::turnWheel(QPoint place, bool down) {
    run({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", down ? "5" : "4"});
}

void Hands::key(const QString& name) {
    run({"key", "--clearmodifiers", name});
}

void Hands::type(const QString& text) {
    run({"type", "--clearmodifiers", "--delay", "2", "--", text});
}

}  // namespace plandesk::session
