#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace plandesk {

/// A calendar date of the Gregorian calendar, years 100 to 9999.
struct Date {
    int year = 1900;
    int month = 1;
    int day = 1;

    auto operator<=>(const Date&) const = default;  // NOLINT(modernize-use-nullptr): misread by the check

    bool valid() const;

    /// "dd/MM/yyyy", the one text form of dates in this system.
    std::string text() const;

    /// Reads "dd/MM/yyyy" with one or two digits for day and month, "/", "-" or "." between them, and blanks around;
    /// also "yyyy-MM-dd". Nothing for any other text or a day that the calendar does not have.
    static std::optional<Date> parse(std::string_view text);
};

/// The date that the text is. RuntimeError 13 "Type mismatch" when it is none.
Date toDate(std::string_view text);

}  // namespace plandesk
