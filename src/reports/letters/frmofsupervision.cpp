#include "reports/letters/StatutoryLetters.h"

namespace plandesk {

namespace {

constexpr std::string_view head = "Form of Supervision";
constexpr LayoutRow rows[] = {
    {"", "APPENDIX - B\n(Regulation 18)"},
    {"", "To,"},
    {.question = "The", .controls = "txtOfficername", .mark = "*", .spoken = "officer"},
    {"", "Municipal Corporation of the City of Sindhavali,\nSindhavali."},
    {"", "Sir,"},
    {.question = "The  development erection/re-erection/demolition or material alteration of the building",
     .controls = "txtBuilding",
     .mark = "*",
     .spoken = "building"},
    {"", "on S.No./C.T.S. No./F.P.No.", "txtFPNo", "", "*"},
    {"", "of  Village / Town planning scheme No", "txtSchemeno"},
    {"", "situated at Road/Street", "txtRoad"},
    {"", "ward", "txtWard"},
    {"", "Sector No.", "txtSector"},
    {"",
     "will be carried out under my supervision. All the Materials (type and grade ) and the  work will generally tally "
     "with  the general specifications submitted along with the plans and the work will be carried out according to "
     "the sanctioned plans. I shall be responsible for the execution of the work in all respects."},
    {"", "Yours faithfully,\nSignature of licensed Surveyor/Engineer/Structural Engineer/Supervisior/Architect"},
    {.question = "Name : (in block letters)", .controls = "txtEngineer", .mark = "*", .spoken = "Name"},
    {"", "Licence No/C.A.No.", "txtLicencea", "", "*"},
    {"", "Address :", "txtAddengineer"},
    {"", "Date :", "DTPicker1"},
    mandatoryItems,
};
constexpr LayoutGroup groups[] = {{head, rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet = letterSheet(pages);

}  // namespace

frmofsupervision::frmofsupervision(Proposal& proposal)
    : LetterForm(proposal, formName, head, "rptFormofSupervision", sheet) {
    Command5.click = [this, print = Command5.click] {
        print();
        this->proposal.noReportReturn = true;  // closing the reports does not lead back to the particulars then
    };
}

}  // namespace plandesk
