#include "unit/ParticularsPapers.h"

#include <array>
#include <span>

#include <gtest/gtest.h>

// The six pages of the Particulars of Development: marks and answers in reading order, as the statutory form has them.

namespace plandesk::test {
namespace {

/// Marks and fields of a page, a question a line.
std::vector<std::string> outlineOf(std::string_view page) {
    std::vector<std::string> outline;
    for (const Asked& question : questionsOf(pageOf(page))) {
        std::string line = question.marks;
        for (const std::string& name : question.fields)
            line += (line.empty() ? "" : " ") + name;
        outline.push_back(line);
    }
    return outline;
}

TEST(ParticularsPapers, PageOneGoesFromTheVillageToTheUseOfRooms) {
    const std::vector<std::string> outline = {
        "cboSector",
        "txtTikaNo",
        "1. a. i. NameOfApplcant",
        "ii. AddOfApplcant",
        "b. txtArchNm",
        "c. txtRegNm",
        "d. ValidUpto",
        "e. ValidUpto",
        "2. IsAffectRoadReservationNEW",
        "3. a. txtPltArea",
        "b. Opt1Y",
        "c. txtActualArea",
        "d. i. IsAnyDeductOfRoadLine",
        "ii. txtTotalAreaRoadDeduction",
        "e. txtNetArea",
        "f. Opt2Y",
        "g. txtAreaAllowed",
        "4. Opt3Y",
        "a. Opt4Y",
        "b. txtSanctionNo",
        "DTPicker2",
        "6. a. cboZone",
        "b. txtPermissibleFSIZone",
        "c. txtNoOfTenamentsPerAcre",
        "7. a. IsUseOfEveryRoomMarked",
        "b. IsInAccordanceRegulationNEW",
        "c. Opt5Y",
        "Opt6Y",
        "Opt7Y",
        "Opt8Y",
    };
    EXPECT_EQ(outlineOf("rptAnnexutreA"), outline);
}

TEST(ParticularsPapers, PageTwoGoesFromTheIndustryToTheStructures) {
    const std::vector<std::string> outline = {
        "8. Opt9Y",
        "a. txtMainProcess",
        "b. txtWorkmen",
        "txtHPEmp",
        "c. txtInstClass",
        "txtReferalLaw",
        "d. Opt10Y",
        "txtInstNm",
        "txtInstAddr",
        "e. Opt14Y",
        "f. Opt15Y",
        "Opt16Y",
        "Opt17Y",
        "g. txtWaste",
        "9. a. Opt77Y",
        "i. txtAverage",
        "txtStreet1 txtFstStreetWidth txtStreet2 txtPescribWidth",
        "ii. txtStreet1 txtFstExistingWidth txtStreet2 txtExistingWidthStreet",
        "b. txtHeightOfBuilding",
        "i. txtAbvCentStreet",
        "ii. txtAboveAverageGrndLevel",
        "c. IsComplyWith83RegulationNEW",
        "10. a. IsAnyStructureOnPlot",
        "i. IsCorrectlyMarkedOnSitePlanNEW",
        "ii. IsDemolishMarkedYellow",
        "iii. txtPlinthAreaOfStructureRet",
        "iv. txtNoTeneExist",
        "b. txtPlinthTotFloorArea",
        "c. txtTenePropose",
    };
    EXPECT_EQ(outlineOf("rptAnnexutreA1"), outline);
}

TEST(ParticularsPapers, PageThreeGoesFromTheFloorAreasToTheLifts) {
    const std::vector<std::string> outline = {
        "11. a. txtPlinthArea",
        "txtFloorArea",
        "txtAnnexBPlinthArea",
        "txtAnnexBFloorArea",
        "Opt18Y txtDevRights",
        "txtOverAllFloorArea",
        "b. txtTotTene",
        "c. IsConsumeFullFloor",
        "d. IsBldgSetbacksonUpFloors",
        "e. txtTotalNoOfTenements",
        "f.",
        "12. a. txtWidthOfFrontOpenSpace",
        "i. IsAbutsTwoMoreStreets",
        "IsComplyWithRegul74",
        "b. ApplicableProvInAppendixNNEW",
        "txtDistCentStreet",
        "Opt19Y",
        "13. a.",
        "i. txtWidthOfSideOpenSpace",
        "ii. txtWidthOfRearOpenSpace",
        "iii. txtDistanceBetweenBldg",
        "13. b. IsComplyWithRegul75",
        "IsPlotNarrow",
        "IsComplyWithRegul75",
        "14. a. txtDiaInnerChowk",
        "b. txtDiaOuterChowk",
        "b. i. Opt22Y",
        "ii. Opt23Y",
        "Opt24Y",
        "15. a. Opt25Y",
        "15. b. opt26Y",
        "txtLiftTyp",
        "txtLiftPassCap",
        "txtNoLift",
        "txtDoorTyp",
        "c. txtFireDetail",
    };
    EXPECT_EQ(outlineOf("rptAnnexutreA2"), outline);
}

TEST(ParticularsPapers, PageFourGoesFromTheFireRulesToTheAccessoryBuildings) {
    const std::vector<std::string> outline = {
        "16. a. Opt27Y",
        "b. Opt28Y",
        "17. a. i. txtRequirmentForParking",
        "ii. txtParkingSpaceProposed",
        "iii. txtLockUpGaragesProposed",
        "b. i. IsLoadingUnloadinUnRegulat86",
        "ii. txtRequirement",
        "iii. txtProposedSpaceForLoadUnLoading",
        "18. a. i. txtMaxWidthOfBalcony",
        "ii. IsReduceOpenSpace",
        "iii. Opt29Y",
        "iv. txtTotalArea",
        "b. txtMaxWidthOtherProjection",
        "c. i. IsCanopiesProposed",
        "ii. IsComplyWithRegula80",
        "19. a. txtWidthMeanAccess",
        "b. i. txtRightWay",
        "ii. txtAttachDoc",
        "c. txtClearHgt",
        "d. Opt30Y",
        "20. IsAmenityUnRegula54",
        "21. a. IsAnyAccessoryBldgProposed",
        "txtPurposeAccessoryBldg",
        "b. txtHgtEnroch",
        "c. IsAwayFrom75Or15",
        "d. Opt31Y",
    };
    EXPECT_EQ(outlineOf("rptAnnexutreA3"), outline);
}

/// From the materials on; the numbers are those of the materials, closets, water, sewer and stacking.
std::vector<std::string> lastOutline(std::span<const std::string, 5> numbers) {
    return {
        numbers[0],
        "txtRoofs",
        "txtFloor",
        "txtWall",
        "txtColumns",
        "txtBeam",
        "txtOtherItem",
        numbers[1] + " i. txtWaterCloset",
        "txtNoBath",
        "iii. txtNoUrinal",
        "txtNoKitchen",
        "i. txtNoOfWaterClosetProposed",
        "txtNoOfBathsClosetProposed",
        "iii. txtNoOfUrinalsClosetProposed",
        "txtNoOfKitchenClosetProposed",
        numbers[2] + " txtWaterSource",
        numbers[3] + " txtDistSwer",
        numbers[4] + " txtMuncipalLand",
        "35. txtHowManyTrees",
        "36. txtNoOfTreesAffected",
    };
}

TEST(ParticularsPapers, PageFiveGoesFromTheCompoundWallToTheTrees) {
    std::vector<std::string> outline = {
        "22. a. txtCompWallHgt",
        "b. Opt32Y",
        "Opt33Y",
        "23. a. i. Opt36Y",
        "ii. Opt37Y txtProvAnteena",
        "\"No Details tobe filled\"",
        "24. Opt34Y",
        "Opt35Y",
        "25. a. IsNaturalWaterCoursePassNEW",
        "b. IsSetbackProvideRegula43",
        "26. txtNotComply",
        "27. a. Opt38Y",
        "27b. Opt39Y",
        "txtFillLevel",
        "c. txtLevelRoad",
        "txtPlinthHgtRoad",
    };
    const std::vector<std::string> last = lastOutline(std::to_array<std::string>({"28.", "29.", "30.", "31.", "32."}));
    outline.insert(outline.end(), last.begin(), last.end());
    EXPECT_EQ(outlineOf("rptAnnexutreA4"), outline);
}

TEST(ParticularsPapers, PageSixAsksTheLastQuestionsUnderOtherNumbers) {
    EXPECT_EQ(outlineOf("rptAnnexutreA5"),
              lastOutline(std::to_array<std::string>({"30.", "31.", "32.", "33.", "34."})));
}

TEST(ParticularsPapers, TheLastTwoPagesEndWithTheSignature) {
    for (const std::string_view page : {"rptAnnexutreA4", "rptAnnexutreA5"}) {
        const std::vector<PaperSection>& body = pageOf(page).body;
        ASSERT_GE(body.size(), 3U);
        EXPECT_TRUE(body[body.size() - 2].rows.at(0).cells.at(0).at(0).text.starts_with("I hereby declare")) << page;
        const std::vector<PaperRow>& rows = body.back().rows;
        ASSERT_EQ(rows.size(), 3U);
        EXPECT_EQ(rows[0].cells[0].at(0).text, "Signature of Applicant ");
        EXPECT_TRUE(rows[0].cells[1].empty()) << "the pen's line";
        EXPECT_EQ(rows[1].cells[1].at(0).field, "NameOfApplcant");
        EXPECT_EQ(rows[2].cells[0].at(0).text, "Address");
        EXPECT_EQ(rows[2].cells[1].at(0).field, "AddOfApplcant");
    }
}

}  // namespace
}  // namespace plandesk::test
