#include "reports/letters/StatutoryLetters.h"

namespace plandesk {

namespace {

constexpr std::string_view head = "Form For Intimatin of Completion of Work Upto Plinth Level";
constexpr LayoutRow rows[] = {
    {"", "Appendix -G\n(Regulation  No.34)"},
    {"", "To,\nMunicipal Corporation of the City of Sindhavali,\nSindhavali."},
    {"", "Sir ,"},
    {"", "The construction upto plinth column upto plinth level has been completed"},
    {"", "in Building No.", "txtCompletionPlint(0)", "", "*"},
    {"", "S.No./C.T.S.No./F.P.No.", "txtCompletionPlint(1)", "", "*"},
    {"", "Village No.", "txtCompletionPlint(2)"},
    {"", "Town planning scheme No", "txtCompletionPlint(3)"},
    {"", "Sector No.", "txtCompletionPlint(4)"},
    {"", "Road/Street", "txtCompletionPlint(5)"},
    {"", "Ward No.", "txtCompletionPlint(6)"},
    {"", "accordance  with  your  permission No.", "txtCompletionPlint(7)", "", "*"},
    {.question = "dated", .controls = "DTPicker1", .mark = "*", .spoken = "date of the permission"},
    {"", "under my  supervision and in accordance with the sactioned plan."},
    {"", "Please  check  the  completed  work  and  permit  work  and permit me to proceed with the rest of the work."},
    {"",
     "Your's faithfully\nSignature of licenced Surveyor / Supervisor or Architect\nSurveyor/Engineer/Structural "
     "Engineer or Architect"},
    {.question = "Name : (In block Letters)", .controls = "txtCompletionPlint(9)", .mark = "*", .spoken = "Name"},
    {"", "Address: ", "txtCompletionPlint(10)"},
    {"", "Date :", "DTPicker2"},
    {"", "Whether record of right is transferred on time name ( 7/12 extract / P.R.Card)  : ",
     "IsRightsTransfered(1) IsRightsTransfered(0)"},
    {"", "Remarks :", "txtCompletionPlint(13)"},
    mandatoryItems,
};
constexpr LayoutGroup groups[] = {{head, rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet = letterSheet(pages);

}  // namespace

frmcompletionuptoplinthlevel::frmcompletionuptoplinthlevel(Proposal& proposal)
    : LetterForm(proposal, formName, head, "rptformforintimationofcompletionofworkuptoplinthlevel", sheet,
                 "IsRightsTransfered") {}

}  // namespace plandesk
