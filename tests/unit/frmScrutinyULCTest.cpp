#include "ulc/frmScrutinyULC.h"

#include "OrdersFixture.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"

namespace plandesk::test {
namespace {

using ScrutinyULC = Orders;

TEST_F(ScrutinyULC, BeforeAnyLandRecordItOpensWithEmptyListsAndNoError) {
    shell.press("mnuNew");
    proposal.is712Current = true;
    auto& form = scrutiny();
    EXPECT_FALSE(proposal.is712Current);
    EXPECT_TRUE(form.visible());
    EXPECT_EQ(form.cmbExtract.listCount(), 0);
    EXPECT_EQ(form.dgdOwner.rowCount(), 0);
    EXPECT_EQ(form.dgdULCOrderDetails.rowCount(), 0);
    EXPECT_TRUE(ports.dialogs.take().empty());
}

TEST_F(ScrutinyULC, ItShowsDateAndCaseTypeOfTheFirstPageAsTheyWereWhenItWasLoaded) {
    auto& first = proposal.forms.get<frmAnnexureA>();
    first.DTPicker1.setDate({2026, 6, 5});
    first.cboCaseType.setListIndex(0);
    auto& form = scrutiny();
    first.DTPicker1.setDate({2026, 6, 6});
    EXPECT_EQ(form.caption(), "Scrutiny of U.L.C. Order");
    EXPECT_EQ(form.txtProposalDate.text(), "05/06/2026");
    EXPECT_EQ(form.txtCaseType.text(), first.cboCaseType.text());
    EXPECT_EQ(form.txtProposalNo.text(), "");
    EXPECT_EQ(form.txtArea.text(), "");
}

TEST_F(ScrutinyULC, ItsListsAndColumnsAreTheSystemsOwn) {
    saveLandRecords();
    auto& form = scrutiny();
    EXPECT_EQ(items(form.cmbDocStatus), (Texts{"---- Select ----", "ULC Order"}));
    EXPECT_EQ(items(form.cmbULCORDERDetails),
              (Texts{"---- Select ULC U/S ----", "8 (4) Order", "U/S 20 (a) (1)", "U/S 22"}));
    Texts captions;
    for (const Grid* grid : {&form.dgdOwner, &form.dgdULCOrderDetails})
        for (int column = 0; column < grid->columnCount(); ++column)
            captions.emplace_back(grid->column(column).caption);
    EXPECT_EQ(captions, (Texts{"Group No", "Owner Name", "Area", "Document Status", "Group No", "Owner(s) Name",
                               "ULC Order", "Order No", "Details", "Remarks"}));
    struct Rule {
        bool locked;
        bool button;
        int width = -1;  ///< left to the form
    };
    const auto check = [](const Grid& grid, std::initializer_list<Rule> rules) {
        for (int place = 0; const Rule& rule : rules) {
            const GridColumn column = grid.column(place);
            EXPECT_EQ(column.locked, rule.locked) << column.caption;
            EXPECT_EQ(column.button, rule.button) << column.caption;
            EXPECT_TRUE(rule.width < 0 ? column.width > 0 : column.width == rule.width) << column.caption;
            ++place;
        }
    };
    check(form.dgdOwner, {{true, false, 1000}, {true, false}, {true, false, 2000}, {false, true}});
    check(form.dgdULCOrderDetails,
          {{true, false, 1000}, {true, false}, {false, true}, {false, false}, {false, true, 900}, {false, false}});
}

TEST_F(ScrutinyULC, WithoutAPRCTheExtractsAreNotListed) {
    relate({2});
    user::click(open712().cmdSave);
    EXPECT_FALSE(proposal.ownershipRelationSaved);
    auto& form = scrutiny();
    user::click(form.optDocCtrlOwn[0]);
    EXPECT_EQ(form.lblNoOfExt.caption(), "No of 7/12 Extracts");
    EXPECT_EQ(form.cmbExtract.listCount(), 0);
    EXPECT_EQ(form.txtNoOfExtranct.text(), "");
}

TEST_F(ScrutinyULC, EachExtractHasAnEntryAndThePRCsComeBehindNumberedAnew) {
    saveLandRecords();
    auto& form = scrutiny();
    EXPECT_EQ(items(form.cmbExtract),
              (Texts{" Plot A ---  EXTRACT 1 ", " Plot A ---  EXTRACT 2 ", " Plot A ---  PRC 1 "}));
    EXPECT_EQ(form.txtNoOfExtranct.text(), "3");
    EXPECT_EQ(form.lblNoOfExt.caption(), "No of 7/12 Extracts + PRC ");
    EXPECT_EQ(form.cmbExtract.listIndex(), 0);
    EXPECT_EQ(form.dgdOwner.cellText(0, OwnershipColumn::Name), "Anand");
    user::pick(form.cmbExtract, 2);
    EXPECT_EQ(form.dgdOwner.rowCount(), 1);
    EXPECT_EQ(form.dgdOwner.cellText(0, OwnershipColumn::Name), "Chand & Co");
    EXPECT_EQ(form.dgdOwner.cellText(0, OwnershipColumn::Area), "7");
    EXPECT_EQ(form.dgdULCOrderDetails.cellText(0, ULCOrderColumn::Name), "Chand & Co");
}

TEST_F(ScrutinyULC, TheListsWriteTheirIndexIntoTheCellTheyFloatOver) {
    saveLandRecords();
    auto& form = scrutiny();
    EXPECT_TRUE(form.cmbDocStatus.visible());
    EXPECT_EQ(form.cmbDocStatus.text(), "---- Select ----");
    user::pick(form.cmbDocStatus, 1);
    user::pick(form.cmbULCORDERDetails, 3);
    EXPECT_EQ(cell(&Tables::rsOwnership, "ExtNo = 1", "DocStatus"), "1");
    EXPECT_EQ(cell(&Tables::rsULCOrder, "ExtNo = 1", "ULCOrderSelection"), "3");
    user::pick(form.cmbExtract, 1);
    EXPECT_EQ(form.cmbDocStatus.listIndex(), 0);
    EXPECT_EQ(form.cmbULCORDERDetails.listIndex(), 0);
    user::pick(form.cmbExtract, 0);
    EXPECT_EQ(form.cmbDocStatus.text(), "ULC Order");
    EXPECT_EQ(form.cmbULCORDERDetails.text(), "U/S 22");
}

TEST_F(ScrutinyULC, NamesFollowTheOwnershipAndTheRestOfAnOrderStays) {
    saveLandRecords();
    auto& form = scrutiny();
    user::editCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::OrderNo, "77");
    user::editCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::Remarks, "seen");
    user::click(form.optDocCtrlOwn[0]);
    tables.rsOwner712->setFilter("ExtNo = 1");
    tables.rsOwner712->set(OwnerColumn::Name, "Asha");
    tables.rsOwner712->update();
    user::click(form.optDocCtrlOwn[0]);
    EXPECT_EQ(cell(&Tables::rsULCOrder, "ExtNo = 1", "Name"), "Asha");
    EXPECT_EQ(cell(&Tables::rsULCOrder, "ExtNo = 1", "OrderNo"), "77");
    EXPECT_EQ(cell(&Tables::rsULCOrder, "ExtNo = 1", "Remarks"), "seen");
}

