#include "particulars/particulars.h"
#include "unit/ParticularsFixture.h"

// The movement between the nine pages of frmAnnexureA and AnnexureACont.

namespace plandesk::test {
namespace {

class DiscretionForm : public DataForm {
public:
    using DataForm::DataForm;
};
struct frmDiscretionNewCase : DiscretionForm {
    static constexpr std::string_view formName = "frmDiscretionNewCase";
    explicit frmDiscretionNewCase(Proposal& proposal) : DiscretionForm(proposal, formName, "") {}
};
struct frmDiscretionrevisedCase : DiscretionForm {
    static constexpr std::string_view formName = "frmDiscretionrevisedCase";
    explicit frmDiscretionrevisedCase(Proposal& proposal) : DiscretionForm(proposal, formName, "") {}
};

class ParticularsPagesTest : public ParticularsTest {
protected:
    ParticularsPagesTest() {
        proposal.formBackColor = fromBlueGreenRed(0xF2F8FF);
        proposal.commands.open = [this](std::string_view name) { opened.emplace_back(name); };
    }

    static void expectCurrentButton(PageButtons& buttons, int current, const Proposal& proposal) {
        for (int page = 0; page < PageButtons::count; ++page)
            EXPECT_EQ(buttons[page].backColor(), page == current ? proposal.activeButtonColor : proposal.formBackColor)
                << page;
    }

