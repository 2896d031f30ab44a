#include "desktop/ChildWindow.h"

#include "controls/Form.h"
#include "controls/Screen.h"
#include "controls/User.h"
#include "desktop/FormNames.h"
#include "desktop/FormView.h"
#include "desktop/LongText.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

ChildWindow::ChildWindow(Form& shown, ScreenView& screen, QWidget& desk)
    : ChildFrame(desk), form(&shown), screen(screen), contents(new FormView(shown, screen, *this)) {
    setContents(*contents);
    contents->grew = [this] { grow(); };
    syncForm();
}

void ChildWindow::syncForm() {
    setAccessibleName(windowName(*form));
    showTitle();
    contents->syncAll();
}

void ChildWindow::detach() {
    form = nullptr;
    contents->detach();
}

QString ChildWindow::caption() const {
    return form ? beginning(form->caption()) : QString();
}

bool ChildWindow::inReach() const {
    return form && form->screen().inReach(*form);
}

bool ChildWindow::centred() const {
    return form && form->layout().centred;
}

QSize ChildWindow::naturalSize(QSize room) const {
    return contents->naturalSize(room);
}

void ChildWindow::wishMaximised(bool on) {
    if (centred())
        setMaximised(on);
    else
        screen.fillDesk(on);
}

void ChildWindow::sizingEnded() {
    screen.focusStrayed();
}

void ChildWindow::bringToFront(Qt::FocusReason reason) {
    if (!form)
        return;
    if (!form->front())
        screen.act(reason, [this] { user::bringToFront(*form); });
    if (form && screen.guest())
        screen.setGuest(nullptr);
}

void ChildWindow::turnPage(bool forwards) {
    if (form)
        screen.act(Qt::OtherFocusReason, [&] { user::turnPage(*form, forwards); });
}

void ChildWindow::closeWindow() {
    if (form)
        screen.act(Qt::OtherFocusReason, [this] { user::close(*form); });
}

}  // namespace plandesk::desktop
