#include <gtest/gtest.h>

#include "controls/User.h"
#include "fees/frmDiscretionNewCase.h"
#include "fees/frmDiscretionrevisedCase.h"
#include "unit/LayoutCheck.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

struct Discretion : testing::Test, World {
    frmDiscretionNewCase& newCase = proposal.forms.get<frmDiscretionNewCase>();
    frmDiscretionrevisedCase& revised = proposal.forms.get<frmDiscretionrevisedCase>();
};

TEST_F(Discretion, TheFormsHaveTheirRulesAndAmendments) {
    EXPECT_EQ(newCase.txtRule.size(), 15U);
    std::vector<std::string_view> rules;
    for (const LayoutRow& row : newCase.layout().pages[0].groups[0].rows)
        rules.push_back(row.question);
    EXPECT_EQ(rules,
              (std::vector<std::string_view>{
                  "Front, rear side1, side2 margin.", "Balcony margin", "Parking", "Building Height", "Coverage",
                  "Balcony", "Passage", "No Of Tenements", "Recreational ground size", "internal road", "Amenity ",
                  "Ventilation shaft size", "Artificial ventilation shaft ", "Room dimensions", "Lobby/passage"}));
    std::vector<std::string> amendments;
    for (const Label& amendment : revised.lblRule)
        amendments.push_back(amendment.caption());
    EXPECT_EQ(amendments,
              (std::vector<std::string>{"Gross plot area", "Permissible FSI", "Proposed FSI", "TDR area", "Margin ",
                                        "Parking ", "Demolition area", "Temporary construction area",
                                        "Number of substructures", "Change in use ", "Balcony area", "Staircase area",
                                        "Podium premium ", "Road set-back area", "Building height",
                                        "Recrea. gnd./amenity space ", "coverage", "passage", "Number of tenements"}));
}

TEST_F(Discretion, RowsAreNumberedUnderTheirHeads) {
    using Heads = std::vector<std::string_view>;
    const std::pair<const Form*, Heads> told[] = {
        {&newCase, {"Rule", "Architect Remarks"}},
        {&revised,
         {"(A) Amendments in revised drawing", "(B) Details/areas in Revised drawing",
          "(C)Details/areas in sanctioned drawing", "(D)Architect's Remarks for discretion"}},
    };
    for (const auto& [form, heads] : told) {
        EXPECT_EQ(layoutFaults(*form), std::vector<std::string>());
        const LayoutGroup& table = form->layout().pages[0].groups[0];
        EXPECT_EQ(Heads(table.heads.begin(), table.heads.end()), heads);
        int number = 0;
        for (const LayoutRow& row : table.rows)
            EXPECT_EQ(row.item, std::to_string(++number));
        EXPECT_EQ(form->at<Captioned>("Command5").caption(), "Print Particulars of Development");
        EXPECT_EQ(form->at<Captioned>("Command9").caption(), "Close");
    }
    EXPECT_EQ(newCase.lblHead.caption(), "Discretion : New Case");
    EXPECT_EQ(revised.lblHead.caption(), "Discretion : Revised Case");
}

TEST_F(Discretion, AFigureIsAnAmountOnceItIsLeftAndAnEmptyOneStaysEmpty) {
    revised.show();
    user::type(revised.txtRule[0], "1a2.5");
    user::leave(revised.txtRule[0]);
    EXPECT_EQ(revised.txtRule[0].text(), "12.50");
    user::focus(revised.txtRuleC[18]);
    user::leave(revised.txtRuleC[18]);
    EXPECT_EQ(revised.txtRuleC[18].text(), "");
    user::type(revised.txtRuleD[3], "12.5 as built");
    user::leave(revised.txtRuleD[3]);
    EXPECT_EQ(revised.txtRuleD[3].text(), "12.5 as built");
}

TEST_F(Discretion, EnterPutsARemarkInProperCase) {
    newCase.show();
    user::type(newCase.txtRule[0], "FRONT #MARGIN");
    user::press(newCase.txtRule[0], "Enter");
    EXPECT_EQ(newCase.txtRule[0].text(), "Front Margin");
    EXPECT_TRUE(newCase.txtRule[1].focused());
}

TEST_F(Discretion, TheRowsAreWrittenAsTheyStand) {
    newCase.txtRule[0].setText(" a&b ");
    newCase.txtRule[14].setText("c#d");
    newCase.setDiscretionNewForSave();
    EXPECT_EQ(proposal.discretionNewXML, "<DISC-NEW> a&b ##############c#d</DISC-NEW>");
    revised.txtRule[0].setText("1");
    revised.txtRuleC[0].setText("2");
    revised.txtRuleD[0].setText(" <3> ");
    revised.setDiscretionForSave();
    EXPECT_TRUE(proposal.discretionRevisedXML.starts_with("<DISC-REV><RULE-1>1#2# <3> </RULE-1><RULE-2>##</RULE-2>"));
    EXPECT_TRUE(proposal.discretionRevisedXML.ends_with("<RULE-19>##</RULE-19></DISC-REV>"));
}

TEST_F(Discretion, TheirColourIsThatOfEveryForm) {
    for (Form* form : {static_cast<Form*>(&newCase), static_cast<Form*>(&revised)}) {
        EXPECT_EQ(form->backColor(), proposal.formBackColor);
        form->setBackColor(white);
        form->call("setBGColor");
        EXPECT_EQ(form->backColor(), proposal.formBackColor);
    }
}

TEST_F(Discretion, CloseHidesAFormAndASaveDoesToo) {
    newCase.show();
    revised.show();
    user::click(newCase.Command9);
    EXPECT_FALSE(newCase.visible());
    shell.press("mnuNew");
    shell.press("mnuSave");
    EXPECT_FALSE(revised.visible());
}

TEST_F(Discretion, NewKeepsTheRows) {
    newCase.txtRule[2].setText("kept");
    shell.press("mnuNew");
    EXPECT_EQ(proposal.forms.get<frmDiscretionNewCase>().txtRule[2].text(), "kept");
}

}  // namespace
}  // namespace plandesk::test
