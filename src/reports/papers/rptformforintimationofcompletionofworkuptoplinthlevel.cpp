#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmcompletionuptoplinthlevel";
constexpr std::array rows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtCompletionPlint(0)", form},
    {"FLD2", 500, FeedRule::Trimmed, "txtCompletionPlint(1)", form},
    {"FLD3", 500, FeedRule::Trimmed, "txtCompletionPlint(2)", form},
    {"FLD4", 500, FeedRule::Trimmed, "txtCompletionPlint(3)", form},
    {"FLD5", 500, FeedRule::Trimmed, "txtCompletionPlint(4)", form},
    {"FLD6", 500, FeedRule::Trimmed, "txtCompletionPlint(5)", form},
    {"FLD7", 500, FeedRule::Trimmed, "txtCompletionPlint(6)", form},
    {"FLD8", 500, FeedRule::Trimmed, "txtCompletionPlint(7)", form},
    {"FLD9", 500, FeedRule::Date, "DTPicker1", form},
    {"FLD10", 500, FeedRule::Trimmed, "txtCompletionPlint(9)", form},
    {"FLD11", 500, FeedRule::Trimmed, "txtCompletionPlint(10)", form},
    {"FLD12", 500, FeedRule::Date, "DTPicker2", form},
    {"FLD13", 500, FeedRule::YesNo, "IsRightsTransfered", form},
    {"FLD14", 500, FeedRule::Trimmed, "txtCompletionPlint(13)", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns};

PaperSection letter() {
    return {SectionKind::Letter,
            {
                line({text("Sir ,")}),
                line({
                    text("The construction upto plinth column upto plinth level has been completed"),
                    text("in Building No."),
                    field("FLD1"),
                    text("S.No./C.T.S.No./F.P.No."),
                    field("FLD2"),
                    text("Village No."),
                    field("FLD3"),
                    text("Town planning scheme No"),
                    field("FLD4"),
                    text("Sector No."),
                    field("FLD5"),
                    text("Road/"),
                    text("Street"),
                    field("FLD6"),
                    text("Ward"),
                    text("No."),
                    field("FLD7"),
                    text("accordance  with  your  permission "),
                    text("No."),
                    field("FLD8"),
                    text("dated"),
                    field("FLD9"),
                    text("under my  supervision and in accordance "),
                    text("with the sactioned plan."),
                }),
                line({
                    text("Please  check  the  completed  work  and  permit  work  and permit me to "),
                    text("proceed with the rest of the work."),
                }),
                line({text("Your's faithfully")}, RowStyle::Right),
                line({text("Signature of licenced Surveyor / "), text("Supervisor or Architect"),
                      text("Surveyor/Engineer/Structural Engineer or Architect")},
                     RowStyle::Right),
            }};
}

Paper paper() {
    return {
        .title = "Intimation of completion up to plinth level",
        .body =
            {
                {SectionKind::Heading,
                 {line({text("FORM FOR INTIMATION OF COMPLETION OF WORK UPTO PLINTH LEVEL")}),
                  line({text("APPENDIX-G")}), line({text("(Regulation No.34)")})}},
                {SectionKind::Letter,
                 {
                     line({text("To,")}),
                     line({text("Municipal Corporation of the City of Sindhavali,")}),
                     line({text("Sindhavali .")}),
                 }},
                letter(),
                {SectionKind::Pairs,
                 {
                     {{{text("Name : "), text("(In block Letters)")}, {field("FLD10")}}},
                     pair("Address: ", {field("FLD11")}),
                     pair("Date :", {field("FLD12")}),
                     pair("Whether record of right is transferred on time name(7/12 extract\\P.R.Card) :",
                          {field("FLD13")}),
                     pair("Remarks  :", {field("FLD14")}),
                 }},
            },
    };
}

}  // namespace

Report rptformforintimationofcompletionofworkuptoplinthlevel() {
    return {
        .name = "rptformforintimationofcompletionofworkuptoplinthlevel",
        .feed = &feed,
        .procedure = "fillPlinthCompletion",
        .shownBy = ShownBy::Button,
        .window = letterWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
