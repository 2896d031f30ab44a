#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmofsupervision";
constexpr std::array rows = std::to_array<FeedRow>({
    {"Officername", 200, FeedRule::Trimmed, "txtOfficername", form},
    {"Building", 200, FeedRule::Trimmed, "txtBuilding", form},
    {"FPNo", 200, FeedRule::Trimmed, "txtFPNo", form},
    {"Scheme", 200, FeedRule::Trimmed, "txtSchemeno", form},
    {"Road", 200, FeedRule::Trimmed, "txtRoad", form},
    {"Ward", 200, FeedRule::Trimmed, "txtWard", form},
    {"Sector", 200, FeedRule::Trimmed, "txtSector", form},
    {"EngineerName", 200, FeedRule::Trimmed, "txtEngineer", form},
    {"Licenceno", 200, FeedRule::Trimmed, "txtLicencea", form},
    {"AddressEngineer", 200, FeedRule::Trimmed, "txtAddengineer", form},
    {"DTPicker", 200, FeedRule::Date, "DTPicker1", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns};

Paper paper() {
    return {
        .title = "Form of supervision",
        .body =
            {
                {SectionKind::Heading,
                 {line({text("Form of Supervision")}), line({text("APPENDIX - B")}), line({text("(Regulation-18)")})}},
                {SectionKind::Letter,
                 {
                     line({text("To,")}),
                     line({text("The "), field("Officername")}),
                     line({text("Municipal Corporation of the City of Sindhavali,")}),
                     line({text("Sindhavali.")}),
                 }},
                {SectionKind::Letter,
                 {
                     line({text("Sir,")}),
                     line({
                         text("The development erection / re-erection/demolition or material "),
                         text("alteration of building"),
                         field("Building"),
                         text("on S.No./C.T.S. No./FPNo."),
                         field("FPNo"),
                         text("  of"),
                         text("village/ Town planning scheme No."),
                         field("Scheme"),
                         text(" situated at road/street"),
                         field("Road"),
                         text("  Ward"),
                         field("Ward"),
                         text("Sector No."),
                         field("Sector"),
                         text("will be carried out under my supervision. All the Materials (type "),
                         text("and grade ) and the  work will generally tally with  the general specifications "
                              "submitted along with the "),
                         text("plans and the work will be carried out according to the sanctioned plans. I shall be "
                              "responsible for the "),
                         text("execution of the work in all respects."),
                     }),
                     line({text("Yours faithfully,")}, RowStyle::Right),
                     line({text("Signature of licensed "),
                           text("Surveyor/Engineer/Structural Engineer/Supervisior/Architect")},
                          RowStyle::Right),
                 }},
                {SectionKind::Pairs,
                 {
                     {{{text("Name :"), text("(in block letters)")}, {field("EngineerName")}}},
                     pair("Licence No/C.A.No :", {field("Licenceno")}),
                     pair("Address :", {field("AddressEngineer")}),
                     pair("Date :", {field("DTPicker")}),
                 }},
            },
    };
}

}  // namespace

Report rptFormofSupervision() {
    return {
        .name = "rptFormofSupervision",
        .feed = &feed,
        .procedure = "fillSupervision",
        .shownBy = ShownBy::Button,
        .window = letterWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
