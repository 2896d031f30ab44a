#include "reports/layouts/Layouts.h"
#include "reports/layouts/Parts.h"

namespace plandesk {

using namespace layouts;

// FLD12 has no blank.
Paper rptNoticeforcommencementofwork() {
    return {
        .name = "rptNoticeforcommencementofwork",
        .title = "Notice for commencement of work",
        .body =
            {
                {SectionKind::Heading,
                 {line({text("FORM FOR NOTICE FOR COMMENCEMENT OF WORK  ")}), line({text("APPENDIX-F")}),
                  line({text("(Regulation No.32)")})}},
                {SectionKind::Letter,
                 {
                     line({text("To,")}),
                     line({text("The Commissioner,")}),
                     line({text("Municipal Corporation of Sindhavali,")}),
                     line({text("Sindhavali.")}),
                 }},
                {SectionKind::Letter,
                 {
                     line({text("Sir,")}),
                     line({
                         text("I hereby certify that the development works/erection/re-erection/demolition or material "
                              "alteration"),
                         text(" in/of building "),
                         field("FLD1"),
                         text("village"),
                         field("FLD2"),
                         text("Sector No."),
                         field("FLD3"),
                         text("Ward No."),
                         field("FLD4"),
                         text("situated at"),
                         field("FLD5"),
                         text("Road/Street,S.No./C.S.No./F.P.No."),
                         field("FLD6"),
                         text("will be commenced on"),
                         field("FLD7"),
                         text(" as per your permission vide office  communication"),
                         text("No."),
                         field("FLD8"),
                         text("dt."),
                         field("FLD9"),
                         text("under the supervision of"),
                         field("FLD10"),
                         text("licenced architect/engineer/structural engineer/supervisor-license No."),
                         field("FLD11"),
                         text("and in accordance"),
                         text(" with the plants sanctioned."),
                     }),
                     line({text("Yours faithfully,")}, RowStyle::Right),
                     line({text("Signature of Owner : ")}, RowStyle::Right),
                 }},
                {SectionKind::Pairs,
                 {
                     {{{text("Name of Owner :"), text("(In block letters)")}, {field("FLD13")}}},
                     pair("Address of Owner :", {field("FLD14")}),
                     pair("Declaration and possession receipt of plot is surrendered to SMC :", {field("FLD15")}),
                     pair("page number : ", {field("FLD16")}),
                 }},
            },
    };
}

}  // namespace plandesk
