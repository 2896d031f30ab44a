#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmDiscretionNewCase";
constexpr std::array rows = std::to_array<FeedRow>({
    {"FLD1", 200, FeedRule::Trimmed, "txtRule(0)", form},
    {"FLD2", 200, FeedRule::Trimmed, "txtRule(1)", form},
    {"FLD3", 200, FeedRule::Trimmed, "txtRule(2)", form},
    {"FLD4", 200, FeedRule::Trimmed, "txtRule(3)", form},
    {"FLD5", 200, FeedRule::Trimmed, "txtRule(4)", form},
    {"FLD6", 200, FeedRule::Trimmed, "txtRule(5)", form},
    {"FLD7", 200, FeedRule::Trimmed, "txtRule(6)", form},
    {"FLD8", 200, FeedRule::Trimmed, "txtRule(7)", form},
    {"FLD9", 200, FeedRule::Trimmed, "txtRule(8)", form},
    {"FLD10", 200, FeedRule::Trimmed, "txtRule(9)", form},
    {"FLD11", 200, FeedRule::Trimmed, "txtRule(10)", form},
    {"FLD12", 200, FeedRule::Trimmed, "txtRule(11)", form},
    {"FLD13", 200, FeedRule::Trimmed, "txtRule(12)", form},
    {"FLD14", 200, FeedRule::Trimmed, "txtRule(13)", form},
    {"FLD15", 200, FeedRule::Trimmed, "txtRule(14)", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns};

// The first nine rows have no number on paper.
PaperRow rule(std::string_view number, std::string_view words, std::string_view remark) {
    return {{number.empty() ? PaperCell{} : PaperCell{text(number)}, {text(words)}, {field(remark)}}};
}

Paper paper() {
    return {
        .title = "Discretion : New Case",
        .header = {{SectionKind::Heading,
                    {line({text("Discretion : New Case")}), line({text("%D")}, RowStyle::Right)}}},
        .body = {{
            .kind = SectionKind::Table,
            .rows =
                {
                    {{{text("No")}, {text("      Rule")}, {text("Architect Remarks ")}}, RowStyle::Head},
                    rule("", "Front, rear side1, side2 margin.", "Fld1"),
                    rule("", "Balcony margin", "Fld2"),
                    rule("", "Parking", "Fld3"),
                    rule("", "Building Height", "Fld4"),
                    rule("", "Coverage", "Fld5"),
                    rule("", "Balcony", "Fld6"),
                    rule("", "Passage", "Fld7"),
                    rule("", "No Of Tenements", "Fld8"),
                    rule("", "Recreational ground size", "Fld9"),
                    rule("10", "internal road", "Fld10"),
                    rule("11", "Amenity ", "Fld11"),
                    rule("12", "Ventilation shaft size", "Fld12"),
                    rule("13", "Artificial ventilation shaft ", "Fld13"),
                    rule("14", "Room dimensions", "Fld14"),
                    rule("15", "Lobby/passage", "Fld15"),
                },
            .widths = {8, 42, 50},
        }},
    };
}

}  // namespace

Report rptDiscretionNewCase() {
    return {
        .name = "rptDiscretionNewCase",
        .feed = &feed,
        .shownBy = ShownBy::Button,
        .window = discretionWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
