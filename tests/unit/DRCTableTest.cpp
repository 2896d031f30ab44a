#include "drc/DRCTable.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "controls/User.h"
#include "drc/frmDRCTransfer.h"
#include "drc/frmDRCTransferCont.h"
#include "drc/frmDRCUtilisationForm.h"
#include "drc/frmIssuOfDRc.h"
#include "unit/ScratchFolder.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

constexpr Column columns[] = {
    {"First", ColumnKind::Text, 5}, {"ReceiptDate", ColumnKind::Text, 5}, {"Behind", ColumnKind::Text, 5}};

std::string fragmentOf(std::initializer_list<Value> values, std::string_view lastColumn) {
    Recordset table(columns);
    table.addNew();
    int place = 0;
    for (const Value& value : values)
        table.set(place++, value);
    table.update();
    return developmentRightsFragment(table, "TAG", lastColumn);
}

TEST(DevelopmentRightsFragment, NumberSignsFollowEveryColumnButTheOneNamedLast) {
    EXPECT_EQ(fragmentOf({"a", "b", "c"}, "Behind"), "<TAG>a#b#c</TAG>");
    EXPECT_EQ(fragmentOf({"a", "b", "c"}, "receiptDATE"), "<TAG>a#bc#</TAG>");
    EXPECT_EQ(fragmentOf({"a", "b", "c"}, "Receipt"), "<TAG>a#b#c#</TAG>");
}

TEST(DevelopmentRightsFragment, ValuesStandAsTheyAreAndANullIsEmpty) {
    EXPECT_EQ(fragmentOf({" A & <b> ", Value(), "#"}, "Behind"), "<TAG> A & <b> ###</TAG>");
}

TEST(DevelopmentRightsFragment, ATableWithoutARowHasNone) {
    Recordset table(columns);
    EXPECT_THROW(developmentRightsFragment(table, "TAG", "Behind"), RuntimeError);
}

/// A column of a form's table beside the control that it comes from.
struct Origin {
    std::string_view column;
    std::string_view control;
    std::string_view form{};  ///< another form than the one that saves
};

struct DevelopmentRights : testing::Test, World {
    Recordset* table(std::string_view name) {
        for (const auto& [tableName, table] : proposal.tables.byName())
            if (tableName == name)
                return table;
        return nullptr;
    }

    /// Gives every text box of the origins a text of its own and every date picker a date of its own, saves, and looks
    /// for each in its column. Lists and options are left to tests of their own.
    void expectOrigins(std::string_view form, std::string_view procedure, std::string_view tableName,
                       std::span<const Origin> origins) {
        std::vector<std::string> expected;
        Date day{2001, 1, 1};
        for (const Origin& origin : origins) {
            Control& source = control<Control>(origin.form.empty() ? form : origin.form, origin.control);
            if (auto* picker = dynamic_cast<DatePicker*>(&source)) {
                ++day.month;
                picker->setDate(day);
                expected.push_back(day.text());
            } else {
                expected.push_back("of " + std::string(origin.column) + std::string(400, 'x'));
                dynamic_cast<TextBox&>(source).setText("  " + expected.back() + " ");
            }
        }
        if (Form* continuation = proposal.forms.loaded("frmDRCTransferCont"))
            continuation->pressClose();
        ASSERT_TRUE(proposal.forms.touch(form)->run(procedure));
        Recordset* saved = table(tableName);
        ASSERT_NE(saved, nullptr);
        ASSERT_EQ(saved->rowCount(), 1);
        for (std::size_t place = 0; place < origins.size(); ++place)
            EXPECT_EQ(valueText(saved->get(origins[place].column)), expected[place]) << origins[place].column;
    }
};