TEST_F(ScrutinyULC, PropertyCardLeavesNoOwnershipUntilTheExtractsAreChosenAgain) {
    saveLandRecords();
    auto& form = scrutiny();
    user::click(form.cmdSave);
    const std::string earlier = proposal.ULCScrutinyXML;
    user::click(form.optDocCtrlOwn[1]);
    EXPECT_EQ(tables.rsOwnership->rowCount(), 0);
    EXPECT_EQ(items(form.cmbExtract), Texts{" Plot A ---  PRC 1 "});  // the walk over the plots does not start anew
    user::pick(form.cmbExtract, 0);
    EXPECT_EQ(form.dgdOwner.rowCount(), 0);

    shell.press("mnuAnnexure");
    fillFirstPage();
    saveTo("whole.xml");
    ASSERT_TRUE(ports.files.contents.contains("whole.xml"));
    EXPECT_EQ(proposal.ULCScrutinyXML, earlier);

    user::click(form.cmdSave);
    EXPECT_EQ(proposal.ULCScrutinyXML,
              "<ULCORDER-SCRUTINY><DOCCONTROLLINGOWNERSHIP>2</DOCCONTROLLINGOWNERSHIP><NOOFEXTRACT>0</NOOFEXTRACT>"
              "</ULCORDER-SCRUTINY>");

    user::click(form.optDocCtrlOwn[0]);
    EXPECT_EQ(tables.rsOwnership->rowCount(), 3);
    EXPECT_EQ(form.cmbExtract.listCount(), 3);
}

