#include "proposal/Value.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

namespace plandesk {

namespace {

template <class... Cases>
struct Overload : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overload(Cases...) -> Overload<Cases...>;

double booleanNumber(bool value) {
    return value ? -1 : 0;
}

[[noreturn]] double typeMismatch() {
    throw RuntimeError(ErrorNumber::TypeMismatch);
}

double strictNumber(const Value& value) {
    return std::visit(
        Overload{[](std::int32_t number) { return static_cast<double>(number); }, [](double number) { return number; },
                 [](bool boolean) { return booleanNumber(boolean); },
                 [](const std::string& text) { return toDouble(text); }, [](const auto&) { return typeMismatch(); }},
        value);
}

std::int32_t strictInteger(const Value& value) {
    if (const auto* integer = std::get_if<std::int32_t>(&value))
        return *integer;
    if (const auto* text = std::get_if<std::string>(&value))
        return toInteger32(*text);
    return toInteger32(strictNumber(value));
}

Date strictDate(const Value& value) {
    if (const auto* date = std::get_if<Date>(&value))
        return *date;
    if (const auto* text = std::get_if<std::string>(&value))
        return toDate(*text);
    throw RuntimeError(ErrorNumber::TypeMismatch);
}

bool strictBoolean(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (equalsIgnoringCase(*text, "True"))
            return true;
        if (equalsIgnoringCase(*text, "False"))
            return false;
    }
    return strictNumber(value) != 0;
}

}  // namespace

bool isOfKind(const Value& value, ColumnKind kind) {
    switch (kind) {
    case ColumnKind::Integer:
        return isNull(value) || std::holds_alternative<std::int32_t>(value);
    case ColumnKind::Text:
        return isNull(value) || std::holds_alternative<std::string>(value);
    case ColumnKind::Date:
        return isNull(value) || std::holds_alternative<Date>(value);
    case ColumnKind::Double:
        return isNull(value) || std::holds_alternative<double>(value);
    case ColumnKind::Boolean:
        return isNull(value) || std::holds_alternative<bool>(value);
    }
    return false;
}

std::string valueText(const Value& value) {
    return std::visit(
        Overload{[](std::monostate) { return std::string(); },
                 [](std::int32_t number) { return std::to_string(number); },
                 [](const std::string& text) { return text; }, [](const Date& date) { return date.text(); },
                 [](double number) { return numberText(number); },
                 [](bool boolean) { return std::string(boolean ? "True" : "False"); }},
        value);
}

double valueNumber(const Value& value) {
    return std::visit(
        Overload{[](std::int32_t number) { return static_cast<double>(number); }, [](double number) { return number; },
                 [](bool boolean) { return booleanNumber(boolean); },
                 [](const std::string& text) { return leadingNumber(text); }, [](const auto&) { return 0.0; }},
        value);
}

Value toKind(Value value, ColumnKind kind) {
    if (isOfKind(value, kind))
        return value;
    switch (kind) {
    case ColumnKind::Integer:
        return strictInteger(value);
    case ColumnKind::Text:
        return valueText(value);
    case ColumnKind::Date:
        return strictDate(value);
    case ColumnKind::Double:
        return strictNumber(value);
    case ColumnKind::Boolean:
        return strictBoolean(value);
    }
    throw RuntimeError(ErrorNumber::TypeMismatch);
}

}  // namespace plandesk
