#include "reports/letters/StatutoryLetters.h"

namespace plandesk {

namespace {

constexpr std::string_view head = "Form of applicant for Building Completion Certificate";
constexpr LayoutRow rows[] = {
    {"", "APPENDIX-J-1\n(Regulation  No.36)"},
    {"", "To,\nMunicipal Corporation of the City of Sindhavali,\nSindhavali."},
    {"", "Sir ,"},
    {"",
     "I here by certify that the erection/re-erection of part/full development work/in on building/part building No"},
    {"", "building No.", "txtCompletionCertificate(0)", "", "*"},
    {"", "on in Plot No.", "txtCompletionCertificate(1)"},
    {"", "S.No./City S.No./F.P.No.", "txtCompletionCertificate(2)", "", "*"},
    {"", "Village/T.P.S.No.", "txtCompletionCertificate(3)"},
    {"", "Sector No.", "txtCompletionCertificate(4)"},
    {"", "Road/Street/Ward No.", "txtCompletionCertificate(5)"},
    {"", "has been supervised by me and has been completed on", "DTPicker1", "", "*"},
    {.question = "in accordance with the plans(V.P.", .controls = "txtCompletionCertificate(7)", .spoken = "V.P."},
    {"", "sactioned wide your office communication No.", "txtCompletionCertificate(8)", "", "*"},
    {.question = "Dated", .controls = "DTPicker2", .mark = "*", .spoken = "date of the communication"},
    {"", ". The work has been completed to my best satisfaction."},
    {"",
     "The workmanship and all the materials ( type and Grade ) have been used strictly in accordance with general and "
     "detailed specifications. "
     "general and detailed specifications. No provisions of the Act or the building regulations , no requisitions "
     "made, conditions prescibed or orders issued there under have been  transgresed in the course of the work.No "
     "objection certificate from various departments of the corporation such as Water suply and Drainage Deptt, Tree "
     "Authority etc. in this respect are enclosed . Further, I am enclosing here with and six copies of the "
     "completion of plans, one of which is cloth mounted. The building is fit for for which it has been erected \\ "
     "re-errected or altered , constructed and enlarged . I have to request you to arrange for the inspection & give "
     "permission for the occupation of the building ."},
    {"",
     "Your's faithfully\nSignature of licenced Surveyor / or Architect\nSurveyor/Engineer/Structural Engineer or "
     "Architect"},
    {.question = "Name : (In block Letters)",
     .controls = "txtCompletionCertificate(10)",
     .mark = "*",
     .spoken = "Name"},
    {"", "Address: ", "txtCompletionCertificate(11)"},
    {"", "Licence No", "txtCompletionCertificate(12)", "", "*"},
    {"", "Date :", "DTPicker3"},
    mandatoryItems,
};
constexpr LayoutGroup groups[] = {{head, rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet = letterSheet(pages);

}  // namespace

frmbuildingcompletioncertificate::frmbuildingcompletioncertificate(Proposal& proposal)
    : LetterForm(proposal, formName, head, "forbldgcompletion", sheet) {}

}  // namespace plandesk
