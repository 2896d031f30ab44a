#include "landrecords/ExtractForm.h"

#include "proposal/LandRecordColumns.h"
#include "unit/ExtractsFixture.h"

namespace plandesk::test {
namespace {

TEST_F(Extracts, TheListRunsPlotByPlot) {
    relate({2, 0, 1});
    auto& form = open712();
    EXPECT_EQ(items(form.cmbExtract),
              (Texts{" Plot A ---  EXTRACT 1 ", " Plot A ---  EXTRACT 2 ", " Plot C ---  EXTRACT 3 "}));
    EXPECT_EQ(form.cmbExtract.listIndex(), 0);
    EXPECT_EQ(form.txtNoOfExtranct.text(), "3");
    EXPECT_FALSE(form.txtNoOfExtranct.enabled());
    EXPECT_EQ(form.caption(), "Scrutiny Of 7/12  Extract");
    EXPECT_FALSE(form.DTPicker1.visible());
    EXPECT_FALSE(form.cmbEncumber.visible());
}

TEST_F(Extracts, TheCaseTypeComesFromTheFirstPage) {
    relate({1});
    list("frmAnnexureA", "cboCaseType").setListIndex(1);
    EXPECT_EQ(open712().txtCaseType.text(), list("frmAnnexureA", "cboCaseType").text());
    EXPECT_NE(open712().txtCaseType.text(), "");
}

TEST_F(Extracts, The712FormNamesItsColumns) {
    relate({1});
    auto& form = open712();
    const std::array info = {"",
                             "Survey No",
                             "Hissa No",
                             "Date of 7/12",
                             "Ferfar No",
                             "No of Owners",
                             "Cumulative 7/12 Area in Sq.Mt",
                             "No Of PAHs"};
    for (int column = 0; column < 8; ++column)
        EXPECT_EQ(form.dgdInfoOfExtract.column(column).caption, info[static_cast<std::size_t>(column)]);
    EXPECT_TRUE(form.dgdInfoOfExtract.column(3).button);
    EXPECT_EQ(form.dgdInfoOfExtract.column(0).width, 0);
    const std::array owner = {"", "Sr No", "Name Of Owner", "Owner Signing Status ", "Encumbrances", "Owner Type"};
    for (int column = 0; column < 6; ++column)
        EXPECT_EQ(form.dgdOwner.column(column).caption, owner[static_cast<std::size_t>(column)]);
    EXPECT_EQ(form.dgdOwner.column(5).width, 0);
    EXPECT_TRUE(form.dgdOwner.column(3).button && form.dgdOwner.column(4).button);
    EXPECT_EQ(form.dgdPAH.column(1).caption, "SrNo");
    EXPECT_EQ(form.dgdPAH.column(2).caption, "Holder Name");
    EXPECT_EQ(form.dgdPAH.column(3).caption, "PAH Sign");
    EXPECT_TRUE(form.dgdPAH.column(3).locked && form.dgdPAH.column(3).button && form.dgdPAH.column(3).yesNo);
    EXPECT_EQ(form.lblInfoExtract.caption(), " Information For Extract No :- 1");
    EXPECT_EQ(form.cmdSave.caption(), "Save 7/12 Scrutiny Data");
    EXPECT_EQ(form.cmdReferesh.caption(), "Reset 7/12 Information ");
}

TEST_F(Extracts, ThePrcFormNamesThemForPropertyCards) {
    relate({1}, true);
    auto& form = openPrc();
    const std::array info = {"",          "City Survey No", "Tika Sheet No ",      "PRC Date",
                             "Ferfar No", "No of Owners",   "Cumulative PRC Area", "No Of PAHs"};
    for (int column = 0; column < 8; ++column)
        EXPECT_EQ(form.dgdInfoOfExtract.column(column).caption, info[static_cast<std::size_t>(column)]);
    EXPECT_EQ(form.dgdInfoOfExtract.column(4).width, 0);
    EXPECT_EQ(form.dgdOwner.column(5).width, 2100);
    EXPECT_FALSE(form.dgdOwner.column(3).button || form.dgdOwner.column(4).button);
    EXPECT_EQ(form.caption(), "Scrutiny Of PRC Extract");
    EXPECT_EQ(form.lblHead.caption(), " Scrutiny Of PRC Extract");
    EXPECT_EQ(form.lblInfoExtract.caption(), " Information For PRC No :- 1");
    EXPECT_EQ(form.fraExt.caption(), "PRC Details");
    EXPECT_EQ(form.lblNoOfExt.caption(), "No of PRC");
    EXPECT_EQ(form.lblSelectExtract.caption(), "Select PRC for details");
    EXPECT_EQ(form.lblRemark.caption(), "PRC Remark");
    EXPECT_EQ(form.cmdSave.caption(), "Save PRC Scrutiny Information");
    EXPECT_EQ(form.cmdReferesh.caption(), "Reset");
    EXPECT_EQ(form.cmbExtract.item(0), " Plot A ---  PRC 1 ");
}

TEST_F(Extracts, The712FormLoadedWhilePrcsAreTheSubjectWearsTheirLabels) {
    relate({1, 1});
    relate({2}, true);
    proposal.forms.unload("frmMain712");
    proposal.is712Current = false;
    auto& form = proposal.forms.get<frmMain712>();
    EXPECT_EQ(form.fraExt.caption(), "PRC Details");
    EXPECT_EQ(form.lblNoOfExt.caption(), "No of PRC");
    EXPECT_EQ(form.txtNoOfExtranct.text(), "2");
    EXPECT_EQ(items(form.cmbExtract), (Texts{" Plot A ---  PRC 1 ", " Plot A ---  PRC 2 "}));
    EXPECT_EQ(form.dgdInfoOfExtract.table(), tables.rsExtract712.get());
}

TEST_F(Extracts, WithoutA712PlotThe712ListStaysEmptyButThePrcOneIsFilled) {
    relate({2}, true);
    proposal.noOfExtract712 = 2;
    proposal.is712Current = true;
    EXPECT_EQ(proposal.forms.get<frmMain712>().cmbExtract.listCount(), 0);
    EXPECT_EQ(tables.rsExtract712->rowCount(), 0);
    EXPECT_EQ(openPrc().cmbExtract.listCount(), 2);
}

TEST_F(Extracts, AnEmptyTableIsBuiltForTheCount) {
    relate({2});
    tables.create(extractTables);
    auto& form = open712();
    EXPECT_EQ(rowTexts(*tables.rsExtract712),
              (Texts{"1|null|null|15/03/2024|0|0|0|0", "2|null|null|15/03/2024|0|0|0|0"}));
    EXPECT_EQ(form.dgdInfoOfExtract.rowCount(), 1);
}

TEST_F(Extracts, A712TableWhoseRowsAreAllHiddenIsBuiltAfreshAndTakesThePrcsWithIt) {
    relate({2});
    relate({1}, true);
    tables.rsExtract712->setFilter("ExtNo = 9");
    open712();
    EXPECT_EQ(rowTexts(*tables.rsExtract712),
              (Texts{"1|null|null|15/03/2024|0|0|0|0", "2|null|null|15/03/2024|0|0|0|0"}));
    EXPECT_EQ(tables.rsExtractPRC->rowCount(), 0);
}

TEST_F(Extracts, APrcTableWhoseRowsAreAllHiddenGetsNewOnesBesideThem) {
    relate({1}, true);
    tables.rsExtractPRC->setFilter("ExtNo = 9");
    openPrc();
    EXPECT_EQ(rowTexts(*tables.rsExtractPRC),
              (Texts{"1|null|null|15/03/2024|null|null|null|null", "1|null|null|15/03/2024|0|0|0|0"}));
}

TEST_F(Extracts, ATableWithFewerRowsThanTheCountGetsTheRest) {
    relate({3});
    tables.create(extractTables);
    tables.rsExtract712->addNew();
    tables.rsExtract712->set("ExtNo", 1);
    tables.rsExtract712->update();
    tables.rsExtract712->setFilter("ExtNo = 9");
    open712();
    EXPECT_EQ(tables.rsExtract712->rowCount(), 3);
    EXPECT_EQ(rowTexts(*tables.rsExtract712)[1], "2|null|null|15/03/2024|0|0|0|0");
}

TEST_F(Extracts, AChosenExtractShowsItsRowsAlone) {
    relate({2});
    auto& form = open712();
    user::pick(form.cmbExtract, 1);
    EXPECT_EQ(form.lblInfoExtract.caption(), " Information For Extract No :- 2");
    EXPECT_EQ(form.dgdInfoOfExtract.rowCount(), 1);
    EXPECT_EQ(form.dgdInfoOfExtract.cellText(0, ExtractColumn::ExtNo), "2");
    EXPECT_EQ(tables.rsOwner712->filter(), "ExtNo = 2");
    EXPECT_TRUE(form.DTPicker1.visible());
    EXPECT_TRUE(form.DTPicker1.focused());
    EXPECT_EQ(form.dgdInfoOfExtract.floating(form.DTPicker1).column, 3);
}

TEST_F(Extracts, ANumberOfOwnersReplacesTheOwnersOfThatExtract) {
    relate({2});
    auto& form = open712();
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "2");
    const std::string untouched = " -- Select -- |  ----------- Select----------  |  ------ Select------  ";
    // The empty owner that the relation's save left for the second extract stands first.
    EXPECT_EQ(rowTexts(*tables.rsOwner712),
              (Texts{"2|null|null|null|null|null", "1|1|null|" + untouched, "1|2|null|" + untouched}));
    user::editCell(form.dgdOwner, 0, OwnerColumn::Name, "Sham");
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "1");
    EXPECT_EQ(rowTexts(*tables.rsOwner712), (Texts{"2|null|null|null|null|null", "1|1|null|" + untouched}));
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "0");
    EXPECT_EQ(rowTexts(*tables.rsOwner712), Texts{"2|null|null|null|null|null"});
    EXPECT_EQ(form.dgdOwner.rowCount(), 0);
}

