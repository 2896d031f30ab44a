#pragma once

#include <span>
#include <string_view>

namespace plandesk {

class Form;

/// How one value of a section becomes a control's value.
enum class Decode {
    /// Text of a box; a date picker takes the text as a date; a yes/no question takes 1 as Yes, 0 as No, 2 as neither,
    /// and any other number leaves it as it is.
    Plain,
    YesNoStrict,  ///< 1 Yes, 0 No; any other number neither
    Special,      ///< what `special` does
};

/// One statement of the reader: a field of the section, or one "#" part of it, goes to one control.
struct FieldRow {
    static constexpr int whole = -1;

    int field;                 ///< place of the element in its section, from 0
    std::string_view element;  ///< what the writer puts there; never looked at
    int part;                  ///< place in the "#" list of the field, or `whole`
    std::string_view control;
    Decode decode = Decode::Plain;
    void (*special)(Form& form, std::string_view text) = nullptr;
    /// The row is read only when this part of another field of the section is numerically 1.
    struct Condition {
        int field = -1;
        int part = 0;
    } onlyIf{};
};

struct SectionTable {
    std::string_view form;
    std::span<const FieldRow> rows;
};

/// Sections I to V, in the order of their groups.
std::span<const SectionTable> sectionTables();

/// The payment detail: its fees, then the mode of payment, then the bank details, which only a payment that is not in
/// cash has, then the second group of scrutiny fees.
struct FeeTables {
    std::string_view form;
    std::span<const FieldRow> fees;
    int modeField;
    std::span<const FieldRow> bankDetails;
    std::span<const FieldRow> secondScrutiny;
};
const FeeTables& feeTables();

}  // namespace plandesk
