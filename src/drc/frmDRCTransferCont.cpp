#include "drc/frmDRCTransferCont.h"

#include <string>

#include "base/Text.h"

namespace plandesk {

namespace {

struct Kept {
    TextBox frmDRCTransferCont::*field;
    std::string Proposal::*text;
};

constexpr Kept keptTexts[] = {
    {&frmDRCTransferCont::txtFolioNumber1, &Proposal::drcFolioNumber1},
    {&frmDRCTransferCont::txtFolioNumber2, &Proposal::drcFolioNumber2},
    {&frmDRCTransferCont::txtFolioNumber3, &Proposal::drcFolioNumber3},
    {&frmDRCTransferCont::txtFolioNumber4, &Proposal::drcFolioNumber4},
    {&frmDRCTransferCont::txtFolioNumber5, &Proposal::drcFolioNumber5},
    {&frmDRCTransferCont::txtLoggedBy, &Proposal::drcLoggedBy},
    {&frmDRCTransferCont::txtFullAddress, &Proposal::drcFullAddress},
    {&frmDRCTransferCont::txtDRCNameAddress, &Proposal::drcNameAddress},
    {&frmDRCTransferCont::txtVideReceiptNo, &Proposal::drcVideReceiptNo},
};

constexpr LayoutRow rows[] = {
    {"1", "Folio No.", "txtFolioNumber1"},          {"2", "Folio No.", "txtFolioNumber2"},
    {"3", "Folio No.", "txtFolioNumber3"},          {"4", "Folio No.", "txtFolioNumber4"},
    {"5", "Folio No.", "txtFolioNumber5"},          {"", "Logged by :", "txtLoggedBy"},
    {"", "Full Address :", "txtFullAddress"},       {"", "Name and Address :", "txtDRCNameAddress"},
    {"", "Vide receipt No. :", "txtVideReceiptNo"}, {"", "Date :", "DTPReceiptDate"},
};

constexpr LayoutGroup groups[] = {{"", rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 24, .pages = pages, .buttons = "cmdClose", .centred = true};

}  // namespace

frmDRCTransferCont::frmDRCTransferCont(Proposal& proposal)
    : DataForm(proposal, formName, "DRC Transfer Form (continued)") {
    cmdClose.click = [this] { pressClose(); };
}

void frmDRCTransferCont::load() {
    setAllDatesToToday(*this);
    setFormColors(*this, proposal);
}

const Layout& frmDRCTransferCont::layout() const {
    return sheet;
}

void frmDRCTransferCont::pressClose() {
    for (const Kept& kept : keptTexts)
        proposal.*kept.text = trim((this->*kept.field).text());
    proposal.drcReceiptDate = DTPReceiptDate.date().text();
    hide();
}

}  // namespace plandesk
