#include "document/Answers.h"

#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Form.h"

namespace plandesk {

YesNoOptions findQuestion(const Form& form, std::string_view name) {
    const auto option = [](Control* control) { return dynamic_cast<OptionButton*>(control); };
    const std::string base(name);
    if (YesNoOptions pair{option(form.find(base + "Y")), option(form.find(base + "N"))}; pair.yes && pair.no)
        return pair;
    return {option(form.find(name, 1)), option(form.find(name, 0))};
}

std::string answer(const Form& form, std::string_view name) {
    const Control* control = form.find(name);
    if (const auto* box = dynamic_cast<const TextBox*>(control))
        return box->text();
    if (const auto* list = dynamic_cast<const ComboBox*>(control))
        return list->text();
    if (const auto* picker = dynamic_cast<const DatePicker*>(control))
        return picker->date().text();
    const YesNoOptions question = findQuestion(form, name);
    if (!question.yes || !question.no)
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    return std::to_string(yesNoCode(question.yes->value(), question.no->value()));
}

std::string answers(const Form& form, std::string_view names) {
    std::vector<std::string> values = split(names, " ");
    for (std::string& value : values)
        value = trim(answer(form, value));
    return join(values, "#");
}

}  // namespace plandesk
