#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "controls/Ports.h"

namespace plandesk {

class Control;
class Form;

/// What a view wants to hear. Every call comes after the change.
class ScreenObserver {
public:
    virtual ~ScreenObserver() = default;
    virtual void controlChanged(Control& control) = 0;
    virtual void formChanged(Form& form) = 0;  ///< caption, colour, shown or hidden, stacking
    virtual void formUnloading(Form& form) = 0;
    virtual void focusChanged(Control* focused) = 0;
    virtual void mainWindowChanged() = 0;  ///< caption, menu
};

/// The forms on the screen, which of them is in front, and the one control that has the focus.
class Screen {
public:
    explicit Screen(const Ports& ports);
    ~Screen();

    Ports ports;
    ScreenObserver* observer = nullptr;  ///< may be null

    /// Shows a message through the dialogs. What it means is told by the Meaning in force.
    void message(std::string_view text, std::string_view title, Icon icon = Icon::Information);

    /// Runs one event of the user. An error that nobody handled, of whatever type, ends the event and is shown in one
    /// message with its description; the program goes on. Events may run inside each other.
    void event(const std::function<void()>& reaction);
    /// Shows what is being handled in one box, as an event that failed does; to be called within a catch alone.
    void tellFailure() noexcept;

    Control* focused() const { return focus; }
    /// Program code moves the focus: lost focus and got focus run, each an event of its own, and no leave check. A lost
    /// focus that gives the focus back or on ends the move there. Does nothing for a form that was unloaded or is out
    /// of reach behind a modal one.
    void setFocus(Control& control);
    /// The user moves the focus. Within one form the old control's leave check may hold it: false then, and nothing
    /// else happens. To another form no leave check runs.
    bool moveFocus(Control& control);
    /// The user moves the focus away to nowhere: leave check, then lost focus. False when held.
    bool leaveFocus();
    /// A menu takes the focus: lost focus without a leave check.
    void dropFocus();

    /// The visible form in front of all others, a modal one before all; null when none is visible.
    Form* frontForm() const;
    /// The visible forms in the order of use, the front one first.
    std::vector<Form*> visibleForms() const;
    /// The form that keys go to: that of the focus, else the front one.
    Form* activeForm() const;
    /// The form that was shown modal last and is still open; null when there is none.
    Form* modalForm() const { return modals.empty() ? nullptr : modals.back(); }
    /// Whether the user can act on the form: nothing but the modal form can be reached while there is one.
    bool inReach(const Form& form) const { return modals.empty() || modals.back() == &form; }

    /// The main window's own caption.
    const std::string& caption() const { return title; }
    void setCaption(std::string_view caption);

    /// Tells the view that the main window's menu or colour changed.
    void mainWindowTouched();

    /// Takes a form off the screen, without a lost focus, and destroys it, at the end of the running event when there
    /// is one. The observer hears nothing more of it.
    void unload(std::unique_ptr<Form> form);

    /// Takes over the order of the forms, the modal ones, the focus and the caption from another screen whose forms
    /// have copies here; `copyOf` gives null for one that has none. Nothing reacts. Between two events only.
    void copyFrom(const Screen& original, const std::function<Form*(const Form&)>& copyOf);

    bool ended() const { return over; }
    /// Ends the program at once.
    void end();

private:
    friend class Form;
    friend class Control;
    friend class Meaning;
    /// What a message means: a control, with words or its place, or something that has words alone.
    struct Subject {
        const Control* control = nullptr;
        std::string text{};

        bool empty() const { return !control && text.empty(); }
    };
    void changeFocus(Control* to);
    void runFocusMove(Control* old, Control* to);
    void react(const std::function<void()>& reaction);
    static bool mayLeave(Control& control);
    bool holds(const Form& form) const;
    void forget(const Form& form);
    void leaveForm(const Form& form);
    void moveToFront(Form& form);
    void openModal(Form& form);
    void closeModal(const Form& form);
    void raise(Form& form);
    void formTouched(Form& form);
    void controlTouched(Control& control);

    std::vector<Form*> stack;   ///< all forms, the front one last
    std::vector<Form*> modals;  ///< the open modal forms, the one shown last at the end
    Control* focus = nullptr;
    bool focusArrived = false;  ///< the focused control has had its got-focus reaction
    int focusMoves = 0;         ///< moves of the focus under way, each in a reaction to the one before
    Subject subject;
    Subject failed;  ///< what the error under way, or the last one, was about
    std::string title;
    int depth = 0;  ///< events under way
    std::vector<std::unique_ptr<Form>> unloaded;
    bool over = false;
};

}  // namespace plandesk
