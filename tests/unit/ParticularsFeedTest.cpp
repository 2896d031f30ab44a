// Every column that the six pages of the Particulars of Development are fed through.

#include <algorithm>

#include <gtest/gtest.h>

#include "base/Text.h"
#include "controls/User.h"
#include "reports/ReportDesk.h"
#include "reports/rptAnnexture.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

// The columns in their order.
constexpr std::string_view columnNames =
    "NameOfApplcant AddOfApplcant txtArchNm txtRegNm ValidUpto IsAffectRoadReservation IsAffectRoadReservationNEW "
    "txtPltArea Opt1Y txtActualArea IsAnyDeductOfRoadLine Opt2Y txtAreaAllowed Opt3Y Opt4Y txtSanctionNo "
    "DTPicker2 cboZone txtPermissibleFSIZone txtNoOfTenamentsPerAcre IsUseOfEveryRoomMarked "
    "IsInAccordanceRegulation IsInAccordanceRegulationNEW Opt5Y Opt6Y Opt7Y Opt8Y Opt9Y txtAverage "
    "txtPescribWidth txtExistingWidthStreet txtFstStreetWidth txtFstExistingWidth txtStreet1 txtStreet2 "
    "txtHeightOfBuilding txtAbvCentStreet txtAboveAverageGrndLevel IsComplyWith83Regulation "
    "IsComplyWith83RegulationNEW IsAnyStructureOnPlot txtNoTeneExist txtPlinthAreaOfStructureRet txtTenePropose "
    "txtPlinthArea txtAnnexBPlinthArea txtFloorArea txtAnnexBFloorArea Opt18Y txtDevRights txtOverAllFloorArea "
    "IsConsumeFullFloor IsBldgSetbacksonUpFloors txtTotTene txtTotalNoOfTenements txtWidthOfFrontOpenSpace "
    "IsAbutsTwoMoreStreets ApplicableProvInAppendixN ApplicableProvInAppendixNNEW cboSector IsComplyWithRegul74 "
    "txtTotalAreaRoadDeduction txtNetArea txtMainProcess txtWorkmen txtHPEmp txtInstClass txtReferalLaw txtInstNm "
    "txtInstAddr Opt10Y Opt14Y Opt15Y Opt16Y Opt17Y txtWaste Opt77Y IsCorrectlyMarkedOnSitePlanNEW "
    "IsDemolishMarkedYellow txtPlinthTotFloorArea Opt23Y opt26Y txtLiftTyp txtLiftPassCap txtNoLift txtDoorTyp "
    "txtRequirement txtPurposeAccessoryBldg IsNaturalWaterCoursePassNEW txtTikaNo txtDistCentStreet Opt19Y "
    "txtWidthOfSideOpenSpace txtWidthOfRearOpenSpace txtDistanceBetweenBldg IsComplyWithRegul75 IsPlotNarrow "
    "txtDiaInnerChowk txtDiaOuterChowk Opt22Y Opt24Y Opt25Y txtFireDetail Opt27Y Opt28Y txtRequirmentForParking "
    "txtParkingSpaceProposed txtLockUpGaragesProposed IsLoadingUnloadinUnRegulat86 "
    "txtProposedSpaceForLoadUnLoading txtMaxWidthOfBalcony IsReduceOpenSpace Opt29Y txtTotalArea "
    "txtMaxWidthOtherProjection IsCanopiesProposed IsComplyWithRegula80 txtWidthMeanAccess txtRightWay "
    "txtAttachDoc txtClearHgt Opt30Y IsAmenityUnRegula54 IsAnyAccessoryBldgProposed txtHgtEnroch IsAwayFrom75Or15 "
    "Opt31Y txtCompWallHgt Opt32Y Opt33Y Opt34Y Opt35Y Opt36Y Opt37Y txtProvAnteena IsNaturalWaterCoursePass "
    "IsSetbackProvideRegula43 txtNotComply Opt38Y Opt39Y txtFillLevel txtLevelRoad txtPlinthHgtRoad txtRoofs "
    "txtFloor txtWall txtColumns txtBeam txtOtherItem txtWaterCloset txtNoOfWaterClosetProposed txtNoBath "
    "txtNoOfBathsClosetProposed txtNoUrinal txtNoOfUrinalsClosetProposed txtNoKitchen "
    "txtNoOfKitchenClosetProposed txtWaterSource txtDistSwer txtMuncipalLand txtHowManyTrees txtNoOfTreesAffected ";

constexpr std::string_view sheet = "frmAnnexureA";
constexpr std::string_view cont = "AnnexureACont";

// Columns that take another control's text, or none as it stands; every other one has a control of its own name.
constexpr std::string_view withARule =
    "NameOfApplcant AddOfApplcant ValidUpto DTPicker2 cboSector txtHeightOfBuilding txtFstStreetWidth "
    "txtFstExistingWidth txtStreet1 txtStreet2";
