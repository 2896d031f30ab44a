#include "controls/Control.h"

#include <array>

#include "base/Text.h"
#include "controls/Form.h"
#include "controls/Screen.h"

namespace plandesk {

std::string_view kindName(ControlKind kind) {
    static constexpr std::array names =
        std::to_array<std::string_view>({"TextBox", "OptionButton", "CheckBox", "ComboBox", "DatePicker", "Label",
                                         "Button", "Image", "Frame", "TabStrip", "Grid", "RichText"});
    return names.at(static_cast<std::size_t>(kind));
}

Control::Control(Form& form, ControlKind kind, std::string_view name, int index)
    : owner(form), controlName(name), controlKind(kind), arrayIndex(index) {
    form.all.push_back(this);
    form.byKey.emplace(ControlKey{controlName, index}, this);
}

std::string Control::key() const {
    return arrayIndex == noIndex ? name() : name() + "(" + std::to_string(arrayIndex) + ")";
}

void Control::setVisible(bool on) {
    if (isVisible == on)
        return;
    isVisible = on;
    touched();
}

void Control::setEnabled(bool on) {
    if (isEnabled == on)
        return;
    isEnabled = on;
    touched();
}

void Control::setBackColor(Colour colour) {
    if (back == colour)
        return;
    back = colour;
    touched();
}

bool Control::focused() const {
    return owner->screen().focused() == this;
}

void Control::setFocus() {
    owner->screen().setFocus(*this);
}

void Control::loseFocus() {
    if (lostFocus)
        lostFocus();
}

bool Control::fire(std::string_view event) {
    return fires(event, "GotFocus", gotFocus) || fires(event, "LostFocus", lostFocus);
}

bool Control::fires(std::string_view event, std::string_view name, const std::function<void()>& reaction) {
    if (!equalsIgnoringCase(event, name))
        return false;
    if (reaction)
        reaction();
    return true;
}

void Control::touched() {
    owner->screen().controlTouched(*this);
}

}  // namespace plandesk
