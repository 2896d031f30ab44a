#pragma once

#include <string_view>

#include "base/Date.h"

// The user's hands: what a key or a click does to a control, with the focus rules and key filters. The window and the
// script driver both work through these; each call is one event, whose unhandled error ends in one message.
// The result is false when the control is not there for the user: hidden, disabled, locked, or on a form that a modal
// one keeps out of reach. Nothing happens then.

namespace plandesk {

class CheckBox;
class ComboBox;
class Control;
class DatePicker;
class Form;
class TabStrip;
class TextBox;

namespace user {

/// Types over what the box holds, key by key through the filters, each at the caret: where a reaction puts in another
/// text, the next key goes behind as many characters as before. With no key let through the content stays.
bool type(TextBox& box, std::string_view text);
/// Types at the end of what the box holds.
bool append(TextBox& box, std::string_view text);
/// Empties the box with Delete.
bool clear(TextBox& box);
/// A text editor changed the focused box as a whole (a paste, a cut, a drag): no key filter sees it.
bool edit(TextBox& box, std::string_view text);
/// What the form's and the box's filters make of one key; 0 when they swallow it.
int filteredKey(const TextBox& box, int key);

/// One key with that control focused: "Enter", "Tab", "Shift+Tab", "Esc", "Space", "Backspace", "F2", "F3", "Left",
/// "Right", "Up", "Down" or one character, which goes to the end of what a box holds.
bool press(Control& control, std::string_view key);
/// The same with whatever control of the form has the focus.
bool pressForm(Form& form, std::string_view key);

/// Clicks a button, option, check box, label, image or frame.
bool click(Control& control);
/// RuntimeError 380 as a message for a position that the list does not have.
bool pick(ComboBox& list, int position);
bool pickDate(DatePicker& picker, Date date);
bool showTab(TabStrip& strip, int tab);
/// Turns to the next page of a form with pages, or to the one before: by the tab, and beyond the first or last one by
/// the button that leads on to the next form. False when there is no further page.
bool turnPage(Form& form, bool forwards);
/// Moves the focus from the control to nowhere.
bool leave(Control& control);
/// Moves the focus to the control; false also when a leave check held it elsewhere.
bool focus(Control& control);

/// Presses the close button of the form; false also for one that is not shown.
bool close(Form& form);
/// Clicks the form where nothing stands, which brings it to the front.
bool bringToFront(Form& form);

}  // namespace user
}  // namespace plandesk
