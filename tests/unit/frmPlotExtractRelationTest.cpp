#include "landrecords/frmPlotExtractRelation.h"

#include <gtest/gtest.h>

#include "controls/User.h"
#include "proposal/LandRecordColumns.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

struct PlotExtractRelation : testing::Test, World {
    frmPlotExtractRelation& form = proposal.forms.get<frmPlotExtractRelation>();
    Tables& tables = proposal.tables;

    PlotExtractRelation() { form.open(); }

    /// Plots of the tab with these counts.
    void enter(bool prc, const std::vector<int>& counts) {
        Grid& grid = prc ? form.dgdPRCPlotRel : form.dgd712ExtractRelation;
        TextBox& number = prc ? form.txtNoOfPlot : form.txtNoOfPlot712;
        if (number.text() != std::to_string(counts.size()))
            number.setText(std::to_string(counts.size()));
        for (std::size_t row = 0; row < counts.size(); ++row)
            user::editCell(grid, static_cast<int>(row), PlotColumn::NoOfPRC, std::to_string(counts[row]));
    }
    void save(bool prc = false) { user::click(prc ? form.cmdSave : form.cmdSave712Relation); }
    std::vector<Message> boxes() { return ports.dialogs.take(); }

    static std::string numbers(const Recordset& table) {
        std::string list;
        for (const auto& row : table.allRows())
            for (std::size_t column = 0; column < row.size(); ++column)
                if (table.columns()[column].name == "ExtNo")
                    list += (list.empty() ? "" : " ") + valueText(row[column]);
        return list;
    }
    static std::string column(const Recordset& table, std::size_t place) {
        std::string list;
        for (const auto& row : table.allRows())
            list += (list.empty() ? "" : " ") + (isNull(row[place]) ? "null" : valueText(row[place]));
        return list;
    }
};

TEST_F(PlotExtractRelation, OpeningShowsItOnItsFirstTabWithTheGridBound) {
    EXPECT_TRUE(form.visible());
    EXPECT_TRUE(form.front());
    EXPECT_EQ(form.caption(), "Plot Extract Relation Ship");
    EXPECT_EQ(form.lblHead.caption(), " Plot Extract Relationship");
    EXPECT_EQ(form.Label5.caption(), "Press  {F3}  - Toggle      {F2} - Save     {Esc}  - Close");
    EXPECT_EQ(form.dgd712ExtractRelation.table(), tables.rsPlot712.get());
    form.SSTab1.setTab(1);
    form.open();
    EXPECT_EQ(form.SSTab1.tab(), 0);
}

TEST_F(PlotExtractRelation, TheGridsNameTheirColumns) {
    enter(false, {1});
    enter(true, {1});
    for (const auto& [grid, count] :
         {std::pair{&form.dgd712ExtractRelation, "No. of Extract"}, std::pair{&form.dgdPRCPlotRel, "No. of PRC"}}) {
        EXPECT_EQ(grid->column(PlotColumn::SrNo).caption, "Sr No");
        EXPECT_EQ(grid->column(PlotColumn::SrNo).width, 0);
        EXPECT_EQ(grid->column(PlotColumn::PlotDesciption).caption, " ");
        EXPECT_TRUE(grid->column(PlotColumn::PlotDesciption).locked);
        EXPECT_EQ(grid->column(PlotColumn::PlotName).caption, "Plot Name");
        EXPECT_EQ(grid->column(PlotColumn::NoOfPRC).caption, count);
        EXPECT_EQ(grid->cellText(0, PlotColumn::PlotDesciption), "For Plot No : 1");
    }
}

TEST_F(PlotExtractRelation, TheNumberOfPlotsTakesDigitsAndPoints) {
    user::type(form.txtNoOfPlot712, "a2b");
    EXPECT_EQ(form.txtNoOfPlot712.text(), "2");
    EXPECT_EQ(tables.rsPlot712->rowCount(), 2);
    EXPECT_EQ(form.cmdAddPlot.toolTip, "Add New Plot !");
}

