#include "unit/ParticularsFixture.h"

// Which answers of Sections I to III open and close what, and the one computed area.

namespace plandesk::test {
namespace {

using frmAnnexureARulesTest = ParticularsTest;

constexpr std::string_view industryBoxes = "txtMainProcess txtWorkmen txtHPEmp txtInstClass txtReferalLaw txtWaste";
constexpr std::string_view firstPairs = "Opt10Y Opt10N Opt11Y Opt11N Opt12Y Opt12N Opt14Y Opt14N Opt15Y Opt15N";
constexpr std::string_view allPairs =
    "Opt10Y Opt10N Opt11Y Opt11N Opt12Y Opt12N Opt13Y Opt13N Opt14Y Opt14N Opt15Y Opt15N Opt16Y Opt16N Opt17Y Opt17N";
constexpr std::string_view streetBoxes = "txtFstExistingWidth txtFstStreetWidth";
constexpr std::string_view streetLabels = "lblStreet(0) lblStreet(1) lblStreet(2) lblStreet(3)";
constexpr std::string_view deduction = "txtTotalAreaRoadDeduction txtNetArea";

TEST_F(frmAnnexureARulesTest, StartsWithNoAnswerAndDependentFieldsShut) {
    first().forEach<OptionButton>(
        [this](OptionButton& option) { EXPECT_EQ(option.value(), &option == &first().OptArch) << option.key(); });
    expectVisible(first(), "Opt6Y Opt6N Opt7Y Opt7N Opt8Y Opt8N Opt13Y Opt13N Opt16Y Opt16N Opt17Y Opt17N", false);
    expectVisible(first(), firstPairs, true);
    expectEnabled(first(), firstPairs, false);
    expectClosed(first(), industryBoxes);
    expectClosed(first(), "txtInstNm txtInstAddr txtDevRights txtAreaAllowed");
    expectVisible(first(), streetBoxes, false);
    expectVisible(first(), streetLabels, false);
    expectVisible(first(), deduction, false);
}

TEST_F(frmAnnexureARulesTest, SpecialBuildingsAskForTheirCertificates) {
    click(first(), "Opt5Y");
    expectVisible(first(), "Opt6Y Opt6N Opt7Y Opt7N Opt8Y Opt8N", true);
    click(first(), "Opt5N");
    expectVisible(first(), "Opt6Y Opt6N Opt7Y Opt7N Opt8Y Opt8N", false);
}

TEST_F(frmAnnexureARulesTest, IndustryOpensItsBoxesAndEnablesItsQuestions) {
    click(first(), "Opt9Y");
    expectOpen(first(), industryBoxes);
    expectEnabled(first(), firstPairs, true);
    expectClosed(first(), "txtInstNm txtInstAddr");
    expectVisible(first(), "Opt13Y Opt13N Opt16Y Opt16N Opt17Y Opt17N", false);
}

TEST_F(frmAnnexureARulesTest, NoIndustryEmptiesHidesAndClearsAll) {
    click(first(), "Opt9Y");
    for (const std::string_view yes : {"Opt10Y", "Opt11Y", "Opt12Y", "Opt13Y", "Opt14Y", "Opt15Y", "Opt16Y", "Opt17Y"})
        click(first(), yes);
    write(first(), industryBoxes, "text");
    write(first(), "txtInstNm txtInstAddr", "text");
    click(first(), "Opt9N");
    expectClosed(first(), industryBoxes);
    expectText(first(), industryBoxes, "");
    expectVisible(first(), allPairs, false);
    expectOff(first(), allPairs);
    // The name and address of the industry turn grey and nothing else happens to them.
    expectColour(first(), "txtInstNm txtInstAddr", disabledGrey);
    expectEnabled(first(), "txtInstNm txtInstAddr", true);
    expectText(first(), "txtInstNm txtInstAddr", "text");
}

TEST_F(frmAnnexureARulesTest, AnIndustryAfterNoneDoesNotShowTheQuestionsAgain) {
    click(first(), "Opt9N");
    click(first(), "Opt9Y");
    expectOpen(first(), industryBoxes);
    expectEnabled(first(), firstPairs, true);
    expectVisible(first(), allPairs, false);
}

TEST_F(frmAnnexureARulesTest, ARelocatedIndustryHasANameAndAnAddress) {
    click(first(), "Opt10Y");
    expectOpen(first(), "txtInstNm txtInstAddr");
    write(first(), "txtInstNm txtInstAddr", "text");
    click(first(), "Opt10N");
    expectClosed(first(), "txtInstNm txtInstAddr");
    expectText(first(), "txtInstNm txtInstAddr", "");
}

TEST_F(frmAnnexureARulesTest, AnExpansionAsksForTheDirectorsCertificate) {
    click(first(), "Opt12Y");
    expectVisible(first(), "Opt13Y Opt13N", true);
    click(first(), "Opt12N");
    expectVisible(first(), "Opt13Y Opt13N", false);
}

TEST_F(frmAnnexureARulesTest, AServiceEstateAsksWhatThePlotIsReservedFor) {
    click(first(), "Opt15Y");
    expectVisible(first(), "Opt16Y Opt16N Opt17Y Opt17N", true);
    click(first(), "Opt15N");
    expectVisible(first(), "Opt16Y Opt16N Opt17Y Opt17N", false);
}

TEST_F(frmAnnexureARulesTest, HiddenPairsKeepTheirAnswers) {
    click(first(), "Opt5Y");
    click(first(), "Opt6Y");
    click(first(), "Opt5N");
    EXPECT_TRUE(first().Opt6.yes.value());
}

TEST_F(frmAnnexureARulesTest, DevelopmentRightsOpenTheirBox) {
    click(first(), "Opt18Y");
    expectOpen(first(), "txtDevRights");
    first().txtDevRights.setText("200");
    click(first(), "Opt18N");
    expectClosed(first(), "txtDevRights");
    expectText(first(), "txtDevRights", "");
}

TEST_F(frmAnnexureARulesTest, APlotAtTwoStreetsAsksForBoth) {
    click(first(), "Opt77Y");
    expectVisible(first(), streetBoxes, true);
    expectVisible(first(), streetLabels, true);
    write(first(), streetBoxes, "9");
    write(first(), "txtAverage txtPescribWidth txtExistingWidthStreet", "7");
    click(first(), "Opt77N");
    expectVisible(first(), streetBoxes, false);
    expectVisible(first(), streetLabels, false);
    expectText(first(), streetBoxes, "");
    expectText(first(), "txtAverage txtPescribWidth txtExistingWidthStreet", "7");
    expectVisible(first(), "txtAverage txtPescribWidth txtExistingWidthStreet", true);
}

TEST_F(frmAnnexureARulesTest, StreetLabelsCarryTheirWords) {
    EXPECT_EQ(first().lblStreet[0].caption(), "1. Street ");
    EXPECT_EQ(first().lblStreet[1].caption(), "2.Street");
    EXPECT_EQ(first().lblStreet[2].caption(), "1. Street");
    EXPECT_EQ(first().lblStreet[3].caption(), "2.Street");
}

TEST_F(frmAnnexureARulesTest, ARoadDeductionAsksForItsAreas) {
    click(first(), "IsAnyDeductOfRoadLine(1)");
    expectVisible(first(), deduction, true);
    write(first(), deduction, "10");
    click(first(), "IsAnyDeductOfRoadLine(0)");
    expectVisible(first(), deduction, false);
    expectText(first(), deduction, "");
}

TEST_F(frmAnnexureARulesTest, EitherAnswerToTheFullFloorEmptiesTheReason) {
    for (const std::string_view answer : {"IsConsumeFullFloor(1)", "IsConsumeFullFloor(0)"}) {
        first().txtWhyNot.setText("a reason");
        click(first(), answer);
        expectText(first(), "txtWhyNot", "");
    }
}

// The computed area.

TEST_F(frmAnnexureARulesTest, TheSmallerActualAreaIsAllowed) {
    first().txtPltArea.setText("1000.6");
    first().txtActualArea.setText("900.5");
    user::click(first().Opt2.yes);
    expectText(first(), "txtAreaAllowed", "900.5");
    EXPECT_EQ(proposal.feeArea, 900);
    expectClosed(first(), "txtAreaAllowed");
    expectNoMessage();
}

TEST_F(frmAnnexureARulesTest, ALargerOrEqualActualAreaGivesThePlotAreasText) {
    first().txtPltArea.setText("1000.50");
    first().txtActualArea.setText("1000.5");
    user::click(first().Opt2.yes);
    expectText(first(), "txtAreaAllowed", "1000.50");
    EXPECT_EQ(proposal.feeArea, 1000);
    first().txtActualArea.setText("2000");
    user::click(first().Opt2.yes);
    expectText(first(), "txtAreaAllowed", "1000.50");
}

TEST_F(frmAnnexureARulesTest, TheFeeAreaRoundsHalvesToEven) {
    first().txtActualArea.setText("30000");
    for (const auto& [text, area] : {std::pair{"2.5", 2}, {"3.5", 4}, {"3.51", 4}, {"32767.49", 32767}}) {
        first().txtPltArea.setText(text);
        first().txtActualArea.setText("99999");
        user::click(first().Opt2.yes);
        EXPECT_EQ(proposal.feeArea, area) << text;
    }
}

TEST_F(frmAnnexureARulesTest, ATooLargeAreaOverflowsTheFeeAreaAndLosesNothingTyped) {
    proposal.feeArea = 55;
    first().txtPltArea.setText("32768");
    first().txtActualArea.setText("40000");
    user::click(first().Opt2.yes);
    expectMessage("Overflow", "", Icon::Critical);
    EXPECT_EQ(proposal.feeArea, 55);
    expectText(first(), "txtPltArea", "32768");
    expectText(first(), "txtActualArea", "40000");
    EXPECT_TRUE(first().Opt2.yes.value());
    EXPECT_FALSE(first().txtAreaAllowed.enabled());
}

TEST_F(frmAnnexureARulesTest, AnActualAreaOf32768Overflows) {
    first().txtPltArea.setText("50000");
    first().txtActualArea.setText("32768");
    user::click(first().Opt2.yes);
    expectMessage("Overflow", "", Icon::Critical);
    EXPECT_EQ(proposal.feeArea, 0);
}

TEST_F(frmAnnexureARulesTest, ANewPlotAreaDoesNotChangeTheAreaAllowed) {
    first().txtPltArea.setText("100");
    first().txtActualArea.setText("100");
    user::click(first().Opt2.yes);
    user::type(first().txtPltArea, "50");
    expectText(first(), "txtAreaAllowed", "100");
    EXPECT_EQ(proposal.feeArea, 100);
}

TEST_F(frmAnnexureARulesTest, ALetterInThePlotAreaEmptiesItAndKeepsTheAnswer) {
    first().show();
    first().txtPltArea.setText("12a");
    first().txtActualArea.setText("10b");
    user::click(first().Opt2.yes);
    expectMessage("Enter Numeric Data", "Invalid Data");
    expectText(first(), "txtPltArea", "");
    expectText(first(), "txtActualArea", "10b");
    EXPECT_TRUE(first().txtPltArea.focused());
    EXPECT_TRUE(first().Opt2.yes.value());
    expectText(first(), "txtAreaAllowed", "");
}

TEST_F(frmAnnexureARulesTest, ALetterInTheActualAreaEmptiesItAndClearsTheAnswer) {
    first().show();
    first().txtPltArea.setText("12");
    first().txtActualArea.setText("10'");
    user::click(first().Opt2.yes);
    expectMessage("Enter Numeric Data", "Invalid Data");
    expectText(first(), "txtActualArea", "");
    EXPECT_TRUE(first().txtActualArea.focused());
    EXPECT_EQ(first().Opt2.code(), 2);
}

TEST_F(frmAnnexureARulesTest, AMissingPlotAreaIsAskedForOnTheFirstTab) {
    first().show();
    first().goToTab(1);
    user::click(first().Opt2.yes);
    expectMessage("Enter Plot Area", "Plot Area");
    EXPECT_EQ(first().Opt2.code(), 2);
    EXPECT_EQ(first().PropTab.tab(), 0);
    EXPECT_TRUE(first().txtPltArea.focused());
}

TEST_F(frmAnnexureARulesTest, AMissingActualAreaIsAskedForOnTheFirstTab) {
    first().show();
    first().txtPltArea.setText("100");
    first().goToTab(1);
    user::click(first().Opt2.yes);
    expectMessage("Enter Actual Area measured.", "Actual Area");
    EXPECT_EQ(first().Opt2.code(), 2);
    EXPECT_EQ(first().PropTab.tab(), 0);
    EXPECT_TRUE(first().txtActualArea.focused());
}

TEST_F(frmAnnexureARulesTest, AreasThatAreNoNumbersAreATypeMismatch) {
    first().txtPltArea.setText("1.2.3");
    first().txtActualArea.setText("10");
    user::click(first().Opt2.yes);
    expectMessage("Type mismatch", "", Icon::Critical);
    EXPECT_EQ(proposal.feeArea, 0);
    expectText(first(), "txtPltArea", "1.2.3");
}

TEST_F(frmAnnexureARulesTest, NoClearanceEmptiesTheAreaAllowed) {
    first().txtPltArea.setText("100");
    first().txtActualArea.setText("100");
    user::click(first().Opt2.yes);
    user::click(first().Opt2.no);
    expectText(first(), "txtAreaAllowed", "");
    EXPECT_EQ(proposal.feeArea, 0);
    expectClosed(first(), "txtAreaAllowed");
}

}  // namespace
}  // namespace plandesk::test
