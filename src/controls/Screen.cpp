#include "controls/Screen.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Counted.h"
#include "controls/Control.h"
#include "controls/Form.h"
#include "controls/Meaning.h"
#include "controls/Naming.h"

namespace plandesk {

namespace {

constexpr int deepestFocusMove = 50;

}  // namespace

Screen::Screen(const Ports& ports) : ports(ports) {}

Screen::~Screen() = default;

void Screen::message(std::string_view text, std::string_view title, Icon icon) {
    const Subject failure = std::exchange(failed, {});
    const Subject& meant = icon == Icon::Critical && !failure.empty() ? failure : subject;
    const std::string detail = meant.control && meant.text.empty() ? placeOf(*meant.control) : meant.text;
    ports.dialogs.showMessage({std::string(title), std::string(text), icon, detail, meant.control});
}

void Screen::event(const std::function<void()>& reaction) {
    if (over)
        return;
    if (depth == 0)
        ports.dialogs.eventBegins();
    {
        const Counted running(depth);
        try {
            reaction();
        } catch (...) {
            tellFailure();
        }
    }
    if (depth == 0)
        unloaded.clear();
}

void Screen::tellFailure() noexcept {
    try {
        message(failureText(), "", Icon::Critical);
    } catch (...) {
        // The box itself could not be shown; there is no other way to tell the user.
    }
}

void Screen::setFocus(Control& control) {
    if (!holds(control.form()) || !inReach(control.form()))
        return;
    moveToFront(control.form());
    changeFocus(&control);
}

bool Screen::moveFocus(Control& control) {
    Control* old = focus;
    if (old && old != &control && &old->form() == &control.form() && !mayLeave(*old))
        return false;
    setFocus(control);
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
    const Meaning meant(control.form().screen(), control);
    return !control.leaveCheck || control.leaveCheck();
}

void Screen::changeFocus(Control* to) {
    Control* old = focus;
    if (old == to)
        return;
    // Two reactions that take the focus from each other would never end.
    if (focusMoves == deepestFocusMove)
        throw RuntimeError(ErrorNumber::OutOfStackSpace);
    {
        const Counted move(focusMoves);
        runFocusMove(old, to);
    }
    if (observer)
        observer->focusChanged(focus);
}

void Screen::runFocusMove(Control* old, Control* to) {
    const bool oldHadFocus = focusArrived;
    focus = to;
    focusArrived = false;
    if (to) {
        to->form().active = to;
        to->form().turned = false;
    }
    // A control that a reaction took the focus from before it arrived has not lost anything.
    if (old && oldHadFocus)
        event([this, old] {
            const Meaning meant(*this, *old);
            old->loseFocus();
        });
    // The reaction may have given the focus back; the move ends there then.
    if (to && focus == to && !focusArrived) {
        focusArrived = true;
        react(to->gotFocus);
    }
}

void Screen::react(const std::function<void()>& reaction) {
    if (reaction)
        event(reaction);
}

Form* Screen::frontForm() const {
    if (Form* modal = modalForm())
        return modal;
    const auto front = std::find_if(stack.rbegin(), stack.rend(), [](const Form* form) { return form->visible(); });
    return front == stack.rend() ? nullptr : *front;
}

std::vector<Form*> Screen::visibleForms() const {
    std::vector<Form*> visible;
    std::copy_if(stack.rbegin(), stack.rend(), std::back_inserter(visible), [](Form* form) { return form->visible(); });
    return visible;
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
    const bool hadFocus = focus && &focus->form() == form.get();
    closeModal(*form);
    forget(*form);
    if (observer && hadFocus)
        observer->focusChanged(nullptr);
    if (observer)
        observer->formUnloading(*form);
    // A form may be unloaded by one of its own reactions; it is destroyed when that has ended.
    if (depth > 0)
        unloaded.push_back(std::move(form));
}

void Screen::copyFrom(const Screen& original, const std::function<Form*(const Form&)>& copyOf) {
    const auto copies = [&copyOf](const std::vector<Form*>& forms) {
        std::vector<Form*> found;
        for (const Form* form : forms)
            if (Form* copy = copyOf(*form))
                found.push_back(copy);
        return found;
    };
    stack = copies(original.stack);
    modals = copies(original.modals);
    const Form* focusedForm = original.focus ? copyOf(original.focus->form()) : nullptr;
    focus = focusedForm ? focusedForm->counterpart(original.focus) : nullptr;
    focusArrived = original.focusArrived;
    title = original.title;
    over = original.over;
}

bool Screen::holds(const Form& form) const {
    return std::ranges::find(stack, &form) != stack.end();
}

void Screen::forget(const Form& form) {
    // The focused control may be gone already: a form's destructor comes after those of its controls.
    if (std::ranges::find(form.all, focus) != form.all.end()) {
        focus = nullptr;
        focusArrived = false;
    }
    if (std::ranges::find(form.all, failed.control) != form.all.end())
        failed = {};
    std::erase(stack, &form);
    std::erase(modals, &form);
}

void Screen::leaveForm(const Form& form) {
    if (focus && &focus->form() == &form)
        changeFocus(nullptr);
}

void Screen::moveToFront(Form& form) {
    const auto place = std::ranges::find(stack, &form);
    if (place == stack.end() || place + 1 == stack.end())
        return;
    std::rotate(place, place + 1, stack.end());
    formTouched(form);
}

void Screen::raise(Form& form) {
    moveToFront(form);
    if (form.visible() && inReach(form) && focus && &focus->form() != &form)
        changeFocus(nullptr);
}

void Screen::openModal(Form& form) {
    std::erase(modals, &form);
    modals.push_back(&form);
    mainWindowTouched();
}

void Screen::closeModal(const Form& form) {
    if (std::erase(modals, &form) == 0)
        return;
    mainWindowTouched();
    if (Form* front = frontForm())
        formTouched(*front);
}

void Screen::formTouched(Form& form) {
    if (observer && holds(form))
        observer->formChanged(form);
}

void Screen::controlTouched(Control& control) {
    if (observer && holds(control.form()))
        observer->controlChanged(control);
}

void Screen::mainWindowTouched() {
    if (observer)
        observer->mainWindowChanged();
}

}  // namespace plandesk
