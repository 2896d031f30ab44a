// What the four pages of frmAnnexureA look like.

#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

constexpr std::string_view squareMetres = "Sq. Mtrs";

constexpr LayoutRow legendRows[] = {
    {"", "Items marked with * are mandatory", ""},
    {"", "\"Dimensions will be considered as per drawing attached.\"", ""},
};

constexpr LayoutRow proposalRows[] = {
    {"", "Proposal Title", "txtTitle", "", "*"},
    {"", "Case Type", "cboCaseType", "", "*"},
    {"", "File No.", "txtFileNo", "", "", "lblFileNo"},
    {"", "Revision No.", "txtRevNo", "", "", "lblRevNo"},
    {"", "Major use of plot ", "cboProposalTyp", "", "*"},
    {"", "Proposed Project", "cboProposProj", "", "*"},
    {"", "Proposal Date", "DTPicker1"},
    {"", "Village Name", "cboSector", "", "*"},
    {"", "Survey No.", "txtpltno", "", "*"},
    {"", "Plot No.", "txtFPNo", "", "#"},
    {"", "Society Name", "txtHissaNo"},
    {"", "CTS No.", "txtCTSNo", "", "#"},
    {"", "(Note :     Any of these field is mandatory.)", ""},
    {"", "Land Mark", "txtGutNo"},
    {"", "Proposed F.A.R", "txtTikaNo", "", "*"},
    {"1 a. i.", "Full Name of Applicant", "txtApplicantNm", "", "*"},
    {"ii.", "Applicant Address", "txtApplicantAddr", "", "*"},
    {.item = " b.", .controls = "OptArch OptLE OptSE", .spoken = "Kind of professional"},
    {"", "", "lblArch"},
    {"", "Last Name", "txtArchNm", "", "*"},
    {"", "First Name", "txtArchFirstName", "", "*", "lblfName"},
    {"", "Middle Name", "txtArchMiddName"},
    {"", "Reg. No.", "txtRegNm", "", "*"},
    {"2.",
     "Is the plot affected by any reservation or road lines?If yes, are these correctly and clearly marked on the "
     "block plan?",
     "IsAffectRoadReservation(1) IsAffectRoadReservation(0)"},
    {"3 a.", "What is total area of the plot according to the document?", "txtPltArea", squareMetres, "*"},
    {" b.", "Does it tally with the Revenue/CTS Record?", "Opt1Y Opt1N"},
    {" c.", "What is actual area available on site measured by licensed Architect/Engineer/Structural Engineer?",
     "txtActualArea", squareMetres, "*"},
};

constexpr LayoutGroup proposalGroups[] = {{"", legendRows}, {"Section I", proposalRows}};

constexpr LayoutRow areaRows[] = {
    {"   d. i.", "Is there any deduction in the original area of the plot on account of road lines or reservation?",
     "IsAnyDeductOfRoadLine(1) IsAnyDeductOfRoadLine(0)"},
    {"       ii.", "State the total Area of Deduction (road lines or reservation)", "txtTotalAreaRoadDeduction",
     squareMetres},
    {"   e.", "Net Area", "txtNetArea", squareMetres},
    {" f.", "Is the clearance under the Urban Land Ceiling and Regulation Act 1976 obtained?", "Opt2Y Opt2N"},
    {"", "Area Allowed For Development", "txtAreaAllowed"},
    {"", "Type of reservation", "txtReservationType"},
    {"", "Reservation area", "txtReservationArea"},
    {"", "Section Remark1", "txtRmk1"},
};

constexpr LayoutRow zoneRows[] = {
    {"4.", "Are all plans as required under Rull No. 16.2 enclosed?", "Opt3Y Opt3N"},
    {"5 a.",
     "Is the plot part of a city, Traverse Survey No., evenue Survey No., or Hissa No. or final plot number of a town "
     "planning scheme or a part of an approved layout ?",
     "Opt4Y Opt4N"},
    {" b.", "Please State Sanction No. ", "txtSanctionNo"},
    {"", "Sub-Division layout Date", "DTPicker2"},
    {"6 a.", "In what zone does the plot fall ?", "cboZone"},
    {"   b. ", "What is the permissible F.A.R of the Zone ?", "txtPermissibleFSIZone"},
    {"    c. ", "What is the Number of tenaments per hectare permissible in the zone?", "txtNoOfTenamentsPerAcre"},
    {"7 a. ", "Is the use of every room in the proposed work marked on the plans?",
     "IsUseOfEveryRoomMarked(1) IsUseOfEveryRoomMarked(0)"},
    {"   b. ", "Is it in accordance with rules?", "IsInAccordanceRegulation(1) IsInAccordanceRegulation(0)"},
    {"    c. ",
     "Does the use of building fall in the category of special types of buildings like cinema hall,theatres,assembly "
     "halls,stadium buildings for religious purposes, hospital buildings, educational buildings, markets and "
     "exhibition halls etc.as per rule No.N-1.4,N-2.2?",
     "Opt5Y Opt5N"},
    {"", "NOC from Commissioner of Police, Sindhavali obtained?", "Opt6Y Opt6N"},
    {"", "NOC from Collector, Sindhavali obtained?", "Opt7Y Opt7N"},
    {"", "Attached with proposal?", "Opt8Y Opt8N"},
};

constexpr LayoutGroup plotGroups[] = {{"Section I", areaRows}, {"Section II", zoneRows}};

