#include "particulars/frmAnnexureA.h"

#include "particulars/particulars.h"
#include "unit/ParticularsFixture.h"

namespace plandesk::test {
namespace {

using frmAnnexureATest = ParticularsTest;

constexpr std::string_view numberControls = "lblFileNo lblRevNo txtFileNo txtRevNo";

TEST_F(frmAnnexureATest, LoadsWithTodayTheArchitectAndTheFirstPage) {
    EXPECT_EQ(first().DTPicker1.date(), (Date{2024, 3, 15}));
    EXPECT_EQ(first().DTPicker2.date(), (Date{2024, 3, 15}));
    EXPECT_TRUE(first().OptArch.value());
    EXPECT_EQ(first().lblArch.caption(), "Architect ");
    EXPECT_EQ(first().PropTab.tab(), 0);
    EXPECT_FALSE(first().cmdPrevious.enabled());
    EXPECT_TRUE(first().cmdNext.enabled());
    expectVisible(first(), numberControls, false);
    EXPECT_EQ(first().caption(), "Particulars of Development");
    EXPECT_FALSE(first().visible());
    expectNoMessage();
}

TEST_F(frmAnnexureATest, LoadGivesItTheColourOfForms) {
    proposal.formBackColor = fromBlueGreenRed(0xF2F8FF);
    EXPECT_EQ(first().backColor(), proposal.formBackColor);
    EXPECT_EQ(first().Opt1.yes.backColor(), proposal.formBackColor);
    EXPECT_EQ(first().txtTitle.backColor(), white);
}

TEST_F(frmAnnexureATest, FillsItsListsInTheirOrder) {
    const auto items = [](const ComboBox& list) {
        std::vector<std::string> texts;
        for (int i = 0; i < list.listCount(); ++i)
            texts.emplace_back(list.item(i));
        return texts;
    };
    EXPECT_EQ(items(first().cboCaseType), (std::vector<std::string>{"New", "Revised"}));
    EXPECT_EQ(items(first().cboProposalTyp),
              (std::vector<std::string>{"Residential", "Resi+Comm ", "Industrial", "Educational ", "Assembly/Public",
                                        "Institutional", "Merchantile/Commercial", "Business", "Utility/services",
                                        "Storage"}));
    EXPECT_EQ(items(first().cboProposProj),
              (std::vector<std::string>{"Building Development", "Amalgamation", "Sub Division",
                                        "Sub Division + Amalgamation", "Amalgamation + Sub Division",
                                        "Amalgamation + Proposed Development", "Sub Division + Proposed Development",
                                        "Sub Division + Amalgamation + Proposed Development",
                                        "Amalgamation + Sub Division + Proposed Development"}));
    EXPECT_EQ(items(first().cboZone),
              (std::vector<std::string>{"R1(purely residential)", "R2(Residential with shop line) ",
                                        "C1(Commercial zone) ", "C2(District commercial)", "G1(Not Hills)",
                                        "G2(Green belt)", "I(Industrial)", "I1(Service Industrial Zone)"}));
    EXPECT_EQ(items(first().cboSector), (std::vector<std::string>{"Tervale", "Balundi", "Hosavel"}));
}

TEST_F(frmAnnexureATest, AVillageKeepsItsNumberAndItsCode) {
    EXPECT_EQ(first().cboSector.itemData(0), 1);
    EXPECT_EQ(first().cboSector.itemData(2), 30);
    const TextList& codes = first().villageCodes;
    ASSERT_EQ(codes.size(), 3U);
    EXPECT_EQ(codes[0], "TRV");
    EXPECT_EQ(codes[1], "BLN");
    EXPECT_EQ(codes[2], "HSV");
}

TEST_F(frmAnnexureATest, FillingTheListsAgainStartsThemAnew) {
    first().cboSector.setListIndex(1);
    EXPECT_TRUE(first().run("setComboValues"));
    EXPECT_EQ(first().cboSector.listIndex(), -1);
    EXPECT_EQ(first().cboSector.listCount(), 3);
    EXPECT_EQ(first().cboCaseType.listCount(), 2);
    EXPECT_EQ(first().cboProposProj.listCount(), 9);
    EXPECT_EQ(first().villageCodes.size(), 3U);
}

TEST_F(frmAnnexureATest, AMissingVillageFileStopsTheLoadWithOneBoxAndTheFormGoesOn) {
    machine.files.contents.clear();
    EXPECT_EQ(first().cboSector.listCount(), 0);
    expectMessage("File not found", "", Icon::Critical);
    EXPECT_TRUE(user::type(first().txtTitle, "Still here"));
    EXPECT_EQ(first().txtTitle.text(), "Still here");
    EXPECT_EQ(first().cboProposProj.listCount(), 9);
    expectVisible(first(), numberControls, true);
}

TEST_F(frmAnnexureATest, AVillageLineWithTooFewFieldsStopsTheLoad) {
    machine.files.contents["/program/VILLAGENAMES.txt"] = "Tervale#1#TRV\nBalundi#2\nHosavel#3#HSV\n";
    EXPECT_EQ(first().cboSector.listCount(), 1);
    expectMessage("Subscript out of range", "", Icon::Critical);
}

TEST_F(frmAnnexureATest, AnEmptyVillageLineIsNotSkippedEither) {
    machine.files.contents["/program/VILLAGENAMES.txt"] = "Tervale#1#TRV\n\nHosavel#3#HSV\n";
    EXPECT_EQ(first().cboSector.listCount(), 1);
    expectMessage("Subscript out of range", "", Icon::Critical);
}

TEST_F(frmAnnexureATest, AVillageNumberThatIsNoneStopsTheLoad) {
    machine.files.contents["/program/VILLAGENAMES.txt"] = "Tervale#one#TRV\n";
    EXPECT_EQ(first().cboSector.listCount(), 0);
    expectMessage("Type mismatch", "", Icon::Critical);
}

TEST_F(frmAnnexureATest, AVillageMayHaveAnEmptyCode) {
    machine.files.contents["/program/VILLAGENAMES.txt"] = "Tervale#1#\n";
    EXPECT_EQ(first().cboSector.listCount(), 1);
    ASSERT_EQ(first().villageCodes.size(), 1U);
    EXPECT_EQ(first().villageCodes[0], "");
    expectNoMessage();
}

TEST_F(frmAnnexureATest, AnEmptyVillageFileGivesAnEmptyListAndTheFirstPageCanNeverPass) {
    machine.files.contents["/program/VILLAGENAMES.txt"] = "";
    EXPECT_EQ(first().cboSector.listCount(), 0);
    expectNoMessage();
    for (ComboBox* list : {&first().cboCaseType, &first().cboProposalTyp, &first().cboProposProj})
        list->setListIndex(0);
    first().txtTitle.setText("A new case");
    first().cboSector.setText("Tervale");
    EXPECT_FALSE(first().validateAnnexureFirstPage());
    expectMessage("Village Name Can not be blank !", "");
}

TEST_F(frmAnnexureATest, TheCaseTypeDecidesOnFileAndRevisionNumber) {
    struct Row {
        std::string_view text;
        bool shown;
        std::string_view caption;
    };
    const Row rows[] = {
        {"Revised", true, "Revision No."},          {"New", false, "Revision No."},
        {"Resubmitted", true, "Resubmittion No."},  {"Change of use", false, "Resubmittion No."},
        {"Revalidation", true, "Revalidation No."}, {"  New  ", false, "Revalidation No."},
    };
    for (const Row& row : rows) {
        first().cboCaseType.setText(row.text);
        EXPECT_TRUE(first().run("cboCaseType_Click"));
        expectVisible(first(), numberControls, row.shown);
        EXPECT_EQ(first().lblRevNo.caption(), row.caption) << row.text;
    }
}

TEST_F(frmAnnexureATest, AnUnknownCaseTypeChangesNothing) {
    EXPECT_TRUE(user::pick(first().cboCaseType, 1));
    expectVisible(first(), numberControls, true);
    first().cboCaseType.setText("Withdrawn");
    first().run("cboCaseType_Click");
    expectVisible(first(), numberControls, true);
}

TEST_F(frmAnnexureATest, ACaseTypeBeyondTheListIsRefusedAndChangesNothing) {
    first().cboCaseType.setListIndex(1);
    EXPECT_THROW(first().cboCaseType.setListIndex(3), RuntimeError);
    EXPECT_EQ(first().cboCaseType.text(), "Revised");
}

TEST_F(frmAnnexureATest, TheProfessionalGivesTheHeadingItsWords) {
    user::click(first().OptLE);
    EXPECT_EQ(first().lblArch.caption(), "Licence Engineer");
    user::click(first().OptSE);
    EXPECT_EQ(first().lblArch.caption(), "Structural Engineer");
    EXPECT_FALSE(first().OptLE.value());
    user::click(first().OptArch);
    EXPECT_EQ(first().lblArch.caption(), "Architect ");
}

TEST_F(frmAnnexureATest, EnterRewritesTheBoxInProperCaseAndMovesOn) {
    user::type(first().txtFileNo, "x");
    first().txtFileNo.setVisible(true);
    user::type(first().txtFileNo, "a-12 b 2nd");
    user::press(first().txtFileNo, "Enter");
    EXPECT_EQ(first().txtFileNo.text(), "A-12 B 2Nd");
    EXPECT_FALSE(first().txtFileNo.focused());
}

TEST_F(frmAnnexureATest, EnterOnAnotherKindOfControlRewritesNothing) {
    first().txtTitle.setText("as typed");
    first().OptArch.setFocus();
    user::press(first().OptArch, "Enter");
    EXPECT_EQ(first().txtTitle.text(), "as typed");
    EXPECT_TRUE(first().txtArchNm.focused());
}

TEST_F(frmAnnexureATest, EnterRewritesAlsoWhereTheFocusIsHeld) {
    first().cboCaseType.setListIndex(-1);
    user::type(first().txtApplicantNm, "  ");
    user::press(first().txtApplicantNm, "Enter");
    EXPECT_TRUE(first().txtApplicantNm.focused());
    expectMessage("Applicant Name Can not be blank !", "");
}

TEST_F(frmAnnexureATest, DecimalBoxesTakeDigitsAndPoints) {
    for (Control* control :
         controls(first(),
                  "txtPltArea txtActualArea txtTikaNo txtTotalAreaRoadDeduction txtNetArea txtSanctionNo "
                  "txtPermissibleFSIZone txtWorkmen txtAnnexBPlinthArea txtAnnexBFloorArea txtFloorArea txtPlinthArea "
                  "txtPlinthAreaOfStructureRet txtPlinthTotFloorArea txtOverAllFloorArea txtTotTene txtNoTeneExist "
                  "txtTenePropose txtAverage txtPescribWidth txtExistingWidthStreet txtFstStreetWidth "
                  "txtFstExistingWidth txtBuildingHgt txtAbvCentStreet txtAboveAverageGrndLevel"))
        EXPECT_EQ(typed(dynamic_cast<TextBox&>(*control), "1a2.-3.,4 "), "12.3.4") << control->name();
}

TEST_F(frmAnnexureATest, WholeNumberBoxesTakeDigitsAlone) {
    EXPECT_EQ(typed(first().txtNoOfTenamentsPerAcre, "1a2.3"), "123");
    EXPECT_EQ(typed(first().txtTotalNoOfTenements, "1a2.3"), "123");
}

TEST_F(frmAnnexureATest, EveryOtherBoxDropsTheEightSpecialKeysAlone) {
    for (Control* control : controls(
             first(),
             "txtTitle txtFileNo txtRevNo txtpltno txtFPNo txtHissaNo txtCTSNo txtGutNo txtApplicantNm "
             "txtApplicantAddr txtArchNm txtArchFirstName txtArchMiddName txtRegNm txtReservationType "
             "txtReservationArea txtRmk1 txtMainProcess txtHPEmp txtInstClass txtReferalLaw txtInstNm txtInstAddr "
             "txtWaste txtRmk2 txtExistingTotalFloorArea txtProposedTotalFloorArea txtDevRights txtWhyNot txtRmk3")) {
        first().screen().dropFocus();
        EXPECT_EQ(typed(dynamic_cast<TextBox&>(*control), "a#b$c%d&e*f@g^h~i.1<>\"'"), "abcdefghi.1<>\"'")
            << control->name();
    }
}

TEST_F(frmAnnexureATest, ThePathGoesIntoTheCaptionOfTheMainWindow) {
    first().txtPathNm.setText("/home/a/case.xml");
    EXPECT_EQ(proposal.screen.caption(), "/home/a/case.xml");
    first().txtPathNm.setText("");
    EXPECT_EQ(proposal.screen.caption(), "");
}

TEST_F(frmAnnexureATest, TheCarriersAreNeverShown) {
    expectVisible(first(), "txtSectFourVal txtSecFiveVal txtDocChkList txtPayDetail txtPathNm", false);
}

TEST_F(frmAnnexureATest, ThePagesAnswerToValidateWithTrue) {
    EXPECT_TRUE(first().validate());
    EXPECT_TRUE(first().run("validate"));
}

TEST_F(frmAnnexureATest, ItsButtonsAskForWhatStandsAboveIt) {
    std::vector<std::string> asked;
    proposal.commands.SaveData = [&] { asked.emplace_back("SaveData"); };
    proposal.commands.CreateXMLFIle = [&] { asked.emplace_back("CreateXMLFIle"); };
    proposal.commands.saveProposal = [&] { asked.emplace_back("saveProposal"); };
    proposal.commands.open = [&](std::string_view form) { asked.emplace_back(form); };
    proposal.commands.print = [&](std::string_view report) { asked.emplace_back(report); };
    user::click(first().cmdSave);
    user::click(first().cmdSaveALL);
    user::click(first().cmdPrint);
    user::click(first().cmdUS84);
    user::click(first().cmdPlotRelation);
    first().run("SaveData");
    first().run("CreateXMLFIle");
    EXPECT_EQ(asked, (std::vector<std::string>{"SaveData", "saveProposal", "rptAnnexutreA", "rptReciept",
                                               "frmPlotExtractRelation", "SaveData", "CreateXMLFIle"}));
}

TEST_F(frmAnnexureATest, ReadXmlTellsWhetherAFileIsOpenAndThenReads) {
    std::vector<std::size_t> boxesBefore;
    proposal.commands.readXml = [&] { boxesBefore.push_back(machine.dialogs.messages.size()); };
    user::click(first().Command1);
    expectMessage("File Open = False", "");
    proposal.isProposalOpen = true;
    user::click(first().Command1);
    expectMessage("File Open = True", "");
    EXPECT_EQ(boxesBefore, (std::vector<std::size_t>{1, 1}));
}

TEST_F(frmAnnexureATest, ButtonsCarryTheirWords) {
    EXPECT_EQ(first().Command1.caption(), "Read XML");
    EXPECT_EQ(first().cmdPrint.caption(), "Print Particulars of Development");
    EXPECT_EQ(first().cmdUS84.caption(), "Particular Of Proposal ");
    for (int page = 0; page < 9; ++page)
        EXPECT_EQ(first().cmdFormNo[page].caption(), std::to_string(page + 1));
}

}  // namespace
}  // namespace plandesk::test