TEST_F(Extracts, ANumberOfHoldersReplacesTheHoldersOfThatExtract) {
    relate({1});
    auto& form = open712();
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfPAHs, "2");
    EXPECT_EQ(rowTexts(*tables.rsPAH712), (Texts{"1|1|null|False", "1|2|null|False"}));
    EXPECT_EQ(form.dgdPAH.rowCount(), 2);
}

TEST_F(Extracts, ANumberOfOwnersBeyondSixteenBitsIsAnErrorAndTakesNothingAway) {
    relate({1});
    auto& form = open712();
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "1");
    user::editCell(form.dgdOwner, 0, OwnerColumn::Name, "Sham");
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "40000");
    EXPECT_EQ(ports.dialogs.take(), (std::vector<Message>{{"", "Overflow", Icon::Critical}}));
    EXPECT_EQ(form.dgdOwner.cellText(0, OwnerColumn::Name), "Sham");
}

TEST_F(Extracts, TwoThousandOwnersStandInOneExtract) {
    relate({1});
    auto& form = open712();
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "2000");
    EXPECT_EQ(form.dgdOwner.rowCount(), 2000);
    user::editCell(form.dgdOwner, 1999, OwnerColumn::Name, "Last");
    EXPECT_EQ(form.dgdOwner.cellText(1999, OwnerColumn::Name), "Last");
    user::click(form.cmdSave);
    EXPECT_NE(proposal.extractOwnerXML.find("<NoOfOwner>2000</NoOfOwner>"), std::string::npos);
    EXPECT_NE(proposal.extractOwnerXML.find("<OWNER2000>Last##0</OWNER2000>"), std::string::npos);
}

