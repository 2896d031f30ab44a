#include "desktop/ChildWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>
#include <algorithm>

#include "controls/Form.h"
#include "controls/Screen.h"
#include "controls/User.h"
#include "desktop/FormView.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

namespace {

constexpr QColor frontBar(0x5B, 0x45, 0x24);
constexpr QColor backBar(0xA8, 0x93, 0x70);

}  // namespace

ChildWindow::ChildWindow(Form& shown, ScreenView& screen, QWidget& desk)
    : QFrame(&desk), form(&shown), screen(screen), bar(new QWidget(this)), title(new QLabel(bar)) {
    setFrameShape(QFrame::Box);
    setLineWidth(1);
    auto* closeBox = new QToolButton(bar);
    closeBox->setObjectName(QStringLiteral("closeBox"));
    closeBox->setAccessibleName(tr("Close"));
    closeBox->setToolTip(tr("Close (Ctrl+F4)"));
    closeBox->setText(QString(QChar(0x00D7)));
    closeBox->setAutoRaise(true);
    closeBox->setFocusPolicy(Qt::NoFocus);
    connect(closeBox, &QToolButton::clicked, this, [this] { closeForm(); });
    title->setTextFormat(Qt::PlainText);
    title->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 2, 2, 2);
    row->addWidget(title, 1);
    row->addWidget(closeBox);
    bar->setAutoFillBackground(true);
    bar->installEventFilter(this);
    contents = new FormView(shown, screen, *this);
    syncForm();
}

void ChildWindow::syncForm() {
    title->setText(toQt(form->caption()));
    contents->syncAll();
}

void ChildWindow::colourBar(bool front) {
    QPalette palette;
    palette.setColor(QPalette::Window, front ? frontBar : backBar);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    bar->setPalette(palette);
}

QRect ChildWindow::inside() const {
    return rect().adjusted(frameWidth(), frameWidth(), -frameWidth(), -frameWidth());
}

void ChildWindow::fit() {
    const QSize around(2 * frameWidth(), 2 * frameWidth() + bar->sizeHint().height());
    const QSize room = parentWidget()->size();
    resize(contents->naturalSize(room - around) + around);
    if (form && form->layout().centred && !moved)
        move((room.width() - width()) / 2, (room.height() - height()) / 2);
}

void ChildWindow::detach() {
    form = nullptr;
    contents->detach();
}

void ChildWindow::resizeEvent(QResizeEvent* /*event*/) {
    const QRect area = inside();
    bar->setGeometry(area.x(), area.y(), area.width(), bar->sizeHint().height());
    contents->setGeometry(area.adjusted(0, bar->height(), 0, 0));
}

bool ChildWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto place = [event] { return static_cast<QMouseEvent*>(event)->globalPosition().toPoint(); };
    const bool mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove;
    if (mouse && form && !form->screen().inReach(*form))
        return true;
    if (event->type() == QEvent::MouseButtonPress) {
        grip = place() - pos();
        bringToFront();
    } else if (event->type() == QEvent::MouseMove) {
        const QRect room(QPoint(0, 0), parentWidget()->size() - bar->size() / 2);
        const QPoint wanted = place() - grip;
        move(std::clamp(wanted.x(), room.left(), std::max(0, room.right())),
             std::clamp(wanted.y(), room.top(), std::max(0, room.bottom())));
        moved = true;
    }
    return QFrame::eventFilter(watched, event);
}

void ChildWindow::bringToFront() {
    if (form && !form->front())
        screen.act(Qt::MouseFocusReason, [this] { user::bringToFront(*form); });
}

void ChildWindow::closeForm() {
    if (form)
        screen.act(Qt::OtherFocusReason, [this] { user::close(*form); });
}

}  // namespace plandesk::desktop
