#include "reports/papers/Particulars.h"

namespace plandesk {

using namespace layouts;

namespace {

Questions floorAreas() {
    return {
        question("11.", "a.", "", "Existing Plinth Area", {field("txtPlinthArea")}),
        further("Existing total Floor Area", {field("txtFloorArea")}),
        further("Proposed Plinth area", {field("txtAnnexBPlinthArea")}),
        further("Proposed total Floor area", {field("txtAnnexBFloorArea")}),
        further("Is Development rights proposed? ", {field("Opt18Y"), field("txtDevRights")}),
        further("Please State Overall floor space", {field("txtOverAllFloorArea")}),
        question("", "b.", "", "Please state the overall F.A.R.(item 11(a) divided by item 3(c))",
                 {field("txtTotTene")}),
        question("", "c.", "", "Does the work consumes the full F.A.R. of the plot,as given in item 6(b)?",
                 {field("IsConsumeFullFloor")}),
        question("", "d.", "", "Is the building proposed with setbacks on upper floors?",
                 {field("IsBldgSetbacksonUpFloors")}),
        question("", "e.", "", "What is the total number of tenements?(item 10(a) plus item 10(c))",
                 {field("txtTotalNoOfTenements")}),
        // Asked a second time on paper, with nothing to answer it.
        question("", "f.", "", "What is the total number of tenements ?", {}),
    };
}

Questions openSpaces() {
    return {
        question("12.", "a.", "", "What is the width of the front open space?", {field("txtWidthOfFrontOpenSpace")}),
        question("", "", "i.", "If the building abuts two or more streets ?", {field("IsAbutsTwoMoreStreets")}),
        further("does the front open space comply with Rule No. 13.1,2? ", {field("IsComplyWithRegul74")}),
        question("", "b.", "",
                 "Please state which of the following rules is applicable for the front open space N-2.2.1.to N.2.2.8 "
                 "in appendix N is applicable for the front open space. Does the front open space comply with that "
                 "rule?",
                 {field("ApplicableProvInAppendixNNEW")}),
        further("What is the distance from the center line of street?", {field("txtDistCentStreet")}),
        further("Does it comply with the provision of Appendix N?", {field("Opt19Y")}),
        question("13.", "a.", "", "What is ?", {}),
        question("", "", "i.", "the Width of side open space(s)?", {field("txtWidthOfSideOpenSpace")}),
        question("", "", "ii.", "the Width of rear open space(s)?", {field("txtWidthOfRearOpenSpace")}),
        question("", "", "iii.", "the Distance between buildings?", {field("txtDistanceBetweenBldg")}),
        // The paper has the numbers 13 and 15 twice: they stand again at their letter b.
        question("13.", "b.", "", "Do they comply with Regulation 75?", {field("IsComplyWithRegul75")}),
        further("Is the plot is narrow?", {field("IsPlotNarrow")}),
        // The wings have no column of their own and show the answer on regulation 75 again.
        further("Are there two or more wings to the building?", {field("IsComplyWithRegul75")}),
    };
}

Questions chowksAndLifts() {
    return {
        question("14.", "a.", "", "Dimension of inner chowk", {field("txtDiaInnerChowk")}),
        // A letter b more than there are items: the outer chowk reads well with one of its own.
        question("", "b.", "", "Dimension of Outer chowk", {field("txtDiaOuterChowk")}),
        question("", "b.", "i.", "Is any room dependent for its light and ventilation on the chowk?",
                 {field("Opt22Y")}),
        question("", "", "ii.", "Are the dimensions such as required for each wing of the building?",
                 {field("Opt23Y")}),
        further("Is the area equal to square to minimum width for the height as per Rule No. 13.2 ?",
                {field("Opt24Y")}),
        question("15.", "a.", "", "Is the height of the building is greater than 16 m above the average ground level?",
                 {field("Opt25Y")}),
        question("15.", "b.", "", "Is provision of lift(s) made? ", {field("opt26Y")}),
        further("Type of Lift", {field("txtLiftTyp")}),
        further("Passenger Capacity", {field("txtLiftPassCap")}),
        further("No. of Lifts", {field("txtNoLift")}),
        further("Types of Doors", {field("txtDoorTyp")}),
        question("", "c.", "", "Details of the fire lift", {field("txtFireDetail")}),
    };
}

Paper paper() {
    return particularsPage("Particulars of Development, page 3",
                           {
                               questions({floorAreas()}),
                               note("NOTE : INDICATE DETAILS ON THE BUILDING PLAN AS IN PROFORM A1 "),
                               questions({openSpaces(), chowksAndLifts()}),
                           });
}

}  // namespace

Report rptAnnexutreA2() {
    return particularsReport("rptAnnexutreA2", paper);
}

}  // namespace plandesk
