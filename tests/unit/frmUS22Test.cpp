#include "ulc/frmUS22.h"

#include "OrdersFixture.h"

namespace plandesk::test {
namespace {

struct US22Order : Orders {
    US22Order() { saveLandRecords(); }
};

TEST_F(US22Order, ItTakesDecimalsKeepsOpenOnASaveAndComesBack) {
    auto& form = us22(1);
    EXPECT_EQ(form.caption(), "ULC Order Under Section  22");
    EXPECT_EQ(form.fraUS22.caption(), "ULC Order Under Section (22)");
    user::type(form.txtAreaExistingStruct, "1x2.5");
    user::type(form.txtLandAppurantArea, "7");
    EXPECT_EQ(form.txtAreaExistingStruct.text(), "12.5");
    user::click(form.cmdSave);
    user::click(form.cmdSave);
    EXPECT_TRUE(form.visible());
    tables.rsULCOrderUS22->setFilter("ExtNo = 2");
    EXPECT_EQ(tables.rsULCOrderUS22->recordCount(), 1);
    user::click(form.cmdClose);
    EXPECT_EQ(proposal.forms.loaded("frmUS22"), nullptr);
    EXPECT_EQ(us22(0).txtAreaExistingStruct.text(), "");
    user::click(us22(0).cmdClose);
    EXPECT_EQ(us22(1).txtAreaExistingStruct.text(), "12.5");
    EXPECT_EQ(us22(1).txtLandAppurantArea.text(), "7");
}

TEST_F(US22Order, WithoutAnOrderTheBoxesKeepTheirText) {
    auto& form = us22(1);
    form.txtLandAppurantArea.setText(" 5 ");
    tables.rsULCOrderUS22->setFilter("ExtNo = 2");
    tables.rsULCOrderUS22->deleteVisible();
    form.loadUS22Order();
    EXPECT_EQ(form.txtLandAppurantArea.text(), " 5 ");
}

TEST_F(US22Order, AnEmptyOrderIsWrittenLikeNoneAtAll) {
    auto& form = us22(0);
    user::click(form.cmdSave);
    tables.rsULCOrderUS22->setFilter("ExtNo = 2");
    tables.rsULCOrderUS22->deleteVisible();
    user::click(scrutiny().cmdSave);
    const std::string& xml = proposal.ULCScrutinyXML;
    EXPECT_NE(xml.find("<ULC-US-22>#</ULC-US-22></EXTRACT-1>"), std::string::npos);
    EXPECT_NE(xml.find("<ULC-US-22>#</ULC-US-22></EXTRACT-2>"), std::string::npos);
}

}  // namespace
}  // namespace plandesk::test