// Columns that are right whatever the walk over the options makes of the others.
constexpr std::string_view answersOfArrays =
    "IsAffectRoadReservationNEW IsInAccordanceRegulationNEW IsComplyWith83RegulationNEW ApplicableProvInAppendixNNEW "
    "IsCorrectlyMarkedOnSitePlanNEW IsNaturalWaterCoursePassNEW";

struct ParticularsFeed : testing::Test, World {
    std::vector<std::string> columns = split(trim(columnNames), " ");

    Recordset& table() { return *proposal.tables.rsReportParticulars; }
    std::string at(std::string_view column) {
        const Value& value = table().get(column);
        return isNull(value) ? "null" : valueText(value);
    }
    void feed() {
        proposal.isDirectPrint = true;
        proposal.commands.feed("rptAnnexutreA");
    }
    std::string fed(std::string_view column) {
        feed();
        return at(column);
    }
    static bool isOneOf(std::string_view names, const std::string& name) {
        const std::vector<std::string> list = split(names, " ");
        return std::ranges::find(list, name) != list.end();
    }
    /// The control of that name on either form; null when neither has one.
    Control* named(std::string_view name, int index = Control::noIndex) {
        Control* first = proposal.forms.touch(sheet)->find(name, index);
        return first ? first : proposal.forms.touch(cont)->find(name, index);
    }
    OptionButton* optionNamed(std::string_view name, int index = Control::noIndex) {
        return dynamic_cast<OptionButton*>(named(name, index));
    }
};

TEST_F(ParticularsFeed, TheTableHasItsColumnsInTheirOrder) {
    EXPECT_EQ(columns.size(), 162U);
    feed();
    std::vector<std::string> made;
    for (const Column& column : table().columns()) {
        made.emplace_back(column.name);
        EXPECT_EQ(column.kind, ColumnKind::Text);
        EXPECT_EQ(column.width, column.name == "NameOfApplcant" ? 200 : 250) << column.name;
    }
    EXPECT_EQ(made, columns);
    EXPECT_EQ(table().rowCount(), 1);
}

TEST_F(ParticularsFeed, EveryTextIsCopiedAsItStandsFromTheControlOfItsName) {
    int texts = 0;
    for (const std::string& column : columns) {
        if (isOneOf(withARule, column))
            continue;
        if (auto* box = dynamic_cast<TextBox*>(named(column)))
            box->restoreText(" a " + column + " ");
        else if (auto* list = dynamic_cast<ComboBox*>(named(column)))
            list->setText(" a " + column + " ");
        else
            continue;
        ++texts;
    }
    EXPECT_EQ(texts, 88);
    feed();
    for (const std::string& column : columns)
        if (const Control* control = isOneOf(withARule, column) ? nullptr : named(column);
            control && control->kind() != ControlKind::OptionButton) {
            EXPECT_EQ(at(column), " a " + column + " ");
        }
}

TEST_F(ParticularsFeed, SomeColumnsHaveARuleOfTheirOwn) {
    box(sheet, "txtApplicantNm").restoreText(" Asha Rao");
    box(sheet, "txtApplicantAddr").restoreText("Tervale ");
    date(sheet, "DTPicker2").setDate({2023, 4, 5});
    list(sheet, "cboSector").setText(" Khandri ");
    box(sheet, "txtBuildingHgt").restoreText("12");
    feed();
    EXPECT_EQ(at("NameOfApplcant"), " Asha Rao");
    EXPECT_EQ(at("AddOfApplcant"), "Tervale ");
    EXPECT_EQ(at("ValidUpto"), "asd");
    EXPECT_EQ(at("DTPicker2"), "05/04/2023");
    EXPECT_EQ(at("cboSector"), "Khandri");
    EXPECT_EQ(at("txtHeightOfBuilding"), "null");
}

TEST_F(ParticularsFeed, TheFirstStreetIsBlankWhileItsBoxIsClosed) {
    box(sheet, "txtFstStreetWidth").restoreText("9");
    box(sheet, "txtFstExistingWidth").restoreText("7.5");
    box(sheet, "txtFstStreetWidth").setEnabled(true);
    feed();
    EXPECT_EQ(at("txtFstStreetWidth"), "9");
    EXPECT_EQ(at("txtFstExistingWidth"), "7.5");
    EXPECT_EQ(at("txtStreet1"), "1. Street :");
    EXPECT_EQ(at("txtStreet2"), "2. Street");
    box(sheet, "txtFstStreetWidth").setEnabled(false);
    feed();
    for (const std::string_view column : {"txtFstStreetWidth", "txtFstExistingWidth", "txtStreet1", "txtStreet2"})
        EXPECT_EQ(at(column), "") << column;
}

TEST_F(ParticularsFeed, AYButtonColumnTellsTheAnswerOfItsPair) {
    int pairs = 0;
    for (const std::string& column : columns) {
        OptionButton* yes = optionNamed(column);
        if (!yes)
            continue;
        ++pairs;
        yes->click = {};  // a reaction may take the answer back, while another question has none
        EXPECT_EQ(fed(column), "--") << column;
        yes->setValue(true);
        EXPECT_EQ(fed(column), "YES") << column;
        OptionButton* no = optionNamed(column.substr(0, column.size() - 1) + "N");
        ASSERT_NE(no, nullptr) << column;
        no->setValue(true);
        EXPECT_EQ(fed(column), "NO") << column;
    }
    EXPECT_EQ(pairs, 35);
}

