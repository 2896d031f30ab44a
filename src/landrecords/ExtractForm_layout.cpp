// What frmMain712 and frmPRCEXT look like. The editors that float over cells stand in no row.

#include "landrecords/ExtractForm.h"

namespace plandesk {

namespace {

constexpr LayoutRow headRows[] = {
    {"", "Case Type", "txtCaseType"},
    {"", "", "txtNoOfExtranct", "", "", "lblNoOfExt"},
    {"", "", "cmbExtract", "", "", "lblSelectExtract"},
};

constexpr LayoutRow extractRows[] = {
    {.controls = "dgdInfoOfExtract", .label = "lblInfoExtract", .lines = 1},
    {.question = "Original Ownership", .controls = "dgdOwner", .lines = 4},
    {.question = "Power Of Attorney Information", .controls = "dgdPAH", .lines = 3},
};

constexpr LayoutRow remarkRows[] = {
    {"", "", "txtRemark", "", "", "lblRemark"},
};

constexpr LayoutGroup groups[] = {{"", headRows}, {"", extractRows, {}, "fraExt"}, {"", remarkRows}};
constexpr LayoutPage pages[] = {{groups}};

constexpr Layout sheet{
    .questionWidth = 32,
    .head = "lblHead",
    .pages = pages,
    .buttons = "cmdSave cmdReferesh cmdClose Command1",
};

}  // namespace

const Layout& ExtractForm::layout() const {
    return sheet;
}

}  // namespace plandesk
