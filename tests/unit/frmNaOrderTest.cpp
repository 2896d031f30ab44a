#include "landrecords/frmNaOrder.h"

#include <gtest/gtest.h>

#include "controls/User.h"
#include "fees/frmDocCheckList.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

struct NaOrder : testing::Test, World {
    frmNaOrder& form = proposal.forms.get<frmNaOrder>();

    /// Which of the first and the second area are shown.
    std::pair<bool, bool> shown() {
        EXPECT_EQ(form.lblUOM1.visible(), form.txtArea1.visible());
        for (const Control* control : {static_cast<Control*>(&form.lblAreaDesc1),
                                       static_cast<Control*>(&form.lblAreaDesc2), static_cast<Control*>(&form.lblUOM2)})
            EXPECT_EQ(control->visible(), form.txtArea2.visible());
        return {form.txtArea1.visible(), form.txtArea2.visible()};
    }
};

TEST_F(NaOrder, ItStartsWithTodayAndTheListOfUses) {
    EXPECT_EQ(form.caption(), "N.A. Order Details");
    EXPECT_EQ(form.DTPicker1.date(), (Date{2024, 3, 15}));
    ASSERT_EQ(form.cmbAreaForNA.listCount(), 5);
    EXPECT_EQ(form.cmbAreaForNA.item(0), "--- Select ---");
    EXPECT_EQ(form.cmbAreaForNA.item(4), "Mixed");
    EXPECT_EQ(form.cmbAreaForNA.itemData(4), 4);
}

TEST_F(NaOrder, TheUseOpensOneAreaTwoOrNone) {
    user::pick(form.cmbAreaForNA, 0);
    EXPECT_EQ(shown(), std::pair(false, false));
    for (const int single : {1, 2, 3}) {
        user::pick(form.cmbAreaForNA, single);
        EXPECT_EQ(shown(), std::pair(true, false));
    }
    user::pick(form.cmbAreaForNA, 4);
    EXPECT_EQ(shown(), std::pair(true, true));
}

TEST_F(NaOrder, OpeningItFromTheChecklistChoosesTheItemThatItsTextNames) {
    proposal.is712Current = true;
    form.cmbAreaForNA.setText(" Industrial ");
    EXPECT_EQ(form.cmbAreaForNA.listIndex(), -1);
    proposal.forms.get<frmDocCheckList>().Image1_Click(2);
    EXPECT_TRUE(form.visible());
    EXPECT_EQ(form.cmbAreaForNA.listIndex(), 3);
    EXPECT_EQ(shown(), std::pair(true, false));
    EXPECT_FALSE(proposal.is712Current);
    EXPECT_TRUE(form.layout().centred);
}

TEST_F(NaOrder, ATextThatTheListDoesNotHaveChangesNothing) {
    user::pick(form.cmbAreaForNA, 4);
    form.cmbAreaForNA.setText("Forest");
    form.cmbAreaForNA_Click();
    EXPECT_EQ(shown(), std::pair(true, true));
}

TEST_F(NaOrder, AreasTakeDigitsAndTheFormDropsSpecialKeys) {
    user::type(form.txtLandArea, "1a2.5#");
    user::type(form.txtArea1, "x7");
    user::type(form.txtArea2, "8-");
    user::type(form.txtNaOrderNo, "NA#1");
    EXPECT_EQ(form.txtLandArea.text(), "12.5");
    EXPECT_EQ(form.txtArea1.text(), "7");
    EXPECT_EQ(form.txtArea2.text(), "8");
    EXPECT_EQ(form.txtNaOrderNo.text(), "NA1");
}

TEST_F(NaOrder, EnterHasNoSpecialMeaning) {
    user::press(form.txtNaOrderNo, "Enter");
    EXPECT_TRUE(form.txtNaOrderNo.focused());
}

TEST_F(NaOrder, SaveWritesTheBlockUnescapedAndHidesTheForm) {
    form.txtNaOrderNo.setText(" NA & 1 ");
    form.DTPicker1.setDate(Date{2020, 1, 9});
    form.txtLandArea.setText(" 100 ");
    form.cmbAreaForNA.setListIndex(4);
    form.txtArea1.setText(" 60 ");
    form.txtArea2.setText("40 ");
    form.txtNARemark.setText(" <as told> ");
    form.show();
    user::click(form.cmdSave);
    EXPECT_EQ(proposal.naOrderXML,
              "<NAOrder><OrderNo>NA & 1</OrderNo><OrderDate>09/01/2020</OrderDate><LandArea> 100 </LandArea>"
              "<AreaForNAOrder>Mixed</AreaForNAOrder><TxtArea1>60</TxtArea1><TxtArea2>40</TxtArea2>"
              "<Remark> <as told> </Remark></NAOrder>");
    EXPECT_FALSE(form.visible());
}

TEST_F(NaOrder, AnEmptyFormSavesEmptyElementsAndASelectLineAsItStands) {
    form.SaveNaOrder();
    EXPECT_EQ(proposal.naOrderXML,
              "<NAOrder><OrderNo></OrderNo><OrderDate>15/03/2024</OrderDate><LandArea></LandArea>"
              "<AreaForNAOrder></AreaForNAOrder><TxtArea1></TxtArea1><TxtArea2></TxtArea2><Remark></Remark></NAOrder>");
    form.cmbAreaForNA.setListIndex(0);
    form.SaveNaOrder();
    EXPECT_NE(proposal.naOrderXML.find("<AreaForNAOrder>--- Select ---</AreaForNAOrder>"), std::string::npos);
}

TEST_F(NaOrder, ResetDoesNothingCloseHidesAndCommand1ReadsAgain) {
    form.txtNaOrderNo.setText("7");
    form.show();
    std::vector<Commands::Fragment> read;
    proposal.commands.readBlock = [&](Commands::Fragment block) { read.push_back(block); };
    user::click(form.cmdReferesh);
    EXPECT_EQ(form.txtNaOrderNo.text(), "7");
    user::click(form.Command1);
    EXPECT_EQ(read, std::vector<Commands::Fragment>{&Proposal::naOrderXML});
    user::click(form.cmdClose);
    EXPECT_FALSE(form.visible());
}

}  // namespace
}  // namespace plandesk::test