TEST_F(Extracts, ThePickerWritesItsDateStraightIntoTheExtract) {
    relate({1});
    auto& form = open712();
    EXPECT_TRUE(user::pressCellButton(form.dgdInfoOfExtract, 0, ExtractColumn::DateOf712));
    EXPECT_TRUE(form.DTPicker1.visible());
    EXPECT_EQ(form.DTPicker1.date(), (Date{2024, 3, 15}));
    user::pickDate(form.DTPicker1, Date{2001, 2, 3});
    EXPECT_EQ(form.dgdInfoOfExtract.cellText(0, ExtractColumn::DateOf712), "03/02/2001");
}

TEST_F(Extracts, TypingIntoTheDateCellBringsUpThePicker) {
    relate({1});
    auto& form = open712();
    user::goToCell(form.dgdInfoOfExtract, 0, ExtractColumn::DateOf712);
    user::press(form.dgdInfoOfExtract, "1");
    EXPECT_TRUE(form.DTPicker1.focused());
    EXPECT_FALSE(form.dgdInfoOfExtract.editing());
}

TEST_F(Extracts, ADateTypedAsAWholeIsTakenAndShownInThePicker) {
    relate({1});
    auto& form = open712();
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::DateOf712, "09/08/2007");
    EXPECT_EQ(form.dgdInfoOfExtract.cellText(0, ExtractColumn::DateOf712), "09/08/2007");
    EXPECT_EQ(form.DTPicker1.date(), (Date{2007, 8, 9}));
}

