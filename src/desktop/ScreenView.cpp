#include "desktop/ScreenView.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "base/Counted.h"
#include "base/RuntimeError.h"
#include "controls/Control.h"
#include "controls/Form.h"
#include "desktop/ChildWindow.h"
#include "desktop/FormView.h"

namespace plandesk::desktop {

ScreenView::ScreenView(Screen& screen, QWidget& desk) : screen(screen), desk(desk) {
    screen.observer = this;
}

ScreenView::~ScreenView() {
    screen.observer = nullptr;
    // The windows belong to the desk and still get events while it ends.
    for (const auto& [form, window] : windows)
        window->detach();
}

void ScreenView::act(Qt::FocusReason howFocusMoves, const std::function<void()>& what) {
    if (underWay > 0 || screen.ended())
        return;
    reason = howFocusMoves;
    failures.clear();
    {
        const Counted running(underWay);
        guarded(what);
    }
    keysWanted = true;
    refresh();
    keysWanted = false;
    guarded(acted);
}

void ScreenView::failed() noexcept {
    try {
        if (const auto [text, isNew] = failures.insert(failureText()); isNew) {
            untold.push_back(*text);
            later();
        }
    } catch (...) {
        // Not even room to remember it; what fails for want of memory is told when some is there again.
    }
}

void ScreenView::tellFailures() {
    if (underWay > 0)
        return;
    const Counted running(underWay);
    for (const std::string& text : std::exchange(untold, {}))
        screen.event([&] { screen.message(text, "", Icon::Critical); });
}

void ScreenView::later() {
    posted = posted || QMetaObject::invokeMethod(
                           this, [this] { refresh(); }, Qt::QueuedConnection);
}

void ScreenView::refresh() {
    posted = false;
    if (screen.ended())
        return;
    constexpr int rounds = 3;  // giving the focus runs reactions, which may change more
    for (int round = 0; round < rounds; ++round) {
        guarded([this] { showForms(); });
        guarded(formsShown);
        guarded([this] { showControls(); });
        if (std::exchange(mainChanged, false))
            guarded(mainWindowTouched);
        if (!guarded([this] { return giveFocus(); }))
            break;
    }
    guarded([this] { placeKeyboard(); });
    tellFailures();
}

void ScreenView::windowsChanged() {
    mainChanged = true;
    later();
}

void ScreenView::showForms() {
    if (changedForms.empty())
        return;
    for (Form* form : std::exchange(changedForms, {}))
        guarded([&] { showForm(*form); });
    if (!raised.empty())
        guestWindow = nullptr;
    for (Form* form : std::exchange(raised, {}))
        if (ChildWindow* window = windowOf(*form))
            window->raise();
    // A form that code showed meanwhile stands behind the modal one.
    if (const Form* modal = screen.modalForm())
        if (ChildWindow* window = windowOf(*modal))
            window->raise();
    colourBars();
    mainChanged = true;
}

void ScreenView::colourBars() {
    for (const auto& [form, window] : windows)
        window->colourBar(form == screen.frontForm() && !guestWindow);
}

void ScreenView::setGuest(ChildFrame* window) {
    if (ChildFrame* before = std::exchange(guestWindow, window); before && before != window)
        before->colourBar(false);
    if (window) {
        window->raise();
        window->colourBar(true);
        window->takeKeys();
    } else if (const Form* front = screen.frontForm()) {
        if (ChildWindow* shown = windowOf(*front))
            shown->raise();
    }
    colourBars();
    mainChanged = true;
    focusStrayed();
}

void ScreenView::showForm(Form& form) {
    ChildWindow* window = windowOf(form);
    if (window)
        window->syncForm();
    else if (form.visible())
        window = windows[&form] = new ChildWindow(form, *this, desk);
    else
        return;
    if (form.visible() && window->isHidden()) {
        window->setMaximised(deskFilled && !form.layout().centred);
        window->fit();
    }
    window->setVisible(form.visible());
}

void ScreenView::showControls() {
    for (Control* control : std::exchange(changedControls, {}))
        if (FormView* view = viewOf(control->form()))
            view->sync(*control);
    for (const auto& [form, window] : windows)
        window->view().syncStale();
}

bool ScreenView::onTurnedPage(const Control& control) const {
    const FormView* view = viewOf(control.form());
    return view && view->onTurnedPage(control);
}

Control* ScreenView::keyboardTarget(const Form& form, bool atFirst) const {
    Control* last = form.activeControl();
    if (atFirst || (last && onTurnedPage(*last)))
        return form.firstOfPage();
    return last && last->takesFocus() ? last : form.firstAnswer();
}

bool ScreenView::giveFocus() {
    Form* front = screen.frontForm();
    const Control* focused = screen.focused();
    if (underWay > 0 || !front || guestWindow)
        return false;
    // A page that was turned by a button or a tab starts in its first answer.
    const bool turned = front->takePageTurn() && (!focused || &focused->form() == front);
    if (focused && !turned && !onTurnedPage(*focused))
        return false;
    Control* target = keyboardTarget(*front, turned);
    if (!target || target == focused)
        return false;
    const Counted running(underWay);
    screen.event([&] { screen.setFocus(*target); });
    return true;
}

void ScreenView::placeKeyboard() {
    // A menu or an open list has the keyboard for itself; the next look comes when it has closed.
    if (!focusMoved || QApplication::activePopupWidget())
        return;
    if (!std::exchange(keysWanted, false) && keyboardElsewhere())
        return;
    focusMoved = false;
    if (guestWindow)
        return guestWindow->takeKeys();
    const Control* focused = screen.focused();
    const Form* form = focused ? &focused->form() : screen.frontForm();
    if (FormView* view = form ? viewOf(*form) : nullptr)
        view->takeKeys(focused, reason, std::exchange(arrived, false));
    reason = Qt::OtherFocusReason;
}

void ScreenView::fillDesk(bool on) {
    deskFilled = on;
    for (const auto& [form, window] : windows)
        if (!form->layout().centred)
            window->setMaximised(on);
}

void ScreenView::fitWindows() {
    for (const auto& [form, window] : windows)
        if (!window->isHidden())
            window->fit();
}

void ScreenView::dialogClosed() {
    reason = Qt::OtherFocusReason;
    focusMoved = arrived = true;
    later();
}

void ScreenView::focusStrayed() {
    focusMoved = true;
    later();
}

void ScreenView::takeKeysBack() {
    keysWanted = true;
    focusStrayed();
}

ChildWindow* ScreenView::windowOf(const Form& form) const {
    const auto window = windows.find(&form);
    return window == windows.end() ? nullptr : window->second;
}

FormView* ScreenView::viewOf(const Form& form) const {
    const ChildWindow* window = windowOf(form);
    return window ? &window->view() : nullptr;
}

QRect ScreenView::placeOnScreen(const Control& control) const {
    const FormView* view = viewOf(control.form());
    const QWidget* widget = view ? view->widgetOf(control) : nullptr;
    if (!widget || !widget->isVisible() || !control.form().front())
        return {};
    const QRect seen = widget->visibleRegion().boundingRect();
    return seen.isEmpty() ? QRect() : QRect(widget->mapToGlobal(seen.topLeft()), seen.size());
}

void ScreenView::controlChanged(Control& control) {
    if (!windows.contains(&control.form()))
        return;
    changedControls.insert(&control);
    focusMoved = focusMoved || control.focused();
    later();
}

void ScreenView::formChanged(Form& form) {
    changedForms.insert(&form);
    if (form.visible() && form.front()) {
        std::erase(raised, &form);
        raised.push_back(&form);
    }
    focusMoved = true;
    later();
}

void ScreenView::formUnloading(Form& form) {
    changedForms.erase(&form);
    std::erase(raised, &form);
    std::erase_if(changedControls, [&form](const Control* control) { return &control->form() == &form; });
    if (const auto window = windows.find(&form); window != windows.end()) {
        ChildWindow* gone = window->second;
        windows.erase(window);
        gone->detach();
        gone->hide();
        gone->deleteLater();
    }
    mainChanged = true;
    focusMoved = true;
    later();
}

void ScreenView::focusChanged(Control* /*focused*/) {
    focusMoved = arrived = true;
    later();
}

void ScreenView::mainWindowChanged() {
    mainChanged = true;
    later();
}

}  // namespace plandesk::desktop