TEST_F(PlotExtractRelation, ANumberOfPlotsBeyondSixteenBitsIsAnErrorAndStays) {
    user::type(form.txtNoOfPlot712, "2");
    boxes();
    form.screen().event([&] { form.txtNoOfPlot712.setText("32768"); });
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Overflow", Icon::Critical}}));
    EXPECT_EQ(form.txtNoOfPlot712.text(), "32768");
    EXPECT_EQ(tables.rsPlot712->rowCount(), 2);
}

TEST_F(PlotExtractRelation, LoweringTheNumberRemovesPlotsOnThePrcTabOnly) {
    enter(false, {1, 2, 3});
    enter(true, {1, 2, 3});
    user::type(form.txtNoOfPlot712, "2");
    user::type(form.txtNoOfPlot, "2");
    EXPECT_EQ(column(*tables.rsPlot712, PlotColumn::SrNo), "1 2 3");
    EXPECT_EQ(column(*tables.rsPlotPRC, PlotColumn::SrNo), "1 2");
    EXPECT_EQ(form.txtNoOfExtract712.text(), "6");
    EXPECT_EQ(form.txtNoOfPrc.text(), "3");
}

TEST_F(PlotExtractRelation, AddRaisesTheNumberByOne) {
    user::click(form.cmdAddPlot);
    user::click(form.cmdAddPlot);
    user::showTab(form.SSTab1, 1);
    user::click(form.cmdAddPlotPRC);
    EXPECT_EQ(form.txtNoOfPlot712.text(), "2");
    EXPECT_EQ(form.txtNoOfPlot.text(), "1");
    EXPECT_EQ(column(*tables.rsPlot712, PlotColumn::NoOfPRC), "null null");
    EXPECT_EQ(form.txtNoOfExtract712.text(), "0");
}

TEST_F(PlotExtractRelation, ARecountKeepsTheCurrentRow) {
    enter(false, {1, 2});
    user::goToCell(form.dgd712ExtractRelation, 0, PlotColumn::NoOfPRC);
    user::editCell(form.dgd712ExtractRelation, 0, PlotColumn::NoOfPRC, "5");
    EXPECT_EQ(form.dgd712ExtractRelation.currentRow(), 0);
    EXPECT_EQ(form.txtNoOfExtract712.text(), "7");
}

TEST_F(PlotExtractRelation, ATotalBeyondSixteenBitsIsAnErrorAndTheCountStays) {
    enter(false, {20000, 0});
    boxes();
    user::editCell(form.dgd712ExtractRelation, 1, PlotColumn::NoOfPRC, "20000");
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Overflow", Icon::Critical}}));
    EXPECT_EQ(column(*tables.rsPlot712, PlotColumn::NoOfPRC), "20000 20000");
    EXPECT_EQ(form.txtNoOfExtract712.text(), "20000");
    EXPECT_TRUE(form.visible());
}

