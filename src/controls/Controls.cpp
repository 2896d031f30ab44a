#include "controls/Controls.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Form.h"
#include "controls/Screen.h"

namespace plandesk {

namespace {

void runReaction(const std::function<void()>& reaction) {
    if (reaction)
        reaction();
}

}  // namespace

TextBox::TextBox(Form& form, std::string_view name, int index) : Control(form, ControlKind::TextBox, name, index) {}

void TextBox::setText(std::string_view text) {
    if (content != text)
        edit(std::string(text));
}

void TextBox::restoreText(std::string_view text) {
    replace(std::string(text));
}

void TextBox::edit(std::string text) {
    replace(std::move(text));
    runReaction(change);
}

void TextBox::replace(std::string text) {
    const std::size_t characters = codePointCount(std::string_view(content).substr(0, caretPlace));
    content = std::move(text);
    caretPlace = sizeOfFirst(content, characters);
    touched();
}

void TextBox::type(char32_t character) {
    std::string typed;
    appendUtf8(typed, character);
    content.insert(caretPlace, typed);
    caretPlace += typed.size();
    touched();
    runReaction(change);
}

bool TextBox::fire(std::string_view event) {
    return fires(event, "Change", change) || Control::fire(event);
}

Captioned::Captioned(Form& form, ControlKind kind, std::string_view name, int index, std::string_view caption)
    : Control(form, kind, name, index), words(caption) {}

void Captioned::setCaption(std::string_view caption) {
    if (words == caption)
        return;
    words = caption;
    touched();
    runReaction(change);
}

void Captioned::setForeColor(Colour colour) {
    if (fore == colour)
        return;
    fore = colour;
    touched();
}

void Captioned::press() {
    runReaction(click);
}

bool Captioned::fire(std::string_view event) {
    return fires(event, "Click", click) || fires(event, "Change", change) || Control::fire(event);
}

Label::Label(Form& form, std::string_view name, std::string_view caption, int index)
    : Captioned(form, ControlKind::Label, name, index, caption) {}

Button::Button(Form& form, std::string_view name, std::string_view caption, int index)
    : Captioned(form, ControlKind::Button, name, index, caption) {}

Image::Image(Form& form, std::string_view name, int index) : Captioned(form, ControlKind::Image, name, index, "") {}

Frame::Frame(Form& form, std::string_view name, std::string_view caption, int index)
    : Captioned(form, ControlKind::Frame, name, index, caption) {}

RichText::RichText(Form& form, std::string_view name, std::string_view html)
    : Control(form, ControlKind::RichText, name, noIndex), html(html) {}

RichText& RichText::operator=(const RichText& other) {
    Control::operator=(other);
    return *this;
}

OptionButton::OptionButton(Form& form, OptionGroup& group, std::string_view name, std::string_view caption, int index)
    : Captioned(form, ControlKind::OptionButton, name, index, caption), siblings(group) {
    group.members.push_back(this);
}

void OptionButton::setValue(bool value) {
    if (on == value)
        return;
    if (value) {
        turnOn();
        press();
    } else {
        on = false;
        touched();
    }
}

void OptionButton::choose() {
    turnOn();
    press();
}

void OptionButton::turnOn() {
    for (OptionButton* other : siblings->members) {
        if (other != this && other->on) {
            other->on = false;
            other->touched();
        }
    }
    on = true;
    touched();
}

std::vector<OptionButton*> OptionButton::others() const {
    std::vector<OptionButton*> round = siblings->members;
    std::rotate(round.begin(), std::ranges::find(round, this) + 1, round.end());
    std::erase_if(round, [](const OptionButton* option) { return !option->takesFocus(); });
    return round;
}

std::string_view OptionButton::keyDown(std::string_view key) {
    const bool back = key == "Left" || key == "Up";
    const bool forwards = key == "Right" || key == "Down";
    const bool letter = codePoints(key).size() == 1;
    if (!back && !forwards && !letter)
        return key;
    const std::vector<OptionButton*> round = others();
    const auto begins = [key](const OptionButton* option) {
        return equalsIgnoringCase(trim(option->caption()).substr(0, key.size()), key);
    };
    // The last of the round is this option itself.
    const auto wanted = letter             ? std::ranges::find_if(round, begins)
                        : round.size() < 2 ? round.end()
                        : forwards         ? round.begin()
                                           : round.end() - 2;
    if (wanted != round.end() && form().screen().moveFocus(**wanted) && letter && (*wanted)->takesFocus())
        (*wanted)->choose();
    return "";
}

OptionButton* OptionGroup::stop() const {
    const auto there = [](const OptionButton* option) { return option->takesFocus(); };
    const auto on = std::ranges::find_if(members, [&](auto* option) { return option->value() && there(option); });
    const auto stop = on != members.end() ? on : std::ranges::find_if(members, there);
    return stop == members.end() ? nullptr : *stop;
}

CheckBox::CheckBox(Form& form, std::string_view name, std::string_view caption, int index)
    : Captioned(form, ControlKind::CheckBox, name, index, caption) {}

void CheckBox::setValue(int value) {
    if (value != 0 && value != 1)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    if (state == value)
        return;
    state = value;
    touched();
    press();
}

ComboBox::ComboBox(Form& form, std::string_view name, int index) : Control(form, ControlKind::ComboBox, name, index) {}

ComboBox::ComboBox(Form& form, std::string_view name, std::initializer_list<std::string_view> items)
    : ComboBox(form, name) {
    for (const std::string_view text : items)
        addItem(text);
}

std::size_t ComboBox::at(int position) const {
    if (position < 0 || position >= listCount())
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return static_cast<std::size_t>(position);
}

std::string_view ComboBox::item(int position) const {
    return items[at(position)];
}

std::int32_t ComboBox::itemData(int position) const {
    return data[at(position)];
}

void ComboBox::clear() {
    items.clear();
    data.clear();
    content.clear();
    chosen = -1;
    touched();
}

void ComboBox::addItem(std::string_view text, std::int32_t number) {
    items.add(text);
    data.push_back(number);
    touched();
}

void ComboBox::setListIndex(int position) {
    if (position < -1 || position >= listCount())
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    if (position == chosen)
        return;
    if (position >= 0) {
        pick(position);
        return;
    }
    chosen = -1;
    content.clear();
    touched();
}

void ComboBox::setText(std::string_view text) {
    chosen = -1;
    for (std::size_t place = 0; place < items.size() && chosen < 0; ++place)
        if (items[place] == text)
            chosen = static_cast<int>(place);
    content = text;
    touched();
}

void ComboBox::pick(int position) {
    if (position < 0 || position >= listCount())
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    chosen = position;
    content = items[at(position)];
    touched();
    runReaction(click);
}

void ComboBox::pickNext(std::string_view letter) {
    for (int step = 1; step <= listCount(); ++step) {
        const int position = (chosen + step) % listCount();
        if (!equalsIgnoringCase(std::string_view(item(position)).substr(0, letter.size()), letter))
            continue;
        pick(position);
        return;
    }
}

bool ComboBox::fire(std::string_view event) {
    return fires(event, "Click", click) || Control::fire(event);
}

DatePicker::DatePicker(Form& form, std::string_view name, int index)
    : Control(form, ControlKind::DatePicker, name, index) {}

void DatePicker::setDate(Date date) {
    if (day == date)
        return;
    day = date;
    touched();
    runReaction(change);
}

bool DatePicker::fire(std::string_view event) {
    return fires(event, "Change", change) || Control::fire(event);
}

TabStrip::TabStrip(Form& form, std::string_view name, int count)
    : Control(form, ControlKind::TabStrip, name, noIndex), tabs(count) {}

void TabStrip::setTab(int tab) {
    if (tab < 0 || tab >= tabs)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    if (tab == current)
        return;
    current = tab;
    form().pageTurned();
    touched();
    runReaction(click);
}

bool TabStrip::fire(std::string_view event) {
    return fires(event, "Click", click) || Control::fire(event);
}

YesNo::YesNo(Form& form, std::string_view yesName, std::string_view noName)
    : yes(form, group, yesName, "Yes"), no(form, group, noName, "No") {}

YesNo::YesNo(Form& form, std::string_view arrayName)
    : yes(form, group, arrayName, "Yes", 1), no(form, group, arrayName, "No", 0) {}

void YesNo::clear() {
    yes.setValue(false);
    no.setValue(false);
}

void YesNo::setVisible(bool on) {
    yes.setVisible(on);
    no.setVisible(on);
}

void YesNo::setEnabled(bool on) {
    yes.setEnabled(on);
    no.setEnabled(on);
}

void YesNo::onClick(const std::function<void()>& reaction) {
    yes.click = reaction;
    no.click = reaction;
}

}  // namespace plandesk