    std::vector<std::string> opened;
};

TEST_F(ParticularsPagesTest, TheFirstPageIsShownWithoutAnyTest) {
    first().cmdFormNo_Click(0);
    EXPECT_TRUE(first().front());
    EXPECT_EQ(first().PropTab.tab(), 0);
    EXPECT_EQ(proposal.currentFormNo, 0);
    EXPECT_EQ(proposal.screen.focused(), nullptr);
    expectNoMessage();
    expectCurrentButton(first().cmdFormNo, 0, proposal);
}

TEST_F(ParticularsPagesTest, AnyOtherPageNeedsACompleteFirstPage) {
    first().cmdFormNo_Click(0);
    for (int page = 1; page < PageButtons::count; ++page) {
        user::click(first().cmdFormNo[page]);
        expectMessage("Proposal Title Can not be blank !", "");
        EXPECT_EQ(first().PropTab.tab(), 0);
        EXPECT_EQ(proposal.currentFormNo, 0);
        EXPECT_TRUE(first().txtTitle.focused());
        EXPECT_TRUE(first().front());
        proposal.screen.dropFocus();
    }
}

TEST_F(ParticularsPagesTest, TheButtonsOfTheFirstFormTurnItsTabs) {
    fillFirstPage();
    first().cmdFormNo_Click(0);
    for (int page = 1; page < 4; ++page) {
        user::click(first().cmdFormNo[page]);
        EXPECT_EQ(first().PropTab.tab(), page);
        EXPECT_EQ(proposal.currentFormNo, page);
        EXPECT_TRUE(first().front());
        expectCurrentButton(first().cmdFormNo, page, proposal);
    }
    expectNoMessage();
}

TEST_F(ParticularsPagesTest, TheFurtherButtonsShowTheSecondForm) {
    fillFirstPage();
    first().cmdFormNo_Click(0);
    for (int page = 4; page < 9; ++page) {
        first().show();
        user::click(first().cmdFormNo[page]);
        EXPECT_EQ(second().SectFourDet.tab(), page - 4);
        EXPECT_EQ(proposal.currentFormNo, page);
        EXPECT_TRUE(second().front());
        EXPECT_TRUE(first().visible());
        expectCurrentButton(second().cmdFormNo, page, proposal);
    }
}

TEST_F(ParticularsPagesTest, TheFocusGoesFromTheButtonToTheFirstFieldOfThePage) {
    fillFirstPage();
    first().cmdFormNo_Click(0);
    const std::pair<int, Control*> landings[] = {
        {1, &first().IsAnyDeductOfRoadLine.yes}, {2, &first().Opt9.yes},
        {3, &first().IsAnyStructureOnPlot.yes},  {4, &second().txtWidthOfFrontOpenSpace},
        {5, &second().txtDiaInnerChowk},         {6, &second().txtRequirmentForParking},
        {7, &second().txtWidthMeanAccess},       {8, &second().txtRoofs},
    };
    for (const auto& [page, control] : landings) {
        user::click(first().cmdFormNo[page]);
        EXPECT_TRUE(control->focused()) << page;
    }
    first().show();
    user::click(first().cmdFormNo[0]);
    EXPECT_TRUE(first().cmdFormNo[0].focused());
}

TEST_F(ParticularsPagesTest, TheSecondFormsButtonsLeadToTheSamePages) {
    fillFirstPage();
    second().show();
    user::click(second().cmdFormNo[2]);
    EXPECT_TRUE(first().front());
    EXPECT_EQ(first().PropTab.tab(), 2);
    second().show();
    user::click(second().cmdFormNo[8]);
    EXPECT_TRUE(second().front());
    EXPECT_EQ(second().SectFourDet.tab(), 4);
    EXPECT_EQ(proposal.currentFormNo, 8);
}

TEST_F(ParticularsPagesTest, GoingForwardStopsOnePageShortOfTheLast) {
    fillFirstPage();
    first().cmdFormNo_Click(0);
    for (int page = 1; page <= 3; ++page) {
        user::click(first().cmdNavNext);
        EXPECT_EQ(proposal.currentFormNo, page);
    }
    user::click(first().cmdNavNext);
    for (int page = 5; page <= 7; ++page) {
        user::click(second().cmdNavNext);
        EXPECT_EQ(proposal.currentFormNo, page);
    }
    user::click(second().cmdNavNext);
    EXPECT_EQ(proposal.currentFormNo, 7);
    EXPECT_EQ(second().SectFourDet.tab(), 3);
}

TEST_F(ParticularsPagesTest, GoingForwardFromTheLastPageDoesNothing) {
    fillFirstPage();
    first().cmdFormNo_Click(8);
    user::click(second().cmdNavNext);
    EXPECT_EQ(proposal.currentFormNo, 8);
    EXPECT_EQ(second().SectFourDet.tab(), 4);
}

TEST_F(ParticularsPagesTest, GoingBackStopsAtTheFirstPage) {
    fillFirstPage();
    first().cmdFormNo_Click(5);
    user::click(second().cmdNavPrev);
    EXPECT_EQ(proposal.currentFormNo, 4);
    user::click(second().cmdNavPrev);
    EXPECT_EQ(proposal.currentFormNo, 3);
    EXPECT_TRUE(first().front());
    for (int i = 0; i < 5; ++i)
        user::click(first().cmdNavPrev);
    EXPECT_EQ(proposal.currentFormNo, 0);
    EXPECT_EQ(first().PropTab.tab(), 0);
}

TEST_F(ParticularsPagesTest, NextGoesThroughTheTabsAndOnToSectionFour) {
    first().show();
    for (int tab = 1; tab <= 3; ++tab) {
        user::click(first().cmdNext);
        EXPECT_EQ(first().PropTab.tab(), tab);
        EXPECT_TRUE(first().cmdPrevious.enabled());
        EXPECT_TRUE(first().cmdNext.enabled());
        expectCurrentButton(first().cmdFormNo, tab, proposal);
    }
    user::click(first().cmdNext);
    EXPECT_TRUE(second().front());
    EXPECT_EQ(proposal.currentFormNo, 0);
}

TEST_F(ParticularsPagesTest, NextOnTheLastTabEnablesPrevious) {
    first().show();
    first().goToTab(3);
    first().cmdPrevious.setEnabled(false);
    first().cmdNext_Click();
    EXPECT_TRUE(first().cmdPrevious.enabled());
}

TEST_F(ParticularsPagesTest, PreviousGoesBackAndShutsItselfAtTheFirstTab) {
    first().show();
    user::showTab(first().PropTab, 3);
    for (int tab = 2; tab >= 0; --tab) {
        user::click(first().cmdPrevious);
        EXPECT_EQ(first().PropTab.tab(), tab);
        EXPECT_TRUE(first().cmdNext.enabled());
    }
    EXPECT_FALSE(first().cmdPrevious.enabled());
}

TEST_F(ParticularsPagesTest, ATabTurnedByHandShutsTheButtonThatLeadsNowhere) {
    first().show();
    user::showTab(first().PropTab, 3);
    EXPECT_TRUE(first().cmdPrevious.enabled());
    EXPECT_FALSE(first().cmdNext.enabled());
    expectCurrentButton(first().cmdFormNo, 3, proposal);
    user::showTab(first().PropTab, 2);
    EXPECT_TRUE(first().cmdNext.enabled());
    EXPECT_TRUE(first().cmdPrevious.enabled());
    user::showTab(first().PropTab, 0);
    EXPECT_FALSE(first().cmdPrevious.enabled());
    EXPECT_TRUE(first().cmdNext.enabled());
}

TEST_F(ParticularsPagesTest, NextOfTheSecondFormLeadsFromTheThirdTabToTheChecklists) {
    second().show();
    user::click(second().cmdNext);
    user::click(second().cmdNext);
    EXPECT_EQ(second().SectFourDet.tab(), 2);
    EXPECT_TRUE(opened.empty());
    user::click(second().cmdNext);
    EXPECT_EQ(second().SectFourDet.tab(), 2);
    EXPECT_EQ(opened, std::vector<std::string>{"frmDocCheckList"});
    expectCurrentButton(second().cmdFormNo, 6, proposal);
}

TEST_F(ParticularsPagesTest, PreviousOfTheSecondFormLeadsBackToTheFirstForm) {
    second().show();
    user::showTab(second().SectFourDet, 2);
    user::click(second().cmdPrevious);
    user::click(second().cmdPrevious);
    EXPECT_EQ(second().SectFourDet.tab(), 0);
    EXPECT_TRUE(second().front());
    user::click(second().cmdPrevious);
    EXPECT_TRUE(first().front());
    EXPECT_EQ(first().PropTab.tab(), 3);
}

TEST_F(ParticularsPagesTest, ClosingHidesBothFormsAndTheDiscretionFormsAndKeepsThem) {
    proposal.forms.declare<frmDiscretionNewCase>();
    proposal.forms.declare<frmDiscretionrevisedCase>();
    const auto showAll = [this] {
        for (Form* form : {static_cast<Form*>(&first()), static_cast<Form*>(&second()),
                           static_cast<Form*>(&proposal.forms.get<frmDiscretionNewCase>()),
                           static_cast<Form*>(&proposal.forms.get<frmDiscretionrevisedCase>())})
            form->show();
    };
    const auto expectAllHidden = [this] {
        for (const std::string_view name :
             {"frmAnnexureA", "AnnexureACont", "frmDiscretionNewCase", "frmDiscretionrevisedCase"}) {
            ASSERT_NE(proposal.forms.loaded(name), nullptr);
            EXPECT_FALSE(proposal.forms.loaded(name)->visible()) << name;
        }
    };
    showAll();
    first().txtTitle.setText("kept");
    user::click(first().cmdClose);
    expectAllHidden();
    EXPECT_EQ(first().txtTitle.text(), "kept");
    showAll();
    user::click(second().Command9);
    expectAllHidden();
    EXPECT_EQ(machine.program.ends, 0);
}

TEST_F(ParticularsPagesTest, ClosingLoadsNoForm) {
    first().show();
    user::click(first().cmdClose);
    EXPECT_EQ(proposal.forms.loaded("AnnexureACont"), nullptr);
    EXPECT_FALSE(first().visible());
}

TEST_F(ParticularsPagesTest, ExitOfTheSecondFormUnloadsTheParticularsAndEndsTheProgram) {
    first().show();
    second().show();
    user::click(second().cmdClose);
    EXPECT_EQ(proposal.forms.loaded("frmAnnexureA"), nullptr);
    EXPECT_EQ(proposal.forms.loaded("AnnexureACont"), nullptr);
    EXPECT_EQ(machine.program.ends, 1);
    expectNoMessage();
}

TEST_F(ParticularsPagesTest, TheLinksLeadToTheSectionsAndThePayment) {
    second().show();
    second().SectFourDet.setTab(3);
    first().goToTab(2);
    user::click(second().links.lblAnnextureA);
    EXPECT_TRUE(first().front());
    EXPECT_EQ(first().PropTab.tab(), 0);
    EXPECT_FALSE(first().cmdPrevious.enabled());
    EXPECT_TRUE(first().cmdNext.enabled());
    second().show();
    user::click(second().links.lblAnnexureB);
    EXPECT_TRUE(second().front());
    EXPECT_EQ(second().SectFourDet.tab(), 0);
    user::click(second().links.lblPayment);
    EXPECT_EQ(opened, std::vector<std::string>{"frmPayDetail"});
}

TEST_F(ParticularsPagesTest, SectionFourPaintsItsLinks) {
    for (Label* link : {&second().links.lblPayment, &second().links.lblAnnexureB, &second().links.lblAnnextureA})
        link->setForeColor(black);
    showSectionFourPage(proposal);
    EXPECT_EQ(second().links.lblPayment.foreColor().text(), "FF0000");
    EXPECT_EQ(second().links.lblAnnexureB.foreColor().text(), "0000FF");
    EXPECT_EQ(second().links.lblAnnextureA.foreColor().text(), "0000FF");
    EXPECT_TRUE(second().front());
}

}  // namespace
}  // namespace plandesk::test
