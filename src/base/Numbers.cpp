#include "base/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace plandesk {

namespace {

constexpr int significantDigits = 15;

constexpr std::string_view decimalDigits = "0123456789";

/// The two ways to read a number: the one at the front of a text, blanks passed over wherever they stand; or a whole
/// text, digits grouped by commas.
enum class Reading { Leading, Whole };

/// Takes one number off the front of a text and keeps it in plain form: "-", digits, at most one point, exponent.
class NumberReader {
public:
    NumberReader(std::string_view text, Reading reading) : rest(text), reading(reading) {}

    /// Whether there was a number; what follows it is left in `rest`.
    bool read() {
        const bool isSigned = takeSign();
        const bool whole = takeDigits(reading == Reading::Whole ? "," : "");
        const bool fraction = take(".") && takeDigits();
        if (!whole && !fraction)
            return false;
        takeExponent();
        if (reading == Reading::Whole && !isSigned)
            takeTrailingSign();
        return true;
    }

    std::string plain;
    std::string_view rest;

private:
    /// The next character, or 0 at the end of the text.
    char next() {
        if (reading == Reading::Leading)
            rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
        return rest.empty() ? '\0' : rest.front();
    }

    /// Takes the next character into the plain form when it is one of `characters`.
    bool take(std::string_view characters) {
        const char c = next();
        if (c == '\0' || characters.find(c) == std::string_view::npos)
            return false;
        plain += c;
        rest.remove_prefix(1);
        return true;
    }

    bool takeSign() {
        const bool plus = take("+");
        if (plus)
            plain.pop_back();
        return plus || take("-");
    }

    void takeTrailingSign() {
        if (take("-"))
            std::rotate(plain.begin(), plain.end() - 1, plain.end());
        else if (take("+"))
            plain.pop_back();
    }

    bool takeDigits(std::string_view groupSeparator = {}) {
        if (!take(decimalDigits))
            return false;
        for (;;) {
            if (take(groupSeparator))
                plain.pop_back();
            else if (!take(decimalDigits))
                return true;
        }
    }

    void takeExponent() {
        const std::string_view before = rest;
        const std::size_t length = plain.size();
        if (take("eE")) {
            takeSign();
            if (takeDigits())
                return;
        }
        rest = before;
        plain.resize(length);
    }

    Reading reading;
};

/// Whether a plain number that no double can hold is too large, not too small: whether its first digit that counts
/// stands before the point once the exponent has moved it.
bool isTooLarge(std::string_view plain) {
    const std::size_t exponentAt = std::min(plain.find_first_of("eE"), plain.size());
    const std::string_view mantissa = plain.substr(0, exponentAt);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    long exponent = 0;
    if (exponentAt < plain.size()) {
        const std::string_view digits = plain.substr(exponentAt + 1);
        if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc())
            return digits.front() != '-';
    }
    return static_cast<long>(point) - static_cast<long>(first) + exponent > 0;
}

/// Value of a number in plain form; nothing when it is beyond the range. One too small for a double is 0.
std::optional<double> valueOf(std::string_view plain) {
    double value = 0;
    if (std::from_chars(plain.data(), plain.data() + plain.size(), value).ec == std::errc())
        return value;
    return isTooLarge(plain) ? std::nullopt : std::optional(0.0);
}

/// Value of a text of digits with a point at most, as nearly every number is; nothing for any other text.
std::optional<double> digitsValue(std::string_view text) {
    if (text.find_first_not_of("0123456789.") != std::string_view::npos)
        return std::nullopt;
    double value = 0;
    const char* const textEnd = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), textEnd, value);
    return error == std::errc() && end == textEnd ? std::optional(value) : std::nullopt;
}

/// The plain form of the number that the whole text is; nothing when it is none.
std::optional<std::string> wholeNumber(std::string_view text) {
    NumberReader reader(trim(text), Reading::Whole);
    if (!reader.read() || !reader.rest.empty())
        return std::nullopt;
    return reader.plain;
}

/// The number that the whole text is; nothing when it is none or beyond the range of a double.
std::optional<double> numberOf(std::string_view text) {
    if (const std::optional<double> value = digitsValue(text))
        return value;
    const std::optional<std::string> plain = wholeNumber(text);
    return plain ? valueOf(*plain) : std::nullopt;
}

template <typename Integer>
Integer toInteger(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<Integer>(rounded);
}

/// 0.`digits` times ten to the power `point`; the first digit is not "0" unless the number is 0.
struct Decimal {
    bool negative;
    std::string digits;
    int point;
};

Decimal toDecimal(double value) {
    if (!std::isfinite(value))
        throw RuntimeError(ErrorNumber::Overflow);
    char text[32];
    const auto end =
        std::to_chars(text, std::end(text), std::abs(value), std::chars_format::scientific, significantDigits - 1).ptr;
    // The text is "d.ddddddddddddddesxx".
    constexpr int exponentAt = significantDigits + 2;
    int exponent = 0;
    std::from_chars(text + exponentAt + (text[exponentAt] == '+' ? 1 : 0), end, exponent);
    return {value < 0, text[0] + std::string(text + 2, significantDigits - 1), exponent + 1};
}

