#include "landrecords/frmPlotExtractRelation.h"

#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Meaning.h"
#include "landrecords/ExtractForm.h"
#include "proposal/ExtractGaps.h"
#include "proposal/InPlace.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk {

namespace {

constexpr auto plotColumns(std::string_view count) {
    return inPlace<PlotColumn, GridColumn>({
        {PlotColumn::SrNo, {.caption = "Sr No", .width = 0}},
        {PlotColumn::PlotDesciption, {.caption = " ", .width = 2200, .locked = true}},
        {PlotColumn::PlotName, {.caption = "Plot Name", .width = 3600}},
        {PlotColumn::NoOfPRC, {.caption = count, .width = 1600}},
    });
}

constexpr auto columns712 = plotColumns("No. of Extract");
constexpr auto columnsPRC = plotColumns("No. of PRC");

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
      tab712(Tab{
          .family = family712,
          .plots = txtNoOfPlot712,
          .total = txtNoOfExtract712,
          .grid = dgd712ExtractRelation,
          .columns = columns712,
          .shrinks = false,
          .keepsRow = false,
          .enterKey = "0",
          .unloads = "frmMain712",
          .message = "7/12 Extract Relationship saved Succussfully ! ",
      }),
      tabPRC(Tab{
          .family = familyPRC,
          .plots = txtNoOfPlot,
          .total = txtNoOfPrc,
          .grid = dgdPRCPlotRel,
          .columns = columnsPRC,
          .shrinks = true,
          .keepsRow = true,
          .enterKey = "1",
          .unloads = "",
          .message = "PRC Extract Relationship saved Succussfully ! ",
      }) {
    wire(tab712);
    wire(tabPRC);
    txtNoOfPlot712.toolTip = "A smaller number takes no plot away; Ctrl+Delete in the row of a plot does";
    txtNoOfPlot.toolTip = "A smaller number takes the last plots away";
    cmdAddPlot.toolTip = cmdAddPlotPRC.toolTip = "Add New Plot !";
    SSTab1.click = [this] { SSTab1_Click(); };
    cmdAddPlot.click = [this] { txtNoOfPlot712.setText(numberText(leadingNumber(txtNoOfPlot712.text()) + 1)); };
    cmdAddPlotPRC.click = [this] { txtNoOfPlot.setText(numberText(leadingNumber(txtNoOfPlot.text()) + 1)); };
    cmdSave712Relation.click = [this] { saveRelation(tab712); };
    cmdSave.click = [this] { saveRelation(tabPRC); };
    cmdRefereshExtract.click = [this] {
        reset(tab712);
        txtNoOfExtract712.setText("");
    };
    cmdRefereshPRC.click = [this] { reset(tabPRC); };  // the total of the PRCs stays as it is
    close712Extract.click = cmdClose.click = [this] { hide(); };
    dgd712ExtractRelation.beforeDelete = [this] { return confirmDelete(); };
    dgd712ExtractRelation.afterDelete = [this] { plotDeleted(); };
    dgdPRCPlotRel.afterDelete = [this] { recount(tabPRC); };
    procedure("Save712ExtractRaltionShip", [this] { Save712ExtractRaltionShip(); });
    procedure("dgd712ExtractRelationColSetting", [this] { dgd712ExtractRelationColSetting(); });
    procedure("dgdPRCPlotRelColSetting", [this] { dgdPRCPlotRelColSetting(); });
}

void frmPlotExtractRelation::wire(const Tab& tab) {
    tab.plots.keyPress = keyFilterDecimal;
    tab.plots.rightAligned = tab.total.rightAligned = true;
    tab.plots.change = tab.plots.lostFocus = [this, &tab] { plotsChanged(tab); };
    tab.grid.afterColumnUpdate = [this, &tab](int) { recount(tab); };
    tab.grid.enterKey = [this, &tab] { return enterOnGrid(tab); };
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
        saveRelation(first ? tab712 : tabPRC);
    else if (key == "Esc")
        hide();
}

void frmPlotExtractRelation::open() {
    show();
    SSTab1.setTab(0);
    rebind(tab712);
    proposal.tables.create(tab712.family.savedPlots);
    proposal.tables.create(tabPRC.family.savedPlots);
    copyPlots(proposal.tables.ensure(tab712.family.plots), *(proposal.tables.*tab712.family.savedPlots));
}

// The snapshot of the PRC plots is renewed at each visit of their tab, with the edits made so far in it.
void frmPlotExtractRelation::SSTab1_Click() {
    if (SSTab1.tab() != 1)
        return;
    rebind(tabPRC);
    proposal.tables.create(tabPRC.family.savedPlots);
    copyPlots(proposal.tables.ensure(tabPRC.family.plots), *(proposal.tables.*tabPRC.family.savedPlots));
}

void frmPlotExtractRelation::rebind(const Tab& tab) {
    proposal.tables.ensure(tab.family.plots);
    tab.grid.bind(proposal.tables.*tab.family.plots);
    tab.grid.setColumns(tab.columns);
}

void frmPlotExtractRelation::dgd712ExtractRelationColSetting() {
    dgd712ExtractRelation.setColumns(columns712);
}

void frmPlotExtractRelation::dgdPRCPlotRelColSetting() {
    dgdPRCPlotRel.setColumns(columnsPRC);
}

void frmPlotExtractRelation::plotsChanged(const Tab& tab) {
    if (&tab == &tab712 && rowBeingDeleted)
        return recount(tab);
    const std::string_view text = trim(tab.plots.text());
    if (text.empty())
        return;
    const Meaning meant(screen(), tab.plots);
    const std::int16_t number = toInteger16(text);
    Recordset& plots = proposal.tables.ensure(tab.family.plots);
    for (int i = 1; i <= number; ++i) {
        plots.setFilter(" SrNo = " + std::to_string(i));
        if (plots.recordCount() == 0)
            plots.addNew();
        plots.set(PlotColumn::SrNo, i);
        plots.set(PlotColumn::PlotDesciption, "For Plot No : " + std::to_string(i));
        plots.update();
        plots.setFilter("");
    }
    if (tab.shrinks) {  // on the 7/12 tab, rows above the number stay
        plots.setFilter(" SrNo > " + std::to_string(number));
        plots.deleteVisible();
        plots.setFilter("");
    }
    rebind(tab);
    recount(tab);
}

void frmPlotExtractRelation::recount(const Tab& tab) {
    Recordset& plots = proposal.tables.ensure(tab.family.plots);
    const Bookmark place = plots.bookmark();
    const std::int16_t total = sumOfExtracts(plots);
    if (tab.keepsRow || !rowBeingDeleted)
        plots.setBookmark(place);
    tab.total.setText(std::to_string(total));
    tab.grid.refresh();
}

bool frmPlotExtractRelation::enterOnGrid(const Tab& tab) {
    Grid& grid = tab.grid;
    const std::string& plots = tab.plots.text();
    const int next = grid.currentRow() + 1;
    // The number of plots may be beyond the rows, after a deletion.
    if (plots.empty() || grid.currentColumn() != PlotColumn::NoOfPRC || next >= leadingNumber(plots) ||
        next >= grid.rowCount())
        return false;
    grid.moveTo(next, PlotColumn::PlotName);
    grid.beginEdit(tab.enterKey);  // the key goes into the name of the next plot
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
    recount(tab712);
    rowBeingDeleted = false;
}

void frmPlotExtractRelation::leaveRelation(const Tab& tab) {
    for (TextBox* box : {&tab.total, &tab.plots})
        if (trim(box->text()).empty())
            box->setText("0");
    proposal.commands.buildBlock(tab.family.plotList);
}

void frmPlotExtractRelation::Save712ExtractRaltionShip() {
    leaveRelation(tab712);
    leaveRelation(tabPRC);
}

void frmPlotExtractRelation::saveRelation(const Tab& tab) {
    Save712ExtractRaltionShip();
    const NumberChanges changes =
        comparePlots(proposal.tables.ensure(tab.family.savedPlots), proposal.tables.ensure(tab.family.plots));
    rebind(tab);
    applyNumbers(tab.family, changes);
    proposal.forms.unload(tab.unloads);
    const Meaning meant(screen(), savedMeaning(tab));
    screen().message(tab.message, "");
}

/// The second line of the closing message. The form of the PRCs is not unloaded: once it is there, it shows its old
/// number on, and a stranger would look for the cards in vain.
std::string frmPlotExtractRelation::savedMeaning(const Tab& tab) {
    std::string meaning = "File, Save writes it to the proposal's file.";
    if (&tab != &tabPRC || !proposal.forms.loaded(frmPRCEXT::formName))
        return meaning;
    const auto& cards = proposal.forms.get<frmPRCEXT>();
    const std::string shown(trim(cards.txtNoOfExtranct.text()));
    const std::string now = std::to_string(proposal.noOfPRC);
    if (shown == now)
        return meaning;
    return meaning + "\nThe form of the PRCs, which was there before, still shows " + shown +
           ": save the proposal and open it again to see " + now + ".";
}

// Numbers to delete were worked out in the old numbering and are applied upwards, each renumbering what follows, after
// the additions have moved the rows: from the second number on the wrong rows go. Saved proposals have come to be so.
void frmPlotExtractRelation::applyNumbers(const ExtractFamily& family, const NumberChanges& changes) {
    const Renumbering own(changes);
    const Renumbering shared(changes, family.is712 ? 0 : toInteger32(leadingNumber(txtNoOfExtract712.text())));
    if (!own.adds() && !own.deletes())
        return;
    const auto gaps = gapTables(family);
    ProgressOf progress(screen().ports.progress, caption(), static_cast<int>(gaps.size()));
    for (const GapTable& gap : gaps) {
        renumber(proposal.tables.ensure(gap.table), gap.shared ? shared : own, gap.kind, screen().ports.clock.today());
        progress.step();
    }
}

void frmPlotExtractRelation::reset(const Tab& tab) {
    tab.plots.setText("");
    tab.grid.bind(nullptr);
    tab.plots.setEnabled(true);
    proposal.tables.create(tab.family.plots);
}

}  // namespace plandesk
