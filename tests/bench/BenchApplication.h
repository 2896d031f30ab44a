#pragma once

#include <QApplication>

#include "desktop/Theme.h"

namespace plandesk::bench {

/// Makes the toolkit's application, without a screen, when a benchmark needs it first. It lives as long as the process.
inline void needApplication() {
    if (qApp)
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "plandesk-bench";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments);
    desktop::useTheme();
}

}  // namespace plandesk::bench
