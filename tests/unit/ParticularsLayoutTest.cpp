#include <algorithm>
#include <array>
#include <map>
#include <span>

#include "unit/LayoutCheck.h"
#include "unit/ParticularsFixture.h"

// What the pages of both forms say, question by question, and that every control has its place in them.

namespace plandesk::test {
namespace {

struct Question {
    std::string_view item;
    std::string_view question;
    std::string_view control;  ///< the first option of a pair
    std::string_view unit;
    std::string_view mark;
};

constexpr Question firstFormQuestions[] = {
    {"", "Proposal Title", "txtTitle", "", "*"},
    {"", "Case Type", "cboCaseType", "", "*"},
    {"", "File No.", "txtFileNo", "", ""},
    {"", "Revision No.", "txtRevNo", "", ""},
    {"", "Major use of plot ", "cboProposalTyp", "", "*"},
    {"", "Proposed Project", "cboProposProj", "", "*"},
    {"", "Proposal Date", "DTPicker1", "", ""},
    {"", "Village Name", "cboSector", "", "*"},
    {"", "Survey No.", "txtpltno", "", "*"},
    {"", "Plot No.", "txtFPNo", "", "#"},
    {"", "Society Name", "txtHissaNo", "", ""},
    {"", "CTS No.", "txtCTSNo", "", "#"},
    {"", "Land Mark", "txtGutNo", "", ""},
    {"", "Proposed F.A.R", "txtTikaNo", "", "*"},
    {"1 a. i.", "Full Name of Applicant", "txtApplicantNm", "", "*"},
    {"ii.", "Applicant Address", "txtApplicantAddr", "", "*"},
    {" b.", "", "OptArch", "", ""},
    {"", "Last Name", "txtArchNm", "", "*"},
    {"", "First Name", "txtArchFirstName", "", "*"},
    {"", "Middle Name", "txtArchMiddName", "", ""},
    {"", "Reg. No.", "txtRegNm", "", "*"},
    {"2.",
     "Is the plot affected by any reservation or road lines?If yes, are these correctly and clearly marked on the "
     "block plan?",
     "IsAffectRoadReservation(1)", "", ""},
    {"3 a.", "What is total area of the plot according to the document?", "txtPltArea", "Sq. Mtrs", "*"},
    {" b.", "Does it tally with the Revenue/CTS Record?", "Opt1Y", "", ""},
    {" c.", "What is actual area available on site measured by licensed Architect/Engineer/Structural Engineer?",
     "txtActualArea", "Sq. Mtrs", "*"},
    {"   d. i.", "Is there any deduction in the original area of the plot on account of road lines or reservation?",
     "IsAnyDeductOfRoadLine(1)", "", ""},
    {"       ii.", "State the total Area of Deduction (road lines or reservation)", "txtTotalAreaRoadDeduction",
     "Sq. Mtrs", ""},
    {"   e.", "Net Area", "txtNetArea", "Sq. Mtrs", ""},
    {" f.", "Is the clearance under the Urban Land Ceiling and Regulation Act 1976 obtained?", "Opt2Y", "", ""},
    {"", "Area Allowed For Development", "txtAreaAllowed", "", ""},
    {"", "Type of reservation", "txtReservationType", "", ""},
    {"", "Reservation area", "txtReservationArea", "", ""},
    {"", "Section Remark1", "txtRmk1", "", ""},
    {"4.", "Are all plans as required under Rull No. 16.2 enclosed?", "Opt3Y", "", ""},
    {"5 a.",
     "Is the plot part of a city, Traverse Survey No., evenue Survey No., or Hissa No. or final plot number of a town "
     "planning scheme or a part of an approved layout ?",
     "Opt4Y", "", ""},
    {" b.", "Please State Sanction No. ", "txtSanctionNo", "", ""},
    {"", "Sub-Division layout Date", "DTPicker2", "", ""},
    {"6 a.", "In what zone does the plot fall ?", "cboZone", "", ""},
    {"   b. ", "What is the permissible F.A.R of the Zone ?", "txtPermissibleFSIZone", "", ""},
    {"    c. ", "What is the Number of tenaments per hectare permissible in the zone?", "txtNoOfTenamentsPerAcre", "",
     ""},
    {"7 a. ", "Is the use of every room in the proposed work marked on the plans?", "IsUseOfEveryRoomMarked(1)", "",
     ""},
    {"   b. ", "Is it in accordance with rules?", "IsInAccordanceRegulation(1)", "", ""},
    {"    c. ",
     "Does the use of building fall in the category of special types of buildings like cinema hall,theatres,assembly "
     "halls,stadium buildings for religious purposes, hospital buildings, educational buildings, markets and "
     "exhibition halls etc.as per rule No.N-1.4,N-2.2?",
     "Opt5Y", "", ""},
    {"", "NOC from Commissioner of Police, Sindhavali obtained?", "Opt6Y", "", ""},
    {"", "NOC from Collector, Sindhavali obtained?", "Opt7Y", "", ""},
    {"", "Attached with proposal?", "Opt8Y", "", ""},
    {"8", "Is the work in connection with in Industry?", "Opt9Y", "", ""},
    {"a.", "Please briefly describe the main and accessory process", "txtMainProcess", "", ""},
    {"b.", "Maximum number of workmen employed per shift in factory", "txtWorkmen", "", ""},
    {"", "Total Horse Power", "txtHPEmp", "", ""},
    {"c.", "In what Industrial Classification it fall?", "txtInstClass", "", ""},
    {"", "Reference to relevent Rule No.", "txtReferalLaw", "", ""},
    {"d.",
     "Is the proposal for relocation of an existing industry and if so give the name and address of the existing "
     "industry?",
     "Opt10Y", "", ""},
    {"", "Industry Name", "txtInstNm", "", ""},
    {"", "Industry Address", "txtInstAddr", "", ""},
    {"e.", "Is the proposal for establishment of new industry?", "Opt11Y", "", ""},
    {"", "Is the proposal for expansion of an existing Industry?", "Opt12Y", "", ""},
    {"", "Copy of NOC from Director of Industries enclosed?", "Opt13Y", "", ""},
    {"", "Will the building be at least 9m. away from the boundary of a residential or commercial zone?", "Opt14Y", "",
     ""},
    {"f.", "Is proposal for a service industrial estate on a plot reserved for service industries?", "Opt15Y", "", ""},
    {"", "Is plot reserved for services industry?", "Opt16Y", "", ""},
    {"", "Is plot reserved for industrial zone?", "Opt17Y", "", ""},
    {"g.", "Nature and quantum of industrial waste/effluents and methods of disposal be stated.", "txtWaste", "", ""},
    {"9 a.", "Is plot abutting in two or more street ? ", "Opt77Y", "", ""},
    {"i.", "What is the Average Pescribed width", "txtAverage", "", ""},
    {"", "Pescribed width", "txtFstStreetWidth", "", ""},
    {"", "Pescribed width", "txtPescribWidth", "", ""},
    {"ii.", "What is the Average Existing width of the street", "txtFstExistingWidth", "", ""},
    {"ii.", "What is the Average Existing width of the street", "txtExistingWidthStreet", "", ""},
    {" b.", "What is the height of building", "txtBuildingHgt", "", ""},
    {"i.", "Above the center of street", "txtAbvCentStreet", "", ""},
    {"ii.", "Above the average ground level of the plot", "txtAboveAverageGrndLevel", "", ""},
    {"c.", "Does it comply with Rule No. 13.5?", "IsComplyWith83Regulation(1)", "", ""},
    {"10. a. ", "Is there are existing structures on the plot?", "IsAnyStructureOnPlot(1)", "", ""},
    {"        i.", "Are they correctly marked and numbered on the site plan?", "IsCorrectlyMarkedOnSitePlan(1)", "",
     ""},
    {"        ii.", "Are those proposed to be demolished immediately  immediately coloured yellow?",
     "IsDemolishMarkedYellow(1)", "", ""},
    {"        iii.", "What is Plinth Area of existing structure to be retained?", "txtPlinthAreaOfStructureRet", "",
     ""},
    {"        iv", "What is number of exiting tenements in structure to be retained?", "txtNoTeneExist", "", ""},
    {"     b. ", "What is plinth area and total floor area of the proposed work?", "txtPlinthTotFloorArea", "", ""},
    {" c.", "What is the No. of tenements proposed?", "txtTenePropose", "", ""},
    {"", "Section Remark2", "txtRmk2", "", ""},
    {"11 a.", "Existing Plinth Area", "txtPlinthArea", "", ""},
    {"", "Existing total Floor Area", "txtFloorArea", "", ""},
    {"", "Proposed Plinth area", "txtAnnexBPlinthArea", "", ""},
    {"", "Proposed total Floor area", "txtAnnexBFloorArea", "", ""},
    {"", "Development rights proposed? ", "Opt18Y", "", ""},
    {"", "Development rights proposed? ", "txtDevRights", "", ""},
    {"", "Overall floor space", "txtOverAllFloorArea", "", ""},
    {" b.", "Please state the overall F.A.R.(item 11(a) divided by item 3(c))", "txtTotTene", "", ""},
    {"     c.", "Does the work consumes the full F.A.R. of the plot,as given in item 6(b)?", "IsConsumeFullFloor(1)",
     "", ""},
    {"", "Why not?", "txtWhyNot", "", ""},
    {"     d.", "Is the building proposed with setbacks on upper floors?", "IsBldgSetbacksonUpFloors(1)", "", ""},
    {"     e.", "What is the total number of tenements ?(item 10(a) plus item 10(c))", "txtTotalNoOfTenements", "", ""},
    {"", "Section Remark3", "txtRmk3", "", ""},
    {"", "Existing total Floor area", "txtExistingTotalFloorArea", "", ""},
    {"", "Proposed total Floor area", "txtProposedTotalFloorArea", "", ""},
};

constexpr Question secondFormQuestions[] = {
    {"12. a.", "What is the width of the front open space?", "txtWidthOfFrontOpenSpace", "", ""},
    {"", "Is the building abuts two or more streets ?", "IsAbutsTwoMoreStreets(1)", "", ""},
    {"", "does the front open space comply with Rule No. 13.1,2? ", "IsComplyWithRegul74(1)", "", ""},
    {"",
     "Please state which of the following rules is applicable for the front open space N-2.2.1.to N.2.2.8 in appendix "
     "N is applicable for the front open space. Does the front open space comply with that rule?",
     "ApplicableProvInAppendixN(1)", "", ""},
    {"", "What is the distance from the center line of street?", "txtDistCentStreet", "", ""},
    {"", "Does it comply with the provision of Appendix N?", "Opt19Y", "", ""},
    {"13. a.", "Width of side open space(s)?", "txtWidthOfSideOpenSpace", "", ""},
    {"", "Width of rear open space(s)?", "txtWidthOfRearOpenSpace", "", ""},
    {"", "Distance between buildings?", "txtDistanceBetweenBldg", "", ""},
    {"", "Do they comply with Regulation 75?", "IsComplyWithRegul75(1)", "", ""},
    {"", "Is the plot narrow?", "IsPlotNarrow(1)", "", ""},
    {"", "Are there wo or more wings to the building?", "Opt20Y", "", ""},
    {"", "Open space separate and distinct under Rule No. 13.1.4?   ", "Opt21Y", "", ""},
    {"14 a.", "Dimension of inner chowk", "txtDiaInnerChowk", "", ""},
    {"", "Dimension of Outer chowk", "txtDiaOuterChowk", "", ""},
    {"  b. i", "Is any room dependent for its light and ventilation on the chowk?", "Opt22Y", "", ""},
    {" ii", "Are the dimensions such as required for each wing of the building?", "Opt23Y", "", ""},
    {"", "Is the area equal to square to minimum width for the height as per Rule No. 13.2 ?", "Opt24Y", "", ""},
    {"15 a.", "Is the height of the building is greater than 16 m above the average ground level?", "Opt25Y", "", ""},
    {"", "Is provision of lift(s) made?", "opt26Y", "", ""},
    {"", "Type of Lift", "txtLiftTyp", "", ""},
    {"", "Passenger Capacity", "txtLiftPassCap", "", ""},
    {"", "No. of Lifts", "txtNoLift", "", ""},
    {"", "Types of Doors", "txtDoorTyp", "", ""},
    {"", "Details of the fire lift", "txtFireDetail", "", ""},
    {"16 a.", "Does the building fall under the purview of Rule No. 6.2,6.1? ", "Opt27Y", "", ""},
    {"", "Do the proposed fire protection requirements conform to Appendix-P?", "Opt28Y", "", ""},
    {"", "if not, give reasons for non-confirmity.", "txtRmk4", "", ""},
    {"17. a. i.", "What are the requirements for parking space under rules?", "txtRequirmentForParking", "", ""},
    {"", "How many are proposed for parking space?", "txtParkingSpaceProposed", "", ""},
    {"", "How many lock-up garages are proposed?", "txtLockUpGaragesProposed", "", ""},
    {"      b. i.", "Are loading and unloading spaces necessary under Rule No. 14.5?",
     "IsLoadingUnloadinUnRegulat86(1)", "", ""},
    {"", "What is requirement?", "txtRequirement", "", ""},
    {"", "How many are proposed for loading and unloading spaces?", "txtProposedSpaceForLoadUnLoading", "", ""},
    {"18. a. i.", "What are the maximum widths of balconies?", "txtMaxWidthOfBalcony", "", ""},
    {"", "Will they reduce the required open space to less than that required under the regulations?",
     "IsReduceOpenSpace(1)", "", ""},
    {"", "Do they serve as a passage to any part of the building?", "Opt29Y", "", ""},
    {"", "What is their total area?", "txtTotalArea", "", ""},
    {"      b.",
     "What is the maximum width of Weather Frames,Sun-sheds(Chajja),sun-breakers,Cornice,Eave,Other projection?",
     "txtMaxWidthOtherProjection", "", ""},
    {"    c. i.", "Are any porches proposed?", "IsCanopiesProposed(1)", "", ""},
    {"", "Are they in compliance with Rule No. 13.4.2.1?", "IsComplyWithRegula80(1)", "", ""},
    {"19  a.", "What is the width of the means of access?", "txtWidthMeanAccess", "", ""},
    {"", "If there is no access, whether there is right of way?", "opt21bi(1)", "", ""},
    {"", "whether necessary plans and documents in support of right of way are attached.", "opt21bii(1)", "", ""},
    {"", "What is its clear height?", "txtClearHgt", "", ""},
    {"", "Will it be paved drained and kept free of encroachement?", "Opt30Y", "", ""},
    {"20", "Is recreational or amenity open space provided as required under Rules No. 11.3.1 and 11.3.2?",
     "IsAmenityUnRegula54(1)", "", ""},
    {"21  a.", "Are any accessory buildings proposed?", "IsAnyAccessoryBldgProposed(1)", "", ""},
    {"", "for What purpose?", "txtPurposeAccessoryBldg", "", ""},
    {"", "What are their heights?", "txtHgtEnroch", "", ""},
    {"", "Are they 7.5 away from street or front boundary and 1.5 m from other boundary?", "IsAwayFrom75Or15(1)", "",
     ""},
    {"", "Is their are calculated in F.A.R.? ", "Opt31Y", "", ""},
    {"22  a.", "What is the proposed height of the compound wall?", "txtCompWallHgt", "", ""},
    {"", "Is it at the junction?", "Opt32Y", "", ""},
    {"", "Is it in compliance with Rule 15.16? ", "Opt33Y", "", ""},
    {" 23 a. i.", "Is the proposal in the Air Port Zone?", "Opt36Y", "", ""},
    {"",
     "Is a \"No objection Certificate\" for height andf character of smoke from chimneys obtained from Chief Inspector "
     "of Boilers and smoke Nuisance? ",
     "Opt37Y", "", ""},
    {"",
     "Is a \"No objection Certificate\" for height andf character of smoke from chimneys obtained from Chief Inspector "
     "of Boilers and smoke Nuisance? ",
     "txtProvAnteena", "", ""},
    {"24", "Does the proposal fall in any of the restricted zone ? ", "Opt34Y", "", ""},
    {"", "Does it comply with the requirements thereof?", "Opt35Y", "", ""},
    {" 25  a.", "Does any natural water course pass through land under development?", "IsNaturalWaterCoursePass(1)", "",
     ""},
    {"     b.", "Is the necessary set-back provided as per Rule No. 9.1?", "IsSetbackProvideRegula43(1)", "", ""},
    {"26",
     "Please explain in detail in what respect the proposal does not comply with D.C Rules and the "
     "reasons,thereof,attaching a separate sheet if necessary.",
     "txtNotComply", "", ""},
    {"27", "Is the plinth level proposed to be above the level of the surrounding ground level?", "Opt38Y", "", ""},
    {"b.", "Whether any filling is required in the plot?", "Opt39Y", "", ""},
    {"", "To what level?", "txtFillLevel", "", ""},
    {"c.", "What is the level above the surrounding/abutting road?", "txtLevelRoad", "", ""},
    {"", "What is the Plinth height above the surrounding/abutting road ?", "txtPlinthHgtRoad", "", ""},
    {"", "Roofs", "txtRoofs", "", ""},
    {"", "Floors", "txtFloor", "", ""},
    {"", "Walls", "txtWall", "", ""},
    {"", "Columns", "txtColumns", "", ""},
    {"", "Beams", "txtBeam", "", ""},
    {"", "Any other item", "txtOtherItem", "", ""},
    {"29  i.", "Number of Water Closet Existing", "txtWaterCloset", "", ""},
    {"ii", "Number of Baths Existing", "txtNoBath", "", ""},
    {"iii", "Number of Urinals Existing", "txtNoUrinal", "", ""},
    {"iv", "Number of Kitchen Existing", "txtNoKitchen", "", ""},
    {" 29. i.", "Number of Water Closet Proposed", "txtNoOfWaterClosetProposed", "", ""},
    {"ii.", "Number of Baths Proposed", "txtNoOfBathsClosetProposed", "", ""},
    {"iii.", "Number of Urinals Proposed", "txtNoOfUrinalsClosetProposed", "", ""},
    {"iv.", "Number of Kitchen Proposed", "txtNoOfKitchenClosetProposed", "", ""},
    {"", "Annexure B Remarks", "txtSectionRemark4", "", ""},
    {"30.", "The source of water to be used in the construction", "txtWaterSource", "", ""},
    {"31.", "Distance from the sewer", "txtDistSwer", "", ""},
    {"32.", "How much Municipal land will be used for stacking building material?", "txtMuncipalLand", "", ""},
    {"", "Section Remarks-5", "txtRmk5", "", ""},
    {"35.", "How many trees on the site ?", "txtHowManyTrees", "", ""},
    {"36.", "No of trees affected by proposed structure", "txtNoOfTreesAffected", "", ""},
};

class ParticularsLayoutTest : public ParticularsTest {
protected:
    struct Place {
        const LayoutRow* row;
        int page;
    };