TEST_F(Extracts, ADatePickedWhileNoExtractIsCurrentIsPassedOver) {
    relate({2});
    auto& form = open712();
    user::pressCellButton(form.dgdInfoOfExtract, 0, ExtractColumn::DateOf712);
    user::click(form.cmdSave);
    open712();
    EXPECT_EQ(form.dgdInfoOfExtract.currentRow(), -1);
    user::pickDate(form.DTPicker1, Date{2001, 2, 3});
    EXPECT_EQ(rowTexts(*tables.rsExtract712)[0], "1|null|null|15/03/2024|null|null|null|null");
    EXPECT_TRUE(ports.dialogs.take().empty());
}

TEST_F(Extracts, PrcsAreBuiltForACountWithoutAnyPlotToListThem) {
    proposal.noOfPRC = 2;
    auto& form = proposal.forms.get<frmPRCEXT>();
    EXPECT_EQ(form.cmbExtract.listCount(), 0);
    EXPECT_TRUE(form.cmbExtract.enabled());
    EXPECT_EQ(rowTexts(*tables.rsExtractPRC),
              (Texts{"1|null|null|15/03/2024|0|0|0|0", "2|null|null|15/03/2024|0|0|0|0"}));
    EXPECT_TRUE(ports.dialogs.take().empty());
}

TEST_F(Extracts, EnterInTheCountOfThePrcFormActsAsTabAndFillsTheList) {
    relate({2}, true);
    auto& form = openPrc();
    user::click(form.cmdReferesh);
    user::type(form.txtNoOfExtranct, "2");
    user::press(form.txtNoOfExtranct, "Enter");
    EXPECT_FALSE(form.txtNoOfExtranct.focused());
    EXPECT_EQ(form.cmbExtract.listCount(), 2);
}

TEST_F(Extracts, ProceduresOfTheFormRunByName) {
    relate({1});
    auto& form = open712();
    form.dgdPAH.setColumns({});
    EXPECT_TRUE(form.run("dgdPAHCallSetting"));
    EXPECT_EQ(form.dgdPAH.column(2).caption, "Holder Name");
    form.cmbExtract.clear();
    EXPECT_TRUE(form.run("txtNoOfExtranct_LostFocus"));
    EXPECT_EQ(form.cmbExtract.listCount(), 1);
    form.lblInfoExtract.setCaption("");
    EXPECT_TRUE(form.run("cmbExtract_Click"));
    EXPECT_EQ(form.lblInfoExtract.caption(), " Information For Extract No :- 1");
    EXPECT_TRUE(form.run("cmdSave_Click"));
    EXPECT_NE(proposal.extractOwnerXML, "");
}

