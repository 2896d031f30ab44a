#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>

namespace plandesk {

/// One row of a table whose rows an enumeration names.
template <class Row>
struct Placed {
    int place;
    Row row;
};

/// The rows by their places. `Places` holds the enumeration, from 0 to `count`. A constant table does not compile when
/// it lacks a row, or when one stands at another's place.
template <class Places, class Row, std::size_t rowCount>
constexpr std::array<Row, rowCount> inPlace(const Placed<Row> (&rows)[rowCount]) {
    static_assert(rowCount == Places::count, "the table lacks a row, or has one too many");
    std::array<Row, rowCount> table{};
    for (std::size_t place = 0; place < rowCount; ++place) {
        if (rows[place].place != static_cast<int>(place))
            throw std::logic_error("a row stands at another's place");
        table[place] = rows[place].row;
    }
    return table;
}

}  // namespace plandesk
