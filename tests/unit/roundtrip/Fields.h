#pragma once

#include "unit/roundtrip/Texts.h"

// What stands where in the sections, as the model knows it.

namespace plandesk::test {

// Fields of the sections in the order in which they are read: "FIELD[.PART] KIND CONTROL".
inline constexpr const char* sectionOne =
    "0 txt txtTitle\n1 case -\n2 use -\n3 project -\n4 date DTPicker1\n5 sector -\n6 txt txtpltno\n7 txt txtFPNo\n"
    "8 txt txtHissaNo\n9 txt txtCTSNo\n11 txt txtGutNo\n12 name txtApplicantNm\n13 txt txtApplicantAddr\n14.0 arch -\n"
    "14.1 txt txtArchNm\n14.2 txt txtArchFirstName\n14.3 txt txtArchMiddName\n14.4 reg txtRegNm\n15.0 strict Opt1\n"
    "16.0 txt txtPltArea\n16.1 txt txtActualArea\n16.2 allowed txtAreaAllowed\n17 txt txtRmk1\n18 txt txtFileNo\n"
    "19 txt txtRevNo\n20 txt txtReservationType\n15.1 strict Opt2\n21 txt txtTikaNo";
inline constexpr const char* sectionTwo =
    "0 yn Opt3\n1 yn Opt4\n2.0 txt txtSanctionNo\n2.1 date DTPicker2\n3 zone -\n4.0 yn Opt5\n4.1 yn Opt6\n4.2 yn Opt7\n"
    "4.3 yn Opt8\n5.0 yn Opt9\n5.1 yn Opt10\n5.2 yn Opt11\n5.3 yn Opt12\n5.4 yn Opt13\n5.5 yn Opt14\n5.6 yn Opt15\n"
    "5.7 yn Opt16\n5.8 yn Opt17\n6.0 txt txtMainProcess\n6.1 txt txtWorkmen\n6.2 txt txtHPEmp\n6.3 txt txtInstClass\n"
    "6.4 txt txtReferalLaw\n6.5 txt txtInstNm\n6.6 txt txtInstAddr\n6.7 txt txtWaste\n7.0 txt txtAverage\n"
    "7.1 txt txtPescribWidth\n7.2 txt txtBuildingHgt\n7.3 txt txtAbvCentStreet\n8.0 txt txtNoTeneExist\n"
    "8.1 txt txtTenePropose\n9 txt txtRmk2";
inline constexpr const char* sectionThree =
    "0 yn Opt18\n1.0 txt txtPlinthArea\n1.1 txt txtFloorArea\n1.2 txt txtDevRights\n1.3 txt txtTotTene\n2 txt txtRmk3";
inline constexpr const char* sectionFour =
    "0 yn Opt19\n1 txt txtDistCentStreet\n2.0 yn Opt20\n2.1 yn Opt21\n3.0 yn Opt22\n3.1 yn Opt23\n3.2 yn Opt24\n"
    "4.0 txt txtDiaInnerChowk\n4.1 txt txtDiaOuterChowk\n5.0 yn Opt25\n5.1 yn Opt26\n6.0 txt txtLiftTyp\n"
    "6.1 txt txtLiftPassCap\n6.2 txt txtNoLift\n6.3 txt txtDoorTyp\n6.4 txt txtFireDetail\n7.0 yn Opt27\n7.1 yn Opt28\n"
    "8 txt txtRmk4";
inline constexpr const char* sectionFive =
    "0 yn Opt29\n1 yn Opt30\n2.0 txt txtWidthMeanAccess\n2.1 txt txtRightWay\n2.2 txt txtAttachDoc\n2.3 txt "
    "txtClearHgt\n"
    "3 yn Opt31\n4 txt txtHgtEnroch\n5.0 yn Opt32\n5.1 yn Opt33\n6 txt txtCompWallHgt\n7.0 yn Opt34\n7.1 yn Opt35\n"
    "7.2 yn Opt36\n7.3 yn Opt37\n8 txt txtProvAnteena\n9 txt txtNotComply\n10.0 yn Opt38\n10.1 yn Opt39\n"
    "11.0 txt txtFillLevel\n11.1 txt txtLevelRoad\n11.2 txt txtPlinthHgtRoad\n12.0 txt txtRoofs\n12.1 txt txtFloor\n"
    "12.2 txt txtWall\n12.3 txt txtColumns\n12.4 txt txtBeam\n12.5 txt txtOtherItem\n13.0 txt txtWaterCloset\n"
    "13.1 txt txtNoBath\n13.2 txt txtNoUrinal\n13.3 txt txtNoKitchen\n14 txt txtWaterSource\n15 txt txtDistSwer\n"
    "16 txt txtMuncipalLand\n17 txt txtRmk5";

/// Area, rate and amount of each fee row: six rows of the first list, then three of the second.
inline const std::vector<Texts> feeRows = {
    {"txtArea", "txtRate", "txtTotal"},
    {"txtDevAreaC", "txtDevRateC", "txtDevAmtC"},
    {"txtDevAreaI", "txtDevRateI", "txtDevAmtI"},
    {"txtScrutinyRArea", "txtScrutinyRRate", "txtScrutinyRAmount"},
    {"txtScrutinyCArea", "txtScrutinyCRate", "txtScrutinyCAmount"},
    {"txtScrutinyIndArea", "txtScrutinyINDRate", "txtScrutinyINDAmount"},
    {"txtScrutinyRArea2", "txtScrutinyRRate2", "txtScrutinyRAmount2"},
    {"txtScrutinyCArea2", "txtScrutinyCRate2", "txtScrutinyCAmount2"},
    {"txtScrutinyIndArea2", "txtScrutinyINDRate2", "txtScrutinyINDAmount2"},
};

inline const Texts feeElements = {
    "AREADEVRESI",     "RATEDEVRESI",     "AMTDEVRESI",     "AREADEVCOM",       "RATEDEVCOM",       "AMTDEVCOM",
    "AREADEVIND",      "RATEDEVIND",      "AMTDEVIND",      "AREASCRUTINYRESI", "RATESCRUTINYRESI", "AMTSCRUTINYRESI",
    "AREASCRUTINYCOM", "RATESCRUTINYCOM", "AMTSCRUTINYCOM", "AREASCRUTINYIND",  "RATESCRUTINYIND",  "AMTSCRUTINYIND",
    "COMPUNDFEES",     "OTHER",           "TOTALAMOUNT",    "PAYMODE",          "PAYDATE",          "DRAFTCHQNO",
    "BANKNAME",        "BRANCHNM"};
inline const Texts secondFeeElements = {"AREA-SCRUT-RESI-2", "RATE-SCRUT-RESI-2", "AMOUNT-SCRUT-RESI-2",
                                        "AREA-SCRUT-COMM-2", "RATE-SCRUT-COMM-2", "AMOUNT-SCRUT-COMM-2",
                                        "AREA-SCRUT-IND-2",  "RATE-SCRUT-IND-2",  "AMOUNT-SCRUT-IND-2"};

// Elements of ANNEXUREB in order: "yn", "raw" or "esc", with the form that holds them.
inline constexpr const char* annexureElements =
    "A yn IsAffectRoadReservation\nA yn IsAnyDeductOfRoadLine\nA raw TotalAreaRoadDeduction\nA esc NetArea\n"
    "A raw PermissibleFSIZone\nA raw NoOfTenamentsPerAcre\nA yn IsUseOfEveryRoomMarked\nA yn IsInAccordanceRegulation\n"
    "A raw Average\nA raw ExistingWidthStreet\nA raw AboveAverageGrndLevel\nA yn IsComplyWith83Regulation\n"
    "A yn IsAnyStructureOnPlot\nA yn IsCorrectlyMarkedOnSitePlan\nA yn IsDemolishMarkedYellow\n"
    "A raw PlinthAreaOfStructureRet\nA raw PlinthTotFloorArea\nA raw AnnexBPlinthArea\nA raw AnnexBFloorArea\n"
    "A raw OverAllFloorArea\nA yn IsConsumeFullFloor\nA raw WhyNot\nA yn IsBldgSetbacksonUpFloors\n"
    "A raw TotalNoOfTenements\nC raw WidthOfFrontOpenSpace\nC yn IsAbutsTwoMoreStreets\nC yn IsComplyWithRegul74\n"
    "C yn ApplicableProvInAppendixN\nC esc WidthOfSideOpenSpace\nC esc WidthOfRearOpenSpace\nC esc "
    "DistanceBetweenBldg\n"
    "C yn IsComplyWithRegul75\nC yn IsPlotNarrow\nC esc RequirmentForParking\nC esc ParkingSpaceProposed\n"
    "C esc LockUpGaragesProposed\nC yn IsLoadingUnloadinUnRegulat86\nC esc Requirement\n"
    "C esc ProposedSpaceForLoadUnLoading\nC esc MaxWidthOfBalcony\nC yn IsReduceOpenSpace\nC raw TotalArea\n"
    "C raw MaxWidthOtherProjection\nC yn IsCanopiesProposed\nC yn IsComplyWithRegula80\nC yn IsAmenityUnRegula54\n"
    "C yn IsAnyAccessoryBldgProposed\nC esc PurposeAccessoryBldg\nC yn IsAwayFrom75Or15\n"
    "C yn IsNaturalWaterCoursePass\nC yn IsSetbackProvideRegula43\nC esc NoOfWaterClosetProposed\n"
    "C esc NoOfBathsClosetProposed\nC esc NoOfUrinalsClosetProposed\nC esc NoOfKitchenClosetProposed\n"
    "C raw SectionRemark4";

inline const Texts caseTypes = {"New", "Revised"};
inline const Texts uses = {"Residential",
                           "Resi+Comm ",
                           "Industrial",
                           "Educational ",
                           "Assembly/Public",
                           "Institutional",
                           "Merchantile/Commercial",
                           "Business",
                           "Utility/services",
                           "Storage"};
inline const std::vector<Texts> projects = {{"Building Development", "Development"},
                                            {"Amalgamation", "AMLG"},
                                            {"Sub Division", "SD"},
                                            {"Sub Division + Amalgamation", "SD + AMLG"},
                                            {"Amalgamation + Sub Division", "AMLG + SD"},
                                            {"Amalgamation + Proposed Development", "AMLG + Development"},
                                            {"Sub Division + Proposed Development", "SD + Development"},
                                            {"Sub Division + Amalgamation + Proposed Development", "SD + AMLG + Dev"},
                                            {"Amalgamation + Sub Division + Proposed Development", "AMLG + SD + Dev"}};
inline const std::vector<Texts> zones = {{"R1(purely residential)", "R1"}, {"R2(Residential with shop line)", "R2"},
                                         {"C1(Commercial zone)", "C1"},    {"C2(District commercial)", "C2"},
                                         {"G1(Not Hills)", "G1"},          {"G2(Green belt)", "G2"},
                                         {"I(Industrial)", "I"},           {"I1(Service Industrial Zone)", "G3"}};

inline constexpr int mandatoryRows = 9;
inline constexpr int conditionalRows = 14;

}  // namespace plandesk::test
