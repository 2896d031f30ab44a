#include "desktop/WindowRow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "controls/Form.h"
#include "controls/Screen.h"
#include "controls/User.h"
#include "desktop/FormNames.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

WindowRow::WindowRow(Screen& screen, ScreenView& view) : screen(screen), view(view) {
    setObjectName(QStringLiteral("openForms"));
    setAccessibleName(tr("Open forms"));
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

void WindowRow::sync() {
    const QSignalBlocker quiet(this);
    const std::vector<Form*> visible = screen.visibleForms();
    std::erase_if(open, [&](const Form* form) { return std::ranges::find(visible, form) == visible.end(); });
    for (auto form = visible.rbegin(); form != visible.rend(); ++form)
        if (std::ranges::find(open, *form) == open.end())
            open.push_back(*form);
    while (count() > static_cast<int>(open.size()))
        removeTab(count() - 1);
    for (std::size_t number = 0; number < open.size(); ++number) {
        const int tab = static_cast<int>(number);
        const QString name = windowName(*open[number]);
        const QString text = QString(name).replace('&', QStringLiteral("&&"));
        if (tab == count())
            addTab(text);
        if (tabText(tab) != text)
            setTabText(tab, text);
        setTabToolTip(tab, name + QStringLiteral(" (Ctrl+Tab)"));
        if (open[number] == screen.frontForm())
            setCurrentIndex(tab);
    }
}

void WindowRow::bringToFront(Form* form) {
    view.act(Qt::OtherFocusReason, [&] {
        const std::vector<Form*> visible = screen.visibleForms();
        if (std::ranges::find(visible, form) != visible.end())
            user::bringToFront(*form);
    });
}

void WindowRow::step(bool back) {
    if (used.empty()) {
        used = screen.visibleForms();
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