TEST_F(Extracts, TheButtonTogglesAHoldersSign) {
    relate({1});
    auto& form = open712();
    EXPECT_EQ(form.dgdPAH.cellText(0, HolderColumn::PAHSing), "");  // the empty holder that the relation's save left
    user::pressCellButton(form.dgdPAH, 0, HolderColumn::PAHSing);
    EXPECT_EQ(form.dgdPAH.cellText(0, HolderColumn::PAHSing), "Yes");
    user::pressCellButton(form.dgdPAH, 0, HolderColumn::PAHSing);
    EXPECT_EQ(form.dgdPAH.cellText(0, HolderColumn::PAHSing), "No");
    EXPECT_FALSE(user::editCell(form.dgdPAH, 0, HolderColumn::PAHSing, "Yes"));
}

TEST_F(Extracts, EnterActsAsTabOn712FormsAndInThePrcFormsGridsAlone) {
    relate({1});
    relate({1}, true);
    auto& land = open712();
    user::press(land.cmbExtract, "Enter");
    EXPECT_TRUE(land.dgdInfoOfExtract.focused());
    auto& cards = openPrc();
    user::press(cards.cmbExtract, "Enter");
    EXPECT_TRUE(cards.cmbExtract.focused());
    user::goToCell(cards.dgdInfoOfExtract, 0, ExtractColumn::SurveyNo);
    user::press(cards.dgdInfoOfExtract, "Enter");
    EXPECT_EQ(cards.dgdInfoOfExtract.currentColumn(), ExtractColumn::HissaNo);
}

TEST_F(Extracts, The712FormDropsSpecialKeysAndThePrcFormDoesNot) {
    relate({1});
    relate({1}, true);
    auto& land = open712();
    user::type(land.txtRemark, "a#b");
    EXPECT_EQ(land.txtRemark.text(), "ab");
    auto& cards = openPrc();
    user::type(cards.txtRemark, "a#b");
    EXPECT_EQ(cards.txtRemark.text(), "a#b");
}

TEST_F(Extracts, SaveWithAnEmptyCountChangesNothingAndLeavesTheFormOpen) {
    proposal.is712Current = true;
    auto& form = proposal.forms.get<frmMain712>();
    form.show();
    form.txtNoOfExtranct.setText("");
    user::click(form.cmdSave);
    EXPECT_TRUE(form.visible());
    EXPECT_EQ(tables.rsOwnership712, nullptr);
}

TEST_F(Extracts, SaveUnbindsTheOwnersUntilAnExtractIsChosenAgain) {
    relate({2});
    auto& form = open712();
    user::click(form.cmdSave);
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(form.dgdOwner.table(), nullptr);
    EXPECT_EQ(tables.rsOwnership712, tables.rsOwnership);
    EXPECT_NE(proposal.extractOwnerXML, "");
    user::pick(form.cmbExtract, 1);
    EXPECT_NE(form.dgdOwner.table(), nullptr);
}

TEST_F(Extracts, ThePrcFormSavesWithoutACountAndKeepsItsOwnersBound) {
    proposal.is712Current = true;
    auto& form = proposal.forms.get<frmPRCEXT>();
    form.show();
    user::click(form.cmdSave);
    EXPECT_FALSE(proposal.is712Current);
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(tables.rsOwnership712, tables.rsOwnership);
    relate({1}, true);
    auto& filled = openPrc();
    filled.txtNoOfExtranct_LostFocus();
    user::click(filled.cmdSave);
    EXPECT_NE(proposal.prcOwnerXML, "");
}

TEST_F(Extracts, ResetOfThe712FormDropsItsTablesWhichComeBackEmpty) {
    relate({2});
    auto& form = open712();
    form.txtRemark.setText("remark");
    user::click(form.cmdReferesh);
    EXPECT_EQ(tables.rsExtract712, nullptr);
    EXPECT_EQ(tables.rsOwner712, nullptr);
    EXPECT_EQ(tables.rsPAH712, nullptr);
    EXPECT_TRUE(form.txtNoOfExtranct.enabled());
    EXPECT_FALSE(form.cmbExtract.enabled());
    EXPECT_FALSE(form.dgdOwner.visible());
    EXPECT_EQ(form.txtRemark.text(), "");
    EXPECT_EQ(form.txtNoOfExtranct.text(), "");
    EXPECT_EQ(form.cmbExtract.listCount(), 0);
    EXPECT_TRUE(user::type(form.txtNoOfExtranct, "2x"));
    user::leave(form.txtNoOfExtranct);
    EXPECT_EQ(tables.rsExtract712->rowCount(), 2);
    EXPECT_EQ(form.dgdOwner.rowCount(), 0);
    EXPECT_FALSE(form.txtNoOfExtranct.enabled());
    EXPECT_TRUE(form.dgdOwner.visible());
}

