#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmforpartoccupancycertificate";
constexpr std::array rows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtOccupancyCertificate(0)", form},
    {"FLD2", 500, FeedRule::Date, "DTPicker1", form},
    {"FLD3", 500, FeedRule::Trimmed, "txtOccupancyCertificate(2)", form},
    {"FLD4", 500, FeedRule::Trimmed, "txtOccupancyCertificate(3)", form},
    {"FLD5", 500, FeedRule::Trimmed, "txtOccupancyCertificate(4)", form},
    {"FLD6", 500, FeedRule::Date, "DTPicker2", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns};

// Reference, report and document facility are filled in by pen.
Paper paper() {
    return {
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

}  // namespace

Report rptforpartoccupancycertificate() {
    return {
        .name = "rptforpartoccupancycertificate",
        .feed = &feed,
        .procedure = "fillPartOccupancy",
        .shownBy = ShownBy::Procedure,
        .window = letterWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
