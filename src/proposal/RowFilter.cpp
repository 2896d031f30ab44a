#include "proposal/RowFilter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

namespace plandesk {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

[[noreturn]] void malformed() {
    throw RuntimeError(ErrorNumber::ArgumentsOfWrongType);
}

/// Takes an expression apart from the front. Every take... fails with 3001 when the next part is not of its sort.
class ExpressionReader {
public:
    explicit ExpressionReader(std::string_view expression) : rest(trim(expression)) {}

    bool atEnd() const { return rest.empty(); }

    std::string_view takeName() {
        if (atEnd() || rest.front() != '[')
            return take(std::min(rest.find_first_of(" =<>[]"), rest.size()));
        const auto close = rest.find(']');
        if (close == std::string_view::npos)
            malformed();
        const std::string_view name = rest.substr(1, close - 1);
        take(close + 1);
        return name;
    }

    std::string_view takeOperator() {
        // The longer ones first, so that "<=" is not read as "<".
        constexpr std::array operators = std::to_array<std::string_view>({"<=", ">=", "<>", "<", ">", "="});
        const auto next = std::ranges::find_if(operators, [this](auto sign) { return rest.starts_with(sign); });
        if (next == operators.end())
            malformed();
        return take(next->size());
    }

    double takeNumber() {
        const std::string_view number = take(std::min(rest.find_first_not_of("+-.0123456789"), rest.size()));
        // An expression knows no sign behind a number.
        if (!isNumeric(number) || number.ends_with('-') || number.ends_with('+'))
            malformed();
        return toDouble(number);
    }

private:
    std::string_view take(std::size_t length) {
        if (length == 0)
            malformed();
        const std::string_view part = rest.substr(0, length);
        rest = trim(rest.substr(length));
        return part;
    }

    std::string_view rest;
};

void narrow(ColumnCondition& condition, std::string_view comparison, double number) {
    // The neighbouring double turns an open bound into a closed one.
    if (comparison == "<>")
        condition.excluded.insert(number);
    if (comparison == "=" || comparison == ">=")
        condition.low = std::max(condition.low, number);
    if (comparison == ">")
        condition.low = std::max(condition.low, std::nextafter(number, infinity));
    if (comparison == "=" || comparison == "<=")
        condition.high = std::min(condition.high, number);
    if (comparison == "<")
        condition.high = std::min(condition.high, std::nextafter(number, -infinity));
}

ColumnCondition& conditionOn(RowFilter& filter, int column) {
    const auto present = std::ranges::find(filter, column, &ColumnCondition::column);
    if (present != filter.end())
        return *present;
    filter.push_back({.column = column});
    return filter.back();
}

}  // namespace

int columnIndex(std::span<const Column> columns, std::string_view name) {
    const auto column =
        std::ranges::find_if(columns, [name](const Column& each) { return equalsIgnoringCase(each.name, name); });
    if (column == columns.end())
        throw RuntimeError(ErrorNumber::ItemNotFound);
    return static_cast<int>(column - columns.begin());
}

bool ColumnCondition::holds(const Value& value) const {
    if (isNull(value))
        return false;
    const double number = valueNumber(value);
    return low <= number && number <= high && !excluded.contains(number);
}

bool SortOrder::before(std::span<const Value> a, std::span<const Value> b) const {
    const auto place = static_cast<std::size_t>(column);
    const Value& first = descending ? b[place] : a[place];
    const Value& second = descending ? a[place] : b[place];
    const auto* number = std::get_if<std::int32_t>(&first);
    const auto* other = std::get_if<std::int32_t>(&second);
    return number && other ? *number < *other : first < second;
}

RowFilter parseFilter(std::string_view expression, std::span<const Column> columns) {
    RowFilter filter;
    ExpressionReader reader(expression);
    while (!reader.atEnd()) {
        const int column = columnIndex(columns, reader.takeName());
        const ColumnKind kind = columns[static_cast<std::size_t>(column)].kind;
        if (kind != ColumnKind::Integer && kind != ColumnKind::Double)
            malformed();
        const std::string_view comparison = reader.takeOperator();
        narrow(conditionOn(filter, column), comparison, reader.takeNumber());
        if (reader.atEnd())
            break;
        if (!equalsIgnoringCase(reader.takeName(), "AND") || reader.atEnd())
            malformed();
    }
    return filter;
}

std::optional<SortOrder> parseSort(std::string_view expression, std::span<const Column> columns) {
    ExpressionReader reader(expression);
    if (reader.atEnd())
        return std::nullopt;
    SortOrder order{.column = columnIndex(columns, reader.takeName())};
    if (reader.atEnd())
        return order;
    const std::string_view direction = reader.takeName();
    order.descending = equalsIgnoringCase(direction, "DESC");
    if ((!order.descending && !equalsIgnoringCase(direction, "ASC")) || !reader.atEnd())
        malformed();
    return order;
}

}  // namespace plandesk
