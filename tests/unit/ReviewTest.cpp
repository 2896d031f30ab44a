// What the review finds: each gap of a proposal, each answer that the office would read otherwise, and nothing else.

#include "review/Review.h"

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

#include "particulars/frmAnnexureA.h"
#include "proposal/LandRecordColumns.h"
#include "review/FindQuestion.h"
#include "review/GoTo.h"
#include "review/OfficeReading.h"
#include "review/Questions.h"
#include "ulc/frmScrutinyULC.h"
#include "unit/ReviewFixture.h"
#include "unit/StateText.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

using ReviewTest = ReviewFixture;

TEST_F(ReviewTest, AllFifteenTestsOfAnEmptyFirstPageAreToldAtOnce) {
    world.shell.press("mnuNew");
    const std::vector<Finding> missing = found(FindingKind::Missing);
    for (const std::string_view field : {"txtTitle", "cboCaseType", "cboProposalTyp", "cboProposProj", "cboSector",
                                         "txtpltno", "txtFPNo", "txtTikaNo", "txtApplicantNm", "txtApplicantAddr",
                                         "txtArchNm", "txtArchFirstName", "txtRegNm", "txtPltArea", "txtActualArea"})
        EXPECT_NE(at(missing, "frmAnnexureA", field), nullptr) << field << "\n" << lines(missing);
}

TEST_F(ReviewTest, ADocumentThatIsTickedWithoutPagesIsMissing) {
    begin();
    control<CheckBox>("frmDocCheckList", "Check1(2)").setValue(1);
    const std::vector<Finding> missing = found(FindingKind::Missing);
    EXPECT_NE(at(missing, "frmDocCheckList", "txtDocPageNo(4)"), nullptr) << lines(missing);
    // That a file was written on the way is nothing that is missing.
    EXPECT_EQ(lines(missing).find("has been created"), std::string::npos) << lines(missing);
}

TEST_F(ReviewTest, AnExtractWithoutASurveyNumberAndAnOwnerWithoutANameAreMissing) {
    begin();
    Tables& tables = world.proposal.tables;
    tables.ensure(&Tables::rsExtract712).addNew();
    tables.rsExtract712->set(ExtractColumn::ExtNo, 1);
    tables.ensure(&Tables::rsOwner712).addNew();
    tables.rsOwner712->set(OwnerColumn::ExtNo, 1);
    const std::vector<Finding> missing = found(FindingKind::Missing);
    const Finding* extract = at(missing, "frmMain712", "dgdInfoOfExtract");
    ASSERT_NE(extract, nullptr) << lines(missing);
    EXPECT_EQ(extract->row, 0);
    EXPECT_EQ(extract->column, ExtractColumn::SurveyNo);
    EXPECT_NE(at(missing, "frmMain712", "dgdOwner"), nullptr);
}

TEST_F(ReviewTest, WhatArrivesAsTypedIsNoFinding) {
    begin();
    world.box("frmAnnexureA", "txtApplicantAddr").setText("8, Tilak Path");
    world.box("frmAnnexureA", "txtPltArea").setText("1.50");
    EXPECT_EQ(lines(found(FindingKind::Changed)), "");
}

TEST_F(ReviewTest, EachSeparatorInAFieldOfTheFirstSectionIsItsOwnCause) {
    struct Case {
        std::string_view text, mark;
    };
    for (const Case& each : {Case{"a@b", "@"}, Case{"a||b", "||"}, Case{"a\\b", "\\"}}) {
        begin();
        world.box("frmAnnexureA", "txtTitle").setText(each.text);
        const std::vector<Finding> changed = found(FindingKind::Changed);
        const Finding* title = at(changed, "frmAnnexureA", "txtTitle");
        ASSERT_NE(title, nullptr) << each.text;
        EXPECT_TRUE(title->cause.starts_with(each.mark)) << title->cause;
    }
}

TEST_F(ReviewTest, AValueThatAnotherOneMovesNamesThatOne) {
    begin();
    world.box("frmAnnexureA", "txtArchNm").setText("Lim#aye");
    world.box("frmAnnexureA", "txtArchFirstName").setText("Gauri");
    const std::vector<Finding> changed = found(FindingKind::Changed);
    const Finding* moved = at(changed, "frmAnnexureA", "txtArchFirstName");
    ASSERT_NE(moved, nullptr) << lines(changed);
    EXPECT_EQ(moved->sentence, "\"Gauri\" arrives as \"aye\".");
    EXPECT_TRUE(moved->cause.starts_with("# in \"")) << moved->cause;
}

