#include "proposal/Forms.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "controls/Controls.h"
#include "proposal/DataForm.h"
#include "proposal/Proposal.h"
#include "unit/TestPorts.h"

namespace plandesk {
namespace {

/// Counts its loads in `feeArea` and fails in the load when `noReportReturn` is set.
class frmFirst : public DataForm {
public:
    static constexpr std::string_view formName = "frmFirst";
    explicit frmFirst(Proposal& proposal) : DataForm(proposal, formName, "First") {}
    void load() override;

    TextBox txtTitle{*this, "txtTitle"};
    TextBox txtAfter{*this, "txtAfter"};
};

class frmSecond : public DataForm {
public:
    static constexpr std::string_view formName = "frmSecond";
    explicit frmSecond(Proposal& proposal) : DataForm(proposal, formName, "Second") {}
    void load() override { proposal.forms.get<frmFirst>().txtTitle.setText("by the second"); }
};

void frmFirst::load() {
    ++proposal.feeArea;
    txtTitle.setText("loaded");
    if (proposal.noReportReturn)
        throw RuntimeError(ErrorNumber::FileNotFound);
    txtAfter.setText("whole");
}

struct FormsTest : testing::Test {
    test::TestPorts ports;
    Proposal proposal{ports};
    Forms& forms = proposal.forms;

    FormsTest() { forms.declare<frmFirst>(); }
};

TEST_F(FormsTest, TouchingAFormLoadsItOnce) {
    EXPECT_EQ(forms.loaded("frmFirst"), nullptr);
    auto& first = forms.get<frmFirst>();
    EXPECT_EQ(first.txtTitle.text(), "loaded");
    EXPECT_EQ(&forms.get<frmFirst>(), &first);
    EXPECT_EQ(forms.touch("frmFirst"), &first);
    EXPECT_EQ(proposal.feeArea, 1);
    EXPECT_FALSE(first.visible()) << "touching shows nothing";
}

TEST_F(FormsTest, NamesAreFoundInAnyCase) {
    Form* first = forms.touch("FRMFIRST");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->name(), "frmFirst");
    EXPECT_EQ(forms.loaded("frmfirst"), first);
    EXPECT_TRUE(forms.known("FrmFirst"));
    forms.unload("frmFIRST");
    EXPECT_EQ(forms.loaded("frmFirst"), nullptr);
}

TEST_F(FormsTest, FormThatIsNotKnownIsNull) {
    EXPECT_FALSE(forms.known("frmNone"));
    EXPECT_EQ(forms.touch("frmNone"), nullptr);
    EXPECT_EQ(forms.loaded("frmNone"), nullptr);
    forms.unload("frmNone");
    EXPECT_TRUE(forms.all().empty());
}

TEST_F(FormsTest, FormTouchedByItsClassIsKnownFromThenOn) {
    EXPECT_FALSE(forms.known("frmSecond"));
    forms.get<frmSecond>();
    EXPECT_TRUE(forms.known("frmSecond"));
    EXPECT_EQ(forms.names(), (std::vector<std::string>{"frmFirst", "frmSecond"}));
}

TEST_F(FormsTest, LoadMayTouchOtherForms) {
    forms.get<frmSecond>();
    EXPECT_EQ(forms.get<frmFirst>().txtTitle.text(), "by the second");
    EXPECT_EQ(proposal.feeArea, 1);
    EXPECT_EQ(forms.all().size(), 2U);
}

TEST_F(FormsTest, ErrorInALoadShowsOneBoxAndTheFormStandsAsFarAsItCame) {
    proposal.noReportReturn = true;
    auto& first = forms.get<frmFirst>();
    EXPECT_EQ(ports.dialogs.take(), (std::vector<Message>{{"", "File not found", Icon::Critical}}));
    EXPECT_EQ(first.txtTitle.text(), "loaded");
    EXPECT_EQ(first.txtAfter.text(), "");
    forms.get<frmFirst>();
    EXPECT_TRUE(ports.dialogs.take().empty()) << "the load is not tried again";
}

TEST_F(FormsTest, ErrorInALoadDoesNotEndTheEventThatTouchedTheForm) {
    proposal.noReportReturn = true;
    bool wentOn = false;
    proposal.screen.event([&] {
        forms.get<frmFirst>();
        wentOn = true;
    });
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(ports.dialogs.take().size(), 1U);
}

TEST_F(FormsTest, HidingKeepsAndUnloadingDestroys) {
    auto& first = forms.get<frmFirst>();
    first.show();
    first.txtTitle.setText("typed");
    first.hide();
    EXPECT_EQ(forms.get<frmFirst>().txtTitle.text(), "typed");
    forms.unload("frmFirst");
    EXPECT_TRUE(forms.all().empty());
    EXPECT_EQ(forms.get<frmFirst>().txtTitle.text(), "loaded");
    EXPECT_EQ(proposal.feeArea, 2);
}

TEST_F(FormsTest, FormUnloadedInAnEventIsLoadedAfreshWithinIt) {
    proposal.screen.event([&] {
        auto& old = forms.get<frmFirst>();
        old.txtTitle.setText("old");
        forms.unload("frmFirst");
        auto& fresh = forms.get<frmFirst>();
        EXPECT_NE(&fresh, &old);
        EXPECT_EQ(fresh.txtTitle.text(), "loaded");
        EXPECT_EQ(old.txtTitle.text(), "old") << "still there until the event ends";
    });
    EXPECT_EQ(forms.all().size(), 1U);
}

TEST_F(FormsTest, TwoProposalsHaveFormsOfTheirOwn) {
    Proposal other{ports};
    other.forms.get<frmFirst>().txtTitle.setText("other");
    EXPECT_EQ(forms.get<frmFirst>().txtTitle.text(), "loaded");
    EXPECT_EQ(proposal.feeArea, 1);
    EXPECT_EQ(other.feeArea, 1);
}

TEST_F(FormsTest, ProposalMayEndWithAFormThatHasTheFocus) {
    Proposal other{ports};
    auto& first = other.forms.get<frmFirst>();
    first.show();
    other.screen.moveFocus(first.txtTitle);
    EXPECT_TRUE(first.txtTitle.focused());
}

}  // namespace
}  // namespace plandesk
