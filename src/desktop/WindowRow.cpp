#include "desktop/WindowRow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "controls/Form.h"
#include "controls/Screen.h"
#include "desktop/ChildWindow.h"
#include "desktop/PreviewWindows.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

WindowRow::WindowRow(Screen& screen, ScreenView& view, const PreviewWindows& previews)
    : screen(screen), view(view), previews(previews) {
    setObjectName(QStringLiteral("openForms"));
    setAccessibleName(tr("Open forms and reports"));
    setShape(RoundedSouth);
    setDrawBase(false);
    setExpanding(false);
    setElideMode(Qt::ElideRight);
    setUsesScrollButtons(true);
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab >= 0)
            bringToFront(open[static_cast<std::size_t>(tab)]);
        sync();
    });
}

QSize WindowRow::sizeHint() const {
    constexpr int border = 10;
    return {0, fontMetrics().height() + border};
}

QSize WindowRow::tabSizeHint(int index) const {
    constexpr int characters = 44;
    const QSize natural = QTabBar::tabSizeHint(index);
    return {std::min(natural.width(), characters * fontMetrics().averageCharWidth()), sizeHint().height()};
}

std::vector<ChildFrame*> WindowRow::inUse() const {
    std::vector<ChildFrame*> windows;
    for (const Form* form : screen.visibleForms())
        if (ChildWindow* window = view.windowOf(*form))
            windows.push_back(window);
    for (PreviewWindow* preview : previews.windows())
        windows.insert(preview == view.guest() ? windows.begin() : windows.end(), preview);
    return windows;
}

void WindowRow::sync() {
    const QSignalBlocker quiet(this);
    const std::vector<ChildFrame*> present = inUse();
    std::erase_if(open, [&](const ChildFrame* window) { return std::ranges::find(present, window) == present.end(); });
    for (auto window = present.rbegin(); window != present.rend(); ++window)
        if (std::ranges::find(open, *window) == open.end())
            open.push_back(*window);
    while (count() > static_cast<int>(open.size()))
        removeTab(count() - 1);
    for (std::size_t number = 0; number < open.size(); ++number) {
        const int tab = static_cast<int>(number);
        const QString name = open[number]->accessibleName();
        const QString text = QString(name).replace('&', QStringLiteral("&&"));
        if (tab == count())
            addTab(text);
        if (tabText(tab) != text)
            setTabText(tab, text);
        setTabToolTip(tab, name + QStringLiteral(" (Ctrl+Tab)"));
        if (open[number] == present.front())
            setCurrentIndex(tab);
    }
}

void WindowRow::bringToFront(ChildFrame* window) {
    const std::vector<ChildFrame*> present = inUse();
    if (std::ranges::find(present, window) != present.end())
        window->bringToFront(Qt::OtherFocusReason);
}

void WindowRow::step(bool back) {
    if (used.empty()) {
        used = inUse();
        place = 0;
        qApp->installEventFilter(this);
    }
    if (used.empty())
        return;
    place = (place + (back ? used.size() - 1 : 1)) % used.size();
    bringToFront(used[place]);
}

bool WindowRow::eventFilter(QObject* watched, QEvent* event) {
    const bool released =
        event->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Control;
    if (released || event->type() == QEvent::ApplicationDeactivate) {
        used.clear();
        qApp->removeEventFilter(this);
    }
    return QTabBar::eventFilter(watched, event);
}

}  // namespace plandesk::desktop