TEST_F(ScrutinyULC, AnUnchosenOrderHasNoDetails) {
    saveLandRecords();
    auto& form = scrutiny();
    EXPECT_EQ(cell(&Tables::rsULCOrder, "ExtNo = 1", "ULCOrderSelection"), "0");  // written when the list came up
    user::click(form.cmdDetails);
    user::pick(form.cmbExtract, 1);
    EXPECT_EQ(cell(&Tables::rsULCOrder, "ExtNo = 2", "ULCOrderSelection"), "");
    user::pick(form.cmbExtract, 1);
    user::click(form.cmdDetails);
    for (const std::string_view order : {"frmUS84", "frmULC20aDetails", "frmUS22"})
        EXPECT_EQ(proposal.forms.loaded(order), nullptr) << order;
}

TEST_F(ScrutinyULC, ACellThatHoldsNoItemsIndexHasNoDetails) {
    saveLandRecords();
    auto& form = scrutiny();
    for (const std::string_view selection : {"1.9", "4", "1e300"}) {
        user::editCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::ULCOrderSelection, selection);
        user::click(form.cmdDetails);
        for (const std::string_view order : {"frmUS84", "frmULC20aDetails", "frmUS22"})
            EXPECT_EQ(proposal.forms.loaded(order), nullptr) << selection;
    }
    EXPECT_TRUE(ports.dialogs.take().empty());
}

TEST_F(ScrutinyULC, EachChoiceOpensItsOwnForm) {
    saveLandRecords();
    EXPECT_TRUE(us84().front());
    EXPECT_TRUE(us20().front());
    EXPECT_TRUE(us22().front());
}

TEST_F(ScrutinyULC, ASaveShowsTheChosenExtractAgain) {
    saveLandRecords();
    auto& form = scrutiny();
    user::pick(form.cmbExtract, 1);
    user::click(form.cmdSave);
    EXPECT_NE(proposal.ULCScrutinyXML.find("<NOOFEXTRACT>3</NOOFEXTRACT>"), std::string::npos);
    EXPECT_TRUE(form.visible());
    ASSERT_EQ(form.dgdOwner.rowCount(), 1);
    EXPECT_EQ(form.dgdOwner.cellText(0, OwnershipColumn::Name), "Bhide");
    ASSERT_EQ(form.dgdULCOrderDetails.rowCount(), 1);
    EXPECT_EQ(form.dgdULCOrderDetails.cellText(0, ULCOrderColumn::ExtNo), "2");
}

TEST_F(ScrutinyULC, ResetDoesNothing) {
    saveLandRecords();
    auto& form = scrutiny();
    user::pick(form.cmbDocStatus, 1);
    user::click(form.cmdReferesh);
    EXPECT_EQ(form.cmbExtract.listCount(), 3);
    EXPECT_EQ(form.cmbDocStatus.listIndex(), 1);
}

TEST_F(ScrutinyULC, AStatusThatIsNoItemIsToldWhenItsButtonIsPressed) {
    saveLandRecords();
    auto& form = scrutiny();
    tables.rsOwnership->set(OwnershipColumn::DocStatus, "9");
    user::pressCellButton(form.dgdOwner, 0, OwnershipColumn::DocStatus);
    EXPECT_EQ(ports.dialogs.take(), (std::vector<Message>{{"", "Error Occured !!  ", Icon::Information}}));
    tables.rsULCOrder->set(ULCOrderColumn::ULCOrderSelection, "9");
    user::pressCellButton(form.dgdULCOrderDetails, 0, ULCOrderColumn::ULCOrderSelection);
    user::pick(form.cmbExtract, 0);
    EXPECT_TRUE(ports.dialogs.take().empty());
}

