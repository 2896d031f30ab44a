#include "reports/letters/StatutoryLetters.h"

namespace plandesk {

namespace {

constexpr std::string_view head = "Form For Idemnity for Part Occupancy Certificate ";
constexpr LayoutRow rows[] = {
    {"", "Appendix -I\n(Regulation  No.38)\non stamp paper of such value decided by the Commissioner."},
    {"", "To,\nThe Commissioner,\nMunicipal Corporation of the City of Sindhavali,\nSindhavali."},
    {"", "Reference          : V.P."},
    {"", "Sir,"},
    {"",
     "While thanking you  to allow me to occupy a portion of the above mentioned building  before  acceptance  of  the "
     " "
     "completion certificate of the whole building for the plans"},
    {"", "appreoved under communicarion No.", "txtOccupancyCertificate(0)", "", "*"},
    {.question = "dated", .controls = "DTPicker1", .mark = "*", .spoken = "date of the communication"},
    {"",
     "I  hereby indemnity the Municipal Corporation of the City of Sindhavali against any risk,damage and danger which "
     "may occur to occupants and users of the said portion of building and also undertake to take necessary security "
     "measures for their safety. I say that this undertaking will be binding on me/us our heirs, administrators and to "
     "our assignees."},
    {"", "Yours faithfully,\nOWNER"},
    {.question = "Name : (in block letters)", .controls = "txtOccupancyCertificate(2)", .mark = "*", .spoken = "Name"},
    {"", "Address :", "txtOccupancyCertificate(3)"},
    {"", "Witness :", "txtOccupancyCertificate(4)"},
    {"", "Date :", "DTPicker2"},
    {"", "Attach Compliance Report:\nAttach Document Facility :"},
    mandatoryItems,
};
constexpr LayoutGroup groups[] = {{head, rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet = letterSheet(pages);

}  // namespace

frmforpartoccupancycertificate::frmforpartoccupancycertificate(Proposal& proposal)
    : LetterForm(proposal, formName, head, "rptforpartoccupancycertificate", sheet) {}

void frmforpartoccupancycertificate::enterPressed() {
    rewriteInProperCase(*this);
}

}  // namespace plandesk