TEST_F(DevelopmentRights, TheColumnsOfAnApplicationComeFromTheirFields) {
    constexpr Origin origins[] = {
        {"InwardNo", "txtInwardNo"},
        {"InwardDate", "DTPInwardDate"},
        {"FolioNo", "txtFolioNumber"},
        {"CSCTSNo", "txtCSCTSNo"},
        {"Village", "txtVillage"},
        {"ApplicantName", "txtApplicantName"},
        {"ApplicantAddress", "txtApplicantAddress"},
        {"Name", "txtEnggName"},
        {"Address", "txtEnggAddress"},
        {"LicenceNumber", "txtEnggLicenceNo"},
        {"IssueDate", "DTPLiIssueDate"},
        {"ValidityDate", "DTPValidUpto"},
        {"CertificateNo", "txtCertificateNo"},
        {"LandAreaNOCObtain", "txtLandAreaNOCObtain"},
        {"ClearanceNo", "txtClearanceNo"},
        {"ReservationSerialNo", "txtReservationSerialNo"},
        {"FSIZone", "txtFSIZone"},
        {"TotalAreaOfLand", "txtTotalAreaOfLand"},
        {"OtherReservation", "txtOtherReservation"},
        {"AcquisitionDate", "DTPAcquisitionDate"},
        {"FSICompensationArea", "txtFSICompensationArea"},
    };
    expectOrigins("frmIssuOfDRc", "SaveIssueOfDRC", "rsDRCIssue", origins);
}

TEST_F(DevelopmentRights, TheAnswersOfAnApplicationAreCodes) {
    struct Answer {
        std::string_view column;
        std::string_view control;
        std::string_view code;
    };
    constexpr Answer answers[] = {
        {"IsAchitectorSurveyor", "optLAOrdSurveyor(0)", "LA"},
        {"IsAchitectorSurveyor", "optLAOrdSurveyor(1)", "SUR"},
        {"IsReservationInc", "IsReservationInc(1)", "1"},
        {"IsReservationInc", "IsReservationInc(0)", "0"},
        {"LadSituatedAt", "OPTLadSituatedAt(0)", "REC"},
        {"LadSituatedAt", "OPTLadSituatedAt(1)", "NON-REC"},
        {"IsLargerReservation", "IsLargerReservation(1)", "1"},
        {"IsLargerReservation", "IsLargerReservation(0)", "0"},
        {"IsFSICompensationRec", "IsFSICompensationRec(1)", "1"},
        {"IsFSICompensationRec", "IsFSICompensationRec(0)", "0"},
    };
    auto& form = proposal.forms.get<frmIssuOfDRc>();
    for (const Answer& answer : answers) {
        user::click(option("frmIssuOfDRc", answer.control));
        form.SaveIssueOfDRC();
        EXPECT_EQ(valueText(table("rsDRCIssue")->get(answer.column)), answer.code) << answer.control;
    }
    user::click(form.CheckedByDE);
    form.SaveIssueOfDRC();
    EXPECT_EQ(valueText(table("rsDRCIssue")->get("CheckedByDE")), "Y");
    user::click(form.CheckedByDE);
    form.SaveIssueOfDRC();
    EXPECT_EQ(valueText(table("rsDRCIssue")->get("CheckedByDE")), "N");
}

TEST_F(DevelopmentRights, TheListsOfAnApplicationGiveTheirTrimmedTexts) {
    auto& form = proposal.forms.get<frmIssuOfDRc>();
    ASSERT_EQ(form.cboSector.listCount(), 11);
    EXPECT_EQ(form.cboSector.item(0), "Sector 1");
    ASSERT_EQ(form.cmbDrcZone.listCount(), 2);
    EXPECT_EQ(form.cmbDrcZone.item(1), "commercial");
    ASSERT_EQ(form.cmbProposedReservation.listCount(), 2);
    EXPECT_EQ(form.cmbProposedReservation.item(1), "Garden");
    user::pick(form.cboSector, 10);
    user::pick(form.cmbDrcZone, 0);
    user::pick(form.cmbProposedReservation, 0);
    form.SaveIssueOfDRC();
    EXPECT_EQ(valueText(table("rsDRCIssue")->get("Sector")), "Sector 11");
    EXPECT_EQ(valueText(table("rsDRCIssue")->get("DrcZone")), "residential");
    EXPECT_EQ(valueText(table("rsDRCIssue")->get("ProposedReservation")), "Road");
    form.cmbDrcZone.setText(" industrial ");
    form.SaveIssueOfDRC();
    EXPECT_EQ(valueText(table("rsDRCIssue")->get("DrcZone")), "industrial");
}

