#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "controls/User.h"
#include "drc/frmDRCTransfer.h"
#include "drc/frmDRCTransferCont.h"
#include "drc/frmDRCUtilisationForm.h"
#include "drc/frmIssuOfDRc.h"
#include "unit/LayoutCheck.h"
#include "unit/World.h"

// What the forms of development rights say beside their controls, and what they do to keys.

namespace plandesk::test {
namespace {

constexpr std::array formNames = {"frmIssuOfDRc", "frmDRCTransfer", "frmDRCTransferCont", "frmDRCUtilisationForm"};

using Words = std::map<std::string, std::string>;

/// The question beside each control, by the first control of its row.
Words questionsOf(const Form& form) {
    Words questions;
    const auto take = [&questions](std::span<const LayoutGroup> groups) {
        for (const LayoutGroup& group : groups)
            for (const LayoutRow& row : group.rows)
                questions[split(row.controls, " ").front()] = row.question;
    };
    take(form.layout().top);
    for (const LayoutPage& page : form.layout().pages)
        take(page.groups);
    return questions;
}

struct DRCForms : testing::Test, World {
    void expectWords(std::string_view form, const Words& words) {
        const Words questions = questionsOf(*proposal.forms.touch(form));
        for (const auto& [control, question] : words) {
            ASSERT_TRUE(questions.contains(control)) << control;
            EXPECT_EQ(questions.at(control), question) << control;
        }
    }
    void expectNames(std::string_view form, const std::string& array, const std::string& question) {
        for (int number = 1; number <= 5; ++number)
            expectWords(form, {{array + std::to_string(number), question}});
    }
};

TEST_F(DRCForms, HaveAPlaceForEveryControl) {
    for (const std::string_view form : formNames)
        EXPECT_EQ(layoutFaults(*proposal.forms.touch(form)), std::vector<std::string>()) << form;
}

TEST_F(DRCForms, TheApplicationAsksInItsOwnWords) {
    expectWords(
        "frmIssuOfDRc",
        {
            {"txtInwardNo", "Inward Number :"},
            {"DTPInwardDate", "Inward Date :"},
            {"txtFolioNumber", "Folio Number :"},
            {"txtCSCTSNo", "C.S/CTS no. :"},
            {"txtVillage", "Village :"},
            {"txtApplicantName", "Name of the applicant :"},
            {"txtApplicantAddress", "Address of applicant :"},
            {"txtOwnersName", "Name(s) of the owner(s) :"},
            {"txtEnggName", "Name :"},
            {"txtEnggAddress", "Address :"},
            {"txtEnggLicenceNo", "Licence number :"},
            {"DTPLiIssueDate", "Date of issue :"},
            {"DTPValidUpto", "Valid upto :"},
            {"txtCertificateNo",
             "No. of issue of certificate by the additional collector and competent authority, U.L.C. sindhavali "
             "showing the land retainable :"},
            {"DTPicker1",
             "Date of issue of certificate by the additional collector and competent authority, U.L.C. sindhavali "
             "showing the land retainable :"},
            {"txtLandAreaNOCObtain", "Area of land for which N.O.C has been obtained :"},
            {"txtClearanceNo", "In case of non-retainable land, No. of the clearance given by the state government :"},
            {"DTPicker2", "In case of non-retainable land, Date of the clearance given by the state government :"},
            {"IsReservationInc(1)",
             "Whether the reservation is included in the prior list finalized by the mun. Commisioner :"},
            {"txtReservationSerialNo", "Serial number of the reservation in the priority list :"},
            {"OPTLadSituatedAt(0)", "Where is land situated :"},
            {"cmbDrcZone", "Zone in which land is situated :"},
            {"cboSector", "Sector in which land is situated :"},
            {"txtFSIZone", "Permissible FSI of zone :"},
            {"txtTotalAreaOfLand", "Total area of the land :"},
            {"IsLargerReservation(1)", "Whether land under reservation from a part of larger reservation :"},
            {"txtOtherReservation", "Details of other various reservation affecting the land under reference :"},
            {"cmbProposedReservation", "Details of the reservation proposed to be surrendered to corporation : "},
            {"DTPAcquisitionDate", "Acquisition date :"},
            {"IsFSICompensationRec(1)", "Whether Compensation or FSI has been reccieved by the applicant :"},
            {"txtFSICompensationArea", "For how much area :"},
        });
    auto& form = proposal.forms.get<frmIssuOfDRc>();
    EXPECT_EQ(form.layout().tabCaptions[0], "Land Details ");
    EXPECT_EQ(form.CheckedByDE.caption(), "Checked by D.E. :");
    EXPECT_EQ(form.optArchitect.caption(), "Licence architect");
    EXPECT_EQ(form.optSurveyor.caption(), "Surveyor ");
    EXPECT_EQ(form.receiving.caption(), "Receiving zone ");
    EXPECT_EQ(form.nonReceiving.caption(), "Non-Receiving zone ");
}

TEST_F(DRCForms, TheTransferDeedAsksInItsOwnWords) {
    expectWords("frmDRCTransfer", {
                                      {"txtDRCNumber", "DEVELOPMENT RIGHT CERTIFICATE NO."},
                                      {"txtTotalBalanceAreaFigure", "TOTAL BALANCE AREA (IN FIGURES) "},
                                      {"txtTotalBalanceAreaWords", "TOTAL BALANCE AREA (IN WORDS) :"},
                                      {"txtTransferorFolioNo", "Transferor's Folio number "},
                                      {"txtAttestationName", "Name :"},
                                      {"txtAttestationAddress", "Address :"},
                                      {"txtTransfareeExistingFolioNo", "Transferee(s) Existing Folio number :"},
                                      {"DTPTransfareeDate", "Date :"},
                                      {"txtTransfareePlace", "Place :"},
                                      {"txtTransfareeCheckedBy", "Checked by :"},
                                      {"txtSingTalliedBy", "Signature tallied by :"},
                                      {"txtRegTransferNo", "Entered in the register of transfer No. :"},
                                      {"DTPApprovalDate", "Approval Date :"},
                                      {"txtApprovalPlace", "No. "},
                                  });
    expectNames("frmDRCTransfer", "txtTransferorName", "Name in full :");
    expectNames("frmDRCTransfer", "txtTransfareeName", "Name in full :");
    for (const std::string_view form : {"frmDRCTransfer", "frmDRCTransferCont"}) {
        expectNames(form, "txtFolioNumber", "Folio No.");
        expectWords(form, {
                              {"txtLoggedBy", "Logged by :"},
                              {"txtFullAddress", "Full Address :"},
                              {"txtDRCNameAddress", "Name and Address :"},
                              {"txtVideReceiptNo", "Vide receipt No. :"},
                              {"DTPReceiptDate", "Date :"},
                          });
    }
}

TEST_F(DRCForms, TheUtilisationAsksInItsOwnWords) {
    expectWords("frmDRCUtilisationForm",
                {
                    {"txtDRCNumber", "Deve. Right certificate number :"},
                    {"txtTransferorFolioNo", "Transferor's Folio number :"},
                    {"txtAttestationName", "Name :"},
                    {"txtAttestationAddress", "Address :"},
                    {"txtAttestationSign", "Space for attestation :"},
                    {"txtAreaUtilizeFigure", "Area to be utilized in sq. mt. (In figures) :"},
                    {"txtAreaUtilizedToWords", "Area to be utilized in sq. mt. (In words) :"},
                    {"txtConsiderationRs", "Consideration (In Rs.) :"},
                    {"txtConsiderationRsWord", "Consideration (In words) :"},
                    {"txtBalanceBuiltUpAreaFig", "Balance built-up area as per D.R.C. in sq. mt. (In figure) :"},
                    {"txtBalanceBuiltUpAreaWord", "Balance built-up area as per D.R.C. in sq. mt. (In words) :"},
                    {"txtBalanceDrcAreaFig", "Balance area in the D.R.C. after utilization (In figure) :"},
                    {"txtBalanceDrcAreaWords", "Balance area in the D.R.C. after utilization (In words) :"},
                    {"txtBalanceArea", "Balance Area :"},
                    {"txtTransfareeExistingFolioNo", "Transferee(s) Existing Folio number :"},
                    {"DTPTransfareeDate", "Date :"},
                    {"txtTransfareePlace", "Place :"},
                    {"txtTransfareeCheckedBy", "Checked by :"},
                    {"txtSingTalliedBy", "Signature tallied by :"},
                    {"txtRegTransferNo", "Entered in the register of transfer No. :"},
                    {"DTPApprovalDate", "Approval Date :"},
                    {"txtApprovalPlace", "Approval Number :"},
                    {"txtLoggedBy", "Logged by :"},
                    {"txtFullAddress", "Full Address :"},
                    {"txtDRCNameAddress", "Name  :"},
                    {"txtVideReceiptNo", "Vide receipt No. :"},
                    {"DTPReceiptDate", "Date :"},
                });
    expectNames("frmDRCUtilisationForm", "txtTransferorName", "Name in full :");
    expectNames("frmDRCUtilisationForm", "txtTransfareeName", "Name in full :");
    expectNames("frmDRCUtilisationForm", "txtFolioNumber", "Folio number :");
    auto& form = proposal.forms.get<frmDRCUtilisationForm>();
    EXPECT_EQ(form.lblSave.caption(), "Press {F2} for Save");
    EXPECT_EQ(form.lblToggle.caption(), "Press {F3} for Toggle");
}

TEST_F(DRCForms, SaveCarriesTheCaptionOfTheNaOrderOnEveryForm) {
    for (const std::string_view form : {"frmIssuOfDRc", "frmDRCTransfer", "frmDRCUtilisationForm"}) {
        EXPECT_EQ(button(form, "cmdSave").caption(), "Save N.A.Order Information");
        EXPECT_EQ(button(form, "cmdReferesh").caption(), "Reset ");
        EXPECT_EQ(button(form, "cmdClose").caption(), "Close");
    }
}

TEST_F(DRCForms, EveryDateStartsAsToday) {
    for (const std::string_view form : formNames)
        proposal.forms.touch(form)->forEach<DatePicker>([](const DatePicker& picker) {
            EXPECT_EQ(picker.date(), (Date{2024, 3, 15})) << picker.key();
        });
}

TEST_F(DRCForms, SpecialCharactersCannotBeTyped) {
    for (const std::string_view form : formNames)
        proposal.forms.touch(form)->forEach<TextBox>([](TextBox& typed) {
            if (typed.locked)
                return;
            user::type(typed, "a#$%&*@^~b");
            EXPECT_EQ(typed.text(), "ab") << typed.key();
        });
}

TEST_F(DRCForms, FieldsThatNoSaveTakesAlongSayso) {
    int told = 0;
    for (const std::string_view form : formNames)
        for (const Control* each : proposal.forms.touch(form)->controls())
            told += each->toolTip == notSavedTip ? 1 : 0;
    EXPECT_EQ(told, 3 + 16 + 8);
}

TEST_F(DRCForms, WordsAreShownOnly) {
    auto& form = proposal.forms.get<frmDRCUtilisationForm>();
    for (TextBox* words : {&form.txtAreaUtilizedToWords, &form.txtConsiderationRsWord, &form.txtBalanceBuiltUpAreaWord,
                           &form.txtBalanceDrcAreaWords})
        EXPECT_FALSE(user::type(*words, "Ten"));
}

TEST_F(DRCForms, AFigureThatIsPastedOrEmptiedIsReadLikeATypedOne) {
    auto& form = proposal.forms.get<frmDRCTransfer>();
    user::edit(form.txtTotalBalanceAreaFigure, "12,00,000.25");
    EXPECT_EQ(form.txtTotalBalanceAreaWords.text(), "Twelve Lakhs Point Twenty Five sq. mtrs.");
    user::clear(form.txtTotalBalanceAreaFigure);
    EXPECT_EQ(form.txtTotalBalanceAreaWords.text(), "Twelve Lakhs Point Twenty Five sq. mtrs.");
    user::press(form.txtTotalBalanceAreaFigure, "7");
    EXPECT_EQ(form.txtTotalBalanceAreaWords.text(), "Seven sq. mtrs.");
    user::press(form.txtTotalBalanceAreaFigure, "Enter");
    EXPECT_EQ(form.txtTotalBalanceAreaFigure.text(), "7.00");
    EXPECT_EQ(form.txtTotalBalanceAreaWords.text(), "Seven Point Zero  sq. mtrs.");
}

TEST_F(DRCForms, TheHeadOfAFormComesFirstInItsTabOrderWhicheverTabIsShown) {
    auto& form = proposal.forms.get<frmIssuOfDRc>();
    for (const int tab : {0, 1}) {
        form.SSTab1.setTab(tab);
        const std::vector<Control*> order = form.tabOrder();
        EXPECT_EQ(order.front(), &form.txtInwardNo);
        EXPECT_EQ(order[3], tab == 0 ? &form.txtCSCTSNo : &form.txtTotalAreaOfLand);
        EXPECT_EQ(order.back(), &form.buttons.cmdClose);
    }
}

}  // namespace
}  // namespace plandesk::test
