#include "landrecords/frmPlotExtractRelation.h"

#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "proposal/InPlace.h"

namespace plandesk {

namespace {

constexpr auto columns712 = inPlace<PlotColumn, GridColumn>({
    {PlotColumn::SrNo, {.caption = "Sr No", .width = 0}},
    {PlotColumn::PlotDesciption, {.caption = " ", .width = 2200, .locked = true}},
    {PlotColumn::PlotName, {.caption = "Plot Name", .width = 3600}},
    {PlotColumn::NoOfPRC, {.caption = "No. of Extract", .width = 1600}},
});

constexpr auto columnsPRC = inPlace<PlotColumn, GridColumn>({
    {PlotColumn::SrNo, {.caption = "Sr No", .width = 0}},
    {PlotColumn::PlotDesciption, {.caption = " ", .width = 2200, .locked = true}},
    {PlotColumn::PlotName, {.caption = "Plot Name", .width = 3600}},
    {PlotColumn::NoOfPRC, {.caption = "No. of PRC", .width = 1600}},
});

void copyPlots(Recordset& from, Recordset& to) {
    for (const auto& row : from.allRows()) {
        to.addNew();
        for (std::size_t column = 0; column < row.size(); ++column)
            to.set(static_cast<int>(column), row[column]);
        to.update();
    }
}

}  // namespace

frmPlotExtractRelation::frmPlotExtractRelation(Proposal& proposal)
    : DataForm(proposal, formName, "Plot Extract Relation Ship"),
      land{txtNoOfPlot712,
           txtNoOfExtract712,
           dgd712ExtractRelation,
           columns712,
           &Tables::rsPlot712,
           &Tables::rsPlot712Saved,
           gapTables712,
           false,
           false,
           "0",
           "frmMain712",
           "7/12 Extract Relationship saved Succussfully ! ",
           &Proposal::plotRelXML,
           &Proposal::noOfExtract712},
      cards{txtNoOfPlot,
            txtNoOfPrc,
            dgdPRCPlotRel,
            columnsPRC,
            &Tables::rsPlotPRC,
            &Tables::rsPlotPRCSaved,
            gapTablesPRC,
            true,
            true,
            "1",
            "",
            "PRC Extract Relationship saved Succussfully ! ",
            &Proposal::plotPrcDetailsXML,
            &Proposal::noOfPRC} {
    wire(land);
    wire(cards);
    cmdAddPlot.toolTip = cmdAddPlotPRC.toolTip = "Add New Plot !";
    SSTab1.click = [this] { SSTab1_Click(); };
    cmdAddPlot.click = [this] { txtNoOfPlot712.setText(numberText(leadingNumber(txtNoOfPlot712.text()) + 1)); };
    cmdAddPlotPRC.click = [this] { txtNoOfPlot.setText(numberText(leadingNumber(txtNoOfPlot.text()) + 1)); };
    cmdSave712Relation.click = [this] { saveRelation(land); };
    cmdSave.click = [this] { saveRelation(cards); };
    cmdRefereshExtract.click = [this] {
        reset(land);
        txtNoOfExtract712.setText("");
    };
    cmdRefereshPRC.click = [this] { reset(cards); };  // the total of the PRCs stays as it is
    close712Extract.click = cmdClose.click = [this] { hide(); };
    dgd712ExtractRelation.beforeDelete = [this] { return confirmDelete(); };
    dgd712ExtractRelation.afterDelete = [this] { plotDeleted(); };
    dgdPRCPlotRel.afterDelete = [this] { recount(cards); };
    procedure("Save712ExtractRaltionShip", [this] { Save712ExtractRaltionShip(); });
    procedure("dgd712ExtractRelationColSetting", [this] { dgd712ExtractRelationColSetting(); });
    procedure("dgdPRCPlotRelColSetting", [this] { dgdPRCPlotRelColSetting(); });
}

void frmPlotExtractRelation::wire(const Family& family) {
    family.plots.keyPress = keyFilterDecimal;
    family.plots.rightAligned = family.total.rightAligned = true;
    family.plots.change = family.plots.lostFocus = [this, &family] { plotsChanged(family); };
    family.grid.afterColumnUpdate = [this, &family](int) { recount(family); };
    family.grid.enterKey = [this, &family] { return enterOnGrid(family); };
}

void frmPlotExtractRelation::load() {
    dgd712ExtractRelation.bind(nullptr);
    dgd712ExtractRelationColSetting();
    setFormColors(*this, proposal);
}

void frmPlotExtractRelation::functionKey(std::string_view key) {
    const bool first = SSTab1.tab() == 0;
    if (key == "F3")
        SSTab1.setTab(first ? 1 : 0);
    else if (key == "F2")
        saveRelation(first ? land : cards);
    else if (key == "Esc")
        hide();
}

void frmPlotExtractRelation::open() {
    show();
    SSTab1.setTab(0);
    rebind(land);
    proposal.tables.create(land.saved);
    proposal.tables.create(cards.saved);
    copyPlots(proposal.tables.ensure(land.table), *(proposal.tables.*land.saved));
}

// The snapshot of the PRC plots is renewed at each visit of their tab, with the edits made so far in it.
void frmPlotExtractRelation::SSTab1_Click() {
    if (SSTab1.tab() != 1)
        return;
    rebind(cards);
    proposal.tables.create(cards.saved);
    copyPlots(proposal.tables.ensure(cards.table), *(proposal.tables.*cards.saved));
}

void frmPlotExtractRelation::rebind(const Family& family) {
    proposal.tables.ensure(family.table);
    family.grid.bind(proposal.tables.*family.table);
    family.grid.setColumns(family.columns);
}

void frmPlotExtractRelation::dgd712ExtractRelationColSetting() {
    dgd712ExtractRelation.setColumns(columns712);
}

void frmPlotExtractRelation::dgdPRCPlotRelColSetting() {
    dgdPRCPlotRel.setColumns(columnsPRC);
}

void frmPlotExtractRelation::plotsChanged(const Family& family) {
    if (&family == &land && rowBeingDeleted)
        return recount(family);
    const std::string_view text = trim(family.plots.text());
    if (text.empty())
        return;
    const std::int16_t number = toInteger16(text);
    Recordset& plots = proposal.tables.ensure(family.table);
    for (int i = 1; i <= number; ++i) {
        plots.setFilter(" SrNo = " + std::to_string(i));
        if (plots.recordCount() == 0)
            plots.addNew();
        plots.set(PlotColumn::SrNo, i);
        plots.set(PlotColumn::PlotDesciption, "For Plot No : " + std::to_string(i));
        plots.update();
        plots.setFilter("");
    }
    if (family.shrinks) {  // on the 7/12 tab, rows above the number stay
        plots.setFilter(" SrNo > " + std::to_string(number));
        plots.deleteVisible();
        plots.setFilter("");
    }
    rebind(family);
    recount(family);
}

void frmPlotExtractRelation::recount(const Family& family) {
    Recordset& plots = proposal.tables.ensure(family.table);
    const Bookmark place = plots.bookmark();
    const std::int16_t total = sumOfExtracts(plots);
    if (family.keepsRow || !rowBeingDeleted)
        plots.setBookmark(place);
    family.total.setText(std::to_string(total));
    family.grid.refresh();
}

bool frmPlotExtractRelation::enterOnGrid(const Family& family) {
    Grid& grid = family.grid;
    const std::string& plots = family.plots.text();
    const int next = grid.currentRow() + 1;
    // The number of plots may be beyond the rows, after a deletion.
    if (plots.empty() || grid.currentColumn() != PlotColumn::NoOfPRC || next >= leadingNumber(plots) ||
        next >= grid.rowCount())
        return false;
    grid.moveTo(next, PlotColumn::PlotName);
    grid.beginEdit(family.enterKey);  // the key goes into the name of the next plot
    return true;
}

bool frmPlotExtractRelation::confirmDelete() {
    rowBeingDeleted = screen().ports.dialogs.askYesNo(
        {"Plot Details Delete Confirmation ",
         "Are you sure to delete Plot Details ? This will delete all realted 7/12 Extract Information and ULC Order "
         "Information ! ",
         Icon::Critical});
    return rowBeingDeleted;
}

// Neither the number of plots nor the numbers of the other rows follow.
void frmPlotExtractRelation::plotDeleted() {
    recount(land);
    rowBeingDeleted = false;
}

void frmPlotExtractRelation::leaveRelation(const Family& family) {
    for (TextBox* box : {&family.total, &family.plots})
        if (trim(box->text()).empty())
            box->setText("0");
    proposal.*family.fragment = family.plots.text() + "^#^" + family.total.text() + "^#^";
    proposal.*family.extracts = toInteger16(family.total.text());
    std::string list;
    Recordset& plots = proposal.tables.ensure(family.table);
    for (plots.moveFirst(); !plots.eof(); plots.moveNext())
        list += valueText(plots.get(PlotColumn::SrNo)) + "$-$" +
                std::string(trim(valueText(plots.get(PlotColumn::PlotName)))) + "$-$" +
                std::to_string(extractCount(plots)) + "@->";
    proposal.*family.fragment += list;
}

void frmPlotExtractRelation::Save712ExtractRaltionShip() {
    leaveRelation(land);
    leaveRelation(cards);
}

void frmPlotExtractRelation::saveRelation(const Family& family) {
    Save712ExtractRaltionShip();
    const NumberChanges changes =
        comparePlots(proposal.tables.ensure(family.saved), proposal.tables.ensure(family.table));
    rebind(family);
    applyNumbers(family, changes);
    proposal.forms.unload(family.unloads);
    screen().message(family.message, "");
}

// Numbers to delete were worked out in the old numbering and are applied upwards, each renumbering what follows, after
// the additions have moved the rows: from the second number on the wrong rows go. Saved proposals have come to be so.
void frmPlotExtractRelation::applyNumbers(const Family& family, const NumberChanges& changes) {
    const Date today = screen().ports.clock.today();
    const auto shift = [this](const GapTable& gap) {
        return gap.counts712First ? toInteger32(leadingNumber(txtNoOfExtract712.text())) : 0;
    };
    ProgressOf progress(screen().ports.progress, caption(),
                        static_cast<int>(changes.added.size() + changes.deleted.size()));
    for (const std::int32_t number : changes.added) {
        for (const GapTable& gap : family.gaps)
            if (number > 0)
                openGap(proposal.tables.ensure(gap.table), number + shift(gap), gap.kind, today);
        progress.step();
    }
    for (const std::int32_t number : changes.deleted) {
        for (const GapTable& gap : family.gaps)
            if (number > 0)
                closeGap(proposal.tables.ensure(gap.table), number + shift(gap));
        progress.step();
    }
}

void frmPlotExtractRelation::reset(const Family& family) {
    family.plots.setText("");
    family.grid.bind(nullptr);
    family.plots.setEnabled(true);
    proposal.tables.create(family.table);
}

}  // namespace plandesk
