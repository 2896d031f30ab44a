#include "desktop/ControlView.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QToolTip>

#include "controls/Form.h"
#include "controls/User.h"
#include "desktop/Keys.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

namespace {

/// Links and icons are clicked without taking the focus; the keyboard alone moves it there.
bool clickMovesFocus(ControlKind kind) {
    return kind != ControlKind::Label && kind != ControlKind::Image && kind != ControlKind::Frame;
}

}  // namespace

ControlView::ControlView(Control& control, QWidget& widget, ScreenView& screen)
    : QObject(&widget), subject(&control), picture(widget), screen(screen) {
    picture.setObjectName(toQt(control.key()));
    picture.setToolTip(toQt(control.toolTip));
    for (QWidget* part : picture.findChildren<QWidget*>())
        watch(*part);
    watch(picture);
    // The mouse gives no focus by itself: the system's leave checks decide first whether it may move.
    if (control.kindTakesFocus())
        picture.setFocusPolicy(Qt::TabFocus);
}

void ControlView::watch(QWidget& part) {
    part.setFocusPolicy(Qt::NoFocus);
    part.installEventFilter(this);
}

void ControlView::sync() {
    if (subject)
        screen.guarded([this] { showState(); });
}

void ControlView::showState() {
    const QSignalBlocker quiet(picture);
    picture.setEnabled(subject->enabled());
    // A row that was hidden as a whole has put its widgets away, so that they would not ask for a new arrangement.
    if (subject->visible() == picture.isHidden())
        QCoreApplication::postEvent(picture.parentWidget(), new QEvent(QEvent::LayoutRequest));
    picture.setVisible(onPage && subject->visible());
    syncColours();
    syncContent();
}

void ControlView::setOnPage(bool on) {
    onPage = on;
    if (subject)
        picture.setVisible(onPage && subject->visible());
}

void ControlView::syncColours() {
    const Colours colours{subject->backColor(), foreColor(), subject->form().backColor()};
    if (shown == colours)
        return;
    shown = colours;
    QPalette palette;
    palette.setColor(QPalette::WindowText, toQt(colours.fore));
    if (backRole() == QPalette::Window)
        picture.setAutoFillBackground(colours.back != colours.form);
    palette.setColor(backRole(), toQt(colours.back));
    picture.setPalette(palette);
}

void ControlView::name(const QString& name, const QString& description) {
    picture.setAccessibleName(name);
    picture.setAccessibleDescription(description);
}

int ControlView::naturalWidth(bool /*alone*/) const {
    return picture.sizeHint().width();
}

QSize ControlView::sizeFor(int available, bool alone) {
    return {std::min(available, naturalWidth(alone)), picture.sizeHint().height()};
}

void ControlView::act(const std::function<void()>& what, Qt::FocusReason reason) {
    if (!subject)
        return;
    screen.act(reason, what);
    // The widget has already done what the user asked; the system may have made something else of it.
    sync();
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
    return subject && screen.guarded([&] { return filterEvent(watched, event); });
}

bool ControlView::filterEvent(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return mousePressed();
    case QEvent::KeyPress:
        return watched == &picture && systemKey(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn:
        focusArrived(static_cast<QFocusEvent*>(event)->reason());
        return false;
    case QEvent::ToolTip:
        return watched == &picture && showTip(*static_cast<QHelpEvent*>(event));
    case QEvent::Wheel:
        if (!changesByWheel())
            return false;
        // Turning the wheel scrolls the page and leaves the answer alone, also the one that has the focus.
        event->ignore();
        return true;
    default:
        return false;
    }
}

bool ControlView::mousePressed() {
    if (!clickMovesFocus(subject->kind()) || subject->focused())
        return false;
    act([this] { user::focus(*subject); }, Qt::MouseFocusReason);
    return !subject || !subject->focused();
}

bool ControlView::showTip(const QHelpEvent& event) const {
    QStringList lines = {hiddenText(), toQt(subject->toolTip)};
    lines.removeAll(QString());
    if (lines.isEmpty())
        return false;
    QToolTip::showText(event.globalPos(), Qt::convertFromPlainText(lines.join('\n')), &picture);
    return true;
}

void ControlView::focusArrived(Qt::FocusReason reason) {
    if (subject->focused())
        return;
    if (reason == Qt::OtherFocusReason || reason == Qt::ShortcutFocusReason)
        act([this] { user::focus(*subject); }, reason);
    screen.focusStrayed();
}

bool ControlView::systemKey(const QKeyEvent& event) {
    const std::string_view key = systemKeyName(event);
    if (key.empty())
        return false;
    act([&] { user::press(*subject, key); }, Qt::TabFocusReason);
    return true;
}

}  // namespace plandesk::desktop
