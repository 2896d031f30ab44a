#pragma once

#include <string_view>

#include "controls/Paper.h"
#include "reports/Feed.h"

namespace plandesk {

enum class ShownBy {
    Procedure,  ///< its own procedure shows it
    Button,     ///< the print button of its form, after the procedure
    Nobody,     ///< it is seen on paper alone
};

// Where the previews stand.
inline constexpr PaperPlace pageWindow{.left = 0, .top = 0, .width = 15000, .height = 9500};
inline constexpr PaperPlace receiptWindow{.left = 0, .top = 0, .width = 15000, .height = 8750};
inline constexpr PaperPlace letterWindow{.left = 0, .top = 600, .width = 15000, .height = 8750};
inline constexpr PaperPlace discretionWindow{.left = 50, .top = 600, .width = 15000, .height = 8750};

/// One report of the system. A function of the report's name gives it, in a file of its own in papers/, and the
/// catalogue of reports lists that function.
struct Report {
    std::string_view name;
    const Feed* feed;              ///< reports of one feed are given their data together
    std::string_view procedure{};  ///< that feeds it, by the system's own name; empty where another report's does
    ShownBy shownBy;
    PaperPlace window;
    Paper (*layout)();  ///< what stands on paper, its fields empty; without the report's name
};

}  // namespace plandesk
