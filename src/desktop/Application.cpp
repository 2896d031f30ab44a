#include "desktop/Application.h"

#include <iostream>

#include "base/RuntimeError.h"

namespace plandesk::desktop {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        failed();
    }
    return true;  // an event that failed is not for anybody else either
}

void Application::writeFailure() {
    std::cerr << failureText() << '\n';
}

}  // namespace plandesk::desktop
