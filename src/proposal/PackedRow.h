#pragma once

#include <span>
#include <string>
#include <string_view>

namespace plandesk {

class Form;

/// One value of a text in which a form leaves its answers for the document, and the element that takes it. The reader
/// gives each part of the element back to the control that it came from.
struct PackedRow {
    std::string_view element;
    std::string_view controls;  ///< names separated by blanks, as controls/Answers.h knows them
    /// What is written; null: the trimmed answers of the controls, joined by "#".
    std::string (*value)(const Form& form, std::string_view controls) = nullptr;
};

/// The answer of the one control as typed, blanks included: a `value` of rows.
std::string asTyped(const Form& form, std::string_view control);

std::string packedValue(const Form& form, const PackedRow& row);

/// The values of all rows, joined by "$$".
std::string packedText(const Form& form, std::span<const PackedRow> rows);

}  // namespace plandesk
