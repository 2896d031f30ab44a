// What frmUS84 looks like.

#include "ulc/frmUS84.h"

namespace plandesk {

namespace {

constexpr LayoutRow caseRows[] = {
    {"", "Case Number :", "txtCaseNumber"},
    {"", "Result Date ", "dtpResultDate"},
};

constexpr LayoutRow applicantRows[] = {
    {"", "Applicant's Name :", "txtApplicantName"},
    {"", "Applicant's Address :", "txtApplicantAddress"},
    {"", "No. of Plots owned by this applicant", "txtNoOfPlotOwnedByApplicant"},
};

constexpr LayoutRow plotRows[] = {
    {"", "Add only details of plot which are under development.", ""},
    {.controls = "dgdTableAB", .lines = 4},
    {.question = "Total Area", .controls = "lblTotalArea", .under = "dgdTableAB"},
};

constexpr LayoutRow areaRows[] = {
    {"", "Total Area Under Ownership  : ", "txtTotAreaOwnerShip"},
    {"", "Area Deduction  :", "txtAreaDeduction"},
    {"", "Green belt or agri. land :", "txtGreenBelt"},
    {"", "Surplus area :", "txtSurplusArea"},
    {"", "Note : Surplus Area = [Total Area Under Ownership - (Area Deduction + Green belt)]", ""},
    {"", "Survey No. :", "txtSurveyNo"},
};

constexpr LayoutGroup groups[] = {
    {"", caseRows},
    {"Table (C) Applicant's Details :-", applicantRows},
    {"Table (A)/(B) Land record information :-", plotRows},
    {"", areaRows},
};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 36, .pages = pages, .buttons = "cmdSave cmdReferesh cmdClose"};

}  // namespace

const Layout& frmUS84::layout() const {
    return sheet;
}

}  // namespace plandesk
