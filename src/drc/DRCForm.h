#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "controls/Controls.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// Tip of the fields whose value no save takes along.
inline constexpr std::string_view notSavedTip = "Not saved with the form";

/// A text box on which Enter does something of its own instead of moving the focus on.
class EnterBox : public TextBox {
public:
    using TextBox::TextBox;
    std::string_view keyDown(std::string_view key) override;
    Fixed<std::function<void()>> enter;
};

/// Save, Reset and Close at the foot of a form of development rights. Reset has no reaction.
struct DRCButtons {
    DRCButtons(Form& form, std::function<void()> save);

    Button cmdSave;
    Button cmdReferesh;
    Button cmdClose;
};

/// A figure left with a number in it is rewritten with two decimals and grouping. Any other text, and a number beyond
/// the range of a double, stays.
void formatWhenLeft(TextBox& figure);

/// `words` shows what the figure reads as, with the unit behind it, whenever the figure changes; an emptied figure
/// leaves the earlier words. The figure is formatted when it is left, which writes the words anew.
void readFigure(TextBox& figure, TextBox& words, std::string_view unit);

/// Gives the fields the tip that they are not saved.
void markNotSaved(std::initializer_list<Control*> fields);

}  // namespace plandesk
