#include <array>

#include "unit/ParticularsFixture.h"

// The fifteen tests of the first page, in the order in which a Save runs them.

namespace plandesk::test {
namespace {

struct Link {
    std::string_view empty;    ///< fields that the test finds empty
    std::string_view focus;    ///< field that gets the focus
    std::string_view leaving;  ///< control whose leaving runs the test too
    std::string_view message;
    std::string_view title;
};

constexpr std::array chain = std::to_array<Link>({
    {"txtTitle", "txtTitle", "txtTitle", "Proposal Title Can not be blank !", ""},
    {"cboCaseType", "cboCaseType", "cboCaseType", "Case Type Can not be blank !", ""},
    {"cboProposalTyp", "cboProposalTyp", "cboProposalTyp", "Major use of plot Can not be blank !", ""},
    {"cboProposProj", "cboProposProj", "cboProposProj", "Proposed Project Can not be blank !", ""},
    {"cboSector", "cboSector", "cboSector", "Village Name Can not be blank !", ""},
    {"txtpltno", "txtpltno", "txtpltno", "Survey No.Can not be blank !", ""},
    {"txtFPNo txtCTSNo", "txtFPNo", "txtGutNo", "Plot No. / CTS No. can't blank !", ""},
    {"txtTikaNo", "txtTikaNo", "txtTikaNo", "Proposed F.A.R Can not be blank !", ""},
    {"txtApplicantNm", "txtApplicantNm", "txtApplicantNm", "Applicant Name Can not be blank !", ""},
    {"txtApplicantAddr", "txtApplicantAddr", "txtApplicantAddr", "Applicant Address Can not be blank !", ""},
    {"txtArchNm", "txtArchNm", "txtArchNm", "Last Name Can not be blank !", ""},
    {"txtArchFirstName", "txtArchFirstName", "txtArchFirstName", "First Name  Can not be blank !",
     "Particulars of development ! "},
    {"txtRegNm", "txtRegNm", "txtRegNm", "Registration No. Can not be blank !", ""},
    {"txtPltArea", "txtPltArea", "txtPltArea", "Plot Area Can not be blank !", ""},
    {"txtActualArea", "txtActualArea", "txtActualArea", "Actual Area Can not be blank !", ""},
});

class FirstPageTest : public ParticularsTest {
protected:
    void empty(std::string_view keys) {
        for (Control* control : controls(first(), keys)) {
            if (auto* list = dynamic_cast<ComboBox*>(control))
                list->setListIndex(-1);
            else
                dynamic_cast<TextBox&>(*control).setText("  ");
        }
    }
};

TEST_F(FirstPageTest, ACompletePagePassesWithoutABox) {
    fillFirstPage();
    EXPECT_TRUE(first().validateAnnexureFirstPage());
    expectNoMessage();
}

TEST_F(FirstPageTest, EachLinkAloneStopsTheChainWithItsMessageAndFocus) {
    for (const Link& link : chain) {
        fillFirstPage();
        empty(link.empty);
        EXPECT_FALSE(first().validateAnnexureFirstPage()) << link.message;
        expectMessage(link.message, link.title);
        EXPECT_TRUE(first().findKey(link.focus)->focused()) << link.message;
    }
}

TEST_F(FirstPageTest, TheFirstFailingLinkInChainOrderIsTold) {
    fillFirstPage();
    for (auto link = chain.rbegin(); link != chain.rend(); ++link) {
        empty(link->empty);
        EXPECT_FALSE(first().validateAnnexureFirstPage());
        expectMessage(link->message, link->title);
    }
}

TEST_F(FirstPageTest, TheSecondLineTellsThePageWhatIsHeldAndWhatElseIsMissing) {
    fillFirstPage();
    empty("cboProposProj");
    first().validateAnnexureFirstPage("Nothing was saved.");
    EXPECT_EQ(machine.dialogs.take().at(0).detail,
              "Particulars of Development, page 1: Proposed Project\nNothing was saved.");
    empty("txtpltno txtFPNo txtCTSNo txtArchFirstName");
    first().cmdFormNo[4].click();
    EXPECT_EQ(machine.dialogs.take().at(0).detail,
              "Particulars of Development, page 1: Proposed Project\nPage 5 opens when page 1 is complete.\n"
              "Page 1 still lacks too: Survey No., Plot No. / CTS No., First Name.");
    first().validateAnnexureFirstPage();
    EXPECT_EQ(machine.dialogs.take().at(0).detail, "Particulars of Development, page 1: Proposed Project");
}

TEST_F(FirstPageTest, EachLinkHoldsTheFocusOfAUserWhoLeaves) {
    first().show();
    for (const Link& link : chain) {
        fillFirstPage();
        Control& leaving = first().at(link.leaving);
        first().screen().dropFocus();
        ASSERT_TRUE(user::focus(leaving)) << link.leaving;
        empty(link.empty);
        EXPECT_FALSE(user::focus(first().txtHissaNo)) << link.leaving;
        expectMessage(link.message, link.title);
        EXPECT_TRUE(first().findKey(link.focus)->focused()) << link.leaving;
    }
}

TEST_F(FirstPageTest, AFilledFieldLetsTheUserLeave) {
    fillFirstPage();
    first().show();
    for (const Link& link : chain) {
        ASSERT_TRUE(user::focus(first().at(link.leaving)));
        EXPECT_TRUE(user::focus(first().txtHissaNo)) << link.leaving;
    }
    expectNoMessage();
}

TEST_F(FirstPageTest, TheUserMayLeaveAnEmptyMiddleName) {
    first().show();
    ASSERT_TRUE(user::focus(first().txtArchMiddName));
    EXPECT_TRUE(user::focus(first().txtHissaNo));
    expectNoMessage();
    ASSERT_TRUE(first().txtArchMiddName.leaveCheck);
    EXPECT_TRUE(first().txtArchMiddName.leaveCheck());
}

TEST_F(FirstPageTest, AnEmptyPlotNumberItselfDoesNotHoldTheFocus) {
    first().show();
    ASSERT_TRUE(user::focus(first().txtFPNo));
    EXPECT_TRUE(user::focus(first().txtCTSNo));
    EXPECT_TRUE(user::focus(first().txtHissaNo));
    expectNoMessage();
}

TEST_F(FirstPageTest, PlotNumberOrCtsNumberIsEnough) {
    fillFirstPage();
    first().txtFPNo.setText("12");
    first().txtCTSNo.setText("");
    EXPECT_TRUE(first().validateAnnexureFirstPage());
    first().txtFPNo.setText("");
    first().txtCTSNo.setText("34");
    EXPECT_TRUE(first().validateAnnexureFirstPage());
    expectNoMessage();
}

TEST_F(FirstPageTest, TheFirstNameIsToldByTheCaptionOfItsLabel) {
    fillFirstPage();
    first().txtArchFirstName.setText("");
    first().lblfName.setCaption("Given Name");
    EXPECT_FALSE(first().validateAnnexureFirstPage());
    expectMessage("Given Name  Can not be blank !", "Particulars of development ! ");
}

TEST_F(FirstPageTest, ATextThatIsNoListItemCountsAsNotChosen) {
    fillFirstPage();
    first().cboCaseType.setText("Resubmitted");
    EXPECT_FALSE(first().validateAnnexureFirstPage());
    expectMessage("Case Type Can not be blank !", "");
}

TEST_F(FirstPageTest, AFailureBringsTheFirstTabWithTheField) {
    fillFirstPage();
    first().cmdFormNo_Click(3);
    first().txtTitle.setText("");
    EXPECT_FALSE(first().validateAnnexureFirstPage());
    EXPECT_EQ(first().PropTab.tab(), 0);
    EXPECT_TRUE(first().visible());
    EXPECT_TRUE(first().txtTitle.focused());
}

TEST_F(FirstPageTest, IsReachableByName) {
    EXPECT_TRUE(first().run("validateAnnexureFirstPage"));
    expectMessage("Proposal Title Can not be blank !", "");
}

}  // namespace
}  // namespace plandesk::test
