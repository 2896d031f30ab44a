#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plandesk {

/// Value of the number that `text` begins with: blanks are passed over, reading stops at the first character that
/// cannot belong to a number (sign, digits, one point, exponent). No number gives 0. Never fails: a number beyond the
/// range of a double gives the largest one.
double leadingNumber(std::string_view text);

/// Whether the whole text is a number: blanks around it, a sign at one end, digits grouped by commas, a point and an
/// exponent are allowed; an empty text is not numeric.
bool isNumeric(std::string_view text);

/// The number that the whole text is. RuntimeError 13 when it is none, 6 beyond the range of a double.
double toDouble(std::string_view text);

/// Rounded to a whole number, halves to even. RuntimeError 6 beyond -32768 to 32767; 13 for a text that is no number.
std::int16_t toInteger16(double value);
std::int16_t toInteger16(std::string_view text);

/// The same for -2147483648 to 2147483647.
std::int32_t toInteger32(double value);
std::int32_t toInteger32(std::string_view text);

/// Default text form of a number: at most 15 significant digits, no trailing zeros, "1E+15" form only where 15 digits
/// cannot show it. RuntimeError 6 for a value that is not finite.
std::string numberText(double value);

/// "########0.00": two decimals, halves away from zero on the 15 significant digits, no grouping.
/// RuntimeError 6 for a value that is not finite.
std::string formatAmount(double value);

/// A text that is a number is given in the form of formatAmount; any other text, the empty one and a number beyond the
/// range of a double too, is given back as it is.
std::string formatAmount(std::string_view text);

/// "#,##0.00": as formatAmount, with the whole part grouped by thousands.
std::string formatGrouped(double value);
std::string formatGrouped(std::string_view text);

/// "0": a whole number of at most 15 significant digits, halves away from zero, no grouping, no exponent.
/// RuntimeError 6 for a value that is not finite.
std::string formatWhole(double value);

}  // namespace plandesk