TEST_F(PlotExtractRelation, ACountThatIsNoNumberIsRefused) {
    enter(false, {3});
    user::editCell(form.dgd712ExtractRelation, 0, PlotColumn::NoOfPRC, "three");
    EXPECT_EQ(column(*tables.rsPlot712, PlotColumn::NoOfPRC), "3");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(PlotExtractRelation, ATotalThatIsNoNumberIsAnErrorOfTheSave) {
    enter(false, {3});
    form.txtNoOfExtract712.setText("many");
    save();
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Type mismatch", Icon::Critical}}));
    EXPECT_EQ(proposal.plotRelXML, "1^#^many^#^");
    EXPECT_EQ(tables.rsExtract712->rowCount(), 0);
}

TEST_F(PlotExtractRelation, TheFirstSaveNumbersAllPlotsFromOne) {
    enter(false, {2, 1});
    user::editCell(form.dgd712ExtractRelation, 0, PlotColumn::PlotName, "  Plot A ");
    save();
    EXPECT_EQ(proposal.plotRelXML, "2^#^3^#^1$-$Plot A$-$2@->2$-$$-$1@->");
    EXPECT_EQ(proposal.plotPrcDetailsXML, "0^#^0^#^");
    EXPECT_EQ(proposal.noOfExtract712, 3);
    EXPECT_EQ(numbers(*tables.rsExtract712), "1 2 3");
    EXPECT_EQ(numbers(*tables.rsOwner712), "1 2 3");
    EXPECT_EQ(numbers(*tables.rsOwnership), "1 2 3");
    EXPECT_EQ(numbers(*tables.rsSchemeSold), "1 2 3");
    EXPECT_EQ(column(*tables.rsExtract712, ExtractColumn::DateOf712), "15/03/2024 15/03/2024 15/03/2024");
    EXPECT_EQ(column(*tables.rsOwnership, OwnershipColumn::DocStatus), "0 0 0");
    EXPECT_EQ(boxes(),
              (std::vector<Message>{{"", "7/12 Extract Relationship saved Succussfully ! ", Icon::Information}}));
}

TEST_F(PlotExtractRelation, ASecondSaveInOneOpeningAddsTheSameOnceMore) {
    enter(false, {2});
    save();
    save();
    EXPECT_EQ(numbers(*tables.rsExtract712), "3 4 1 2");
}

TEST_F(PlotExtractRelation, SavingWithoutChangesChangesNoTableButUnloadsTheExtractForm) {
    enter(false, {2});
    save();
    form.open();
    proposal.forms.touch("frmMain712");
    boxes();
    save();
    EXPECT_EQ(numbers(*tables.rsExtract712), "1 2");
    EXPECT_EQ(proposal.forms.loaded("frmMain712"), nullptr);
    EXPECT_EQ(boxes().size(), 1U);
}

TEST_F(PlotExtractRelation, ARaisedCountInsertsTheNewExtractBehindThePlotsRun) {
    enter(false, {2, 2});
    save();
    form.open();
    tables.rsExtract712->moveFirst();
    for (const char* survey : {"a", "b", "c", "d"}) {
        tables.rsExtract712->set("SurveyNo", std::string(survey));
        tables.rsExtract712->moveNext();
    }
    enter(false, {3, 2});
    save();
    EXPECT_EQ(numbers(*tables.rsExtract712), "1 2 4 5 3");
    EXPECT_EQ(column(*tables.rsExtract712, ExtractColumn::SurveyNo), "a b c d null");
}

TEST_F(PlotExtractRelation, ReducingAPlotByTwoRemovesTheWrongRowsFromTheSecondOn) {
    enter(false, {3, 2});
    save();
    form.open();
    tables.rsExtract712->moveFirst();
    for (const char* survey : {"a", "b", "c", "d", "e"}) {
        tables.rsExtract712->set("SurveyNo", std::string(survey));
        tables.rsExtract712->moveNext();
    }
    enter(false, {1, 2});
    save();
    // 2 and 3 go in ascending order: "b", then what was "d".
    EXPECT_EQ(column(*tables.rsExtract712, ExtractColumn::SurveyNo), "a c e");
    EXPECT_EQ(numbers(*tables.rsExtract712), "1 2 3");
}

TEST_F(PlotExtractRelation, NumbersBelowOneAreSkipped) {
    enter(false, {2});
    save();
    form.open();
    tables.rsExtract712->moveFirst();
    for (const char* survey : {"a", "b"}) {
        tables.rsExtract712->set("SurveyNo", std::string(survey));
        tables.rsExtract712->moveNext();
    }
    enter(false, {-3});
    save();
    // -2 to 2 were to go; 1 takes "a", and then there is no 2.
    EXPECT_EQ(column(*tables.rsExtract712, ExtractColumn::SurveyNo), "b");
    EXPECT_EQ(numbers(*tables.rsExtract712), "1");
    EXPECT_EQ(proposal.noOfExtract712, -3);
}

TEST_F(PlotExtractRelation, TheLastPlotDeletedLeavesEverySecondOfItsExtracts) {
    enter(false, {4});
    save();
    form.open();
    ports.dialogs.answers = {"yes"};
    user::deleteRow(form.dgd712ExtractRelation, 0);
    EXPECT_EQ(form.txtNoOfExtract712.text(), "0");
    save();
    EXPECT_EQ(numbers(*tables.rsExtract712), "1 2");
    EXPECT_EQ(proposal.plotRelXML, "1^#^0^#^");
}

TEST_F(PlotExtractRelation, ProceduresThatSetTheColumnsRunByName) {
    enter(false, {1});
    enter(true, {1});
    form.dgd712ExtractRelation.setColumns({});
    form.dgdPRCPlotRel.setColumns({});
    EXPECT_TRUE(form.run("dgd712ExtractRelationColSetting"));
    EXPECT_TRUE(form.run("dgdPRCPlotRelColSetting"));
    EXPECT_EQ(form.dgd712ExtractRelation.column(PlotColumn::NoOfPRC).caption, "No. of Extract");
    EXPECT_EQ(form.dgdPRCPlotRel.column(PlotColumn::NoOfPRC).caption, "No. of PRC");
    EXPECT_TRUE(form.run("Save712ExtractRaltionShip"));
    EXPECT_EQ(proposal.plotPrcDetailsXML, "1^#^1^#^1$-$$-$1@->");
}

TEST_F(PlotExtractRelation, NewPlotsStandBehindTheGrowthOfTheLastGrownPlotAlone) {
    enter(false, {1, 1});
    save();
    form.open();
    tables.rsExtract712->moveFirst();
    enter(false, {3, 2, 1});
    save();
    // 2, 3 and 5 for the grown plots; the new one should be 6 but is 1 + 2 + 1 = 4.
    EXPECT_EQ(numbers(*tables.rsExtract712), "1 5 2 3 6 4");
}

TEST_F(PlotExtractRelation, ADeletedPlotIsAskedForAndItsExtractsGoWithTheSave) {
    enter(false, {1, 2, 1});
    save();
    form.open();
    boxes();
    EXPECT_TRUE(user::deleteRow(form.dgd712ExtractRelation, 1));
    EXPECT_EQ(tables.rsPlot712->rowCount(), 3);
    EXPECT_EQ(boxes(),
              (std::vector<Message>{{"Plot Details Delete Confirmation ",
                                     "Are you sure to delete Plot Details ? This will delete all realted 7/12 Extract "
                                     "Information and ULC Order Information ! ",
                                     Icon::Critical}}));
    ports.dialogs.answers = {"yes"};
    user::deleteRow(form.dgd712ExtractRelation, 1);
    EXPECT_EQ(column(*tables.rsPlot712, PlotColumn::SrNo), "1 3");
    EXPECT_EQ(form.txtNoOfPlot712.text(), "3");
    EXPECT_EQ(form.txtNoOfExtract712.text(), "2");
    save();
    EXPECT_EQ(numbers(*tables.rsExtract712), "1 2");
    EXPECT_EQ(proposal.plotRelXML, "3^#^2^#^1$-$$-$1@->3$-$$-$1@->");
}

TEST_F(PlotExtractRelation, PrcPlotsAreDeletedWithoutAQuestion) {
    enter(true, {1, 2});
    EXPECT_TRUE(user::deleteRow(form.dgdPRCPlotRel, 0));
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(form.txtNoOfPrc.text(), "2");
    EXPECT_EQ(form.dgdPRCPlotRel.currentRow(), 0);
}

TEST_F(PlotExtractRelation, TheClosingMessageTellsHowAFormThatWasThereGetsTheNewNumber) {
    const std::string written = "File, Save writes it to the proposal's file.";
    user::showTab(form.SSTab1, 1);
    enter(true, {1});
    save(true);
    EXPECT_EQ(boxes().at(0).detail, written);
    proposal.forms.touch("frmPRCEXT");
    save(true);
    EXPECT_EQ(boxes().at(0).detail, written);
    enter(true, {3});
    save(true);
    EXPECT_EQ(boxes().at(0).detail,
              written +
                  "\nThe form of the PRCs, which was there before, still shows 1: save the proposal and open it "
                  "again to see 3.");
}

TEST_F(PlotExtractRelation, PrcNumbersStandBehindThe712ExtractsInTheOrderTables) {
    enter(false, {2});
    save();
    user::showTab(form.SSTab1, 1);
    enter(true, {2});
    proposal.forms.touch("frmMain712");
    boxes();
    save(true);
    EXPECT_EQ(numbers(*tables.rsExtractPRC), "1 2");
    EXPECT_EQ(numbers(*tables.rsOwnerPRC), "1 2");
    EXPECT_EQ(numbers(*tables.rsOwnership), "1 2 3 4");
    EXPECT_EQ(numbers(*tables.rsULCOrder), "1 2 3 4");
    EXPECT_EQ(proposal.noOfPRC, 2);
    EXPECT_NE(proposal.forms.loaded("frmMain712"), nullptr);
    EXPECT_EQ(boxes(),
              (std::vector<Message>{{"", "PRC Extract Relationship saved Succussfully ! ", Icon::Information}}));
}

TEST_F(PlotExtractRelation, TheSnapshotOfThePrcPlotsIsRenewedAtEachVisitOfTheirTab) {
    user::showTab(form.SSTab1, 1);
    enter(true, {2});
    EXPECT_EQ(tables.rsPlotPRCSaved->rowCount(), 0);
    user::showTab(form.SSTab1, 0);
    user::showTab(form.SSTab1, 1);
    EXPECT_EQ(tables.rsPlotPRCSaved->rowCount(), 1);
    save(true);
    EXPECT_EQ(tables.rsExtractPRC->rowCount(), 0);  // nothing has changed since the visit
}

TEST_F(PlotExtractRelation, FunctionKeysToggleSaveAndClose) {
    enter(false, {1});
    user::press(form.dgd712ExtractRelation, "F2");
    EXPECT_EQ(tables.rsExtract712->rowCount(), 1);
    user::press(form.dgd712ExtractRelation, "F3");
    EXPECT_EQ(form.SSTab1.tab(), 1);
    enter(true, {1});
    user::press(form.dgdPRCPlotRel, "F2");
    EXPECT_EQ(tables.rsExtractPRC->rowCount(), 1);
    user::press(form.dgdPRCPlotRel, "F3");
    EXPECT_EQ(form.SSTab1.tab(), 0);
    user::press(form.dgd712ExtractRelation, "Esc");
    EXPECT_FALSE(form.visible());
}

TEST_F(PlotExtractRelation, EnterOnACountStartsTheNextPlotsNameWithADigit) {
    enter(false, {1, 1});
    enter(true, {1, 1});
    for (const auto& [grid, digit] :
         {std::pair{&form.dgd712ExtractRelation, "0"}, std::pair{&form.dgdPRCPlotRel, "1"}}) {
        user::goToCell(*grid, 0, PlotColumn::NoOfPRC);
        user::press(*grid, "4");
        user::press(*grid, "Enter");
        EXPECT_EQ(grid->cellText(0, PlotColumn::NoOfPRC), "4");
        EXPECT_EQ(grid->currentRow(), 1);
        EXPECT_EQ(grid->currentColumn(), 2);
        EXPECT_EQ(grid->editText(), digit);
    }
}

TEST_F(PlotExtractRelation, EnterOnTheLastCountActsAsTab) {
    enter(false, {1, 1});
    user::goToCell(form.dgd712ExtractRelation, 1, PlotColumn::NoOfPRC);
    user::press(form.dgd712ExtractRelation, "Enter");
    EXPECT_TRUE(form.txtNoOfExtract712.focused());
    user::goToCell(form.dgd712ExtractRelation, 0, PlotColumn::PlotName);
    user::press(form.dgd712ExtractRelation, "Enter");
    EXPECT_EQ(form.dgd712ExtractRelation.currentColumn(), 3);
}

TEST_F(PlotExtractRelation, EnterOnTheLastRowActsAsTabWhenTheNumberOfPlotsIsBeyondIt) {
    enter(false, {1, 1});
    ports.dialogs.answers = {"yes"};
    user::deleteRow(form.dgd712ExtractRelation, 0);
    user::goToCell(form.dgd712ExtractRelation, 0, PlotColumn::NoOfPRC);
    user::press(form.dgd712ExtractRelation, "7");
    user::press(form.dgd712ExtractRelation, "Enter");
    EXPECT_EQ(form.dgd712ExtractRelation.cellText(0, PlotColumn::NoOfPRC), "7");
    EXPECT_FALSE(form.dgd712ExtractRelation.editing());
    EXPECT_TRUE(form.txtNoOfExtract712.focused());
}

TEST_F(PlotExtractRelation, ResetEmptiesThePlotsAndLeavesTheExtracts) {
    enter(false, {2});
    save();
    form.txtNoOfPlot712.setEnabled(false);
    user::click(form.cmdRefereshExtract);
    EXPECT_EQ(form.txtNoOfPlot712.text(), "");
    EXPECT_TRUE(form.txtNoOfPlot712.enabled());
    EXPECT_EQ(form.txtNoOfExtract712.text(), "");
    EXPECT_EQ(tables.rsPlot712->rowCount(), 0);
    EXPECT_EQ(form.dgd712ExtractRelation.rowCount(), 0);
    EXPECT_EQ(tables.rsExtract712->rowCount(), 2);
}

TEST_F(PlotExtractRelation, ResetOfThePrcPlotsLeavesTheirTotal) {
    enter(true, {2});
    form.txtNoOfPlot.setEnabled(false);
    user::showTab(form.SSTab1, 1);
    user::click(form.cmdRefereshPRC);
    EXPECT_EQ(form.txtNoOfPlot.text(), "");
    EXPECT_TRUE(form.txtNoOfPlot.enabled());
    EXPECT_EQ(form.txtNoOfPrc.text(), "2");
    EXPECT_EQ(tables.rsPlotPRC->rowCount(), 0);
    // The save writes "0" into the number of plots, whose reaction recounts.
    form.Save712ExtractRaltionShip();
    EXPECT_EQ(proposal.plotPrcDetailsXML, "0^#^0^#^");
}

TEST_F(PlotExtractRelation, ANameWithSeparatorsBreaksItsOwnEntry) {
    enter(false, {1});
    user::editCell(form.dgd712ExtractRelation, 0, PlotColumn::PlotName, "A$-$B@->");
    form.Save712ExtractRaltionShip();
    EXPECT_EQ(proposal.plotRelXML, "1^#^1^#^1$-$A$-$B@->$-$1@->");
}

TEST_F(PlotExtractRelation, ASnapshotFromBeforeARemovalShowsOnlyTheRemovedPlotsToTheNextSave) {
    enter(false, {1, 1});
    save();
    form.open();
    ports.dialogs.answers = {"yes"};
    user::deleteRow(form.dgd712ExtractRelation, 1);
    save();
    EXPECT_EQ(numbers(*tables.rsExtract712), "1");
    EXPECT_EQ(tables.rsPlot712Saved->recordCount(), 1);
    save();
    EXPECT_EQ(tables.rsPlot712Saved->filter(), " SrNo <> 1");
}

TEST_F(PlotExtractRelation, LongWorkTellsHowFarItHasCome) {
    struct Told : Progress {
        int steps = 0;
        int told = 0;
        int ends = 0;
        void begin(std::string_view, int count) override { steps = count; }
        void step() override { ++told; }
        void end() override { ++ends; }
    } told;
    TestPorts machine;
    const Ports plain = machine;
    Proposal other({plain.dialogs, plain.clock, plain.files, plain.program, told});
    other.tables.createAllTables();
    auto& relation = other.forms.get<frmPlotExtractRelation>();
    relation.open();
    relation.txtNoOfPlot712.setText("1");
    user::editCell(relation.dgd712ExtractRelation, 0, PlotColumn::NoOfPRC, "40");
    user::click(relation.cmdSave712Relation);
    EXPECT_EQ(told.steps, 12);  // one for each table
    EXPECT_EQ(told.told, 12);
    EXPECT_EQ(told.ends, 1);
}

TEST_F(PlotExtractRelation, TheButtonOfTheFirstPageOpensItTheSameWay) {
    tables.rsPlot712Saved.reset();
    form.SSTab1.setTab(1);
    user::click(button("frmAnnexureA", "cmdPlotRelation"));
    EXPECT_EQ(form.SSTab1.tab(), 0);
    EXPECT_NE(tables.rsPlot712Saved, nullptr);
}

}  // namespace
}  // namespace plandesk::test