    static std::vector<std::string> names(std::string_view controls) { return split(controls, " "); }

    /// Each control key of the pages with its row. Fails for one that stands in two rows.
    static std::map<std::string, Place> places(const Form& form) {
        std::map<std::string, Place> found;
        const Layout& layout = form.layout();
        for (std::size_t page = 0; page < layout.pages.size(); ++page)
            for (const LayoutGroup& group : layout.pages[page].groups)
                for (const LayoutRow& row : group.rows)
                    for (const std::string& key : names(row.controls))
                        EXPECT_TRUE(found.emplace(key, Place{&row, static_cast<int>(page)}).second) << key;
        return found;
    }

    static void expectQuestions(const Form& form, std::span<const Question> questions) {
        const std::map<std::string, Place> where = places(form);
        for (const Question& wanted : questions) {
            const auto place = where.find(std::string(wanted.control));
            ASSERT_NE(place, where.end()) << wanted.control;
            const LayoutRow& row = *place->second.row;
            EXPECT_EQ(row.item, wanted.item) << wanted.control;
            EXPECT_EQ(row.question, wanted.question);
            EXPECT_EQ(row.unit, wanted.unit) << wanted.control;
            EXPECT_EQ(row.mark, wanted.mark) << wanted.control;
        }
    }

    static void expectEachControlOnce(const Form& form, std::string_view neverShown) {
        std::map<std::string, int> said;
        for (const std::string& key : layoutNames(form)) {
            ASSERT_NE(form.findKey(key), nullptr) << key;
            ++said[key];
        }
        const std::vector<std::string> hidden = names(neverShown);
        for (const Control* control : form.controls()) {
            const bool never = std::ranges::find(hidden, control->key()) != hidden.end();
            EXPECT_EQ(said[control->key()], never ? 0 : 1) << control->key();
            EXPECT_FALSE(never && control->visible()) << control->key();
        }
    }

