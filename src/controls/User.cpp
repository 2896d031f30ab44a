#include "controls/User.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/Meaning.h"
#include "controls/Screen.h"

namespace plandesk::user {

namespace {

constexpr int backspace = 8;

bool inReach(const Form& form) {
    return form.screen().inReach(form);
}

/// One event on a control that must be there for the user; `act` runs once the focus is on it.
bool onFocused(Control& control, const std::function<void()>& act) {
    const bool there = control.takesFocus() && inReach(control.form());
    if (there)
        control.form().screen().event([&] {
            // A reaction to the focus may have closed the control.
            if (!control.form().screen().moveFocus(control) || !control.takesFocus())
                return;
            const Meaning meant(control.form().screen(), control);
            act();
        });
    return there;
}

bool editable(const TextBox& box) {
    return box.takesFocus() && !box.locked;
}

/// Types key by key, each key an event of its own; the first key that the filters let through replaces the content when
/// `replace` is set, and otherwise goes behind it. Keys that come after a reaction has moved the focus away or closed
/// the box go nowhere.
void typeKeys(TextBox& box, std::string_view text, bool replace) {
    bool replacing = replace;
    box.moveCaretToEnd();
    for (const char32_t key : codePoints(text)) {
        if (!box.focused() || !editable(box))
            return;
        box.form().screen().event([&] {
            const int passed = filteredKey(box, static_cast<int>(key));
            if (passed == 0)
                return;
            if (std::exchange(replacing, false))
                box.restoreText("");
            box.type(static_cast<char32_t>(passed));
        });
    }
}

/// Bytes of the last character of a text that is not empty; a line end of two characters counts as one.
std::size_t lastCharacterSize(std::string_view text) {
    if (text.ends_with("\r\n"))
        return 2;
    constexpr std::size_t longest = 4;
    for (std::size_t size = std::min(longest, text.size()); size > 1; --size)
        if (codePoints(text.substr(text.size() - size)).size() == 1)
            return size;
    return 1;
}

void eraseLast(TextBox& box) {
    const std::string& content = box.text();
    if (content.empty() || filteredKey(box, backspace) == 0)
        return;
    box.edit(content.substr(0, content.size() - lastCharacterSize(content)));
}

const OptionGroup* groupOf(const Control* control) {
    const auto* option = dynamic_cast<const OptionButton*>(control);
    return option ? &option->group() : nullptr;
}

/// Tab stops once in a group of options, and leaves it with its next step.
bool stopsTab(const Control& control, const Control* present) {
    const OptionGroup* group = groupOf(&control);
    return control.takesFocus() && (!group || (group->stop() == &control && group != groupOf(present)));
}

void focusNext(Form& form, bool backwards = false) {
    const std::vector<Control*> order = form.tabOrder();
    if (order.empty())
        return;
    const Control* active = form.activeControl();
    const std::vector<Control*> page = form.pageOrder();
    // From a button that has turned the page one wants to go on with what it shows.
    if (form.takePageTurn() && !backwards && std::ranges::find(page, active) == page.end()) {
        if (Control* first = form.firstOfPage(); first && form.screen().moveFocus(*first))
            first->tabbedInto();
        return;
    }
    const auto present = std::ranges::find(order, active);
    const std::size_t beforeFirst = backwards ? 0 : order.size() - 1;
    const std::size_t start = present == order.end() ? beforeFirst : static_cast<std::size_t>(present - order.begin());
    for (std::size_t step = 1; step <= order.size(); ++step) {
        Control& next = *order[(start + (backwards ? order.size() - step : step)) % order.size()];
        if (!stopsTab(next, active))
            continue;
        if (form.screen().moveFocus(next))
            next.tabbedInto();
        return;
    }
}

void activate(Control& control) {
    if (auto* option = dynamic_cast<OptionButton*>(&control))
        option->choose();
    else if (auto* check = dynamic_cast<CheckBox*>(&control))
        check->toggle();
    else if (auto* captioned = dynamic_cast<Captioned*>(&control))
        captioned->press();
}

/// A link, icon or frame: no part of the system's own round of the focus, so Enter has no other meaning there.
bool isPicture(ControlKind kind) {
    return kind == ControlKind::Label || kind == ControlKind::Image || kind == ControlKind::Frame;
}

void enter(Form& form, Control* control) {
    auto* box = dynamic_cast<TextBox*>(control);
    const bool picture = control && isPicture(control->kind());
    if (!picture && form.enterActsAsTab()) {
        form.enterPressed();
        focusNext(form);
    } else if (picture || dynamic_cast<Button*>(control)) {
        activate(*control);
    } else if (box && box->multiLine && !box->locked) {
        box->edit(box->text() + "\r\n");
    }
}

void keyDown(Form& form, Control* control, std::string_view pressed) {
    auto* box = dynamic_cast<TextBox*>(control);
    auto* list = dynamic_cast<ComboBox*>(control);
    const std::string_view key = control ? control->keyDown(pressed) : pressed;
    if (key == "Enter")
        enter(form, control);
    else if (key == "Tab")
        focusNext(form);
    else if (key == "Shift+Tab")
        focusNext(form, true);
    else if (key == "F2" || key == "F3" || key == "Esc")
        form.functionKey(key);
    else if (key == "Backspace" && box && !box->locked)
        eraseLast(*box);
    else if (key == "Space" && control && !box)
        activate(*control);
    else if (box && !box->locked && (key == "Space" || codePoints(key).size() == 1))
        typeKeys(*box, key == "Space" ? " " : key, false);
    else if (list && codePoints(key).size() == 1)
        list->pickNext(key);
}

}  // namespace

int filteredKey(const TextBox& box, int key) {
    const int passed = box.form().keyPress(key);
    return passed != 0 && box.keyPress ? box.keyPress(passed) : passed;
}

bool type(TextBox& box, std::string_view text) {
    return editable(box) && onFocused(box, [&] { typeKeys(box, text, true); });
}

bool append(TextBox& box, std::string_view text) {
    return editable(box) && onFocused(box, [&] { typeKeys(box, text, false); });
}

bool clear(TextBox& box) {
    return edit(box, "");
}

bool edit(TextBox& box, std::string_view text) {
    return editable(box) && onFocused(box, [&] {
               if (box.text() != text)
                   box.edit(std::string(text));
           });
}

bool press(Control& control, std::string_view key) {
    return onFocused(control, [&] { keyDown(control.form(), &control, key); });
}

bool pressForm(Form& form, std::string_view key) {
    if (!inReach(form))
        return false;
    if (Control* control = form.activeControl(); control && control->takesFocus())
        return press(*control, key);
    form.screen().event([&] { keyDown(form, nullptr, key); });
    return true;
}

bool click(Control& control) {
    if (!isPicture(control.kind()))
        return onFocused(control, [&] { activate(control); });
    const bool there = control.visible() && control.enabled() && inReach(control.form());
    if (there)
        control.form().screen().event([&] { activate(control); });
    return there;
}

bool pick(ComboBox& list, int position) {
    return onFocused(list, [&] { list.pick(position); });
}

bool pickDate(DatePicker& picker, Date date) {
    return onFocused(picker, [&] { picker.setDate(date); });
}

bool showTab(TabStrip& strip, int tab) {
    return onFocused(strip, [&] { strip.setTab(tab); });
}

bool turnPage(Form& form, bool forwards) {
    const Layout& sheet = form.layout();
    auto* strip = dynamic_cast<TabStrip*>(form.findKey(sheet.tabs));
    if (!strip)
        return false;
    const int wanted = strip->tab() + (forwards ? 1 : -1);
    if (wanted >= 0 && wanted < strip->count())
        return showTab(*strip, wanted);
    Control* button = form.findKey(forwards ? sheet.pageBehind : sheet.pageBefore);
    return button && click(*button);
}

bool leave(Control& control) {
    return onFocused(control, [&] { control.form().screen().leaveFocus(); });
}

bool focus(Control& control) {
    bool arrived = false;
    onFocused(control, [&] { arrived = true; });
    return arrived;
}

bool close(Form& form) {
    const bool there = form.visible() && inReach(form);
    if (there)
        form.screen().event([&] { form.pressClose(); });
    return there;
}

bool bringToFront(Form& form) {
    const bool there = form.visible() && inReach(form);
    if (there && !form.front())
        form.screen().event([&] { form.bringToFront(); });
    return there;
}

}  // namespace plandesk::user
