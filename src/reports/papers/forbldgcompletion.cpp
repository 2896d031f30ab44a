#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmbuildingcompletioncertificate";
constexpr std::array rows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtCompletionCertificate(0)", form},
    {"FLD2", 500, FeedRule::Trimmed, "txtCompletionCertificate(1)", form},
    {"FLD3", 500, FeedRule::Trimmed, "txtCompletionCertificate(2)", form},
    {"FLD4", 500, FeedRule::Trimmed, "txtCompletionCertificate(3)", form},
    {"FLD5", 500, FeedRule::Trimmed, "txtCompletionCertificate(4)", form},
    {"FLD6", 500, FeedRule::Trimmed, "txtCompletionCertificate(5)", form},
    {"FLD7", 500, FeedRule::Date, "DTPicker1", form},
    {"FLD8", 500, FeedRule::Trimmed, "txtCompletionCertificate(7)", form},
    {"FLD9", 500, FeedRule::Trimmed, "txtCompletionCertificate(8)", form},
    {"FLD10", 500, FeedRule::Date, "DTPicker2", form},
    {"FLD11", 500, FeedRule::Trimmed, "txtCompletionCertificate(10)", form},
    {"FLD12", 500, FeedRule::Trimmed, "txtCompletionCertificate(11)", form},
    {"FLD13", 500, FeedRule::Trimmed, "txtCompletionCertificate(12)", form},
    {"FLD14", 500, FeedRule::Date, "DTPicker3", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns};

PaperSection letter() {
    return {SectionKind::Letter,
            {
                line({text("Sir ,")}),
                line({
                    text("I here by certify that the erection/re-erection of part/full development work/in on "
                         "building/part building No"),
                    text("building No."),
                    field("FLD1"),
                    text("on in Plot No."),
                    field("FLD2"),
                    text("S.No./City S.No./F.P.No."),
                    field("FLD3"),
                    text("Village/T.P.S.No."),
                    field("FLD4"),
                    text("Sector No."),
                    field("FLD5"),
                    text("Road/Street/Ward No."),
                    field("FLD6"),
                    text("has been supervised by me and has been completed on"),
                    field("FLD7"),
                    text("in accordance with the plans(V.P."),
                    field("FLD8"),
                    text("sactioned wide your office communication No."),
                    field("FLD9"),
                    text("Dated"),
                    field("FLD10"),
                    text(". The work has been completed to my best satisfaction."),
                }),
                line({
                    text("The workmanship and all the materials ( type and Grade ) have been used strictly in "
                         "accordance with general and detailed specifications. "),
                    text("general and detailed specifications. No provisions of the Act or the building "
                         "regulations , no "),
                    text("requisitions made, conditions prescibed or orders issued there under have been  "
                         "transgresed in "),
                    text("the course of the work.No objection certificate from various departments of the "
                         "corporation such as Water suply"),
                    text("and Drainage Deptt, Tree Authority etc. in this respect are enclosed . Further, I am "
                         "enclosing here with "),
                    text("and six copies of the completion of plans, one of which is cloth mounted. The building "
                         "is fit for "),
                    text("for which it has been erected \\ re-errected or altered , constructed and enlarged . I "
                         "have to request"),
                    text("you to arrange for the inspection & give permission for the occupation of the "
                         "building ."),
                }),
                line({text("Your's faithfully")}, RowStyle::Right),
                line({text("Signature of licenced Surveyor / "), text(" or Architect"),
                      text("Surveyor/Engineer/Structural Engineer or Architect")},
                     RowStyle::Right),
            }};
}

Paper paper() {
    return {
        .title = "Building completion certificate",
        .body =
            {
                {SectionKind::Heading,
                 {line({text("Form of applicant for Building Completion Certificate")}), line({text("Appendix - J-1")}),
                  line({text("(Regulation No.36)")})}},
                {SectionKind::Letter,
                 {
                     line({text("To,")}),
                     line({text("Municipal Corporation of the City of Sindhavali,")}),
                     line({text("Sindhavali .")}),
                 }},
                letter(),
                {SectionKind::Pairs,
                 {
                     {{{text("Name : "), text("(In block Letters)")}, {field("FLD11")}}},
                     pair("Address: ", {field("FLD12")}),
                     pair("Licence No", {field("FLD13")}),
                     pair("Date :", {field("FLD14")}),
                 }},
            },
    };
}

}  // namespace

Report forbldgcompletion() {
    return {
        .name = "forbldgcompletion",
        .feed = &feed,
        .procedure = "fillBuildingCompletion",
        .shownBy = ShownBy::Button,
        .window = letterWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
