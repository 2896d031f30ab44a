#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"
#include "base/TextList.h"
#include "controls/Control.h"

// The kinds of control. `set...` is what program code does; the functions told as "the user" are called by the
// user's hands alone (User.h, which both the window and the script driver work through).

namespace plandesk {

/// A key that passed or was swallowed: the code of one character, 8 for Backspace, 0 for a swallowed key.
using KeyFilter = std::function<int(int key)>;

class TextBox : public Control {
public:
    TextBox(Form& form, std::string_view name, int index = noIndex);

    const std::string& text() const { return content; }
    /// Nothing if equal; otherwise the text is set and `change` runs before this returns.
    void setText(std::string_view text);
    /// Puts a text in without any reaction.
    void restoreText(std::string_view text);
    /// The user: the content becomes `text` and `change` runs, also for the same text.
    void edit(std::string text);
    /// The user: one more character at the caret, which moves on behind it before `change` runs.
    void type(char32_t character);
    /// Where the user types: a number of bytes from the left. Whoever puts another text in leaves the caret behind as
    /// many characters as before, or at the end of a text that is shorter.
    std::size_t caret() const { return caretPlace; }
    void moveCaretToEnd() { caretPlace = content.size(); }
    bool fire(std::string_view event) override;

    Fixed<std::function<void()>> change;
    Fixed<KeyFilter> keyPress;
    bool locked = false;
    bool multiLine = false;
    bool rightAligned = false;  ///< a column of numbers reads from its last digit

private:
    void replace(std::string text);

    std::string content;
    std::size_t caretPlace = 0;
};

/// A control that carries its own words.
class Captioned : public Control {
public:
    Captioned(Form& form, ControlKind kind, std::string_view name, int index, std::string_view caption);

    const std::string& caption() const { return words; }
    /// `change` runs if different.
    void setCaption(std::string_view caption);
    /// The user clicked.
    void press();
    bool fire(std::string_view event) override;
    Colour foreColor() const { return fore; }
    void setForeColor(Colour colour);

    Fixed<std::function<void()>> change;
    Fixed<std::function<void()>> click;

private:
    std::string words;
    Colour fore = black;
};

/// A label that can be clicked is a link.
class Label : public Captioned {
public:
    Label(Form& form, std::string_view name, std::string_view caption, int index = noIndex);
    bool kindTakesFocus() const override { return static_cast<bool>(click); }
};

class Button : public Captioned {
public:
    Button(Form& form, std::string_view name, std::string_view caption, int index = noIndex);
};

/// A picture that can be clicked.
class Image : public Captioned {
public:
    Image(Form& form, std::string_view name, int index = noIndex);
};

/// A frame with its title. What stands inside it is told by the layout.
class Frame : public Captioned {
public:
    Frame(Form& form, std::string_view name, std::string_view caption, int index = noIndex);
    bool kindTakesFocus() const override { return false; }
};

/// Read-only text with simple formatting, kept as HTML of the subset that the toolkit's text display knows.
class RichText : public Control {
public:
    RichText(Form& form, std::string_view name, std::string_view html);
    RichText(const RichText&) = delete;
    /// The text is the same in all forms of a class.
    RichText& operator=(const RichText& other);
    ~RichText() override = default;
    const std::string html;
};

class OptionButton;

/// The options of which at most one is on.
struct OptionGroup {
    Fixed<std::vector<OptionButton*>> members;

    /// The member where Tab stops: the one that is on, or else the first that takes the focus; null when none does.
    OptionButton* stop() const;
};

class OptionButton : public Captioned {
public:
    OptionButton(Form& form, OptionGroup& group, std::string_view name, std::string_view caption, int index = noIndex);

    bool value() const { return on; }
    /// True: nothing if on; otherwise the others of the group go off silently, this goes on and `click` runs.
    /// False: goes off without an event.
    void setValue(bool value);
    /// The user: as setValue(true), but `click` runs also when it was on already.
    void choose();
    /// An arrow ("Left", "Up", "Right", "Down") moves the focus round the group and chooses nothing; a character
    /// chooses the next member whose caption begins with it, in any case.
    std::string_view keyDown(std::string_view key) override;
    const OptionGroup& group() const { return *siblings; }

private:
    void turnOn();
    /// The members that take the focus, from the one behind this on round the group to this.
    std::vector<OptionButton*> others() const;

