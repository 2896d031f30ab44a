#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmnoticeofcommencementofwork";
// Member n of the control array goes to column n + 1; the gap in the array stays a gap.
constexpr std::array rows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtNoticeForCommencment(0)", form},
    {"FLD2", 500, FeedRule::Trimmed, "txtNoticeForCommencment(1)", form},
    {"FLD3", 500, FeedRule::Trimmed, "txtNoticeForCommencment(2)", form},
    {"FLD4", 500, FeedRule::Trimmed, "txtNoticeForCommencment(3)", form},
    {"FLD5", 500, FeedRule::Trimmed, "txtNoticeForCommencment(4)", form},
    {"FLD6", 500, FeedRule::Trimmed, "txtNoticeForCommencment(5)", form},
    {"FLD7", 500, FeedRule::Date, "DTPicker1", form},
    {"FLD8", 500, FeedRule::Trimmed, "txtNoticeForCommencment(7)", form},
    {"FLD9", 500, FeedRule::Date, "DTPicker2", form},
    {"FLD10", 500, FeedRule::Trimmed, "txtNoticeForCommencment(9)", form},
    {"FLD11", 500, FeedRule::Trimmed, "txtNoticeForCommencment(10)", form},
    {"FLD12", 500, FeedRule::Nothing},
    {"FLD13", 500, FeedRule::Trimmed, "txtNoticeForCommencment(12)", form},
    {"FLD14", 500, FeedRule::Trimmed, "txtNoticeForCommencment(13)", form},
    {"FLD15", 500, FeedRule::YesNo, "possessionreciept", form},
    {"FLD16", 500, FeedRule::Trimmed, "txtNoticeForCommencment(15)", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns};

// FLD12 has no blank.
Paper paper() {
    return {
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

}  // namespace

Report rptNoticeforcommencementofwork() {
    return {
        .name = "rptNoticeforcommencementofwork",
        .feed = &feed,
        .procedure = "fillCommencement",
        .shownBy = ShownBy::Button,
        .window = letterWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
