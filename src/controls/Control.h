#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/Colour.h"
#include "controls/Fixed.h"

namespace plandesk {

class Form;

enum class ControlKind {
    TextBox,
    OptionButton,
    CheckBox,
    ComboBox,
    DatePicker,
    Label,
    Button,
    Image,
    Frame,
    TabStrip,
    Grid,
    RichText,
};

std::string_view kindName(ControlKind kind);

/// One named control of a form. It belongs to the form it was declared in and lives exactly as long.
/// `visible` and `enabled` are what program code set; whether a page or frame hides it on screen is the view's
/// business.
class Control {
public:
    static constexpr int noIndex = -1;

    /// `index`: place in a control array, whose members share one name; noIndex for a control of its own.
    Control(Form& form, ControlKind kind, std::string_view name, int index);
    virtual ~Control() = default;
    Control(const Control&) = delete;

    Form& form() const { return *owner; }
    ControlKind kind() const { return controlKind; }
    const std::string& name() const { return controlName; }
    int index() const { return arrayIndex; }
    /// NAME, or NAME(INDEX) for a member of a control array.
    std::string key() const;

    bool visible() const { return isVisible; }
    void setVisible(bool on);
    bool enabled() const { return isEnabled; }
    void setEnabled(bool on);
    Colour backColor() const { return back; }
    void setBackColor(Colour colour);

    /// Whether a control like this takes the focus at all.
    virtual bool kindTakesFocus() const { return true; }
    /// Whether a user can move the focus here: the kind takes it and the control is visible and enabled.
    bool takesFocus() const { return kindTakesFocus() && isVisible && isEnabled; }
    bool focused() const;
    /// Program code moves the focus here. No leave check runs.
    void setFocus();

    /// Runs the control's own reaction to the event "Click", "Change", "GotFocus" or "LostFocus", in any case.
    /// False when the control has no such event.
    virtual bool fire(std::string_view event);

    /// The user pressed a key here, told by its name. Gives back what is left of it for the form: the same key, another
    /// one, or an empty name when the control did it all.
    virtual std::string_view keyDown(std::string_view key) { return key; }
    /// The focus has gone elsewhere.
    virtual void loseFocus();
    /// Tab, Shift+Tab or Enter brought the focus here.
    virtual void tabbedInto() {}

    std::string toolTip;
    Fixed<std::function<void()>> gotFocus;
    Fixed<std::function<void()>> lostFocus;
    /// Asked when the user leaves for another control of the form; false holds the focus here.
    Fixed<std::function<bool()>> leaveCheck;

protected:
    /// A control of the same class takes over what the other holds: neither its name nor its reactions, and none runs.
    Control& operator=(const Control&) = default;
    /// Runs the reaction when `event` is its name, in any case; tells whether it is.
    static bool fires(std::string_view event, std::string_view name, const std::function<void()>& reaction);
    /// Tells the views that something of the control is to be painted anew.
    void touched();

private:
    Fixed<Form&> owner;
    Fixed<std::string> controlName;
    ControlKind controlKind;
    int arrayIndex;
    bool isVisible = true;
    bool isEnabled = true;
    Colour back = white;
};

}  // namespace plandesk
