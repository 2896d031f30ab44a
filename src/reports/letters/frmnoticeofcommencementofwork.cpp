#include "reports/letters/StatutoryLetters.h"

namespace plandesk {

namespace {

constexpr std::string_view head = "Form For Notice For Commencement Of Work";
constexpr LayoutRow rows[] = {
    {"", "Appendix - F\n(Regulation  No.32)"},
    {"", "To,\nThe Commissioner,\nMunicipal Corporation of the City of Sindhavali,\nSindhavali."},
    {"", "Sir,"},
    {"", "I hereby certify that the development works/erection/re-erection/demolition or material alteration"},
    {"", "in/of buiding No.", "txtNoticeForCommencment(0)", "", "*"},
    {"", "Village ", "txtNoticeForCommencment(1)", "", "*"},
    // Both words stand before the blank.
    {.question = "Sector No No.", .controls = "txtNoticeForCommencment(2)", .spoken = "Sector No"},
    {"", "Ward No.", "txtNoticeForCommencment(3)"},
    {"", "Situated at", "txtNoticeForCommencment(4)"},
    {"", "Road/ Street, S.No./C.S.No./F.P.No.", "txtNoticeForCommencment(5)"},
    {"", "will be, Commenced on", "DTPicker1", "", "*"},
    {"", "as per your permission vide office  communication  No.", "txtNoticeForCommencment(7)", "", "*"},
    {.question = "dt", .controls = "DTPicker2", .mark = "*", .spoken = "date of the communication"},
    {"", " under  the  supervision of", "txtNoticeForCommencment(9)"},
    {.question = "licenced architect / engineer / structural  engineer /supervisor-licence No",
     .controls = "txtNoticeForCommencment(10)",
     .spoken = "licence No"},
    {"", "and in accordance with the plants sanctioned."},
    {"", "Yours faithfully,\nSignature of Owner : "},
    {.question = "Name of Owner : (In block letters)",
     .controls = "txtNoticeForCommencment(12)",
     .mark = "*",
     .spoken = "Name of Owner"},
    {"", "Address of Owner :", "txtNoticeForCommencment(13)"},
    {"", "Whether Declararion and Possesion reciept of plot is surrendered to SMC :",
     "possessionreciept(1) possessionreciept(0)"},
    {.controls = "txtNoticeForCommencment(15)", .label = "lblPageNumber"},
    mandatoryItems,
};
constexpr LayoutGroup groups[] = {{head, rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet = letterSheet(pages);

}  // namespace

frmnoticeofcommencementofwork::frmnoticeofcommencementofwork(Proposal& proposal)
    : LetterForm(proposal, formName, head, "rptNoticeforcommencementofwork", sheet, "possessionreciept"),
      pageNumber(at<TextBox>("txtNoticeForCommencment(15)")) {
    lblPageNumber.setVisible(false);
    pageNumber->setVisible(false);
    blanks.answer.front().onClick([this] { possessionreciept_Click(); });
}

void frmnoticeofcommencementofwork::possessionreciept_Click() {
    const bool surrendered = blanks.answer.front().yes.value();
    lblPageNumber.setVisible(surrendered);
    pageNumber->setVisible(surrendered);
    if (!surrendered)
        pageNumber->setText("");
}

}  // namespace plandesk
