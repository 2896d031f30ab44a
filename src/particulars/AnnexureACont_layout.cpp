// What the five pages of AnnexureACont look like.

#include "particulars/AnnexureACont.h"

namespace plandesk {

namespace {

constexpr LayoutRow openSpaceRows[] = {
    {"12. a.", "What is the width of the front open space?", "txtWidthOfFrontOpenSpace"},
    {"", "Is the building abuts two or more streets ?", "IsAbutsTwoMoreStreets(1) IsAbutsTwoMoreStreets(0)"},
    {"", "does the front open space comply with Rule No. 13.1,2? ", "IsComplyWithRegul74(1) IsComplyWithRegul74(0)"},
    {"",
     "Please state which of the following rules is applicable for the front open space N-2.2.1.to N.2.2.8 in appendix "
     "N is applicable for the front open space. Does the front open space comply with that rule?",
     "ApplicableProvInAppendixN(1) ApplicableProvInAppendixN(0)"},
    {"", "What is the distance from the center line of street?", "txtDistCentStreet"},
    {"", "Does it comply with the provision of Appendix N?", "Opt19Y Opt19N"},
    {"13. a.", "Width of side open space(s)?", "txtWidthOfSideOpenSpace"},
    {"", "Width of rear open space(s)?", "txtWidthOfRearOpenSpace"},
    {"", "Distance between buildings?", "txtDistanceBetweenBldg"},
    {"", "Do they comply with Regulation 75?", "IsComplyWithRegul75(1) IsComplyWithRegul75(0)"},
    {"", "Is the plot narrow?", "IsPlotNarrow(1) IsPlotNarrow(0)"},
    {"", "Are there wo or more wings to the building?", "Opt20Y Opt20N"},
    {"", "Open space separate and distinct under Rule No. 13.1.4?   ", "Opt21Y Opt21N"},
};

constexpr LayoutRow chowkRows[] = {
    {"14 a.", "Dimension of inner chowk", "txtDiaInnerChowk"},
    {"", "Dimension of Outer chowk", "txtDiaOuterChowk"},
    {"  b. i", "Is any room dependent for its light and ventilation on the chowk?", "Opt22Y Opt22N"},
    {" ii", "Are the dimensions such as required for each wing of the building?", "Opt23Y Opt23N"},
    {"", "Is the area equal to square to minimum width for the height as per Rule No. 13.2 ?", "Opt24Y Opt24N"},
    {"15 a.", "Is the height of the building is greater than 16 m above the average ground level?", "Opt25Y Opt25N"},
    {"", "Is provision of lift(s) made?", "opt26Y Opt26N"},
    {"", "Type of Lift", "txtLiftTyp"},
    {"", "Passenger Capacity", "txtLiftPassCap"},
    {"", "No. of Lifts", "txtNoLift"},
    {"", "Types of Doors", "txtDoorTyp"},
    {"", "Details of the fire lift", "txtFireDetail"},
    {"16 a.", "Does the building fall under the purview of Rule No. 6.2,6.1? ", "Opt27Y Opt27N"},
    {"", "Do the proposed fire protection requirements conform to Appendix-P?", "Opt28Y Opt28N"},
    {"", "if not, give reasons for non-confirmity.", "txtRmk4"},
};

constexpr LayoutRow parkingRows[] = {
    {"17. a. i.", "What are the requirements for parking space under rules?", "txtRequirmentForParking"},
    {"", "How many are proposed for parking space?", "txtParkingSpaceProposed"},
    {"", "How many lock-up garages are proposed?", "txtLockUpGaragesProposed"},
    {"      b. i.", "Are loading and unloading spaces necessary under Rule No. 14.5?",
     "IsLoadingUnloadinUnRegulat86(1) IsLoadingUnloadinUnRegulat86(0)"},
    {"", "What is requirement?", "txtRequirement"},
    {"", "How many are proposed for loading and unloading spaces?", "txtProposedSpaceForLoadUnLoading"},
    {"18. a. i.", "What are the maximum widths of balconies?", "txtMaxWidthOfBalcony"},
    {"", "Will they reduce the required open space to less than that required under the regulations?",
     "IsReduceOpenSpace(1) IsReduceOpenSpace(0)"},
    {"", "Do they serve as a passage to any part of the building?", "Opt29Y Opt29N"},
    {"", "What is their total area?", "txtTotalArea"},
    {"      b.",
     "What is the maximum width of Weather Frames,Sun-sheds(Chajja),sun-breakers,Cornice,Eave,Other projection?",
     "txtMaxWidthOtherProjection"},
    {"    c. i.", "Are any porches proposed?", "IsCanopiesProposed(1) IsCanopiesProposed(0)"},
    {"", "Are they in compliance with Rule No. 13.4.2.1?", "IsComplyWithRegula80(1) IsComplyWithRegula80(0)"},
};

constexpr LayoutRow accessRows[] = {
    {"19  a.", "What is the width of the means of access?", "txtWidthMeanAccess"},
    {"", "If there is no access, whether there is right of way?", "opt21bi(1) opt21bi(0)"},
};

constexpr LayoutRow rightOfWayRows[] = {
    {"", "whether necessary plans and documents in support of right of way are attached.", "opt21bii(1) opt21bii(0)"},
};

constexpr LayoutRow amenityRows[] = {
    {"", "What is its clear height?", "txtClearHgt"},
    {"", "Will it be paved drained and kept free of encroachement?", "Opt30Y Opt30N"},
    {"20", "Is recreational or amenity open space provided as required under Rules No. 11.3.1 and 11.3.2?",
     "IsAmenityUnRegula54(1) IsAmenityUnRegula54(0)"},
    {"21  a.", "Are any accessory buildings proposed?", "IsAnyAccessoryBldgProposed(1) IsAnyAccessoryBldgProposed(0)"},
    {"", "for What purpose?", "txtPurposeAccessoryBldg"},
    {"", "What are their heights?", "txtHgtEnroch"},
};

constexpr LayoutRow boundaryRows[] = {
    {"", "Are they 7.5 away from street or front boundary and 1.5 m from other boundary?",
     "IsAwayFrom75Or15(1) IsAwayFrom75Or15(0)"},
};

constexpr LayoutRow accessoryAreaRows[] = {
    {"", "Is their are calculated in F.A.R.? ", "Opt31Y Opt31N"},
};

constexpr LayoutRow wallRows[] = {
    {"22  a.", "What is the proposed height of the compound wall?", "txtCompWallHgt"},
    {"", "Is it at the junction?", "Opt32Y Opt32N"},
    {"", "Is it in compliance with Rule 15.16? ", "Opt33Y Opt33N"},
    {" 23 a. i.", "Is the proposal in the Air Port Zone?", "Opt36Y Opt36N"},
    {"",
     "Is a \"No objection Certificate\" for height andf character of smoke from chimneys obtained from Chief Inspector "
     "of Boilers and smoke Nuisance? ",
     "Opt37Y Opt37N txtProvAnteena"},
    {"24", "Does the proposal fall in any of the restricted zone ? ", "Opt34Y Opt34N"},
    {"", "Does it comply with the requirements thereof?", "Opt35Y Opt35N"},
    {" 25  a.", "Does any natural water course pass through land under development?",
     "IsNaturalWaterCoursePass(1) IsNaturalWaterCoursePass(0)"},
    {"     b.", "Is the necessary set-back provided as per Rule No. 9.1?",
     "IsSetbackProvideRegula43(1) IsSetbackProvideRegula43(0)"},
    {"26",
     "Please explain in detail in what respect the proposal does not comply with D.C Rules and the "
     "reasons,thereof,attaching a separate sheet if necessary.",
     "txtNotComply"},
    {"27", "Is the plinth level proposed to be above the level of the surrounding ground level?", "Opt38Y Opt38N"},
    {"b.", "Whether any filling is required in the plot?", "Opt39Y Opt39N"},
    {"", "To what level?", "txtFillLevel"},
    {"c.", "What is the level above the surrounding/abutting road?", "txtLevelRoad"},
    {"", "What is the Plinth height above the surrounding/abutting road ?", "txtPlinthHgtRoad"},
};

constexpr LayoutRow materialRows[] = {
    {"28.", "Materials to be used in construction with specifications", ""},
    {"", "Roofs", "txtRoofs"},
    {"", "Floors", "txtFloor"},
    {"", "Walls", "txtWall"},
    {"", "Columns", "txtColumns"},
    {"", "Beams", "txtBeam"},
    {"", "Any other item", "txtOtherItem"},
    {"29  i.", "Number of Water Closet Existing", "txtWaterCloset"},
    {"ii", "Number of Baths Existing", "txtNoBath"},
    {"iii", "Number of Urinals Existing", "txtNoUrinal"},
    {"iv", "Number of Kitchen Existing", "txtNoKitchen"},
    {" 29. i.", "Number of Water Closet Proposed", "txtNoOfWaterClosetProposed"},
    {"ii.", "Number of Baths Proposed", "txtNoOfBathsClosetProposed"},
    {"iii.", "Number of Urinals Proposed", "txtNoOfUrinalsClosetProposed"},
    {"iv.", "Number of Kitchen Proposed", "txtNoOfKitchenClosetProposed"},
    {"", "Annexure B Remarks", "txtSectionRemark4"},
    {"30.", "The source of water to be used in the construction", "txtWaterSource"},
    {"31.", "Distance from the sewer", "txtDistSwer"},
    {"32.", "How much Municipal land will be used for stacking building material?", "txtMuncipalLand"},
    {"", "Section Remarks-5", "txtRmk5"},
    {"35.", "How many trees on the site ?", "txtHowManyTrees"},
    {"36.", "No of trees affected by proposed structure", "txtNoOfTreesAffected"},
};

constexpr std::string_view sectionFour = "Section IV";
constexpr std::string_view sectionFive = "Section V";

constexpr LayoutGroup openSpaceGroups[] = {{sectionFour, openSpaceRows}};
constexpr LayoutGroup chowkGroups[] = {{sectionFour, chowkRows}};
constexpr LayoutGroup parkingGroups[] = {{sectionFour, parkingRows}};
constexpr LayoutGroup accessGroups[] = {
    {sectionFive, accessRows},
    {.rows = rightOfWayRows, .frame = "Frame5"},
    {"", amenityRows},
    {.rows = boundaryRows, .frame = "fraIsAwayFrom75Or15"},
    {.rows = accessoryAreaRows, .frame = "fraOpt31"},
    {"", wallRows},
};
constexpr LayoutGroup materialGroups[] = {{sectionFive, materialRows}};

constexpr LayoutPage pages[] = {{openSpaceGroups, PageButtons::pageNames[4]},
                                {chowkGroups, PageButtons::pageNames[5]},
                                {parkingGroups, PageButtons::pageNames[6]},
                                {accessGroups, PageButtons::pageNames[7]},
                                {materialGroups, PageButtons::pageNames[8]}};

constexpr Layout sheet{
    .head =
        "cmdNavPrev cmdFormNo(0) cmdFormNo(1) cmdFormNo(2) cmdFormNo(3) cmdFormNo(4) cmdFormNo(5) cmdFormNo(6) "
        "cmdFormNo(7) cmdFormNo(8) cmdNavNext lblAnnextureA lblAnnexureB lblPayment",
    .tabs = "SectFourDet",
    .pages = pages,
    .buttons = "cmdPrevious cmdNext cmdSave cmdSaveALL Command5 Command9 cmdClose",
    .pageBefore = "cmdFormNo(3)",
    .firstTabNumber = 5,
};

}  // namespace

const Layout& AnnexureACont::layout() const {
    return sheet;
}

}  // namespace plandesk
