#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "contract/Contract.h"
#include "controls/Controls.h"
#include "review/SilentSystem.h"

namespace plandesk::contract {

/// A running system that is asked for its own words.
class Words {
public:
    Words();
    ~Words();
    Words(const Words&) = delete;
    Words& operator=(const Words&) = delete;

    Proposal& proposal();
    const Form& form(std::string_view name);

    /// The value of a control as tables of the document name it: words of its question, its control keys, kind, what
    /// can be typed. `control`: a box, list, date picker, option or question of the form.
    Value of(std::string_view form, std::string_view control);
    /// The value of a table's cell.
    Value ofColumn(Tables::Member table, int column);
    std::vector<Code> itemsOf(std::string_view form, std::string_view list);

private:
    std::string typedIn(const Form& form, TextBox& box);
    struct Machine;
    std::unique_ptr<Machine> machine;
};

}  // namespace plandesk::contract
