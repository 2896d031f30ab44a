#include <array>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "unit/LayoutCheck.h"
#include "unit/World.h"

// What the forms of the orders under the Urban Land Ceiling Act say, and that every control has its place.

namespace plandesk::test {
namespace {

constexpr std::array formNames =
    std::to_array<std::string_view>({"frmScrutinyULC", "frmUS84", "frmULC20aDetails", "frmUS22"});

struct Question {
    std::string_view form;
    std::string_view control;
    std::string_view question;
    std::string_view item{};
};

constexpr std::array questions = std::to_array<Question>({
    {"frmScrutinyULC", "txtProposalDate", "Proposal Date"},
    {"frmScrutinyULC", "txtCaseType", "Case Type"},
    {"frmScrutinyULC", "txtProposalNo", "Proposal No"},
    {"frmScrutinyULC", "txtArea", "Area "},
    {"frmScrutinyULC", "cmbExtract", "Select Extract No"},
    {"frmScrutinyULC", "dgdOwner", "Area Division : Partly Combined"},
    {"frmScrutinyULC", "dgdULCOrderDetails", "ULC Order :"},
    {"frmUS84", "txtCaseNumber", "Case Number :"},
    {"frmUS84", "dtpResultDate", "Result Date "},
    {"frmUS84", "txtApplicantName", "Applicant's Name :"},
    {"frmUS84", "txtApplicantAddress", "Applicant's Address :"},
    {"frmUS84", "txtNoOfPlotOwnedByApplicant", "No. of Plots owned by this applicant"},
    {"frmUS84", "txtTotAreaOwnerShip", "Total Area Under Ownership  : "},
    {"frmUS84", "txtAreaDeduction", "Area Deduction  :"},
    {"frmUS84", "txtGreenBelt", "Green belt or agri. land :"},
    {"frmUS84", "txtSurplusArea", "Surplus area :"},
    {"frmUS84", "txtSurveyNo", "Survey No. :"},
    {"frmUS84", "lblTotalArea", "Total Area"},
    {"frmULC20aDetails", "cmbSchemaType", "Type Of Schemes :"},
    {"frmULC20aDetails", "IsUlCUS84Submitted(1)", "Whether ULC order under Section 8 (4) submitted ? :"},
    {"frmULC20aDetails", "txtCommonScheme(0)", "Inward Number", "i."},
    {"frmULC20aDetails", "DTPAppllication", "Date Of Application", "ii."},
    {"frmULC20aDetails", "txtCommonScheme(2)", "Village", "iii."},
    {"frmULC20aDetails", "txtCommonScheme(3)", "S. No.", "iv."},
    {"frmULC20aDetails", "txtCommonScheme(4)", "Total Surplus Area in sq. mtr", "v."},
    {"frmULC20aDetails", "txtCommonScheme(5)", "Land to be detained as per circular dated 11.0.1989", "vi."},
    {"frmULC20aDetails", "txtCommonScheme(6)", "Total land under scheme", "vii."},
    {"frmULC20aDetails", "txtCommonScheme(7)", "Area under reservation, if any", "viii."},
    {"frmULC20aDetails", "txtCommonScheme(8)",
     "Land to be handed over to govt. with frontage && access roads commencement of scheme(30% / 50%)", "ix."},
    {"frmULC20aDetails", "txtCommonScheme(9)", "Area of land to be exempted", "x."},
    {"frmULC20aDetails", "txtCommonScheme(10)", "Area under internal road && open space in the scheme", "xi."},
    {"frmULC20aDetails", "txtCommonScheme(11)", "Net Area available for the scheme", "xii."},
    {"frmULC20aDetails", "IsReservationCondition(1)",
     "Condition regarding handling over reservation free of cost to SMC", "xiii."},
    {"frmUS22", "txtAreaExistingStruct", "Area Of existing Structure :"},
    {"frmUS22", "txtLandAppurantArea", "Land Apprurant Area : "},
});

struct Caption {
    std::string_view form;
    std::string_view control;
    std::string_view caption;
};

constexpr std::array captions = std::to_array<Caption>({
    {"frmScrutinyULC", "fraProposal", "Proposal Information"},
    {"frmScrutinyULC", "fraOwnership", "Ownership Information"},
    {"frmScrutinyULC", "optDocCtrlOwn(0)", "7/12 Utara(Extract)"},
    {"frmScrutinyULC", "optDocCtrlOwn(1)", "Property Card"},
    {"frmScrutinyULC", "lblNoOfExt", "No of 7/12 Extracts + PRC"},
    {"frmScrutinyULC", "cmdSave", "Save ULC Order Scrutiny Information"},
    {"frmScrutinyULC", "cmdClose", "Close"},
    {"frmScrutinyULC", "cmdReferesh", "Reset"},
    {"frmUS84", "cmdSave", "Save ULC US 8(4) Scrutiny Information"},
    {"frmUS84", "cmdClose", "Close"},
    {"frmUS84", "cmdReferesh", "Reset"},
    {"frmULC20aDetails", "lblDetails", "Details :"},
    {"frmULC20aDetails", "frmCommonSchema", "Common For All Schemes"},
    {"frmULC20aDetails", "fraTableForDispenseScheme", "Table For Special Dispense Scheme"},
    {"frmULC20aDetails", "IsUlCUS84Submitted(1)", "Yes"},
    {"frmULC20aDetails", "IsUlCUS84Submitted(0)", "No"},
    {"frmULC20aDetails", "IsReservationCondition(1)", "Yes"},
    {"frmULC20aDetails", "IsReservationCondition(0)", "No"},
    {"frmULC20aDetails", "cmdSave", "Save ULC US 20 a 1- Scrutiny Inforamtion"},
    {"frmULC20aDetails", "cmdClose", "Close"},
    {"frmULC20aDetails", "cmdReferesh", ""},
    {"frmUS22", "cmdSave", "Save ULC US 22 - Scrutiny Information"},
    {"frmUS22", "cmdClose", "Close"},
    {"frmUS22", "cmdReferesh", "Reset"},
});

struct OrdersLayout : testing::Test, World {};

TEST_F(OrdersLayout, HasAPlaceForEveryVisibleControl) {
    for (const std::string_view form : formNames)
        EXPECT_EQ(layoutFaults(*proposal.forms.touch(form)), std::vector<std::string>()) << form;
}

TEST_F(OrdersLayout, AsksItsQuestionsInTheirWords) {
    for (const Question& asked : questions) {
        SCOPED_TRACE(asked.control);
        const LayoutRow* found = rowOf(*proposal.forms.touch(asked.form), asked.control);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->question, asked.question);
        EXPECT_EQ(found->item, asked.item);
    }
}

TEST_F(OrdersLayout, CaptionsAreTheSystemsOwn) {
    for (const Caption& told : captions)
        EXPECT_EQ(control<Captioned>(told.form, told.control).caption(), told.caption) << told.form << told.control;
}

TEST_F(OrdersLayout, TheOrderUnderSectionEightCarriesItsNotes) {
    const Form& form = *proposal.forms.touch("frmUS84");
    for (const std::string_view note :
         {"Add only details of plot which are under development.",
          "Note : Surplus Area = [Total Area Under Ownership - (Area Deduction + Green belt)]"})
        EXPECT_NE(findRow(form, [&](const LayoutRow& row) { return row.question == note; }), nullptr) << note;
    std::vector<std::string_view> titles;
    for (const LayoutGroup& group : form.layout().pages.front().groups)
        titles.push_back(group.title);
    EXPECT_EQ(titles, (std::vector<std::string_view>{"", "Table (C) Applicant's Details :-",
                                                     "Table (A)/(B) Land record information :-", ""}));
}

TEST_F(OrdersLayout, TheClosingLabelsAndTheHeadOfTheExemptionAreLive) {
    const Form& form = *proposal.forms.touch("frmULC20aDetails");
    EXPECT_EQ(rowOf(form, "txtSpeDisScheme")->label, "lblSpecDispScheme");
    EXPECT_EQ(rowOf(form, "txtDetails")->label, "lblDetails");
    EXPECT_EQ(rowOf(*proposal.forms.touch("frmScrutinyULC"), "txtNoOfExtranct")->label, "lblNoOfExt");
    EXPECT_EQ(form.layout().pages.front().groups.front().frame, "fraUS20a1");
    EXPECT_EQ(control<Captioned>("frmULC20aDetails", "fraUS20a1").caption(), "U/S 20(a) (1) Details");
}

}  // namespace
}  // namespace plandesk::test