/// Adds one to the whole number that a row of digits is.
void increment(std::string& digits) {
    const std::size_t nines = digits.size() - (digits.find_last_not_of('9') + 1);
    if (nines == digits.size())
        digits.insert(digits.begin(), '0');
    const std::size_t raised = digits.size() - nines - 1;
    ++digits[raised];
    digits.replace(raised + 1, nines, nines, '0');
}

/// The number in units of 10 to the power -`decimals`, as digits without a sign, halves rounded away from zero.
std::string roundedUnits(const Decimal& number, int decimals) {
    const int kept = number.point + decimals;
    if (kept < 0)
        return "0";
    const auto count = static_cast<std::size_t>(kept);
    std::string units = number.digits.substr(0, count);
    units.resize(count, '0');
    if (count < number.digits.size() && number.digits[count] >= '5')
        increment(units);
    return units.empty() ? "0" : units;
}

/// "123.45" form.
std::string fixedText(const Decimal& number) {
    if (number.point <= 0)
        return "0." + std::string(static_cast<std::size_t>(-number.point), '0') + number.digits;
    const auto point = static_cast<std::size_t>(number.point);
    std::string text = number.digits;
    if (point < text.size())
        text.insert(point, ".");
    else
        text.resize(point, '0');
    return text;
}

/// "1.2345E+20" form; the exponent has two digits at least.
std::string exponentText(const Decimal& number) {
    const int exponent = number.point - 1;
    const std::string exponentDigits = std::to_string(std::abs(exponent));
    std::string text = number.digits;
    if (text.size() > 1)
        text.insert(1, ".");
    text += exponent < 0 ? "E-" : "E+";
    return text + (exponentDigits.size() < 2 ? "0" : "") + exponentDigits;
}

}  // namespace

double leadingNumber(std::string_view text) {
    if (const std::optional<double> value = digitsValue(text))
        return *value;
    NumberReader reader(text, Reading::Leading);
    if (!reader.read())
        return 0;
    constexpr double largest = std::numeric_limits<double>::max();
    return valueOf(reader.plain).value_or(reader.plain.front() == '-' ? -largest : largest);
}

bool isNumeric(std::string_view text) {
    return digitsValue(text) || wholeNumber(text);
}

double toDouble(std::string_view text) {
    if (const std::optional<double> value = digitsValue(text))
        return *value;
    const std::optional<std::string> plain = wholeNumber(text);
    if (!plain)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    const std::optional<double> value = valueOf(*plain);
    if (!value)
        throw RuntimeError(ErrorNumber::Overflow);
    return *value;
}

std::int16_t toInteger16(double value) {
    return toInteger<std::int16_t>(value);
}

std::int16_t toInteger16(std::string_view text) {
    return toInteger16(toDouble(text));
}

std::int32_t toInteger32(double value) {
    return toInteger<std::int32_t>(value);
}

std::int32_t toInteger32(std::string_view text) {
    return toInteger32(toDouble(text));
}

std::string numberText(double value) {
    constexpr double wholeLimit = 1e15;  // below it a whole number shows all its digits
    if (std::abs(value) < wholeLimit && value == std::trunc(value))
        return std::to_string(static_cast<std::int64_t>(value));
    Decimal number = toDecimal(value);
    number.digits.erase(std::max<std::size_t>(number.digits.find_last_not_of('0') + 1, 1));
    const int decimals = static_cast<int>(number.digits.size()) - number.point;
    const bool fits = number.point <= significantDigits && decimals <= significantDigits;
    return (number.negative ? "-" : "") + (fits ? fixedText(number) : exponentText(number));
}

std::string formatAmount(double value) {
    constexpr int decimals = 2;
    const Decimal number = toDecimal(value);
    std::string units = roundedUnits(number, decimals);
    if (units.size() <= decimals)
        units.insert(0, decimals + 1 - units.size(), '0');
    units.insert(units.size() - decimals, ".");
    const bool isZero = units.find_first_not_of("0.") == std::string::npos;
    return number.negative && !isZero ? "-" + units : units;
}

std::string formatAmount(std::string_view text) {
    const std::optional<double> value = numberOf(text);
    return value ? formatAmount(*value) : std::string(text);
}

std::string formatGrouped(double value) {
    constexpr std::size_t group = 3;
    std::string text = formatAmount(value);
    const std::size_t firstDigit = text.front() == '-' ? 1 : 0;
    for (std::size_t place = text.find('.'); place > firstDigit + group;) {
        place -= group;
        text.insert(place, ",");
    }
    return text;
}

std::string formatGrouped(std::string_view text) {
    const std::optional<double> value = numberOf(text);
    return value ? formatGrouped(*value) : std::string(text);
}

std::string formatWhole(double value) {
    const Decimal number = toDecimal(value);
    const std::string units = roundedUnits(number, 0);
    return number.negative && units != "0" ? "-" + units : units;
}

}  // namespace plandesk
