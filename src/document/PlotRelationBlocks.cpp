// PLOT-REL and PLOT-PRCDETAILS: how many plots and extracts there are, and each plot with its count.

#include "base/Numbers.h"
#include "base/Text.h"
#include "document/LandRecordBlocks.h"
#include "landrecords/PlotNumbering.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/ExtractFamily.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

/// Where frmPlotExtractRelation shows the counts of a family.
struct Counts {
    TextBox frmPlotExtractRelation::*plots;
    TextBox frmPlotExtractRelation::*extracts;
};

void build(Proposal& proposal, const ExtractFamily& family, const Counts& counts) {
    const auto& form = proposal.forms.get<frmPlotExtractRelation>();
    const std::string& total = (form.*counts.extracts).text();
    proposal.*family.plotList = (form.*counts.plots).text() + "^#^" + total + "^#^";
    proposal.*family.total = toInteger16(total);
    std::string list;
    Recordset& plots = proposal.tables.ensure(family.plots);
    for (plots.moveFirst(); !plots.eof(); plots.moveNext())
        list += valueText(plots.get(PlotColumn::SrNo)) + "$-$" +
                std::string(trim(valueText(plots.get(PlotColumn::PlotName)))) + "$-$" +
                std::to_string(extractCount(plots)) + "@->";
    proposal.*family.plotList += list;
}

}  // namespace

void buildPlotRelation712(Proposal& proposal) {
    build(proposal, family712, {&frmPlotExtractRelation::txtNoOfPlot712, &frmPlotExtractRelation::txtNoOfExtract712});
}

void buildPlotRelationPRC(Proposal& proposal) {
    build(proposal, familyPRC, {&frmPlotExtractRelation::txtNoOfPlot, &frmPlotExtractRelation::txtNoOfPrc});
}

}  // namespace plandesk
