// Each gap of a proposal alone is one finding, at its place.

#include <array>

#include "base/Text.h"
#include "particulars/frmAnnexureA.h"
#include "review/Questions.h"
#include "unit/ReviewFixture.h"

namespace plandesk::test {
namespace {

using ReviewMissingTest = ReviewFixture;

TEST_F(ReviewMissingTest, ACompleteProposalLacksNothing) {
    beginWhole();
    EXPECT_EQ(lines(found(FindingKind::Missing)), "");
}

TEST_F(ReviewMissingTest, EachOfTheFifteenTestsOfTheFirstPageIsOneFindingAlone) {
    static constexpr std::array fields =
        std::to_array<std::string_view>({"txtTitle", "cboCaseType", "cboProposalTyp", "cboProposProj", "cboSector",
                                         "txtpltno", "txtFPNo", "txtTikaNo", "txtApplicantNm", "txtApplicantAddr",
                                         "txtArchNm", "txtArchFirstName", "txtRegNm", "txtPltArea", "txtActualArea"});
    static_assert(fields.size() == 15);
    for (const std::string_view field : fields) {
        begin();
        auto& form = world.proposal.forms.get<frmAnnexureA>();
        ASSERT_TRUE(form.firstPageFaults().empty());
        if (auto* box = dynamic_cast<TextBox*>(form.findKey(field)))
            box->setText("  ");
        else
            form.at<ComboBox>(field).setListIndex(-1);
        const std::vector<Finding> missing = found(FindingKind::Missing);
        EXPECT_EQ(form.firstPageFaults().size(), 1U);
        ASSERT_EQ(missing.size(), 1U) << field << "\n" << lines(missing);
        EXPECT_EQ(missing.front().form + "." + missing.front().control, "frmAnnexureA." + std::string(field));
        EXPECT_EQ(missing.front().sentence, std::string(trim(form.firstPageFaults().front().text)));
        EXPECT_FALSE(missing.front().question.empty());
    }
}

/// An answer that the question did not have before.
void answerIt(Control& control) {
    if (auto* box = dynamic_cast<TextBox*>(&control))
        box->setText("7");
    else if (auto* list = dynamic_cast<ComboBox*>(&control))
        list->setListIndex(1);
    else
        FAIL() << control.key();
}

TEST_F(ReviewMissingTest, EachStarredQuestionOfEveryPageIsOneFindingUntilItIsAnswered) {
    world.shell.press("mnuNew");
    world.proposal.screen.event([&] { world.proposal.forms.touch("frmNaOrder")->show(); });
    int starred = 0;
    for (const std::string_view form : {"frmAnnexureA", "AnnexureACont", "frmPayDetail", "frmNaOrder"})
        for (const Question& question : questionsOf(*world.proposal.forms.touch(form))) {
            const std::string key = question.control().key();
            const auto isHere = [&](const Finding& each) { return each.form == form && each.control == key; };
            if (!question.mandatory() || question.control().kind() == ControlKind::DatePicker)
                continue;
            ++starred;
            EXPECT_EQ(std::ranges::count_if(found(FindingKind::Missing), isHere), 1) << form << "." << key;
            answerIt(world.proposal.forms.touch(form)->at(key));
            EXPECT_EQ(std::ranges::count_if(found(FindingKind::Missing), isHere), 0) << form << "." << key;
        }
    EXPECT_EQ(starred, 17);
}

TEST_F(ReviewMissingTest, AnNaOrderThatNobodyBeganLacksNothing) {
    begin();
    world.proposal.forms.touch("frmNaOrder");
    EXPECT_EQ(lines(found(FindingKind::Missing)), "");
    world.box("frmNaOrder", "txtNARemark").setText("7");
    EXPECT_EQ(found(FindingKind::Missing).size(), 3U);
}

TEST_F(ReviewMissingTest, EachDocumentTickedWithoutItsPagesIsOneFinding) {
    struct List {
        std::string_view form;
        int rows;
    };
    begin();
    for (const List& list : {List{"frmDocCheckList", 9}, List{"frmDocCheckList1", 14}})
        for (int row = 0; row < list.rows; ++row) {
            const std::string check = "Check1(" + std::to_string(row) + ")";
            const std::string from = "txtDocPageNo(" + std::to_string(2 * row) + ")";
            const std::string to = "txtDocPageNo(" + std::to_string(2 * row + 1) + ")";
            control<CheckBox>(list.form, check).setValue(1);
            std::vector<Finding> missing = found(FindingKind::Missing);
            ASSERT_EQ(missing.size(), 1U) << lines(missing);
            EXPECT_EQ(missing.front().control, from);
            world.box(list.form, from).setText("3");
            missing = found(FindingKind::Missing);
            ASSERT_EQ(missing.size(), 1U) << lines(missing);
            EXPECT_EQ(missing.front().control, to);
            world.box(list.form, to).setText("4");
            EXPECT_TRUE(found(FindingKind::Missing).empty());
            control<CheckBox>(list.form, check).setValue(0);
            missing = found(FindingKind::Missing);
            ASSERT_EQ(missing.size(), 1U) << lines(missing);
            EXPECT_EQ(missing.front().control, check);
            for (const std::string& box : {from, to})
                world.box(list.form, box).setText("");
        }
}

TEST_F(ReviewMissingTest, EachCellThatARowMustHaveIsOneFinding) {
    struct Case {
        Tables::Member table;
        int column;
        std::string_view form, grid;
    };
    beginWhole();
    for (const Case& each : {Case{&Tables::rsExtract712, ExtractColumn::SurveyNo, "frmMain712", "dgdInfoOfExtract"},
                             Case{&Tables::rsOwner712, OwnerColumn::Name, "frmMain712", "dgdOwner"},
                             Case{&Tables::rsPAH712, HolderColumn::Name, "frmMain712", "dgdPAH"},
                             Case{&Tables::rsExtractPRC, ExtractColumn::SurveyNo, "frmPRCEXT", "dgdInfoOfExtract"},
                             Case{&Tables::rsExtractPRC, ExtractColumn::DateOf712, "frmPRCEXT", "dgdInfoOfExtract"},
                             Case{&Tables::rsOwnerPRC, OwnerColumn::Name, "frmPRCEXT", "dgdOwner"},
                             Case{&Tables::rsPAHPRC, HolderColumn::Name, "frmPRCEXT", "dgdPAH"}}) {
        Recordset& rows = table(each.table);
        ASSERT_GE(rows.rowCount(), 2);
        const Value before = rows.allRows()[1][static_cast<std::size_t>(each.column)];
        rows.replace(1, each.column, Value());
        const std::vector<Finding> missing = found(FindingKind::Missing);
        ASSERT_EQ(missing.size(), 1U) << each.form << "\n" << lines(missing);
        EXPECT_EQ(missing.front().form, each.form);
        EXPECT_EQ(missing.front().control, each.grid);
        EXPECT_EQ(missing.front().row, 1);
        EXPECT_EQ(missing.front().column, each.column);
        EXPECT_GT(missing.front().extract, 0);
        rows.replace(1, each.column, before);
    }
}

TEST_F(ReviewMissingTest, AHolderThatAnExtractDoesNotCountNeedsNoName) {
    beginWhole();
    Recordset& holders = table(&Tables::rsPAH712);
    holders.setFilter("");
    holders.addNew();
    holders.set(HolderColumn::ExtNo, 2);
    holders.update();
    EXPECT_EQ(lines(found(FindingKind::Missing)), "");
    table(&Tables::rsExtract712).replace(1, ExtractColumn::NoOfPAHs, 1);
    EXPECT_EQ(found(FindingKind::Missing).size(), 1U);
}

TEST_F(ReviewMissingTest, AnOrderWithoutItsDetailsIsOneFinding) {
    beginWhole();
    for (const int order : {1, 2, 3}) {
        table(&Tables::rsULCOrder).replace(1, ULCOrderColumn::ULCOrderSelection, std::to_string(order));
        const std::vector<Finding> missing = found(FindingKind::Missing);
        ASSERT_EQ(missing.size(), 1U) << lines(missing);
        EXPECT_EQ(missing.front().control, "dgdULCOrderDetails");
        EXPECT_EQ(missing.front().row, 1);
        EXPECT_EQ(missing.front().extract, 2);
    }
}

TEST_F(ReviewMissingTest, ThePayOrdersNumberBankAndBranchAreFindings) {
    begin();
    control<OptionButton>("frmPayDetail", "OptCheque").setValue(true);
    for (const std::string_view key : {"txtChqDraftNo", "txtBankNm", "txtBranchNm"}) {
        EXPECT_NE(at(found(FindingKind::Missing), "frmPayDetail", key), nullptr) << key;
        world.box("frmPayDetail", key).setText("0.00");  // as a save fills it in
        EXPECT_NE(at(found(FindingKind::Missing), "frmPayDetail", key), nullptr) << key;
        world.box("frmPayDetail", key).setText("77");
        EXPECT_EQ(at(found(FindingKind::Missing), "frmPayDetail", key), nullptr) << key;
    }
    EXPECT_EQ(lines(found(FindingKind::Missing)), "");
}

TEST_F(ReviewMissingTest, WhatTheSaveRefusesIsAFindingEvenWhereItGoesOn) {
    begin();
    world.saveTo("/plans/proposal.xml");
    world.box("frmPayDetail", "txtRate").setText("12&");
    std::vector<Finding> missing = found(FindingKind::Missing);
    const Finding* rate = at(missing, "frmPayDetail", "txtRate");
    ASSERT_NE(rate, nullptr) << lines(missing);
    EXPECT_EQ(rate->cause, "The save goes on with what this form left earlier.");
    world.box("frmAnnexureA", "txtPayDetail").setText("");  // as if it had never been saved
    missing = found(FindingKind::Missing);
    rate = at(missing, "frmPayDetail", "txtRate");
    ASSERT_NE(rate, nullptr) << lines(missing);
    EXPECT_EQ(rate->cause, "It stops the save.");
}

TEST_F(ReviewMissingTest, AnErrorThatEndsTheSaveIsAFinding) {
    begin();
    world.box("frmPlotExtractRelation", "txtNoOfPlot712").restoreText("1");
    world.box("frmPlotExtractRelation", "txtNoOfExtract712").restoreText("70000");
    const std::vector<Finding> missing = found(FindingKind::Missing);
    ASSERT_EQ(missing.size(), 1U) << lines(missing);
    EXPECT_EQ(missing.front().sentence, "Overflow");
    EXPECT_EQ(missing.front().cause, "It stops the save.");
}

}  // namespace
}  // namespace plandesk::test
