#include "base/Date.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <iterator>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace plandesk {

namespace {

std::string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// Takes a number of `least` to `most` digits off the front of the text.
std::optional<int> takeNumber(std::string_view& text, std::size_t least, std::size_t most) {
    const std::size_t count = std::min({text.find_first_not_of("0123456789"), text.size(), most});
    if (count < least)
        return std::nullopt;
    int number = 0;
    std::from_chars(text.data(), text.data() + count, number);
    text.remove_prefix(count);
    return number;
}

bool takeOneOf(std::string_view& text, std::string_view characters) {
    if (text.empty() || characters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

/// One of the three numbers of a date text: which it is, how many digits it may have, what follows it.
struct DatePiece {
    int Date::*part;
    std::size_t leastDigits;
    std::size_t mostDigits;
    std::string_view separators;
};

constexpr std::string_view daySeparators = "/-.";
constexpr DatePiece dayFirst[] = {
    {&Date::day, 1, 2, daySeparators},
    {&Date::month, 1, 2, daySeparators},
    {&Date::year, 4, 4, ""},
};
constexpr DatePiece yearFirst[] = {
    {&Date::year, 4, 4, "-"},
    {&Date::month, 2, 2, "-"},
    {&Date::day, 2, 2, ""},
};

std::optional<Date> parseAs(const DatePiece (&pieces)[3], std::string_view text) {
    Date date;
    for (const DatePiece& piece : pieces) {
        const std::optional<int> number = takeNumber(text, piece.leastDigits, piece.mostDigits);
        if (!number || (!piece.separators.empty() && !takeOneOf(text, piece.separators)))
            return std::nullopt;
        date.*piece.part = *number;
    }
    return text.empty() && date.valid() ? std::optional(date) : std::nullopt;
}

}  // namespace

bool Date::valid() const {
    // The range is tested first: the calendar type holds small numbers only.
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31)
        return false;
    return std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                       std::chrono::day(static_cast<unsigned>(day)))
        .ok();
}

std::string Date::text() const {
    return padded(day, 2) + "/" + padded(month, 2) + "/" + padded(year, 4);
}

std::optional<Date> Date::parse(std::string_view text) {
    const std::string_view trimmed = trim(text);
    const std::optional<Date> date = parseAs(dayFirst, trimmed);
    return date ? date : parseAs(yearFirst, trimmed);
}

Date toDate(std::string_view text) {
    const std::optional<Date> date = Date::parse(text);
    if (!date)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return *date;
}

}  // namespace plandesk
