#include "reports/letters/LetterForm.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "base/Text.h"

namespace plandesk {

LetterBlanks::LetterBlanks(Form& form, const Layout& sheet, std::string_view answerName) {
    const auto add = [&](std::string_view key) {
        const std::size_t bracket = std::min(key.find('('), key.size());
        const std::string_view name = key.substr(0, bracket);
        int index = Control::noIndex;
        if (bracket < key.size())
            std::from_chars(key.data() + bracket + 1, key.data() + key.size(), index);
        if (name == answerName) {
            if (answer.empty())
                answer.emplace_back(form, name);
        } else if (name.starts_with("DTPicker")) {
            dates.emplace_back(form, name, index);
        } else {
            boxes.emplace_back(form, name, index);
        }
    };
    for (const LayoutPage& page : sheet.pages)
        for (const LayoutGroup& group : page.groups)
            for (const LayoutRow& row : group.rows)
                for (const std::string& key : split(row.controls, " "))
                    if (!key.empty())
                        add(key);
}

LetterForm::LetterForm(Proposal& proposal, std::string_view name, std::string_view head, std::string_view report,
                       const Layout& sheet, std::string_view answer)
    : DataForm(proposal, name, head), letter(sheet), blanks(*this, sheet, answer) {
    Command5.toolTip = "Shows the letter, to be printed or saved as PDF: the proposal's file keeps nothing of it";
    Command5.click = [this, report] { this->proposal.commands.print(report); };
    Command9.click = [this] { hide(); };
}

void LetterForm::load() {
    setAllDatesToToday(*this);
    setFormColors(*this, proposal);
}

}  // namespace plandesk