    Fixed<OptionGroup&> siblings;
    bool on = false;
};

class CheckBox : public Captioned {
public:
    CheckBox(Form& form, std::string_view name, std::string_view caption, int index = noIndex);

    int value() const { return state; }
    /// 0 or 1; `click` runs on any change. RuntimeError 380 for another number.
    void setValue(int value);
    /// The user: the other value.
    void toggle() { setValue(1 - state); }

private:
    int state = 0;
};

class ComboBox : public Control {
public:
    ComboBox(Form& form, std::string_view name, int index = noIndex);
    ComboBox(Form& form, std::string_view name, std::initializer_list<std::string_view> items);

    const std::string& text() const { return content; }
    int listIndex() const { return chosen; }
    int listCount() const { return static_cast<int>(data.size()); }
    /// Valid until the list changes. RuntimeError 381 for a position that the list does not have.
    std::string_view item(int position) const;
    std::int32_t itemData(int position) const;

    void clear();
    void addItem(std::string_view text, std::int32_t number = 0);
    /// Nothing if equal; otherwise the text follows and `click` runs. -1 clears the text and runs nothing.
    /// RuntimeError 380 for a position that the list does not have; nothing changes then.
    void setListIndex(int position);
    /// Any text is taken; the item that equals it exactly becomes the chosen one. No reaction.
    void setText(std::string_view text);
    /// The user: the item is chosen and `click` runs, also for the same item.
    void pick(int position);
    /// The user typed a letter: picks the next item behind the chosen one, and around, that begins with it in any case.
    /// Nothing happens when there is none.
    void pickNext(std::string_view letter);
    bool fire(std::string_view event) override;

    Fixed<std::function<void()>> click;

private:
    /// The position as an index. RuntimeError 381 for one that the list does not have.
    std::size_t at(int position) const;

    TextList items;
    std::vector<std::int32_t> data;  ///< of each item
    std::string content;
    int chosen = -1;
};

class DatePicker : public Control {
public:
    DatePicker(Form& form, std::string_view name, int index = noIndex);

    Date date() const { return day; }
    /// By code or by the user: `change` runs if different.
    void setDate(Date date);
    bool fire(std::string_view event) override;

    Fixed<std::function<void()>> change;

private:
    Date day;
};

class TabStrip : public Control {
public:
    /// `count`: number of tabs; the first is shown.
    TabStrip(Form& form, std::string_view name, int count);

    int tab() const { return current; }
    int count() const { return tabs; }
    /// By code or by the user: `click` runs if different. RuntimeError 5 for a tab that there is not.
    void setTab(int tab);
    bool fire(std::string_view event) override;

    Fixed<std::function<void()>> click;

private:
    int tabs;
    int current = 0;
};

/// Answer of a pair of options as one digit: 1 Yes, 0 No, 2 neither; both on gives 0.
constexpr int yesNoCode(bool yes, bool no) {
    return no ? 0 : yes ? 1 : 2;
}

/// A yes/no question: two options of one group. A pair of the name "Opt1" is the options "Opt1Y" and "Opt1N".
struct YesNo {
    /// Pair of two names, for instance "Opt1Y", "Opt1N".
    YesNo(Form& form, std::string_view yesName, std::string_view noName);
    /// Option array: index 1 is Yes, index 0 is No.
    YesNo(Form& form, std::string_view arrayName);

    int code() const { return yesNoCode(yes.value(), no.value()); }
    void clear();
    void setVisible(bool on);
    void setEnabled(bool on);
    /// The same reaction for both options.
    void onClick(const std::function<void()>& reaction);

    OptionGroup group;
    OptionButton yes;
    OptionButton no;
};

}  // namespace plandesk
