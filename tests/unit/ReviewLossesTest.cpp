// What the document or its reader takes otherwise, whatever is typed, is a finding with its cause. One row here for
// each row of what does not come back.

#include <functional>

#include "unit/ReviewFixture.h"

namespace plandesk::test {
namespace {

struct Loss {
    std::string_view what;
    std::function<void(ReviewFixture&)> make;
    std::string_view form, control;
    std::string_view sentence;
    std::string_view cause;  ///< how it begins
};

struct ReviewLossesTest : ReviewFixture {
    TextBox& box(std::string_view form, std::string_view key) { return world.box(form, key); }
    OptionButton& option(std::string_view form, std::string_view key) { return world.option(form, key); }

    void expect(const Loss& loss, void (ReviewFixture::*start)()) {
        (this->*start)();
        const std::set<std::string> before = lineSet(review(world.shell));
        loss.make(*this);
        const std::vector<Finding> changed = further(found(FindingKind::Changed), before);
        const auto finding = std::ranges::find_if(changed, [&](const Finding& each) {
            return each.form == loss.form && each.control == loss.control && each.sentence == loss.sentence;
        });
        ASSERT_NE(finding, changed.end()) << loss.what << "\n" << lines(changed);
        EXPECT_TRUE(finding->cause.starts_with(loss.cause)) << loss.what << "\n" << lineOf(*finding);
    }
};

void put(ReviewFixture& test, std::string_view form, std::string_view key, std::string_view text) {
    test.world.box(form, key).setText(text);
}
void put(ReviewFixture& test, Tables::Member table, int row, int column, const Value& value) {
    test.table(table).replace(row, column, value);
}
void choose(ReviewFixture& test, std::string_view form, std::string_view key) {
    test.world.proposal.screen.event([&] { test.world.option(form, key).setValue(true); });
}

TEST_F(ReviewLossesTest, EachRowOfTheSectionsThatDoesNotComeBackHasItsCause) {
    const Loss losses[] = {
        {"the proposed F.A.R.", [](ReviewFixture& t) { put(t, "frmAnnexureA", "txtTikaNo", "1.5 approx."); },
         "frmAnnexureA", "txtTikaNo", "\"1.5 approx.\" arrives as \"1.5\".", "Only the number that it begins with"},
        {"a case type without a major use",
         [](ReviewFixture& t) { t.world.list("frmAnnexureA", "cboProposalTyp").setListIndex(-1); }, "frmAnnexureA",
         "cboCaseType", "\"New\" does not arrive.", "The office reads the case type from a code"},
        {"the bank of a payment in cash", [](ReviewFixture& t) { put(t, "frmPayDetail", "txtBankNm", "Sahakari"); },
         "frmPayDetail", "txtBankNm", "\"Sahakari\" does not arrive.", "Of a payment in cash"},
        {"the date of a payment in cash",
         [](ReviewFixture& t) {
             t.world.date("frmPayDetail", "DTPicker1").setDate({2020, 1, 2});
         },
         "frmPayDetail", "DTPicker1", "\"02/01/2020\" arrives as \"15/03/2024\".", "Of a payment in cash"},
        {"a payment by draft",
         [](ReviewFixture& t) {
             choose(t, "frmPayDetail", "OptDraft");
             for (const std::string_view key : {"txtChqDraftNo", "txtBankNm", "txtBranchNm"})
                 put(t, "frmPayDetail", key, key);
         },
         "frmPayDetail", "OptCash", "\"Draft\" arrives as \"Pay Order\".", "Of a payment in cash"},
        {"the fees of the second scrutiny, saved once",
         [](ReviewFixture& t) {
             t.world.saveTo("/plans/proposal.xml");
             put(t, "frmPayDetail", "txtScrutinyRArea2", "70");
         },
         "frmPayDetail", "txtScrutinyRArea2", "\"70\" arrives as \"0.00\".", "The fees of the second scrutiny"},
        {"a page that is 0",
         [](ReviewFixture& t) {
             t.control<CheckBox>("frmDocCheckList", "Check1(3)").setValue(1);
             t.world.box("frmDocCheckList", "txtDocPageNo(6)").restoreText("0");
             t.world.box("frmDocCheckList", "txtDocPageNo(7)").restoreText("4");
         },
         "frmDocCheckList", "txtDocPageNo(6)", "\"0\" does not arrive.", "Page 0 is read as no page"},
        {"a conditional document",
         [](ReviewFixture& t) {
             put(t, "frmDocCheckList1", "txtDocPageNo(2)", "3");
             put(t, "frmDocCheckList1", "txtDocPageNo(3)", "4");
         },
         "frmDocCheckList1", "Check1(1)", "\"ticked\" does not arrive.", "The rows of the conditional checklist"},
        {"the first conditional document, which runs into the last mandatory one",
         [](ReviewFixture& t) {
             put(t, "frmDocCheckList1", "txtDocPageNo(0)", "3");
             put(t, "frmDocCheckList1", "txtDocPageNo(1)", "4");
         },
         "frmDocCheckList", "txtDocPageNo(17)", "Nothing is answered, and \"01\" arrives.",
         "Page 0 is read as no page"},
        {"Opt30",
         [](ReviewFixture& t) {
             choose(t, "AnnexureACont", "Opt29Y");
             choose(t, "AnnexureACont", "Opt30N");
         },
         "AnnexureACont", "Opt30Y", "\"No\" arrives as \"Yes\".", "The answer of the question before it"},
        {"a No of Opt23",
         [](ReviewFixture& t) {
             choose(t, "AnnexureACont", "Opt22Y");
             choose(t, "AnnexureACont", "Opt23N");
         },
         "AnnexureACont", "Opt23Y", "\"No\" arrives as \"Yes\".", "Its digit is written without a separator"},
        {"the right of way, of which a digit alone comes back",
         [](ReviewFixture& t) {
             choose(t, "AnnexureACont", "opt21bi(1)");
             t.world.box("AnnexureACont", "txtRightWay").restoreText("2");
         },
         "AnnexureACont", "opt21bi(1)", "\"Yes\" does not arrive.", "Only its hidden digit is read."},
        {"an answer whose opening question is not answered",
         [](ReviewFixture& t) { choose(t, "frmAnnexureA", "Opt6Y"); }, "frmAnnexureA", "Opt6Y",
         "\"Yes\" does not arrive.", "It is written after the answer to an earlier question"},
        {"the width of the first of two streets",
         [](ReviewFixture& t) { put(t, "frmAnnexureA", "txtFstStreetWidth", "7"); }, "frmAnnexureA",
         "txtFstStreetWidth", "\"7\" does not arrive.", "It is read after an answer to the question of two streets"},
        {"Opt31, which the question of accessory buildings clears",
         [](ReviewFixture& t) {
             choose(t, "AnnexureACont", "IsAnyAccessoryBldgProposed(0)");
             choose(t, "AnnexureACont", "Opt31Y");
         },
         "AnnexureACont", "Opt31Y", "\"Yes\" does not arrive.", "The question about accessory buildings"},
        {"the area allowed, without the clearance",
         [](ReviewFixture& t) { put(t, "frmAnnexureA", "txtAreaAllowed", "900"); }, "frmAnnexureA", "txtAreaAllowed",
         "\"900\" does not arrive.", "It is written after a Yes to the clearance alone"},
        {"the area allowed, worked out anew",
         [](ReviewFixture& t) {
             choose(t, "frmAnnexureA", "Opt2Y");
             put(t, "frmAnnexureA", "txtPltArea", "900");
             put(t, "frmAnnexureA", "txtActualArea", "800");
         },
         "frmAnnexureA", "txtAreaAllowed", "\"1\" arrives as \"800\".", "It is written after a Yes to the clearance"},
    };
    for (const Loss& loss : losses)
        expect(loss, &ReviewFixture::begin);
}

TEST_F(ReviewLossesTest, EachRowOfTheLandRecordsThatDoesNotComeBackHasItsCause) {
    const Loss losses[] = {
        {"the owner type of a 7/12 extract, which ends its reading",
         [](ReviewFixture& t) { put(t, &Tables::rsOwner712, 0, OwnerColumn::OwnerType, "H - Holder"); }, "frmMain712",
         "dgdOwner", "\"H - Holder\" does not arrive.", "Extract 1 has an owner type"},
        {"the extracts behind it",
         [](ReviewFixture& t) { put(t, &Tables::rsOwner712, 0, OwnerColumn::OwnerType, "H - Holder"); }, "frmMain712",
         "dgdInfoOfExtract", "This row does not arrive.", "Extract 1 has an owner type"},
        {"a property card without a date",
         [](ReviewFixture& t) { put(t, &Tables::rsExtractPRC, 1, ExtractColumn::DateOf712, Value()); }, "frmPRCEXT",
         "dgdInfoOfExtract", "This row does not arrive.", "Extract 2 has no date"},
        {"a 7/12 extract without a date",
         [](ReviewFixture& t) { put(t, &Tables::rsExtract712, 1, ExtractColumn::DateOf712, Value()); }, "frmMain712",
         "dgdInfoOfExtract", "Nothing is answered, and \"15/03/2024\" arrives.", "An extract without a date"},
        {"an encumbrance",
         [](ReviewFixture& t) { put(t, &Tables::rsOwner712, 0, OwnerColumn::Encumbrances, "Easement"); }, "frmMain712",
         "dgdOwner", "\"Easement\" arrives as \"EASEMENT\".", "Encumbrances are read in upper case"},
        {"an encumbrance of a property card",
         [](ReviewFixture& t) { put(t, &Tables::rsOwnerPRC, 0, OwnerColumn::Encumbrances, "Easement"); }, "frmPRCEXT",
         "dgdOwner", "\"Easement\" arrives as \"EASEMENT\".", "Encumbrances are read in upper case"},
        {"a signing status that is none of the list",
         [](ReviewFixture& t) { put(t, &Tables::rsOwner712, 0, OwnerColumn::SingingStatus, "later"); }, "frmMain712",
         "dgdOwner", "\"later\" arrives as \"PAH Given\".", "A status that is neither"},
        {"the first item of the signing status",
         [](ReviewFixture& t) { put(t, &Tables::rsOwner712, 0, OwnerColumn::SingingStatus, "---- Select ----"); },
         "frmMain712", "dgdOwner", "Nothing is answered, and \"PAH Given\" arrives.", "A status that is neither"},
        {"the remark of the property cards", [](ReviewFixture& t) { put(t, "frmPRCEXT", "txtRemark", "in order"); },
         "frmPRCEXT", "txtRemark", "\"in order\" does not arrive.", "The remark of the 7/12 extracts"},
        {"a plot's number that is not its place",
         [](ReviewFixture& t) { put(t, &Tables::rsPlot712, 1, PlotColumn::SrNo, 7); }, "frmPlotExtractRelation",
         "dgd712ExtractRelation", "This row does not arrive.", "Plots are read by their place"},
        {"more plots told than listed",
         [](ReviewFixture& t) { t.world.box("frmPlotExtractRelation", "txtNoOfPlot712").restoreText("3"); },
         "frmPRCEXT", "dgdInfoOfExtract", "This row does not arrive.", "The number of plots is 3, and 2 are listed"},
        {"extracts that the plots do not count",
         [](ReviewFixture& t) { put(t, &Tables::rsPlot712, 1, PlotColumn::NoOfPRC, 0); }, "frmMain712",
         "dgdInfoOfExtract", "This row does not arrive.", "The number of extracts of all plots is 2, and 3 are"},
        {"owners that the extract does not count",
         [](ReviewFixture& t) { put(t, &Tables::rsExtract712, 0, ExtractColumn::NoOfOwners, 1); }, "frmMain712",
         "dgdPAH", "This row does not arrive.", "The number of owners is 1, and 2 are listed"},
        {"holders that the extract does not count",
         [](ReviewFixture& t) { put(t, &Tables::rsExtractPRC, 0, ExtractColumn::NoOfPAHs, 1); }, "frmPRCEXT", "dgdPAH",
         "This row does not arrive.", "The number of holders is 1, and 2 are listed"},
    };
    for (const Loss& loss : losses)
        expect(loss, &ReviewFixture::beginWhole);
}

TEST_F(ReviewLossesTest, EachRowOfTheOrdersThatDoesNotComeBackHasItsCause) {
    const Loss losses[] = {
        {"the details column",
         [](ReviewFixture& t) { put(t, &Tables::rsULCOrder, 0, ULCOrderColumn::Details, "see file"); },
         "frmScrutinyULC", "dgdULCOrderDetails", "\"see file\" does not arrive.", "The details column of the orders"},
        {"the number of plots of an order",
         [](ReviewFixture& t) { put(t, &Tables::rsULCOrderUS84, 0, US84OrderColumn::NoOfPlots, "7"); }, "frmUS84",
         "txtNoOfPlotOwnedByApplicant", "\"7\" arrives as \"2\".", "The number of plots is that of the plots"},
        {"an order whose scheme was never opened",
         [](ReviewFixture& t) {
             t.table(&Tables::rsSchemeBuilt).setFilter("");
             t.table(&Tables::rsSchemeBuilt).deleteVisible();
         },
         "frmUS22", "txtAreaExistingStruct", "This row does not arrive.",
         "Extract 1 has an order whose scheme was never opened"},
        {"the ownership, with it",
         [](ReviewFixture& t) {
             put(t, &Tables::rsOwnership, 1, OwnershipColumn::DocStatus, "1");
             t.table(&Tables::rsSchemeBuilt).setFilter("");
             t.table(&Tables::rsSchemeBuilt).deleteVisible();
         },
         "frmScrutinyULC", "dgdOwner", "This row does not arrive.",
         "Extract 1 has an order whose scheme was never opened"},
        {"the orders, with the property cards chosen",
         [](ReviewFixture& t) { user::click(t.world.option("frmScrutinyULC", "optDocCtrlOwn(1)")); }, "frmUS84",
         "txtCaseNumber", "This row does not arrive.", "The orders are not built while no ownership is listed"},
    };
    for (const Loss& loss : losses)
        expect(loss, &ReviewFixture::beginWhole);
}

TEST_F(ReviewLossesTest, ABlockThatIsNotBuiltIsWrittenAsItWasSavedEarlier) {
    beginWhole();
    user::click(world.button("frmScrutinyULC", "cmdSave"));
    world.saveTo("/plans/proposal.xml");
    world.shell.press("mnuNew");
    world.fillFirstPage();
    const std::vector<Finding> doubtful = found(FindingKind::Consider);
    for (const std::string_view form : {"frmMain712", "frmPRCEXT", "frmScrutinyULC"}) {
        const Finding* finding = at(doubtful, form, "");
        ASSERT_NE(finding, nullptr) << form << "\n" << lines(doubtful);
        EXPECT_NE(finding->sentence.find("as they were saved earlier"), std::string::npos);
    }
}

}  // namespace
}  // namespace plandesk::test
