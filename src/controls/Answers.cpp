#include "controls/Answers.h"

#include <vector>

#include "base/Text.h"
#include "controls/Form.h"

namespace plandesk {

YesNoOptions question(const Form& form, std::string_view name) {
    const auto option = [](Control* control) { return dynamic_cast<OptionButton*>(control); };
    const std::string base(name);
    if (auto* yes = option(form.find(base + "Y")), *no = option(form.find(base + "N")); yes && no)
        return {*yes, *no};
    if (auto* yes = option(form.find(name, 1)), *no = option(form.find(name, 0)); yes && no)
        return {*yes, *no};
    form.missing(name);
}

std::string answer(const Form& form, std::string_view name) {
    const Control* control = form.find(name);
    if (const auto* box = dynamic_cast<const TextBox*>(control))
        return box->text();
    if (const auto* list = dynamic_cast<const ComboBox*>(control))
        return list->text();
    if (const auto* picker = dynamic_cast<const DatePicker*>(control))
        return picker->date().text();
    const auto [yes, no] = question(form, name);
    return std::to_string(yesNoCode(yes.value(), no.value()));
}

std::string answers(const Form& form, std::string_view names) {
    std::vector<std::string> values = split(names, " ");
    for (std::string& value : values)
        value = trim(answer(form, value));
    return join(values, "#");
}

}  // namespace plandesk
