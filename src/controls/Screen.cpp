#include "controls/Screen.h"

#include <algorithm>

#include "controls/Control.h"
#include "controls/Form.h"

namespace plandesk {

Screen::Screen(const Ports& ports) : ports(ports) {}

Screen::~Screen() = default;

void Screen::message(std::string_view text, std::string_view title, Icon icon) {
    ports.dialogs.showMessage({std::string(title), std::string(text), icon});
}

void Screen::event(const std::function<void()>& reaction) {
    if (over)
        return;
    ++depth;
    try {
        reaction();
    } catch (const RuntimeError& error) {
        message(error.description, "", Icon::Critical);
    }
    if (--depth == 0)
        unloaded.clear();
}

void Screen::setFocus(Control& control) {
    if (Form& form = control.form(); form.visible())
        raise(form);
    changeFocus(&control);
}

bool Screen::moveFocus(Control& control) {
    Form& form = control.form();
    if (Control* old = focus; old && old != &control && &old->form() == &form && !mayLeave(*old))
        return false;
    if (form.visible())
        raise(form);
    changeFocus(&control);
    return focus == &control;
}

bool Screen::leaveFocus() {
    if (focus && !mayLeave(*focus))
        return false;
    changeFocus(nullptr);
    return true;
}

void Screen::dropFocus() {
    changeFocus(nullptr);
}

bool Screen::mayLeave(Control& control) {
    return !control.leaveCheck || control.leaveCheck();
}

void Screen::changeFocus(Control* to) {
    Control* old = focus;
    if (old == to)
        return;
    const bool oldHadFocus = focusArrived;
    focus = to;
    focusArrived = false;
    if (to)
        to->form().active = to;
    // A control that a reaction took the focus from before it arrived has not lost anything.
    if (old && oldHadFocus && old->lostFocus)
        old->lostFocus();
    // The reaction may have given the focus back; the move ends there then.
    if (focus == to && to && !focusArrived) {
        focusArrived = true;
        if (to->gotFocus)
            to->gotFocus();
    }
    if (observer)
        observer->focusChanged(focus);
}

Form* Screen::frontForm() const {
    const auto front = std::find_if(stack.rbegin(), stack.rend(), [](const Form* form) { return form->visible(); });
    return front == stack.rend() ? nullptr : *front;
}

Form* Screen::activeForm() const {
    return focus ? &focus->form() : frontForm();
}

void Screen::setCaption(std::string_view caption) {
    title = caption;
    mainWindowTouched();
}

void Screen::end() {
    over = true;
    ports.program.end();
}

void Screen::unload(std::unique_ptr<Form> form) {
    if (!form)
        return;
    forget(*form);
    if (observer)
        observer->formUnloading(*form);
    // A form may be unloaded by one of its own reactions; it is destroyed when that has ended.
    if (depth > 0)
        unloaded.push_back(std::move(form));
}

void Screen::forget(Form& form) {
    if (focus && &focus->form() == &form) {
        focus = nullptr;
        focusArrived = false;
    }
    std::erase(stack, &form);
}

void Screen::leaveForm(const Form& form) {
    if (focus && &focus->form() == &form)
        changeFocus(nullptr);
}

void Screen::raise(Form& form) {
    if (form.visible() && focus && &focus->form() != &form)
        changeFocus(nullptr);
    if (const auto place = std::ranges::find(stack, &form); place != stack.end())
        std::rotate(place, place + 1, stack.end());
}

void Screen::formTouched(Form& form) {
    if (observer)
        observer->formChanged(form);
}

void Screen::mainWindowTouched() {
    if (observer)
        observer->mainWindowChanged();
}

}  // namespace plandesk
