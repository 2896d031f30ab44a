#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/Date.h"

namespace plandesk {

/// What a cell of an in-memory table holds; std::monostate is the empty cell (null).
using Value = std::variant<std::monostate, std::int32_t, std::string, Date, double, bool>;

enum class ColumnKind { Integer, Text, Date, Double, Boolean };

inline bool isNull(const Value& value) {
    return std::holds_alternative<std::monostate>(value);
}

/// Whether toKind would give the value back as it is.
bool isOfKind(const Value& value, ColumnKind kind);

/// Text form: a null is empty, numbers in their default form, dates "dd/MM/yyyy", booleans "True" and "False".
std::string valueText(const Value& value);

/// Number that the value is or begins with: a null, a date and a text without a leading number are 0, true is -1.
/// Never fails.
double valueNumber(const Value& value);

/// The value as a cell of a column of that kind holds it; a null stays null. True as a number is -1; a number as a
/// boolean is whether it differs from 0. A text is kept whole, however long.
/// RuntimeError 13 for a text that is no number, date or boolean, and between dates and numbers; 6 for a whole number
/// beyond 32 bits.
Value toKind(Value value, ColumnKind kind);

}  // namespace plandesk
