#include "reports/papers/Particulars.h"

namespace plandesk {

using namespace layouts;

namespace {

Questions fireAndParking() {
    return {
        question("16.", "a.", "", "Does the building fall under the purview of Rule No. 6.2,6.1? ", {field("Opt27Y")}),
        question("", "b.", "", "Do the proposed fire protection requirements conform to Appendix-P?",
                 {field("Opt28Y")}),
        question("17.", "a.", "i.", "What are the requirements for parking space under rules?",
                 {field("txtRequirmentForParking")}),
        question("", "", "ii.", "How many are proposed for parking space?", {field("txtParkingSpaceProposed")}),
        question("", "", "iii.", "How many lock-up garages are proposed?", {field("txtLockUpGaragesProposed")}),
        question("", "b.", "i.", "Are loading and unloading spaces necessary under Rule No. 14.5?",
                 {field("IsLoadingUnloadinUnRegulat86")}),
        question("", "", "ii.", "What is requirement?", {field("txtRequirement")}),
        question("", "", "iii.", "How many are proposed for loading and unloading spaces?",
                 {field("txtProposedSpaceForLoadUnLoading")}),
    };
}

Questions projections() {
    return {
        question("18.", "a.", "i.", "What are the maximum widths of balconies?", {field("txtMaxWidthOfBalcony")}),
        question("", "", "ii.",
                 "Will they reduce the required open space to less than that required under the regulations?",
                 {field("IsReduceOpenSpace")}),
        question("", "", "iii.", "Do they serve as a passage to any part of the building?", {field("Opt29Y")}),
        question("", "", "iv.", "What is their total area?", {field("txtTotalArea")}),
        question("", "b.", "",
                 "What is the maximum width of Weather Frames,Sun-sheds(Chajja),sun-breakers,Cornice,Eave,Other "
                 "projection?",
                 {field("txtMaxWidthOtherProjection")}),
        question("", "c.", "i.", "Are any porches proposed?", {field("IsCanopiesProposed")}),
        question("", "", "ii.", "Are they in compliance with Rule No. 13.4.2.1?", {field("IsComplyWithRegula80")}),
    };
}

Questions accessToAccessoryBuildings() {
    return {
        question("19.", "a.", "", "What is the width of the means of access?", {field("txtWidthMeanAccess")}),
        question("", "b.", "i.", "If there is no access, whether there is right of way?", {field("txtRightWay")}),
        question("", "", "ii.", "Attach necessary plans and documents in support of right of way.",
                 {field("txtAttachDoc")}),
        question("", "c.", "", "What is its clear height?", {field("txtClearHgt")}),
        question("", "d.", "", "Will it be paved drained and kept free of encroachement?", {field("Opt30Y")}),
        question("20.", "", "",
                 "Is recreational or amenity open space provided as required under Rules No. 11.3.1 and 11.3.2?",
                 {field("IsAmenityUnRegula54")}),
        question("21.", "a.", "", "Are any accessory buildings proposed?", {field("IsAnyAccessoryBldgProposed")}),
        further("for What purpose?", {field("txtPurposeAccessoryBldg")}),
        question("", "b.", "", "What are their heights?", {field("txtHgtEnroch")}),
        question("", "c.", "", "Are they 7.5 away from street or front boundary and 1.5 m from other boundary?",
                 {field("IsAwayFrom75Or15")}),
        question("", "d.", "", "Is their are calculated in F.A.R.? ", {field("Opt31Y")}),
    };
}

Paper paper() {
    return particularsPage("Particulars of Development, page 4",
                           {
                               questions({fireAndParking()}),
                               note("NOTE : INDICATE DETAILS ON THE BUILDING PLAN AS IN PROFORMA 1 "),
                               questions({projections(), accessToAccessoryBuildings()}),
                           });
}

}  // namespace

Report rptAnnexutreA3() {
    return particularsReport("rptAnnexutreA3", paper);
}

}  // namespace plandesk
