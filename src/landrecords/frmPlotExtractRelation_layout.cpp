// What frmPlotExtractRelation looks like.

#include "landrecords/frmPlotExtractRelation.h"

namespace plandesk {

namespace {

constexpr LayoutRow plotRows712[] = {
    {"", "No. of Plot", "txtNoOfPlot712 cmdAddPlot"},
    {.controls = "dgd712ExtractRelation", .lines = 8},
    {"", "Total No. of Extract : ", "txtNoOfExtract712"},
    {"", "", "cmdSave712Relation cmdRefereshExtract close712Extract"},
    {"", "", "Label5"},
};

constexpr LayoutRow plotRowsPRC[] = {
    {"", "No. of Plot", "txtNoOfPlot cmdAddPlotPRC"},
    {.controls = "dgdPRCPlotRel", .lines = 8},
    {"", "Total No. of PRC :", "txtNoOfPrc"},
    {"", "", "cmdSave cmdRefereshPRC cmdClose"},
    {"", "", "Label6"},
};

constexpr LayoutGroup group712[] = {{"", plotRows712, {}, "fra712"}};
constexpr LayoutGroup groupPRC[] = {{"", plotRowsPRC, {}, "Frame1"}};
constexpr LayoutPage pages[] = {{group712}, {groupPRC}};

constexpr Layout sheet{
    .questionWidth = 24,
    .head = "lblHead",
    .tabs = "SSTab1",
    .pages = pages,
};

}  // namespace

const Layout& frmPlotExtractRelation::layout() const {
    return sheet;
}

}  // namespace plandesk
