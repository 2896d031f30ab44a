// What frmScrutinyULC looks like. The editors that float over cells stand in no row.

#include "ulc/frmScrutinyULC.h"

namespace plandesk {

namespace {

constexpr LayoutRow proposalRows[] = {
    {"", "Proposal Date", "txtProposalDate"},
    {"", "Case Type", "txtCaseType"},
    {"", "Proposal No", "txtProposalNo"},
    {"", "Area ", "txtArea"},
};

constexpr LayoutRow ownershipRows[] = {
    {"", "", "optDocCtrlOwn(0) optDocCtrlOwn(1)"},
    {"", "", "txtNoOfExtranct", "", "", "lblNoOfExt"},
    {"", "Select Extract No", "cmbExtract"},
    {.question = "Area Division : Partly Combined", .controls = "dgdOwner", .lines = 2},
    {.question = "ULC Order :", .controls = "dgdULCOrderDetails", .lines = 2},
};

constexpr LayoutGroup groups[] = {{"", proposalRows, {}, "fraProposal"}, {"", ownershipRows, {}, "fraOwnership"}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 32, .pages = pages, .buttons = "cmdSave cmdReferesh cmdClose"};

}  // namespace

const Layout& frmScrutinyULC::layout() const {
    return sheet;
}

}  // namespace plandesk
