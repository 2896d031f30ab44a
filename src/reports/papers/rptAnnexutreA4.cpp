#include "reports/papers/Particulars.h"

namespace plandesk {

using namespace layouts;

namespace {

Questions wallToWaterCourse() {
    return {
        question("22.", "a.", "", "What is the proposed height of the compound wall?", {field("txtCompWallHgt")}),
        question("", "b.", "", "Is it at the junction?", {field("Opt32Y")}),
        further("Is it in compliance with Rule 15.16? ", {field("Opt33Y")}),
        question("23.", "a.", "i.", "Is the proposal in the Air Port Zone?", {field("Opt36Y")}),
        question("", "", "ii.",
                 "Is a \"No objection Certificate\" for height andf character of smoke from chimneys obtained from "
                 "Chief Inspector of Boilers and smoke Nuisance? ",
                 {field("Opt37Y"), below(field("txtProvAnteena"))}),
        // Not asked on screen; the paper answers it itself.
        further("Does the proposal fall under the category of tower like structure vide Regulation 79?",
                {text("No Details tobe filled")}),
        question("24.", "", "", "Does the proposal fall in any of the restricted zone ? ", {field("Opt34Y")}),
        further("Does it comply with the requirements thereof?", {field("Opt35Y")}),
        question("25.", "a.", "", "Does any natural water course pass through land under development?",
                 {field("IsNaturalWaterCoursePassNEW")}),
        question("", "b.", "", "Is the necessary set-back provided as per Rule No.9.1?",
                 {field("IsSetbackProvideRegula43")}),
    };
}

Questions deviationsAndLevels() {
    return {
        question("26.", "", "",
                 "Please explain in detail in what respect the proposal does not comply with D.C Rules and the "
                 "reasons, thereof, attaching a separate sheet if necessary.",
                 {field("txtNotComply")}),
        question("27.", "a.", "", "Is the plinth level proposed to be above the level of the surrounding ground level?",
                 {field("Opt38Y")}),
        question("27b.", "", "", "Whether any filling is required in the plot?", {field("Opt39Y")}),
        further("To what level?", {field("txtFillLevel")}),
        question("", "c.", "", "What is the level above the surrounding/abutting road?", {field("txtLevelRoad")}),
        further("What is the Plinth height above the surrounding/abutting road ?", {field("txtPlinthHgtRoad")}),
    };
}

Paper paper() {
    return particularsPage(
        "Particulars of Development, page 5",
        {
            questions({wallToWaterCourse(), deviationsAndLevels(),
                       lastQuestions(
                           {.materials = "28.", .closets = "29.", .water = "30.", .sewer = "31.", .stacking = "32."},
                           "Materials to be used in construction with specifications")}),
            declaration(),
            signature(),
        });
}

}  // namespace

Report rptAnnexutreA4() {
    return particularsReport("rptAnnexutreA4", paper);
}

}  // namespace plandesk
