#include "reports/layouts/Layouts.h"
#include "reports/layouts/Parts.h"

namespace plandesk {

using namespace layouts;

Paper rptDiscretionRevCase() {
    return {
        .name = "rptDiscretionRevCase",
        .title = "Discretion : Revised Case",
        .header = {{SectionKind::Heading,
                    {line({text("Discretion : Revised Case")}), line({text("%D")}, RowStyle::Right)}}},
        .body = {{
            .kind = SectionKind::Table,
            .rows =
                {
                    {{{text("No")},
                      {text("      Rule")},
                      {text("(B) Details/areas in Revised drawing")},
                      {text("(C) Details/areas in sanctioned drawing")},
                      {text("(D)Architect's Remarks for discretion")}},
                     RowStyle::Head},
                    {{{field("SRNO")}, {field("RULE")}, {field("FLDB")}, {field("FLDC")}, {field("FLDD")}}},
                },
            .widths = {6, 28, 17, 17, 32},
            .repeats = true,
        }},
    };
}

}  // namespace plandesk
