#include "reports/layouts/Layouts.h"
#include "reports/layouts/Parts.h"

namespace plandesk {

using namespace layouts;

Paper rptFormofSupervision() {
    return {
        .name = "rptFormofSupervision",
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

}  // namespace plandesk