TEST_F(Extracts, ResetOfThePrcFormKeepsThePrcs) {
    relate({2}, true);
    auto& form = openPrc();
    user::click(form.cmdReferesh);
    EXPECT_EQ(tables.rsExtractPRC->rowCount(), 2);
    EXPECT_EQ(tables.rsOwnerPRC, nullptr);
    EXPECT_EQ(tables.rsPAHPRC, nullptr);
    form.txtNoOfExtranct.setText("2");
    form.txtNoOfExtranct_LostFocus();
    EXPECT_EQ(tables.rsExtractPRC->rowCount(), 2);
    EXPECT_EQ(form.dgdOwner.rowCount(), 0);
    EXPECT_NE(tables.rsOwnerPRC, nullptr);
}

TEST_F(Extracts, Command1FillsTheListWithoutBuildingRows) {
    relate({2});
    auto& form = open712();
    tables.create(extractTables);
    form.txtNoOfExtranct.setText("");
    user::click(form.Command1);
    EXPECT_EQ(form.cmbExtract.listCount(), 2);
    EXPECT_EQ(tables.rsExtract712->rowCount(), 0);
    form.cmbExtract.clear();
    form.txtNoOfExtranct_LostFocus();  // the fill that follows is an ordinary one again
    EXPECT_EQ(form.cmbExtract.listCount(), 0);
}

TEST_F(Extracts, AFillThatFoundNoPlotLeavesTheNextOneWithoutNewRowsToo) {
    proposal.is712Current = true;
    auto& form = proposal.forms.get<frmMain712>();
    user::click(form.Command1);
    EXPECT_EQ(form.cmbExtract.listCount(), 0);
    tables.rsPlot712->addNew();
    tables.rsPlot712->set("No of PRC", 2);
    tables.rsPlot712->update();
    form.txtNoOfExtranct.setText("");
    form.txtNoOfExtranct_LostFocus();
    EXPECT_EQ(form.cmbExtract.listCount(), 2);
    EXPECT_EQ(tables.rsExtract712->rowCount(), 0);
    form.cmbExtract.clear();
    form.txtNoOfExtranct_LostFocus();
    EXPECT_EQ(form.cmbExtract.listCount(), 0);
}

TEST_F(Extracts, Command1OfThePrcFormReadsAgainAndTakesThe712Remark) {
    relate({2}, true);
    auto& form = openPrc();
    std::vector<Commands::Fragment> read;
    proposal.commands.readBlock = [&](Commands::Fragment block) { read.push_back(block); };
    proposal.remark712 = "of 7/12";
    proposal.remarkPRC = "of PRC";
    tables.rsExtractPRC->setFilter("");
    user::click(form.Command1);
    EXPECT_EQ(form.txtNoOfExtranct.text(), "2");
    EXPECT_EQ(form.txtRemark.text(), "of 7/12");
    proposal.is712Current = true;
    user::click(form.Command1);
    EXPECT_EQ(read, (std::vector<Commands::Fragment>{&Proposal::prcOwnerXML, &Proposal::extractOwnerXML}));
}

TEST_F(Extracts, TheRemarksStartFromThoseLastRead) {
    proposal.remark712 = "of 7/12";
    proposal.remarkPRC = "of PRC";
    EXPECT_EQ(proposal.forms.get<frmMain712>().txtRemark.text(), "of 7/12");
    EXPECT_EQ(proposal.forms.get<frmPRCEXT>().txtRemark.text(), "of PRC");
}

TEST_F(Extracts, CloseHidesTheForm) {
    relate({1});
    auto& form = open712();
    user::click(form.cmdClose);
    EXPECT_FALSE(form.visible());
}

}  // namespace
}  // namespace plandesk::test