TEST_F(ParticularsFeed, ANewColumnTellsTheAnswerOfItsArray) {
    for (const std::string& column : split(answersOfArrays, " ")) {
        const std::string array = column.substr(0, column.size() - 3);
        EXPECT_EQ(fed(column), "--") << column;
        optionNamed(array, 1)->setValue(true);
        EXPECT_EQ(fed(column), "YES") << column;
        optionNamed(array, 0)->setValue(true);
        EXPECT_EQ(fed(column), "NO") << column;
    }
}

TEST_F(ParticularsFeed, APlainArrayColumnSaysTheSameWhicheverAnswerWasGiven) {
    int arrays = 0;
    std::vector<std::string> alwaysNo;
    for (const std::string& column : columns) {
        OptionButton* yes = optionNamed(column, 1);
        if (!yes)
            continue;
        ++arrays;
        const std::string spoiled = column.ends_with('N') || column.ends_with('n') ? "NO" : "YES";
        if (spoiled == "NO")
            alwaysNo.push_back(column);
        EXPECT_EQ(fed(column), "--") << column;
        yes->setValue(true);
        EXPECT_EQ(fed(column), spoiled) << column;
        optionNamed(column, 0)->setValue(true);
        EXPECT_EQ(fed(column), spoiled) << column;
    }
    EXPECT_EQ(arrays, 23);
    EXPECT_EQ(alwaysNo, (std::vector<std::string>{"IsAffectRoadReservation", "IsInAccordanceRegulation",
                                                  "IsComplyWith83Regulation", "ApplicableProvInAppendixN"}));
}

TEST_F(ParticularsFeed, EveryColumnOfTheTableIsOneOfTheseKinds) {
    for (const std::string& column : columns) {
        const bool rule = isOneOf(withARule, column) || isOneOf(answersOfArrays, column);
        EXPECT_TRUE(rule || named(column) || named(column, 1)) << column;
    }
}

// The procedure

struct FillParticulars : ParticularsFeed {
    std::vector<std::string_view> open() const {
        std::vector<std::string_view> names;
        for (const Preview* preview : shell.reports().previews())
            names.push_back(preview->name);
        return names;
    }
};

TEST_F(FillParticulars, TheFirstPageIsShownWithTheNavigator) {
    box(sheet, "txtArchNm").setText("Rao");
    proposal.procedures.at("fillParticulars")();
    EXPECT_EQ(open(), std::vector<std::string_view>{"rptAnnexutreA"});
    EXPECT_TRUE(proposal.forms.loaded("frmReportNav")->visible());
    EXPECT_EQ(*shell.reports().find("rptAnnexutreA")->data.find("txtArchNm"), "Rao");
    EXPECT_EQ(*shell.reports().filled("rptAnnexutreA5").data.find("txtArchNm"), "Rao");
}

TEST_F(FillParticulars, LaterTypingChangesNothingUntilItIsFedAgain) {
    user::click(button(sheet, "cmdPrint"));
    box(sheet, "txtPltArea").setText("500");
    EXPECT_EQ(*shell.reports().find("rptAnnexutreA")->data.find("txtPltArea"), "");
    user::click(button("frmReportNav", "cmdFormNo(1)"));
    EXPECT_EQ(*shell.reports().find("rptAnnexutreA1")->data.find("txtPltArea"), "");
    user::click(button(sheet, "cmdPrint"));
    EXPECT_EQ(*shell.reports().find("rptAnnexutreA")->data.find("txtPltArea"), "500");
    EXPECT_EQ(*shell.reports().find("rptAnnexutreA1")->data.find("txtPltArea"), "500");
}

TEST_F(FillParticulars, WithDirectPrintNothingIsShownAndTheNavigatorStaysAway) {
    feed();
    EXPECT_TRUE(open().empty());
    EXPECT_EQ(proposal.forms.loaded("frmReportNav"), nullptr);
    EXPECT_EQ(*shell.reports().filled("rptAnnexutreA").data.find("ValidUpto"), "asd");
}

/// The system without the forms that the feed reads.
TEST(FillParticularsFailure, IsToldInOnePlainBoxAndShowsNoReport) {
    TestPorts ports;
    Proposal proposal{ports};
    ReportDesk desk{proposal};
    rptAnnexture feeds{proposal, desk};
    EXPECT_FALSE(feeds.fill("rptAnnexutreA"));
    EXPECT_EQ(ports.dialogs.take(), (std::vector<Message>{{"", "There is no form frmAnnexureA - 3265", Icon::None}}));
    EXPECT_TRUE(desk.previews().empty());
    EXPECT_THROW(feeds.fill("rptPaymentDetails"), RuntimeError) << "the other feeds leave it to their caller";
    EXPECT_TRUE(ports.dialogs.take().empty());
}

}  // namespace
}  // namespace plandesk::test
