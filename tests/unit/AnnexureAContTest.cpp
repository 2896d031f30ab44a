#include "particulars/AnnexureACont.h"

#include "unit/ParticularsFixture.h"

namespace plandesk::test {
namespace {

using AnnexureAContTest = ParticularsTest;

constexpr std::string_view liftBoxes = "txtLiftTyp txtLiftPassCap txtNoLift txtDoorTyp txtFireDetail";
constexpr std::string_view loadingBoxes = "txtRequirement txtProposedSpaceForLoadUnLoading";
constexpr std::string_view accessory = "txtPurposeAccessoryBldg txtHgtEnroch fraIsAwayFrom75Or15 fraOpt31";

TEST_F(AnnexureAContTest, StartsWithNoAnswerAndDependentFieldsShut) {
    second().forEach<OptionButton>([](OptionButton& option) { EXPECT_FALSE(option.value()) << option.key(); });
    expectVisible(second(),
                  "Opt21Y Opt21N Opt23Y Opt23N Opt24Y Opt24N opt26Y Opt26N Opt28Y Opt28N Opt35Y Opt35N Frame5", false);
    expectVisible(second(), loadingBoxes, false);
    expectVisible(second(), accessory, false);
    expectVisible(second(), "txtRightWay txtAttachDoc", false);
    expectVisible(second(), "IsComplyWithRegul74(1) IsComplyWithRegul74(0)", true);
    expectClosed(second(), liftBoxes);
    expectClosed(second(), "txtFillLevel");
    expectText(second(), "txtRightWay txtAttachDoc", "2");
    EXPECT_EQ(second().caption(), "Particulars of Development");
    expectNoMessage();
}

TEST_F(AnnexureAContTest, LoadGivesItTheColourOfForms) {
    proposal.formBackColor = fromBlueGreenRed(0xF2F8FF);
    EXPECT_EQ(second().backColor(), proposal.formBackColor);
    EXPECT_EQ(second().Opt19.yes.backColor(), proposal.formBackColor);
    EXPECT_EQ(second().cmdFormNo[4].backColor(), white);
    EXPECT_EQ(second().cmdFormNo[5].backColor(), proposal.formBackColor);
}

TEST_F(AnnexureAContTest, AYesShowsTheFurtherQuestionAndANoHidesIt) {
    struct Row {
        std::string_view yes, no, shown;
    };
    for (const Row& row : {Row{"Opt20Y", "Opt20N", "Opt21Y Opt21N"}, Row{"Opt27Y", "Opt27N", "Opt28Y Opt28N"},
                           Row{"Opt34Y", "Opt34N", "Opt35Y Opt35N"}, Row{"Opt25Y", "Opt25N", "opt26Y Opt26N"}}) {
        click(second(), row.yes);
        expectVisible(second(), row.shown, true);
        click(second(), row.no);
        expectVisible(second(), row.shown, false);
    }
}

TEST_F(AnnexureAContTest, TheChowkQuestionShowsTheFurtherQuestionsTheOtherWayRound) {
    click(second(), "Opt22Y");
    expectVisible(second(), "Opt23Y Opt23N", false);
    expectVisible(second(), "Opt24Y Opt24N", true);
    click(second(), "Opt22N");
    expectVisible(second(), "Opt23Y Opt23N", true);
    expectVisible(second(), "Opt24Y Opt24N", false);
}

TEST_F(AnnexureAContTest, LiftsOpenTheirBoxes) {
    click(second(), "opt26Y");
    expectOpen(second(), liftBoxes);
    write(second(), liftBoxes, "4");
    click(second(), "Opt26N");
    expectClosed(second(), liftBoxes);
    expectText(second(), liftBoxes, "");
}

TEST_F(AnnexureAContTest, ALowBuildingEmptiesAndGreysTheLiftBoxesButDoesNotShutThem) {
    click(second(), "Opt25Y");
    click(second(), "opt26Y");
    write(second(), liftBoxes, "4");
    click(second(), "Opt25N");
    expectText(second(), liftBoxes, "");
    expectColour(second(), liftBoxes, disabledGrey);
    expectEnabled(second(), liftBoxes, true);
    expectOff(second(), "opt26Y Opt26N");
}

TEST_F(AnnexureAContTest, FillingOpensTheLevel) {
    click(second(), "Opt39Y");
    expectOpen(second(), "txtFillLevel");
    second().txtFillLevel.setText("2");
    click(second(), "Opt39N");
    expectClosed(second(), "txtFillLevel");
    expectText(second(), "txtFillLevel", "");
}

TEST_F(AnnexureAContTest, TheRightOfWayIsMirroredAndShowsTheDocuments) {
    click(second(), "opt21bi(1)");
    expectText(second(), "txtRightWay", "1");
    EXPECT_TRUE(second().Frame5.visible());
    click(second(), "opt21bii(1)");
    expectText(second(), "txtAttachDoc", "1");
    click(second(), "opt21bii(0)");
    expectText(second(), "txtAttachDoc", "0");
    click(second(), "opt21bi(0)");
    expectText(second(), "txtRightWay", "0");
    EXPECT_FALSE(second().Frame5.visible());
    expectOff(second(), "opt21bii(1) opt21bii(0)");
    expectText(second(), "txtAttachDoc", "0");
}

TEST_F(AnnexureAContTest, NoAnswerIsMirroredAsTwo) {
    second().txtRightWay.setText("1");
    second().opt21bi.yes.fire("Click");
    expectText(second(), "txtRightWay", "2");
    second().txtAttachDoc.setText("1");
    second().opt21bii.clear();
    second().opt21bii.yes.fire("Click");
    expectText(second(), "txtAttachDoc", "2");
}

TEST_F(AnnexureAContTest, TheMirrorOfTheDocumentsChoosesTheAnswer) {
    struct Row {
        std::string_view text, kept;
        int code;
    };
    for (const Row& row :
         {Row{"1", "1", 1}, Row{"0", "0", 0}, Row{"2", "2", 2}, Row{"1", "1", 1}, Row{"", "2", 2}, Row{"0", "0", 0},
          Row{"7", "7", 2}, Row{"1", "1", 1}, Row{"yes", "yes", 1}, Row{"99999", "99999", 1}}) {
        second().txtAttachDoc.setText(row.text);
        expectText(second(), "txtAttachDoc", row.kept);
        EXPECT_EQ(second().opt21bii.code(), row.code) << row.text;
    }
    expectNoMessage();
}

TEST_F(AnnexureAContTest, TwoStreetsClearAndHideTheRuleOfTheFrontOpenSpaceForGood) {
    click(second(), "IsComplyWithRegul74(1)");
    click(second(), "IsAbutsTwoMoreStreets(0)");
    expectOff(second(), "IsComplyWithRegul74(1) IsComplyWithRegul74(0)");
    expectVisible(second(), "IsComplyWithRegul74(1) IsComplyWithRegul74(0)", true);
    click(second(), "IsComplyWithRegul74(0)");
    click(second(), "IsAbutsTwoMoreStreets(1)");
    expectOff(second(), "IsComplyWithRegul74(1) IsComplyWithRegul74(0)");
    expectVisible(second(), "IsComplyWithRegul74(1) IsComplyWithRegul74(0)", false);
    click(second(), "IsAbutsTwoMoreStreets(0)");
    expectVisible(second(), "IsComplyWithRegul74(1) IsComplyWithRegul74(0)", false);
    proposal.forms.unload("AnnexureACont");
    expectVisible(second(), "IsComplyWithRegul74(1) IsComplyWithRegul74(0)", true);
}

TEST_F(AnnexureAContTest, LoadingSpacesEmptyTheRequirementAndShowTheirBoxes) {
    write(second(), loadingBoxes, "two");
    click(second(), "IsLoadingUnloadinUnRegulat86(1)");
    expectVisible(second(), loadingBoxes, true);
    expectText(second(), "txtRequirement", "");
    expectText(second(), "txtProposedSpaceForLoadUnLoading", "two");
    second().txtRequirement.setText("three");
    click(second(), "IsLoadingUnloadinUnRegulat86(0)");
    expectVisible(second(), loadingBoxes, false);
    expectText(second(), "txtRequirement", "");
    expectText(second(), "txtProposedSpaceForLoadUnLoading", "two");
}

TEST_F(AnnexureAContTest, AccessoryBuildingsEmptyThePurposeAndShowTheirFields) {
    write(second(), "txtPurposeAccessoryBldg txtHgtEnroch", "text");
    click(second(), "IsAnyAccessoryBldgProposed(1)");
    expectVisible(second(), accessory, true);
    expectText(second(), "txtPurposeAccessoryBldg", "");
    expectText(second(), "txtHgtEnroch", "text");
    second().txtPurposeAccessoryBldg.setText("garage");
    click(second(), "IsAwayFrom75Or15(1)");
    click(second(), "Opt31N");
    click(second(), "IsAnyAccessoryBldgProposed(0)");
    expectVisible(second(), accessory, false);
    expectText(second(), "txtPurposeAccessoryBldg", "");
    expectText(second(), "txtHgtEnroch", "text");
    expectOff(second(), "IsAwayFrom75Or15(1) IsAwayFrom75Or15(0) Opt31Y Opt31N");
}

TEST_F(AnnexureAContTest, DecimalBoxesTakeDigitsAndPoints) {
    for (Control* control :
         controls(second(),
                  "txtWidthOfFrontOpenSpace txtDistCentStreet txtWidthOfSideOpenSpace txtWidthOfRearOpenSpace "
                  "txtDistanceBetweenBldg txtDiaInnerChowk txtDiaOuterChowk txtMaxWidthOfBalcony txtTotalArea "
                  "txtMaxWidthOtherProjection txtWidthMeanAccess txtClearHgt txtHgtEnroch txtCompWallHgt "
                  "txtWaterCloset txtNoBath txtNoUrinal txtNoKitchen txtNoOfWaterClosetProposed "
                  "txtNoOfBathsClosetProposed txtNoOfUrinalsClosetProposed txtNoOfKitchenClosetProposed"))
        EXPECT_EQ(typed(dynamic_cast<TextBox&>(*control), "1a2.-3.,4 "), "12.3.4") << control->name();
}

TEST_F(AnnexureAContTest, TheNumberOfLiftsTakesDigitsAlone) {
    EXPECT_EQ(typed(second().txtNoLift, "1a2.3"), "123");
}

TEST_F(AnnexureAContTest, EveryOtherBoxDropsTheEightSpecialKeysAlone) {
    for (Control* control :
         controls(second(),
                  "txtLiftTyp txtLiftPassCap txtDoorTyp txtFireDetail txtRmk4 txtRequirmentForParking "
                  "txtParkingSpaceProposed txtLockUpGaragesProposed txtRequirement txtProposedSpaceForLoadUnLoading "
                  "txtPurposeAccessoryBldg txtProvAnteena txtNotComply txtFillLevel txtLevelRoad txtPlinthHgtRoad "
                  "txtRoofs txtFloor txtWall txtColumns txtBeam txtOtherItem txtSectionRemark4 txtWaterSource "
                  "txtDistSwer txtMuncipalLand txtRmk5 txtHowManyTrees txtNoOfTreesAffected"))
        EXPECT_EQ(typed(dynamic_cast<TextBox&>(*control), "a#b$c%d&e*f@g^h~i.1<>"), "abcdefghi.1<>") << control->name();
}

TEST_F(AnnexureAContTest, EnterMovesOnAndRewritesNothing) {
    second().show();
    user::type(second().txtRoofs, "tiles");
    user::press(second().txtRoofs, "Enter");
    expectText(second(), "txtRoofs", "tiles");
    EXPECT_FALSE(second().txtRoofs.focused());
}

TEST_F(AnnexureAContTest, SavingLeavesTheAnswersAndBringsTheFirstFormToTheFront) {
    first().show();
    second().show();
    user::click(second().cmdSave);
    EXPECT_TRUE(first().front());
    EXPECT_NE(first().txtSectFourVal.text(), "");
    EXPECT_NE(first().txtSecFiveVal.text(), "");
    expectNoMessage();
}

TEST_F(AnnexureAContTest, ItsButtonsAskForWhatStandsAboveIt) {
    std::vector<std::string> asked;
    proposal.commands.saveProposal = [&] { asked.emplace_back("saveProposal"); };
    proposal.commands.print = [&](std::string_view report) { asked.emplace_back(report); };
    user::click(second().cmdSaveALL);
    user::click(second().Command5);
    EXPECT_EQ(asked, (std::vector<std::string>{"saveProposal", "rptAnnexutreA"}));
    EXPECT_EQ(second().Command5.caption(), "Print Particulars of Development");
    EXPECT_TRUE(second().run("validate"));
    EXPECT_TRUE(second().validate());
}

}  // namespace
}  // namespace plandesk::test