    /// Pairs stand together, the Yes first.
    static void expectPairsTogether(const Form& form) {
        for (const auto& [key, place] : places(form)) {
            const auto* option = dynamic_cast<const OptionButton*>(form.findKey(key));
            if (!option || option->caption() != "Yes")
                continue;
            std::string no = key;
            if (option->index() == 1)
                no.replace(no.size() - 2, 1, "0");
            else
                no.replace(0, 1, "O").back() = 'N';  // the Yes of one pair is written opt
            EXPECT_TRUE(place.row->controls.starts_with(join(std::array{key, no}, " "))) << key;
        }
    }
};

TEST_F(ParticularsLayoutTest, SectionsOneToThreeAskTheirQuestions) {
    expectQuestions(first(), firstFormQuestions);
}

TEST_F(ParticularsLayoutTest, SectionsFourAndFiveAskTheirQuestions) {
    expectQuestions(second(), secondFormQuestions);
}

TEST_F(ParticularsLayoutTest, EveryControlOfTheFirstFormStandsOnItsPagesOnce) {
    expectEachControlOnce(first(), "txtSectFourVal txtSecFiveVal txtDocChkList txtPayDetail txtPathNm");
}

TEST_F(ParticularsLayoutTest, EveryControlOfTheSecondFormStandsOnItsPagesOnce) {
    expectEachControlOnce(second(), "txtRightWay txtAttachDoc");
}

TEST_F(ParticularsLayoutTest, YesAndNoStandTogether) {
    expectPairsTogether(first());
    expectPairsTogether(second());
}

TEST_F(ParticularsLayoutTest, EachFormHasAPageForEachTab) {
    EXPECT_EQ(static_cast<int>(first().layout().pages.size()), first().PropTab.count());
    EXPECT_EQ(static_cast<int>(second().layout().pages.size()), second().SectFourDet.count());
}

TEST_F(ParticularsLayoutTest, ItemsStandOnTheirPages) {
    const auto firstPlaces = places(first());
    for (const auto& [key, page] : {std::pair{"txtActualArea", 0},
                                    {"IsAnyDeductOfRoadLine(1)", 1},
                                    {"Opt8Y", 1},
                                    {"Opt9Y", 2},
                                    {"IsComplyWith83Regulation(0)", 2},
                                    {"IsAnyStructureOnPlot(1)", 3},
                                    {"txtRmk3", 3}})
        EXPECT_EQ(firstPlaces.at(key).page, page) << key;
    const auto secondPlaces = places(second());
    for (const auto& [key, page] : {std::pair{"Opt21N", 0}, {"txtRmk4", 1}, {"IsComplyWithRegula80(0)", 2}})
        EXPECT_EQ(secondPlaces.at(key).page, page) << key;
}

TEST_F(ParticularsLayoutTest, TheFirstPageExplainsItsMarks) {
    std::vector<std::string_view> lines;
    for (const LayoutGroup& group : first().layout().pages[0].groups)
        for (const LayoutRow& row : group.rows)
            if (row.controls.empty())
                lines.push_back(row.question);
    EXPECT_EQ(lines, (std::vector<std::string_view>{"Items marked with * are mandatory",
                                                    "\"Dimensions will be considered as per drawing attached.\"",
                                                    "(Note :     Any of these field is mandatory.)"}));
}

TEST_F(ParticularsLayoutTest, TheHeadingsAndLabelsThatChangeAreLive) {
    const auto where = places(first());
    EXPECT_EQ(where.at("txtFileNo").row->label, "lblFileNo");
    EXPECT_EQ(where.at("txtRevNo").row->label, "lblRevNo");
    EXPECT_EQ(where.at("txtArchFirstName").row->label, "lblfName");
    EXPECT_EQ(first().lblFileNo.caption(), "File No.");
    EXPECT_EQ(first().lblRevNo.caption(), "Revision No.");
    EXPECT_EQ(first().lblfName.caption(), "First Name");
}

TEST_F(ParticularsLayoutTest, FramesHideTheQuestionsInThem) {
    std::map<std::string_view, std::string_view> inside;
    for (const LayoutPage& page : second().layout().pages)
        for (const LayoutGroup& group : page.groups)
            if (!group.frame.empty())
                inside[group.frame] = group.rows[0].controls;
    EXPECT_EQ(inside, (std::map<std::string_view, std::string_view>{
                          {"Frame5", "opt21bii(1) opt21bii(0)"},
                          {"fraIsAwayFrom75Or15", "IsAwayFrom75Or15(1) IsAwayFrom75Or15(0)"},
                          {"fraOpt31", "Opt31Y Opt31N"},
                      }));
}

}  // namespace
}  // namespace plandesk::test
