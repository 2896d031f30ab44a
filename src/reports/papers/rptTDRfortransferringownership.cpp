#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmtdrfortransferringownership";
constexpr std::array rows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtTDRTransOwn(0)", form},
    {"FLD2", 500, FeedRule::Trimmed, "txtTDRTransOwn(1)", form},
    {"FLD3", 500, FeedRule::Trimmed, "txtTDRTransOwn(2)", form},
    {"FLD4", 500, FeedRule::Trimmed, "txtTDRTransOwn(3)", form},
    {"FLD5", 500, FeedRule::Trimmed, "txtTDRTransOwn(4)", form},
    {"FLD6", 500, FeedRule::Trimmed, "txtTDRTransOwn(5)", form},
    {"FLD7", 500, FeedRule::Trimmed, "txtTDRTransOwn(6)", form},
    {"FLD8", 500, FeedRule::Trimmed, "txtTDRTransOwn(7)", form},
    {"FLD9", 500, FeedRule::Trimmed, "txtTDRTransOwn(8)", form},
    {"FLD10", 500, FeedRule::Trimmed, "txtTDRTransOwn(9)", form},
    {"FLD11", 500, FeedRule::Trimmed, "txtTDRTransOwn(10)", form},
    {"FLD12", 500, FeedRule::Trimmed, "txtTDRTransOwn(11)", form},
    {"FLD13", 500, FeedRule::Trimmed, "txtTDRTransOwn(12)", form},
    {"FLD14", 500, FeedRule::Trimmed, "txtTDRTransOwn(13)", form},
    {"FLD15", 500, FeedRule::Trimmed, "txtTDRTransOwn(14)", form},
    {"FLD16", 500, FeedRule::Trimmed, "txtTDRTransOwn(15)", form},
    {"FLD17", 500, FeedRule::Trimmed, "txtTDRTransOwn(16)", form},
    {"FLD18", 500, FeedRule::Trimmed, "txtTDRTransOwn(17)", form},
    {"FLD19", 500, FeedRule::Trimmed, "txtTDRTransOwn(18)", form},
    {"FLD20", 500, FeedRule::Trimmed, "txtTDRTransOwn(19)", form},
    {"FLD21", 500, FeedRule::Trimmed, "txtTDRTransOwn(20)", form},
    {"FLD22", 500, FeedRule::Trimmed, "txtTDRTransOwn(21)", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns};

PaperSection affidavit() {
    return {SectionKind::Letter,
            {
                line({
                    text("I/WE,"),
                    field("FLD1"),
                    text("aged"),
                    field("FLD2"),
                    text("of Indian inhabitant residing at "),
                    field("FLD3"),
                }),
                line({
                    text("I/We am/are the properietor(s) of the firm"),
                    field("FLD4"),
                    text("Having it's registered office at "),
                    field("FLD5"),
                    text("state on affirmation as under."),
                }),
                line({
                    text("is/am the owner(s) of the land bearing S.No./H.No./C.S.No."),
                    field("FLD6"),
                    text(" situated at"),
                    field("FLD7"),
                    text("of village"),
                    field("FLD8"),
                }),
                line({
                    text("The aforesaid land is partly/fully reseved for the pupose of"),
                    field("FLD9"),
                    text("as per the sactioned/draft development plan of"),
                    field("FLD10"),
                    text("sector earmarked as amenity plot under D.C. Regulation 1994."),
                }),
                line({
                    text("D.C. Regulation 1994. I/We have neither taken any monetary compansation or compensatory "
                         "FSI from "),
                    text("the Municipal Corporation or not claimed Transfer of Development rights in lieu of said "
                         "land earlier."),
                }),
                line({
                    text("I/We, am/are, entitled for T.D.R. and grant of development right Certificate as "
                         "provided under Appendix W "),
                    text("of the Development Control Regulations for the city of Sindhavali, 1994. "),
                }),
                line({text("Dated this"), field("FLD11"), text("day of"), field("FLD12"), text("the year"),
                      field("FLD13")}),
            }};
}

Paper paper() {
    return {
        .title = "TDR for transferring ownership",
        .body =
            {
                {SectionKind::Letter,
                 {
                     line({text("To,")}),
                     line({text("The Commissioner,")}),
                     line({text("Municipal Corporation of Sindhavali,")}),
                     line({text("Sindhavali.")}),
                 }},
                affidavit(),
                {SectionKind::Pairs,
                 {
                     pair("Deponent", {field("FLD14")}),
                 }},
                {SectionKind::Pairs,
                 {
                     pair("Identified by me:", {field("FLD15")}),
                     pair("Advocate", {field("FLD16")}),
                     pair("Name &", {field("FLD17")}),
                     pair("address", {field("FLD18")}),
                 }},
                {SectionKind::Pairs,
                 {
                     pair("Before Me:", {field("FLD19")}),
                     pair("Notary/Metropolitan Magistrate:", {field("FLD20")}),
                     pair("Name :", {field("FLD21")}),
                     pair("Address :", {field("FLD22")}),
                 }},
            },
    };
}

}  // namespace

Report rptTDRfortransferringownership() {
    return {
        .name = "rptTDRfortransferringownership",
        .feed = &feed,
        .procedure = "fillTDROwnership",
        .shownBy = ShownBy::Button,
        .window = letterWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
