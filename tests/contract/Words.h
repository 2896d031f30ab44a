#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "contract/Contract.h"
#include "contract/Machine.h"
#include "controls/Controls.h"

namespace plandesk::contract {

/// A running system that is asked for its own words.
class Words {
public:
    Words();

    Proposal& proposal();
    const Form& form(std::string_view name);

    /// The value of a control as tables of the document name it: words of its question, its control keys, kind, what
    /// can be typed. `control`: a box, list, date picker, option or question of the form.
    Value of(std::string_view form, std::string_view control);
    /// The value of a table's cell.
    Value ofColumn(Tables::Member table, int column);
    /// The value of the control whose answer the continuation of the transfer deed leaves in that project-wide text.
    Value ofText(std::string Proposal::*text);
    std::vector<Code> itemsOf(std::string_view form, std::string_view list);

private:
    std::string typedIn(const Form& form, TextBox& box);
    Machine machine;
};

/// Gives the collected elements their paths, notes and examples.
void finish(Element& root, Words& words);

}  // namespace plandesk::contract
