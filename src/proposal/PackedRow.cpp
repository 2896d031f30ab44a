#include "proposal/PackedRow.h"

#include <vector>

#include "base/Text.h"
#include "controls/Answers.h"

namespace plandesk {

std::string asTyped(const Form& form, std::string_view control) {
    return answer(form, control);
}

std::string packedValue(const Form& form, const PackedRow& row) {
    return row.value ? row.value(form, row.controls) : answers(form, row.controls);
}

std::string packedText(const Form& form, std::span<const PackedRow> rows) {
    std::vector<std::string> values;
    for (const PackedRow& row : rows)
        values.push_back(packedValue(form, row));
    return join(values, "$$");
}

}  // namespace plandesk
