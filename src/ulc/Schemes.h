#pragma once

#include <array>
#include <span>
#include <string_view>

namespace plandesk {

/// The schemes of an exemption under section 20(a)(1), by the index of their list item.
enum Scheme { noScheme = 0, plottingScheme = 1, componentA = 2, componentB = 3, specialDispense = 4 };

inline constexpr std::array schemeNames =
    std::to_array<std::string_view>({"------Select Scheme------", "Plotting Scheme", "Component A Scheme",
                                     "Component B Scheme", "Special Dispense Scheme"});

/// One fixed row of a scheme's table: its number and what it counts.
struct SchemeRow {
    std::string_view number;
    std::string_view size;
};

/// No row for an index that is no scheme.
std::span<const SchemeRow> schemeRows(int scheme);

}  // namespace plandesk
