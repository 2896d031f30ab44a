#include "reports/papers/Particulars.h"

namespace plandesk {

using namespace layouts;

namespace {

Questions applicantToPlot() {
    return {
        further("Village Name", {field("cboSector")}),
        further("Proposed F.A.R(In Sq.Mtrs)", {field("txtTikaNo")}),
        question("1.", "a.", "i.", "Full Name Of Applicant", {field("NameOfApplcant")}),
        question("", "", "ii.", "Address Of Applicant ", {field("AddOfApplcant")}),
        question("", "b.", "", "Name of licensed Architect / Engineer / Structural Engineer / Supervisor ",
                 {field("txtArchNm")}),
        // The registration number answers the address, and "valid up to" the licence as well: the paper has it so.
        question("", "c.", "", "Address", {field("txtRegNm")}),
        question("", "d.", "", "Number & Date of issue of the license", {field("ValidUpto")}),
        question("", "e.", "", "Valid upto", {field("ValidUpto")}),
        question("2.", "", "",
                 "Is the plot affected by any reservation or road lines?If yes, are these correctly and clearly marked "
                 "on the block plan?",
                 {field("IsAffectRoadReservationNEW")}),
        question("3.", "a.", "", "What is total area of the plot according to the document?", {field("txtPltArea")}),
        question("", "b.", "", "Does it tally with the Revenue/CTS Record?", {field("Opt1Y")}),
        question("", "c.", "",
                 "What is actual area available on site measured by licensed Architect/Engineer/Structural Engineer?",
                 {field("txtActualArea")}),
        question("", "d.", "i.",
                 "Is there any deduction in the original area of the plot on account of road lines or reservation?",
                 {field("IsAnyDeductOfRoadLine")}),
        question("", "", "ii.", "State the total Area of Deduction (road lines or reservation)",
                 {field("txtTotalAreaRoadDeduction")}),
        question("", "e.", "", "Net area", {field("txtNetArea")}),
        question("", "f.", "", "Is the clearance under the Urban Land Ceiling and Regulation Act 1976 obtained?",
                 {field("Opt2Y")}),
        question("", "g.", "",
                 "If so, what is the area allowed for development? (Permission will be based on the minimum of areas "
                 "in (a),(c) or (f) above)",
                 {field("txtAreaAllowed")}),
    };
}

Questions plansToUse() {
    return {
        question("4.", "", "", "Area all plans as required under Rull No. 16.2 enclosed?", {field("Opt3Y")}),
        // Item 5: the paper has its letters and not its number.
        question(
            "", "a.", "",
            "Is the plot part of a city, Traverse Survey No., evenue Survey No., or Hissa No. or final plot number "
            "of a town planning scheme or a part of an approved layout ?",
            {field("Opt4Y")}),
        question("", "b.", "", "Please State Sanction No. ", {field("txtSanctionNo")}),
        further("Please State Sub-Division layout Date", {field("DTPicker2")}),
        question("6.", "a.", "", "In what zone does the plot fall ?", {field("cboZone")}),
        question("", "b.", "", "What is the permissible F.A.R of the Zone ?", {field("txtPermissibleFSIZone")}),
        question("", "c.", "", "What is the Number of tenaments per hectare permissible in the zone?",
                 {field("txtNoOfTenamentsPerAcre")}),
        question("7.", "a.", "", "Is the use of every room in the proposed work marked on the plans?",
                 {field("IsUseOfEveryRoomMarked")}),
        question("", "b.", "", "Is it in accordance with rules?", {field("IsInAccordanceRegulationNEW")}),
        question("", "c.", "",
                 "Does the use of building fall in the category of special types of buildings like cinema "
                 "hall,theatres,assembly halls,stadium buildings for religious purposes, hospital buildings, "
                 "educational buildings, markets and exhibition halls etc.as per rule No.N-1.4,N-2.2?",
                 {field("Opt5Y")}),
        further("NOC from Commissioner of Police, Sindhavali obtained?", {field("Opt6Y")}),
        further("NOC from Collector, Sindhavali obtained?", {field("Opt7Y")}),
        further("Attached with proposal?", {field("Opt8Y")}),
    };
}

Paper paper() {
    Paper paper = particularsPage(
        "Particulars of Development, page 1",
        {
            questions({applicantToPlot()}),
            note("NOTE : INDICATE DETAILS ON THE SITE/BUILDING PLAN AS IN PROFORMA 1 ENCLOSED HEREWITH "),
            questions({plansToUse()}),
        });
    paper.header = {{SectionKind::Heading,
                     {
                         line({text("Vedhapur")}),
                         line({text("Municipal Corporation")}),
                         line({text("Form Giving Particulars of Development")}),
                         line({text("(Part of Appendix A - Item 6)")}),
                     }}};
    return paper;
}

}  // namespace

Report rptAnnexutreA() {
    return particularsReport("rptAnnexutreA", paper, "fillParticulars");
}

}  // namespace plandesk
