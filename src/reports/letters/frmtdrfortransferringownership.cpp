#include "reports/letters/StatutoryLetters.h"

namespace plandesk {

namespace {

constexpr std::string_view head = "TDR-Transferring Owership";
constexpr LayoutRow rows[] = {
    {"", "To,\nThe Commissioner,\nMunicipal Corporation of the City of Sindhavali,\nSindhavali."},
    {.question = "I/WE,", .controls = "txtTDRTransOwn(0)", .mark = "*", .spoken = "owners"},
    {"", "aged", "txtTDRTransOwn(1)"},
    {.question = "of Indian inhabitant residing at ", .controls = "txtTDRTransOwn(2)", .spoken = "residing at"},
    {.question = "I/We am/are the properietor(s) of the firm", .controls = "txtTDRTransOwn(3)", .spoken = "firm"},
    {.question = "Having it's registered office at ", .controls = "txtTDRTransOwn(4)", .spoken = "registered office"},
    {"", "state on affirmation as under."},
    {.question = "is/am the owner(s) of the land bearing S.No./H.No./C.S.No.",
     .controls = "txtTDRTransOwn(5)",
     .mark = "*",
     .spoken = "land bearing S.No./H.No./C.S.No."},
    {"", " situated at", "txtTDRTransOwn(6)"},
    {"", "of village", "txtTDRTransOwn(7)", "", "*"},
    {.question = "The aforesaid land is partly/fully reseved for the pupose of",
     .controls = "txtTDRTransOwn(8)",
     .spoken = "reserved for the purpose of"},
    {.question = "as per the sactioned/draft development plan of",
     .controls = "txtTDRTransOwn(9)",
     .spoken = "development plan of"},
    {"", "sector earmarked as amenity plot under D.C. Regulation 1994."},
    {"",
     "D.C. Regulation 1994. I/We have neither taken any monetary compansation or compensatory FSI from the Municipal "
     "Corporation or not claimed Transfer of Development rights in lieu of said land earlier."},
    {"",
     "I/We, am/are, entitled for T.D.R. and grant of development right Certificate as provided under Appendix W of the "
     "Development Control Regulations for the city of Sindhavali, 1994. "},
    {"", "Dated this", "txtTDRTransOwn(10)"},
    {"", "day of", "txtTDRTransOwn(11)"},
    {"", "the year", "txtTDRTransOwn(12)"},
    {"", "Deponent", "txtTDRTransOwn(13)"},
    {"", "Identified by me:", "txtTDRTransOwn(14)"},
    {"", "Advocate", "txtTDRTransOwn(15)"},
    {.question = "Name &", .controls = "txtTDRTransOwn(16)", .spoken = "name of the advocate"},
    {.question = "address", .controls = "txtTDRTransOwn(17)", .spoken = "address of the advocate"},
    {"", "Before Me:", "txtTDRTransOwn(18)"},
    {"", "Notary/Metropolitan Magistrate:", "txtTDRTransOwn(19)"},
    {.question = "Name :", .controls = "txtTDRTransOwn(20)", .spoken = "name of the notary"},
    {.question = "Address :", .controls = "txtTDRTransOwn(21)", .spoken = "address of the notary"},
    mandatoryItems,
};
constexpr LayoutGroup groups[] = {{head, rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet = letterSheet(pages);

}  // namespace

frmtdrfortransferringownership::frmtdrfortransferringownership(Proposal& proposal)
    : LetterForm(proposal, formName, head, "rptTDRfortransferringownership", sheet) {}

}  // namespace plandesk
