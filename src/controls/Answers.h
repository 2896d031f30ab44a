#pragma once

#include <string>
#include <string_view>

#include "controls/Controls.h"

// The controls of a form by the names that the tables of the document use: a box, list or date picker by its own name,
// a yes/no question by the name that its two options share ("Opt3" for Opt3Y and Opt3N, "IsPlotNarrow" for the array).

namespace plandesk {

class Form;

/// The two options of a yes/no question. RuntimeError 3265 that tells its name when the form has no such question.
struct YesNoOptions {
    OptionButton& yes;
    OptionButton& no;
};
YesNoOptions question(const Form& form, std::string_view name);

/// The text of a box or list as typed, the digit of a yes/no question, the date of a picker as "dd/MM/yyyy".
/// RuntimeError 3265 that tells its name when the form has no such control.
std::string answer(const Form& form, std::string_view name);

/// The trimmed answers of the controls named in `names`, separated by blanks, joined by "#".
std::string answers(const Form& form, std::string_view names);

}  // namespace plandesk
