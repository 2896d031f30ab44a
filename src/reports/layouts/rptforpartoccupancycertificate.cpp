#include "reports/layouts/Layouts.h"
#include "reports/layouts/Parts.h"

namespace plandesk {

using namespace layouts;

// Reference, report and document facility are filled in by pen.
Paper rptforpartoccupancycertificate() {
    return {
        .name = "rptforpartoccupancycertificate",
        .title = "Part occupancy certificate",
        .body =
            {
                {SectionKind::Heading,
                 {line({text("Form for Idemnity for Part Occupancy Certificate ")}), line({text("APPENDIX - L")}),
                  line({text("(Regulation No.38)")}),
                  line({text("on stamp paper of such value decided by the Commissioner.")})}},
                {SectionKind::Letter,
                 {
                     line({text("To,")}),
                     line({text("The Commissioner,")}),
                     line({text("Municipal Corporation of Sindhavali,")}),
                     line({text("Sindhavali.")}),
                 }},
                {SectionKind::Pairs, {pair("Reference          : V.P.")}},
                {SectionKind::Letter,
                 {
                     line({text("Sir,")}),
                     line({
                         text("While thanking you  to allow me to occupy a portion of the above mentioned "),
                         text("building  before  acceptance  of  the  completion certificate of the whole building for "
                              "the plans"),
                         text("appreoved under communicarion No."),
                         field("FLD1"),
                         text("dated"),
                         field("FLD2"),
                         text(" I  hereby"),
                         text("indemnity the Municipal Corporation of the City of Sindhavali against any risk,damage "
                              "and danger "),
                         text("which may occur to occupants and users of the said portion of building and also "
                              "undertake to"),
                         text(" take necessary security measures for their safety. I say that this undertaking will be "
                              "binding "),
                         text(" on me/us our heirs, administrators and to our assignees."),
                     }),
                     line({text("Yours faithfully,")}, RowStyle::Right),
                     line({text("OWNER")}, RowStyle::Right),
                 }},
                {SectionKind::Pairs,
                 {
                     {{{text("Name :"), text("(in block letters)")}, {field("FLD3")}}},
                     pair("Address :", {field("FLD4")}),
                     pair("Witness :", {field("FLD5")}),
                     pair("Date :", {field("FLD6")}),
                     pair("Attach Compliance Report:"),
                     pair("Attach Document Facility :"),
                 }},
            },
    };
}

}  // namespace plandesk
