#pragma once

#include <string>
#include <vector>

#include "controls/Layout.h"

// What a control is called where one does not see its place on the page: in messages and by screen readers.

namespace plandesk {

class Control;
class Form;

struct Naming {
    const Control* control;
    std::string name;         ///< its question, with what else tells it from others of the page
    std::string description;  ///< unit, and whether it must be answered; often empty
};

struct RowNaming {
    std::string question;     ///< name of the row as a whole, and of its options as a group
    std::string description;  ///< as that of a control
    std::vector<Naming> controls;
};

/// Names of the controls of a row of the form's layout, in screen order. Controls that the form does not have are left
/// out.
RowNaming nameRow(const Form& form, const LayoutGroup& group, const LayoutRow& row);

/// The form's caption and the question that the control answers: "Payment Detail: Bank Name". Empty for a control that
/// answers none, a button for instance.
std::string placeOf(const Control& control);

}  // namespace plandesk