constexpr LayoutRow industryRows[] = {
    {"8", "Is the work in connection with in Industry?", "Opt9Y Opt9N"},
    {"a.", "Please briefly describe the main and accessory process", "txtMainProcess"},
    {"b.", "Maximum number of workmen employed per shift in factory", "txtWorkmen"},
    {"", "Total Horse Power", "txtHPEmp"},
    {"c.", "In what Industrial Classification it fall?", "txtInstClass"},
    {"", "Reference to relevent Rule No.", "txtReferalLaw"},
    {"d.",
     "Is the proposal for relocation of an existing industry and if so give the name and address of the existing "
     "industry?",
     "Opt10Y Opt10N"},
    {"", "Industry Name", "txtInstNm"},
    {"", "Industry Address", "txtInstAddr"},
    {"e.", "Is the proposal for establishment of new industry?", "Opt11Y Opt11N"},
    {"", "Is the proposal for expansion of an existing Industry?", "Opt12Y Opt12N"},
    {"", "Copy of NOC from Director of Industries enclosed?", "Opt13Y Opt13N"},
    {"", "Will the building be at least 9m. away from the boundary of a residential or commercial zone?",
     "Opt14Y Opt14N"},
    {"f.", "Is proposal for a service industrial estate on a plot reserved for service industries?", "Opt15Y Opt15N"},
    {"", "Is plot reserved for services industry?", "Opt16Y Opt16N"},
    {"", "Is plot reserved for industrial zone?", "Opt17Y Opt17N"},
    {"g.", "Nature and quantum of industrial waste/effluents and methods of disposal be stated.", "txtWaste"},
};

constexpr LayoutRow streetRows[] = {
    {"9 a.", "Is plot abutting in two or more street ? ", "Opt77Y Opt77N"},
    {"i.", "What is the Average Pescribed width", "txtAverage"},
    {"", "Pescribed width", "lblStreet(0) txtFstStreetWidth lblStreet(1) txtPescribWidth"},
    {"ii.", "What is the Average Existing width of the street",
     "lblStreet(2) txtFstExistingWidth lblStreet(3) txtExistingWidthStreet"},
    {" b.", "What is the height of building", "txtBuildingHgt"},
    {"i.", "Above the center of street", "txtAbvCentStreet"},
    {"ii.", "Above the average ground level of the plot", "txtAboveAverageGrndLevel"},
    {"c.", "Does it comply with Rule No. 13.5?", "IsComplyWith83Regulation(1) IsComplyWith83Regulation(0)"},
};

constexpr LayoutGroup industryGroups[] = {{"Section II", industryRows}, {"", streetRows}};

constexpr LayoutRow structureRows[] = {
    {"10. a. ", "Is there are existing structures on the plot?", "IsAnyStructureOnPlot(1) IsAnyStructureOnPlot(0)"},
    {"        i.", "Are they correctly marked and numbered on the site plan?",
     "IsCorrectlyMarkedOnSitePlan(1) IsCorrectlyMarkedOnSitePlan(0)"},
    {"        ii.", "Are those proposed to be demolished immediately  immediately coloured yellow?",
     "IsDemolishMarkedYellow(1) IsDemolishMarkedYellow(0)"},
    {"        iii.", "What is Plinth Area of existing structure to be retained?", "txtPlinthAreaOfStructureRet"},
    {"        iv", "What is number of exiting tenements in structure to be retained?", "txtNoTeneExist"},
    {"     b. ", "What is plinth area and total floor area of the proposed work?", "txtPlinthTotFloorArea"},
    {" c.", "What is the No. of tenements proposed?", "txtTenePropose"},
    {"", "Section Remark2", "txtRmk2"},
    {"11 a.", "Existing Plinth Area", "txtPlinthArea"},
    {"", "Existing total Floor Area", "txtFloorArea"},
    {"", "Existing total Floor area", "txtExistingTotalFloorArea"},
    {"", "Proposed Plinth area", "txtAnnexBPlinthArea"},
    {"", "Proposed total Floor area", "txtAnnexBFloorArea"},
    {"", "Proposed total Floor area", "txtProposedTotalFloorArea"},
    {"", "Development rights proposed? ", "Opt18Y Opt18N txtDevRights"},
    {"", "Overall floor space", "txtOverAllFloorArea"},
    {" b.", "Please state the overall F.A.R.(item 11(a) divided by item 3(c))", "txtTotTene"},
    {"     c.", "Does the work consumes the full F.A.R. of the plot,as given in item 6(b)?",
     "IsConsumeFullFloor(1) IsConsumeFullFloor(0)"},
    {"", "Why not?", "txtWhyNot"},
    {"     d.", "Is the building proposed with setbacks on upper floors?",
     "IsBldgSetbacksonUpFloors(1) IsBldgSetbacksonUpFloors(0)"},
    {"     e.", "What is the total number of tenements ?(item 10(a) plus item 10(c))", "txtTotalNoOfTenements"},
    {"", "Section Remark3", "txtRmk3"},
};

constexpr LayoutGroup structureGroups[] = {{"Section III", structureRows}};

constexpr LayoutPage pages[] = {{proposalGroups, PageButtons::pageNames[0]},
                                {plotGroups, PageButtons::pageNames[1]},
                                {industryGroups, PageButtons::pageNames[2]},
                                {structureGroups, PageButtons::pageNames[3]}};

constexpr Layout sheet{
    .head =
        "cmdNavPrev cmdFormNo(0) cmdFormNo(1) cmdFormNo(2) cmdFormNo(3) cmdFormNo(4) cmdFormNo(5) cmdFormNo(6) "
        "cmdFormNo(7) cmdFormNo(8) cmdNavNext cmdPlotRelation cmdUS84",
    .tabs = "PropTab",
    .pages = pages,
    .buttons = "cmdPrevious cmdNext cmdSave cmdSaveALL cmdPrint Command1 cmdClose",
    .pageBehind = "cmdFormNo(4)",
};

}  // namespace

const Layout& frmAnnexureA::layout() const {
    return sheet;
}

}  // namespace plandesk