TEST_F(ReviewTest, TheApplicantsNameIsCutAtATilde) {
    begin();
    world.box("frmAnnexureA", "txtApplicantNm").setText("Sunil~Vasant");
    const std::vector<Finding> changed = found(FindingKind::Changed);
    const Finding* name = at(changed, "frmAnnexureA", "txtApplicantNm");
    ASSERT_NE(name, nullptr) << lines(changed);
    EXPECT_EQ(name->sentence, "\"Sunil~Vasant\" arrives as \"Sunil\".");
    EXPECT_TRUE(name->cause.starts_with("~")) << name->cause;
}

TEST_F(ReviewTest, TheBoxThatMakesTheFileUnreadableComesFirst) {
    begin();
    world.box("frmAnnexureA", "txtWhyNot").setText("Stairs & lift");       // is not escaped
    world.box("frmAnnexureA", "txtApplicantAddr").setText("Sane & Sons");  // is
    const std::vector<Finding> changed = found(FindingKind::Changed);
    ASSERT_FALSE(changed.empty());
    EXPECT_EQ(changed.front().control, "txtWhyNot") << lines(changed);
    EXPECT_EQ(at(changed, "frmAnnexureA", "txtApplicantAddr"), nullptr);
}

TEST_F(ReviewTest, AStoppedSaveIsMissingWithWhatItTells) {
    begin();
    control<OptionButton>("frmPayDetail", "OptCheque").setValue(true);
    world.box("frmPayDetail", "txtChqDraftNo").setText("#");
    const std::vector<Finding> missing = found(FindingKind::Missing);
    EXPECT_TRUE(std::ranges::any_of(missing, [](const Finding& each) { return each.cause == "It stops the save."; }))
        << lines(missing);
}

TEST_F(ReviewTest, ADateInTheFutureAndANetAreaThatDoesNotAddUpAreToBeConsidered) {
    begin();
    world.date("frmAnnexureA", "DTPicker1").setDate({2024, 3, 16});
    world.option("frmAnnexureA", "IsAnyDeductOfRoadLine(1)").setValue(true);
    world.box("frmAnnexureA", "txtPltArea").setText("1000");
    world.box("frmAnnexureA", "txtTotalAreaRoadDeduction").setText("100");
    world.box("frmAnnexureA", "txtNetArea").setText("901");
    const std::vector<Finding> doubtful = found(FindingKind::Consider);
    EXPECT_NE(at(doubtful, "frmAnnexureA", "DTPicker1"), nullptr) << lines(doubtful);
    EXPECT_NE(at(doubtful, "frmAnnexureA", "txtNetArea"), nullptr) << lines(doubtful);
}

TEST_F(ReviewTest, AReviewLeavesTheProposalAsItWas) {
    begin();
    world.box("frmAnnexureA", "txtTitle").setText("a#b");
    const std::string before = stateOf(world.proposal, world.shell);
    review(world.shell);
    EXPECT_EQ(stateOf(world.proposal, world.shell), before);
    EXPECT_TRUE(world.ports.dialogs.messages.empty());
    EXPECT_TRUE(world.ports.files.contents.size() == 1);  // the list of villages
}

TEST_F(ReviewTest, AFindingsControlIsReachedUnlessItsPageIsClosedYet) {
    world.shell.press("mnuNew");
    EXPECT_FALSE(goTo(world.proposal, "frmAnnexureA", "txtBuildingHgt"));
    EXPECT_FALSE(goTo(world.proposal, "frmAnnexureA", "txtNothing"));
    world.fillFirstPage();
    EXPECT_TRUE(goTo(world.proposal, "frmAnnexureA", "txtBuildingHgt"));
    EXPECT_TRUE(world.box("frmAnnexureA", "txtBuildingHgt").focused());
    EXPECT_EQ(control<TabStrip>("frmAnnexureA", "PropTab").tab(), 2);
}

TEST_F(ReviewTest, ACellOfAnExtractThatIsNotShownIsReachedByChoosingIt) {
    beginWhole();
    world.list("frmMain712", "cmbExtract").pick(0);
    EXPECT_TRUE(goTo(world.proposal, "frmMain712", "dgdInfoOfExtract", 1, ExtractColumn::HissaNo, 2));
    EXPECT_EQ(world.list("frmMain712", "cmbExtract").listIndex(), 1);
    const Grid& grid = world.grid("frmMain712", "dgdInfoOfExtract");
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_EQ(grid.currentColumn(), ExtractColumn::HissaNo);
    EXPECT_TRUE(grid.focused());
}

