#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// The blanks of a letter, made from the names in its layout in their order: a date picker of each DTPicker, a text box
/// of each other name, and the pair of options of the one name that is `answer`(1) and (0).
struct LetterBlanks {
    LetterBlanks(Form& form, const Layout& sheet, std::string_view answer);

    Series<TextBox> boxes;
    Series<DatePicker> dates;
    Series<YesNo> answer;  ///< one, or none
};

/// A statutory letter: fixed wording with blanks. Nothing of it is saved with the proposal; the blanks keep what is
/// typed until New or Open drops the form. None of them has to be filled in, not even one that is marked.
class LetterForm : public DataForm {
public:
    void load() override;
    const Layout& layout() const override { return *letter; }

protected:
    /// `sheet` outlives the form. `answer`: name of the letter's yes/no question, or empty.
    LetterForm(Proposal& proposal, std::string_view name, std::string_view head, std::string_view report,
               const Layout& sheet, std::string_view answer = {});

private:
    Fixed<const Layout&> letter;

public:
    LetterBlanks blanks;
    Button Command5{*this, "Command5", "Print Particulars of Development"};
    Button Command9{*this, "Command9", "Close"};
};

/// The layout of a letter of these pages.
constexpr Layout letterSheet(std::span<const LayoutPage> pages) {
    return {.pages = pages, .buttons = "Command5 Command9"};
}

/// The words below every letter.
inline constexpr LayoutRow mandatoryItems{"", "Items marked with * are mandatory"};

}  // namespace plandesk
