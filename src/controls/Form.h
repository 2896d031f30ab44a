#pragma once

#include <functional>
#include <map>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "controls/Control.h"
#include "controls/Layout.h"

namespace plandesk {

class Screen;

/// Names compare in any case.
struct IgnoringCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

/// What tells the controls of a form apart: the name, in any case, and the place in a control array.
struct ControlKey {
    std::string_view name;
    int index;

    bool operator==(const ControlKey& other) const;
    struct Hash {
        std::size_t operator()(const ControlKey& key) const;
    };
};

/// A form of the system: named controls with their reactions. It needs no window; a view only draws it.
class Form {
public:
    Form(Screen& screen, std::string_view name, std::string_view caption);
    virtual ~Form();
    Form(const Form&) = delete;

    /// The form's load reaction. Runs once, right after construction, when the form is first touched.
    virtual void load() {}
    virtual const Layout& layout() const;

    /// What the form does to a key before its control sees it: 0 swallows it. Passes all by default.
    virtual int keyPress(int key) const { return key; }
    /// Whether Enter moves on like Tab.
    virtual bool enterActsAsTab() const { return false; }
    /// Runs on Enter before the focus moves.
    virtual void enterPressed() {}
    /// F2, F3, Esc with the focus anywhere on the form; `key` is the name that the driver uses. Esc closes the form as
    /// its close button does, unless the form makes something else of it.
    virtual void functionKey(std::string_view key);
    /// The close button of its frame: hides, so that the form keeps its values.
    virtual void pressClose() { hide(); }

    const std::string& name() const { return formName; }
    const std::string& caption() const { return title; }
    void setCaption(std::string_view caption);
    Colour backColor() const { return back; }
    void setBackColor(Colour colour);
    bool visible() const { return shown; }
    /// Makes the form visible, in front of the others, and the active one.
    void show();
    /// The same, and until the form is hidden or unloaded the user reaches neither the menu nor another form, but for
    /// one that this form shows modal in its turn. Returns at once.
    void showModal();
    void hide();
    /// Brings a visible form to the front; a hidden one stays hidden and is merely the next to show there.
    void bringToFront();
    bool front() const;

    /// All controls in the order of their declaration.
    const std::vector<Control*>& controls() const { return all; }
    /// The control of that name in any case; null when there is none. `index` noIndex finds a control of its own only.
    Control* find(std::string_view controlName, int index = Control::noIndex) const;
    /// Looks up a name as layouts write it: NAME or NAME(INDEX).
    Control* findKey(std::string_view key) const;
    /// The control of that key, for whoever cannot go on without it. RuntimeError 3265 that tells its name when the
    /// form has no such control or one of another kind.
    template <class Kind = Control>
    Kind& at(std::string_view key) const {
        if (auto* wanted = dynamic_cast<Kind*>(findKey(key)))
            return *wanted;
        missing(key);
    }
    template <class Kind>
    void forEach(const std::function<void(Kind&)>& action) const {
        for (Control* control : all)
            if (auto* wanted = dynamic_cast<Kind*>(control))
                action(*wanted);
    }

    /// The controls that Tab walks, able to take the focus or not: the rows above the tabs and the page now shown, in
    /// screen order, the row of buttons below, and the row of links and buttons at the head.
    std::vector<Control*> tabOrder() const;
    /// The part of them that stands on the page.
    std::vector<Control*> pageOrder() const;
    /// Where the form begins: its first answer, or what else can take the focus; null when nothing can.
    Control* firstAnswer() const;
    /// The same of the page now shown.
    Control* firstOfPage() const;
    void pageTurned() { turned = true; }
    /// Whether the page was turned and the focus has not moved on this form since. True once for each turn.
    bool takePageTurn() { return std::exchange(turned, false); }
    /// The control that has, or last had, the focus on this form; null before the first.
    Control* activeControl() const { return active; }

    /// Runs the procedure of that name in any case: one that the form declared, or CONTROL_EVENT.
    /// False when there is none.
    bool run(std::string_view procedure);
    /// The same for whoever cannot go on without it. RuntimeError 3265 that tells its name when there is none.
    void call(std::string_view procedure);
    /// Raises the RuntimeError 3265 of a control or procedure that the form lacks.
    [[noreturn]] void missing(std::string_view wanted) const;

    Screen& screen() const { return desk; }
    /// The control that is here what that one is on another form of the same class; null for null.
    Control* counterpart(const Control* control) const;

protected:
    /// A form of the same class takes over what the other holds, by the assignment that the compiler makes of each
    /// class: the values of its controls and members, neither its reactions nor its place on the screen. No reaction
    /// runs. A member that cannot be assigned does not compile; one that must not be is `Fixed`.
    Form& operator=(const Form& other);
    /// Makes a procedure without arguments reachable by name.
    void procedure(std::string_view procedureName, std::function<void()> body);

private:
    friend class Control;
    friend class Screen;
    void appendGroups(std::vector<Control*>& order, std::span<const LayoutGroup> groups) const;
    void appendNamed(std::vector<Control*>& order, std::string_view keys) const;

    Screen& desk;
    std::string formName;
    std::string title;
    Colour back = white;
    bool shown = false;
    std::vector<Control*> all;
    std::pmr::monotonic_buffer_resource keyMemory;  // a form makes its controls together and ends with them
    std::pmr::unordered_map<ControlKey, Control*, ControlKey::Hash> byKey{&keyMemory};
    std::map<std::string, std::function<void()>, IgnoringCase> procedures;
    Control* active = nullptr;
    bool turned = false;
};

}  // namespace plandesk