TEST_F(ScrutinyULC, ALetterInAListsCellChoosesThereAndTheCellHoldsTheIndex) {
    saveLandRecords();
    auto& form = scrutiny();
    user::goToCell(form.dgdOwner, 0, OwnershipColumn::DocStatus);
    user::press(form.dgdOwner, "u");
    EXPECT_TRUE(form.cmbDocStatus.focused());
    EXPECT_EQ(form.cmbDocStatus.text(), "ULC Order");
    EXPECT_EQ(form.dgdOwner.cellText(0, OwnershipColumn::DocStatus), "1");
    user::press(form.cmbDocStatus, "Esc");
    EXPECT_TRUE(form.dgdOwner.focused());
    user::goToCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::ULCOrderSelection);
    user::press(form.dgdULCOrderDetails, "u");
    user::press(form.cmbULCORDERDetails, "u");
    EXPECT_EQ(form.dgdULCOrderDetails.cellText(0, ULCOrderColumn::ULCOrderSelection), "3");
    user::press(form.cmbULCORDERDetails, "Enter");
    EXPECT_TRUE(form.dgdULCOrderDetails.focused());
    EXPECT_EQ(form.dgdULCOrderDetails.currentColumn(), ULCOrderColumn::OrderNo);
}

TEST_F(ScrutinyULC, OnlyItemsComeIntoAListsCellFromTheClipboardAndDeleteKeepsItsValue) {
    saveLandRecords();
    auto& form = scrutiny();
    Grid& grid = form.dgdULCOrderDetails;
    const auto selection = [&] { return grid.cellText(0, ULCOrderColumn::ULCOrderSelection); };
    user::goToCell(grid, 0, ULCOrderColumn::ULCOrderSelection);
    EXPECT_TRUE(user::editText(grid, " u/s 22 "));
    EXPECT_EQ(selection(), "3");
    EXPECT_EQ(form.cmbULCORDERDetails.listIndex(), 3);
    EXPECT_FALSE(user::editText(grid, "U/S 23"));
    EXPECT_FALSE(user::editText(grid, "1"));
    user::clearCell(grid);
    EXPECT_EQ(selection(), "3");
}

TEST_F(ScrutinyULC, SpaceAndEnterPressTheButtonOfDetailsInItsCellAndOnItself) {
    saveLandRecords();
    auto& form = scrutiny();
    Grid& grid = form.dgdULCOrderDetails;
    user::pick(form.cmbULCORDERDetails, 3);
    for (const std::string_view key : {"Space", "Enter"}) {
        user::goToCell(grid, 0, ULCOrderColumn::Details);
        user::press(grid, key);
        ASSERT_NE(proposal.forms.loaded("frmUS22"), nullptr) << key;
        EXPECT_TRUE(proposal.forms.loaded("frmUS22")->front());
        user::close(*proposal.forms.loaded("frmUS22"));
        EXPECT_EQ(proposal.forms.loaded("frmUS22"), nullptr);
        user::press(form.cmdDetails, key);
        EXPECT_NE(proposal.forms.loaded("frmUS22"), nullptr) << key;
        user::pressForm(*proposal.forms.loaded("frmUS22"), "Esc");
        EXPECT_EQ(proposal.forms.loaded("frmUS22"), nullptr);
    }
    // A letter goes to the button, which has no use for it; what a script puts in stays in the table.
    user::goToCell(grid, 0, ULCOrderColumn::Details);
    user::press(grid, "x");
    EXPECT_TRUE(form.cmdDetails.focused());
    EXPECT_EQ(grid.cellText(0, ULCOrderColumn::Details), "");
    EXPECT_TRUE(user::editCell(grid, 0, ULCOrderColumn::Details, "y"));
    EXPECT_EQ(grid.cellText(0, ULCOrderColumn::Details), "y");
}

TEST_F(ScrutinyULC, ClosingItKeepsItAndNewUnloadsIt) {
    saveLandRecords();
    auto& form = scrutiny();
    user::click(form.cmdClose);
    EXPECT_FALSE(form.visible());
    shell.press("mnuNew");
    EXPECT_EQ(proposal.forms.loaded("frmScrutinyULC"), nullptr);
}

}  // namespace
}  // namespace plandesk::test
