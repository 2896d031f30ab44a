#include "review/Questions.h"

#include <algorithm>
#include <span>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Form.h"
#include "controls/Naming.h"

namespace plandesk {

namespace {

bool answers(ControlKind kind) {
    return kind == ControlKind::TextBox || kind == ControlKind::OptionButton || kind == ControlKind::CheckBox ||
           kind == ControlKind::ComboBox || kind == ControlKind::DatePicker;
}

const OptionGroup* groupOf(const Control& control) {
    const auto* option = dynamic_cast<const OptionButton*>(&control);
    return option ? &option->group() : nullptr;
}

void appendQuestions(std::vector<Question>& questions, const Form& form, std::span<const LayoutGroup> groups) {
    for (const LayoutGroup& group : groups)
        for (const LayoutRow& row : group.rows)
            for (const std::string& key : split(row.controls, " ")) {
                const Control* control = form.findKey(key);
                if (!control || !answers(control->kind()))
                    continue;
                // The options of one group are one question, on one row or several.
                const OptionGroup* options = groupOf(*control);
                const bool further = options && !questions.empty() && groupOf(questions.back().control()) == options;
                if (further)
                    questions.back().controls.push_back(control);
                else
                    questions.push_back({{control}, &group, &row});
            }
}

std::string answerOf(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return box->text();
    if (const auto* option = dynamic_cast<const OptionButton*>(&control))
        return option->value() ? std::string(trim(option->caption())) : "";
    if (const auto* check = dynamic_cast<const CheckBox*>(&control))
        return check->value() == 1 ? "ticked" : "";
    if (const auto* list = dynamic_cast<const ComboBox*>(&control))
        return list->text();
    if (const auto* picker = dynamic_cast<const DatePicker*>(&control))
        return picker->date().text();
    return "";
}

bool sameNumber(std::string_view a, std::string_view b) {
    if (!isNumeric(a) || !isNumeric(b))
        return false;
    try {
        return toDouble(a) == toDouble(b);
    } catch (const RuntimeError&) {  // beyond the range of a double
        return false;
    }
}

}  // namespace

bool Question::shown() const {
    const Control* frame = control().form().findKey(group->frame);
    return (!frame || frame->visible()) && std::ranges::any_of(controls, &Control::takesFocus);
}

std::vector<Question> questionsOf(const Form& form) {
    std::vector<Question> questions;
    appendQuestions(questions, form, form.layout().top);
    for (const LayoutPage& page : form.layout().pages)
        appendQuestions(questions, form, page.groups);
    return questions;
}

std::string wordsOf(const Question& question) {
    const RowNaming names = nameRow(question.control().form(), *question.group, *question.row);
    const auto own = std::ranges::find(names.controls, &question.control(), &Naming::control);
    const bool options = question.control().kind() == ControlKind::OptionButton;
    const std::string& words = options || own == names.controls.end() ? names.question : own->name;
    const std::string item(trim(question.row->item));
    return item.empty() ? words : item + " " + words;
}

std::string answerOf(const Question& question) {
    std::string answer;
    for (const Control* control : question.controls) {
        const std::string part = answerOf(*control);
        answer += (answer.empty() || part.empty() ? "" : ", ") + part;
    }
    return answer;
}

bool sameAnswer(std::string_view a, std::string_view b) {
    return trim(a) == trim(b) || sameNumber(a, b);
}

}  // namespace plandesk
