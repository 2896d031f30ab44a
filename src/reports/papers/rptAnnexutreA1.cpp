#include "reports/papers/Particulars.h"

namespace plandesk {

using namespace layouts;

namespace {

Questions industry() {
    return {
        question("8.", "", "", "Is the work in connection with in Industry?", {field("Opt9Y")}),
        question("", "a.", "", "Please briefly describe the main and accessory process", {field("txtMainProcess")}),
        question("", "b.", "", "Maximum number of workmen employed per shift in factory ", {field("txtWorkmen")}),
        further(" Total Horse Power", {field("txtHPEmp")}),
        question("", "c.", "", "In what Industrial Classification it fall?", {field("txtInstClass")}),
        further("Reference to relevent Rule No.", {field("txtReferalLaw")}),
        question("", "d.", "",
                 "Is the proposal for relocation of an existing industry and if so give the name and address of the "
                 "existing industry? ",
                 {field("Opt10Y")}),
        further(" Industry Name", {field("txtInstNm")}),
        further("Industry Address", {field("txtInstAddr")}),
        question("", "e.", "",
                 "Will the building be at least 9m. away from the boundary of a residential or commercial zone?",
                 {field("Opt14Y")}),
        question("", "f.", "", "Is proposal for a service industrial estate on a plot reserved for service industries?",
                 {field("Opt15Y")}),
        further("Is plot reserved for services industry?", {field("Opt16Y")}),
        further("Is plot reserved for industrial zone? ", {field("Opt17Y")}),
        question("", "g.", "", "Nature and quantum of industrial waste/effluents and methods of disposal be stated.",
                 {field("txtWaste")}),
    };
}

Questions streets() {
    return {
        question("9.", "a.", "", "Is plot abutting in two or more street ?", {field("Opt77Y")}),
        question("", "", "i.", "What is the Average?", {field("txtAverage")}),
        further("Pescribed width", {field("txtStreet1"), field("txtFstStreetWidth"), below(field("txtStreet2")),
                                    field("txtPescribWidth")}),
        question("", "", "ii.", "Existing width of the street",
                 {field("txtStreet1"), field("txtFstExistingWidth"), below(field("txtStreet2")),
                  field("txtExistingWidthStreet")}),
        question("", "b.", "", "What is the height of building?", {field("txtHeightOfBuilding")}),
        question("", "", "i.", "Above the center of street", {field("txtAbvCentStreet")}),
        question("", "", "ii.", "Above the average ground level of the plot", {field("txtAboveAverageGrndLevel")}),
        question("", "c.", "", "Does it comply with Rule No. 13.5?", {field("IsComplyWith83RegulationNEW")}),
    };
}

Questions structures() {
    return {
        question("10.", "a.", "", "Is there are existing structures on the plot?", {field("IsAnyStructureOnPlot")}),
        question("", "", "i.", "Are they correctly marked and numbered on the site plan?",
                 {field("IsCorrectlyMarkedOnSitePlanNEW")}),
        question("", "", "ii.", "Are those proposed to be demolished immediately  immediately coloured yellow?",
                 {field("IsDemolishMarkedYellow")}),
        question("", "", "iii.", "What is Plinth Area of existing structure to be retained?   ",
                 {field("txtPlinthAreaOfStructureRet")}),
        question("", "", "iv.", "What is number of exiting tenements in structure to be retained?",
                 {field("txtNoTeneExist")}),
        question("", "b.", "", "What is plinth area and total floor area of the proposed work?",
                 {field("txtPlinthTotFloorArea")}),
        question("", "c.", "", "What is the No. of tenements proposed?", {field("txtTenePropose")}),
    };
}

Paper paper() {
    return particularsPage("Particulars of Development, page 2",
                           {
                               questions({industry(), streets(), structures()}),
                               note("NOTE : INDICATE DETAILS ON THE BUILDING PLAN AS IN PROFORM A1 "),
                           });
}

}  // namespace

Report rptAnnexutreA1() {
    return particularsReport("rptAnnexutreA1", paper);
}

}  // namespace plandesk