TEST_F(DevelopmentRights, TheColumnsOfATransferComeFromTheDeedAndItsContinuation) {
    constexpr std::string_view more = "frmDRCTransferCont";
    const Origin origins[] = {
        {"DRCNumber", "txtDRCNumber"},
        {"TotalBalanceAreaFigure", "txtTotalBalanceAreaFigure"},
        {"TransferorFolioNo", "txtTransferorFolioNo"},
        {"TransferorName1", "txtTransferorName1"},
        {"TransferorName2", "txtTransferorName2"},
        {"TransferorName3", "txtTransferorName3"},
        {"TransferorName4", "txtTransferorName4"},
        {"TransferorName5", "txtTransferorName5"},
        {"AttestationName", "txtAttestationName"},
        {"AttestationAddress", "txtAttestationAddress"},
        {"TransfareeName1", "txtTransfareeName1"},
        {"TransfareeName2", "txtTransfareeName2"},
        {"TransfareeName3", "txtTransfareeName3"},
        {"TransfareeName4", "txtTransfareeName4"},
        {"TransfareeName5", "txtTransfareeName5"},
        {"TransfareeExistingFolioNo", "txtTransfareeExistingFolioNo"},
        {"TransfareeDate", "DTPTransfareeDate"},
        {"TransfareePlace", "txtTransfareePlace"},
        {"TransfareeCheckedBy", "txtTransfareeCheckedBy"},
        {"SingTalliedBy", "txtSingTalliedBy"},
        {"RegTransferNo", "txtRegTransferNo"},
        {"ApprovalDate", "DTPApprovalDate"},
        {"ApprovalPlace", "txtApprovalPlace"},
        {"FolioNumber1", "txtFolioNumber1", more},
        {"FolioNumber2", "txtFolioNumber2", more},
        {"FolioNumber3", "txtFolioNumber3", more},
        {"FolioNumber4", "txtFolioNumber4", more},
        {"FolioNumber5", "txtFolioNumber5", more},
        {"LoggedBy", "txtLoggedBy", more},
        {"FullAddress", "txtFullAddress", more},
        {"DRCNameAddress", "txtDRCNameAddress", more},
        {"VideReceiptNo", "txtVideReceiptNo", more},
        {"ReceiptDate", "DTPReceiptDate", more},
    };
    expectOrigins("frmDRCTransfer", "SaveDRCTransfer", "rsDRCTransfer", origins);
    EXPECT_EQ(std::size(origins), table("rsDRCTransfer")->columns().size());
}

TEST_F(DevelopmentRights, TheColumnsOfAUtilisationComeFromTheirFields) {
    constexpr Origin origins[] = {
        {"DRCNumber", "txtDRCNumber"},
        {"TransferorFolioNo", "txtTransferorFolioNo"},
        {"TransferorName1", "txtTransferorName1"},
        {"TransferorName2", "txtTransferorName2"},
        {"TransferorName3", "txtTransferorName3"},
        {"TransferorName4", "txtTransferorName4"},
        {"TransferorName5", "txtTransferorName5"},
        {"AttestationName", "txtAttestationName"},
        {"AttestationAddress", "txtAttestationAddress"},
        {"AttestationSign", "txtAttestationSign"},
        {"AreaUtilizeFigure", "txtAreaUtilizeFigure"},
        {"ConsiderationRs", "txtConsiderationRs"},
        {"BalanceBuiltUpAreaFig", "txtBalanceBuiltUpAreaFig"},
        {"BalanceDrcAreaFig", "txtBalanceDrcAreaFig"},
        {"TransfareeName1", "txtTransfareeName1"},
        {"TransfareeName2", "txtTransfareeName2"},
        {"TransfareeName3", "txtTransfareeName3"},
        {"TransfareeName4", "txtTransfareeName4"},
        {"TransfareeName5", "txtTransfareeName5"},
        {"TransfareeExistingFolioNo", "txtTransfareeExistingFolioNo"},
        {"TransfareeDate", "DTPTransfareeDate"},
        {"TransfareePlace", "txtTransfareePlace"},
        {"TransfareeCheckedBy", "txtTransfareeCheckedBy"},
        {"SingTalliedBy", "txtSingTalliedBy"},
        {"RegTransferNo", "txtRegTransferNo"},
        {"ApprovalDate", "DTPApprovalDate"},
        {"ApprovalPlace", "txtApprovalPlace"},
        {"FolioNumber1", "txtFolioNumber1"},
        {"FolioNumber2", "txtFolioNumber2"},
        {"FolioNumber3", "txtFolioNumber3"},
        {"FolioNumber4", "txtFolioNumber4"},
        {"FolioNumber5", "txtFolioNumber5"},
        {"LoggedBy", "txtLoggedBy"},
        {"FullAddress", "txtFullAddress"},
        {"DRCNameAddress", "txtDRCNameAddress"},
        {"VideReceiptNo", "txtVideReceiptNo"},
        {"ReceiptDate", "DTPReceiptDate"},
    };
    expectOrigins("frmDRCUtilisationForm", "SaveUtilisationDRC", "rsDRCUtilisation", origins);
    EXPECT_EQ(std::size(origins), table("rsDRCUtilisation")->columns().size());
}

