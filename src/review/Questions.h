#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Controls.h"
#include "controls/Layout.h"

namespace plandesk {

/// One question of a form's layout: the box, list, date or check box that answers it, or the options of which one does.
struct Question {
    std::vector<const Control*> controls;
    const LayoutGroup* group = nullptr;
    const LayoutRow* row = nullptr;

    const Control& control() const { return *controls.front(); }
    bool mandatory() const { return row->mark == "*"; }
    /// Whether a user can answer it now, on its page.
    bool shown() const;
};

/// The questions of the form in screen order.
std::vector<Question> questionsOf(const Form& form);

/// The question as the page puts it, with its number: "11 b. Total floor area".
std::string wordsOf(const Question& question);

/// What answers it, as one reads it: the text, the chosen item or option, the date dd/MM/yyyy, "ticked". Empty when
/// nothing does.
std::string answerOf(const Question& question);

/// Whether two answers mean the same: blanks at the ends and how a number is written do not count.
bool sameAnswer(std::string_view a, std::string_view b);

}  // namespace plandesk
