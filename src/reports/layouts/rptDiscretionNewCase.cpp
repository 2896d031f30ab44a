#include "reports/layouts/Layouts.h"
#include "reports/layouts/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

// The first nine rows have no number on paper.
PaperRow rule(std::string_view number, std::string_view words, std::string_view remark) {
    return {{number.empty() ? PaperCell{} : PaperCell{text(number)}, {text(words)}, {field(remark)}}};
}

}  // namespace

Paper rptDiscretionNewCase() {
    return {
        .name = "rptDiscretionNewCase",
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

}  // namespace plandesk