TEST_F(ReviewTest, AnAnswerOfAnOrderIsReachedThroughTheListOfOrders) {
    beginWhole();
    for (const std::string_view form : {"frmUS84", "frmULC20aDetails", "frmUS22"})
        world.proposal.forms.unload(form);
    table(&Tables::rsULCOrder).replace(0, ULCOrderColumn::ULCOrderSelection, "1");
    EXPECT_TRUE(goTo(world.proposal, "frmUS84", "txtCaseNumber", 0, US84OrderColumn::CaseNo, 1));
    EXPECT_TRUE(world.box("frmUS84", "txtCaseNumber").focused());
    EXPECT_EQ(world.box("frmUS84", "txtCaseNumber").text(), "7");
    // The order of the extract is another one.
    EXPECT_TRUE(goTo(world.proposal, "frmUS22", "txtAreaExistingStruct", 0, US22OrderColumn::FLD1, 1));
    EXPECT_EQ(world.proposal.forms.loaded("frmUS22"), nullptr);
    EXPECT_TRUE(world.grid("frmScrutinyULC", "dgdULCOrderDetails").focused());
}

TEST_F(ReviewTest, AnOrdersOwnFormIsEnteredOnlyWhileItsSaveWritesTheOrderThatIsWanted) {
    beginWhole();
    struct OwnForm {
        std::string_view name, box;
    };
    constexpr std::array forms = std::to_array<OwnForm>(
        {{"frmUS84", "txtCaseNumber"}, {"frmULC20aDetails", "txtDetails"}, {"frmUS22", "txtAreaExistingStruct"}});
    for (const OwnForm& form : forms)
        world.proposal.forms.unload(form.name);
    auto& scrutiny = world.proposal.forms.get<frmScrutinyULC>();
    int order = 0;
    for (const OwnForm& form : forms) {
        const auto reached = [&](int extract) {
            EXPECT_TRUE(goTo(world.proposal, form.name, form.box, -1, -1, extract));
            const Form* sheet = world.proposal.forms.loaded(form.name);
            return sheet && sheet->front();
        };
        table(&Tables::rsULCOrder).replace(0, ULCOrderColumn::ULCOrderSelection, std::to_string(++order));
        table(&Tables::rsULCOrder).replace(1, ULCOrderColumn::ULCOrderSelection, "0");
        EXPECT_FALSE(reached(0)) << form.name;
        EXPECT_FALSE(reached(2)) << form.name;
        EXPECT_EQ(world.proposal.forms.loaded(form.name), nullptr);
        EXPECT_TRUE(reached(1)) << form.name;
        EXPECT_TRUE(reached(0)) << form.name;
        // The form holds the first extract's order: the list goes on showing that extract.
        EXPECT_FALSE(reached(2)) << form.name;
        EXPECT_EQ(scrutiny.cmbExtract.listIndex(), 0);
        // The user chooses another extract himself.
        user::pick(scrutiny.cmbExtract, 1);
        EXPECT_FALSE(reached(0)) << form.name;
        EXPECT_FALSE(reached(2)) << form.name;
        EXPECT_TRUE(reached(1)) << form.name;
        world.proposal.forms.unload(form.name);
    }
}

TEST_F(ReviewTest, AQuestionIsFoundByItsNumberItsWordsAndItsAnswer) {
    begin();
    world.box("frmAnnexureA", "txtBuildingHgt").setText("14.85");
    const auto has = [&](std::string_view wanted) {
        const auto found = findQuestions(world.proposal, wanted);
        return std::ranges::any_of(found, [](const FoundQuestion& each) { return each.control == "txtBuildingHgt"; });
    };
    EXPECT_TRUE(has("9 b"));
    EXPECT_TRUE(has("HEIGHT building"));
    EXPECT_TRUE(has("14.85"));
    EXPECT_FALSE(has("no such words"));
    EXPECT_TRUE(findQuestions(world.proposal, "  ").empty());
}

TEST_F(ReviewTest, TwoProposalsAreComparedByTheirAnswersAndTheRowsByTheirNumbers) {
    begin();
    World other;
    other.shell.press("mnuNew");
    other.fillFirstPage();
    other.proposal.forms.touch("AnnexureACont");
    EXPECT_TRUE(differencesOf(world.proposal, other.proposal).empty());
    other.box("frmAnnexureA", "txtTitle").setText("Another");
    for (const int number : {1, 2}) {
        other.proposal.tables.rsOwner712->addNew();
        other.proposal.tables.rsOwner712->set(OwnerColumn::ExtNo, number);
        other.proposal.tables.rsOwner712->set(OwnerColumn::Name, "Sham");
    }
    world.proposal.tables.rsOwner712->addNew();
    world.proposal.tables.rsOwner712->set(OwnerColumn::ExtNo, 2);
    world.proposal.tables.rsOwner712->set(OwnerColumn::Name, "Sham");
    const auto differences = differencesOf(world.proposal, other.proposal);
    ASSERT_EQ(differences.size(), 2U);
    EXPECT_EQ(differences[0].first.control, "txtTitle");
    EXPECT_EQ(differences[0].second, "Another");
    EXPECT_EQ(differences[1].row, Difference::Row::SecondOnly);
    EXPECT_EQ(differences[1].first.rowKey, "1/1");
}

}  // namespace
}  // namespace plandesk::test