/// Saves all three forms, then a proposal with their elements to `path`.
void saveWithDevelopmentRights(World& world, const std::string& path, std::string_view applicant) {
    world.box("frmIssuOfDRc", "txtApplicantName").setText(applicant);
    world.proposal.forms.get<frmIssuOfDRc>().SaveIssueOfDRC();
    world.proposal.forms.get<frmDRCTransfer>().SaveDRCTransfer();
    world.proposal.forms.get<frmDRCUtilisationForm>().SaveUtilisationDRC();
    world.saveNewProposal(path);
}

constexpr std::string_view elements[] = {"<ISSUEOFDRC>", "<TRANSFERDRC>", "<UTILIZATIONDRC>"};

/// Opens, in a system of its own, a file that holds the text.
struct Opened : World {
    explicit Opened(std::string_view text) {
        file = folder.write("rights.xml", text);
        ports.dialogs.answers.push_back(file);
        shell.press("mnuOpen");
    }
    ScratchFolder folder;
    std::string file;
};

TEST(DevelopmentRightsInFiles, AreReadByNothingSoThatASaveAfterAStartDropsThem) {
    const std::string path = "/plans/rights.xml";
    World first;
    saveWithDevelopmentRights(first, path, "Patil");
    const std::string saved = first.ports.files.contents[path];
    std::size_t behind = 0;
    for (const std::string_view element : elements) {
        const std::size_t place = saved.find(element, behind);
        ASSERT_NE(place, std::string::npos) << element;
        behind = place;
    }

    Opened second(saved);
    EXPECT_TRUE(second.ports.dialogs.take().empty());
    EXPECT_EQ(second.box("frmAnnexureA", "txtTitle").text(), "1");
    EXPECT_EQ(second.box("frmIssuOfDRc", "txtApplicantName").text(), "");
    second.fillFirstPage();
    second.shell.press("mnuSave");
    const std::vector<Message> messages = second.ports.dialogs.take();
    ASSERT_EQ(messages.size(), 1U);  // the path alone: nothing warns
    EXPECT_EQ(messages[0].title, "Proposal Information Path ");
    const std::string again = second.ports.files.contents[second.file];
    EXPECT_NE(again.find("</INWARDINFO>"), std::string::npos);
    for (const std::string_view element : elements)
        EXPECT_EQ(again.find(element), std::string::npos) << element;
}

TEST(DevelopmentRightsInFiles, AnAmpersandInThemMakesTheFileIllFormed) {
    const std::string path = "/plans/rights.xml";
    World first;
    saveWithDevelopmentRights(first, path, "Patil & Sons");
    Opened second(first.ports.files.contents[path]);
    EXPECT_EQ(second.box("frmAnnexureA", "txtTitle").text(), "");
    EXPECT_FALSE(second.ports.dialogs.take().empty());
}

}  // namespace
}  // namespace plandesk::test
