#include "ulc/frmUS84.h"

#include "OrdersFixture.h"
#include "proposal/OrderColumns.h"

namespace plandesk::test {
namespace {

using Plot = US84PlotColumn;

struct US84Order : Orders {
    US84Order() { saveLandRecords(); }
};

TEST_F(US84Order, ItsColumnsAreTheSystemsOwn) {
    auto& form = us84();
    Texts captions;
    for (int column = 0; column < form.dgdTableAB.columnCount(); ++column)
        captions.emplace_back(form.dgdTableAB.column(column).caption);
    EXPECT_EQ(captions,
              (Texts{"No", "[Village]", "[Taluka]", "[S.No/H. No.]", "[Total Area]", "[Resrv.Type]", "[Res.Area]",
                     "[Green Belt]", "[Road Wideng.]", "[Resrv.Area]", "[Net Dvp. Area]", "[Un Dvp. Area]",
                     "[Open Spc.]", "[Recreational gnd]", "[Area remained]", "[Surplus Area]", ""}));
    const std::vector<int> told = {0,    800,  800, 1200, 1150, 1200, 1000, 1150, 1400,
                                   1200, 1400, -1,  -1,   1400, -1,   -1,   0};
    for (int column = 0; column < form.dgdTableAB.columnCount(); ++column) {
        const int width = told[static_cast<std::size_t>(column)];
        if (width >= 0) {
            EXPECT_EQ(form.dgdTableAB.column(column).width, width) << column;
        }
    }
    EXPECT_EQ(form.caption(), "ULC Order Under Section 8 (4)");
    EXPECT_EQ(form.lblTotalArea.caption(), "0.00");
}

TEST_F(US84Order, LeavingTheNumberOfPlotsMakesThemAnewAlsoWhenItIsTheSame) {
    auto& form = us84();
    user::type(form.txtNoOfPlotOwnedByApplicant, "2");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    ASSERT_EQ(form.dgdTableAB.rowCount(), 2);
    user::editCell(form.dgdTableAB, 0, Plot::Village, "Khandri");
    user::focus(form.txtNoOfPlotOwnedByApplicant);
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    EXPECT_EQ(form.dgdTableAB.rowCount(), 2);
    EXPECT_EQ(form.dgdTableAB.cellText(0, Plot::Village), "");
    EXPECT_EQ(form.dgdTableAB.cellText(1, Plot::No), "2");
}

TEST_F(US84Order, ANumberOfPlotsOfZeroOrNoneLeavesTheGridEmpty) {
    auto& form = us84();
    user::focus(form.txtNoOfPlotOwnedByApplicant);
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    EXPECT_EQ(form.txtNoOfPlotOwnedByApplicant.text(), "0");
    EXPECT_EQ(form.dgdTableAB.rowCount(), 0);
}

TEST_F(US84Order, ANumberBeyondSixteenBitsIsToldAndThePlotsStay) {
    auto& form = us84();
    user::type(form.txtNoOfPlotOwnedByApplicant, "1");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    user::editCell(form.dgdTableAB, 0, Plot::Village, "Khandri");
    user::type(form.txtNoOfPlotOwnedByApplicant, "40000");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    EXPECT_EQ(ports.dialogs.take(), (std::vector<Message>{{"", "Overflow", Icon::Critical}}));
    EXPECT_EQ(form.dgdTableAB.cellText(0, Plot::Village), "Khandri");
}

TEST_F(US84Order, OnlyThePlotsOfTheExtractAreItsOwn) {
    auto& first = us84(0);
    user::type(first.txtNoOfPlotOwnedByApplicant, "3");
    user::leave(first.txtNoOfPlotOwnedByApplicant);
    user::click(first.cmdClose);
    auto& second = us84(1);
    user::type(second.txtNoOfPlotOwnedByApplicant, "1");
    user::leave(second.txtNoOfPlotOwnedByApplicant);
    EXPECT_EQ(second.dgdTableAB.rowCount(), 1);
    user::click(second.cmdClose);
    EXPECT_EQ(us84(0).dgdTableAB.rowCount(), 3);
}

TEST_F(US84Order, TheTotalFollowsTheAreasOfThePlots) {
    auto& form = us84();
    user::type(form.txtNoOfPlotOwnedByApplicant, "2");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    user::editCell(form.dgdTableAB, 0, Plot::TotalArea, "1000.5");
    user::editCell(form.dgdTableAB, 1, Plot::TotalArea, "250");
    EXPECT_EQ(form.dgdTableAB.currentRow(), 1);
    EXPECT_EQ(form.lblTotalArea.caption(), "1250.50");
    EXPECT_EQ(form.txtTotAreaOwnerShip.text(), "1250.50");
    EXPECT_EQ(form.txtSurplusArea.text(), "1250.5");
    user::editCell(form.dgdTableAB, 1, Plot::Surplus, "9999");
    EXPECT_EQ(form.lblTotalArea.caption(), "1250.50");
}

TEST_F(US84Order, TheSurplusIsTheTotalLessDeductionAndGreenBeltUnrounded) {
    auto& form = us84();
    user::type(form.txtTotAreaOwnerShip, "1");
    user::type(form.txtAreaDeduction, "0.125");
    user::type(form.txtGreenBelt, "2");
    EXPECT_EQ(form.txtTotAreaOwnerShip.text(), "1.00");
    EXPECT_EQ(form.txtSurplusArea.text(), "-1.125");
}

TEST_F(US84Order, WithAnEmptyTotalTheSurplusIsBelowZero) {
    auto& form = us84();
    user::type(form.txtAreaDeduction, "12");
    EXPECT_EQ(form.lblTotalArea.caption(), "0.00");
    EXPECT_EQ(form.txtSurplusArea.text(), "-12");
}

TEST_F(US84Order, AnEmptiedDeductionIsZeroAtOnce) {
    auto& form = us84();
    user::type(form.txtTotAreaOwnerShip, "5");
    user::type(form.txtAreaDeduction, "3");
    user::clear(form.txtAreaDeduction);
    EXPECT_EQ(form.txtAreaDeduction.text(), "0");
    EXPECT_EQ(form.txtSurplusArea.text(), "5");
    user::clear(form.txtTotAreaOwnerShip);
    EXPECT_EQ(form.txtTotAreaOwnerShip.text(), "0.00");
}

TEST_F(US84Order, ATotalThatIsNoNumberLeavesTheSurplus) {
    auto& form = us84();
    user::type(form.txtTotAreaOwnerShip, "7");
    form.txtTotAreaOwnerShip.setText("seven");
    user::type(form.txtAreaDeduction, "3");
    EXPECT_EQ(form.txtSurplusArea.text(), "7");
    EXPECT_TRUE(ports.dialogs.take().empty());
}

TEST_F(US84Order, EveryChangeOverwritesATypedSurplus) {
    auto& form = us84();
    user::type(form.txtTotAreaOwnerShip, "7");
    form.txtSurplusArea.setText("99");
    EXPECT_EQ(form.txtSurplusArea.text(), "7");
}

TEST_F(US84Order, ASavedOrderComesBackAndAClosedOneKeepsItsPlotsAlone) {
    auto& form = us84();
    user::type(form.txtCaseNumber, " ULC/1 ");
    user::pickDate(form.dtpResultDate, {2001, 2, 3});
    user::type(form.txtApplicantName, "Patil");
    user::type(form.txtApplicantAddress, "Station Road");
    user::type(form.txtNoOfPlotOwnedByApplicant, "1");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    user::type(form.txtTotAreaOwnerShip, "100");
    user::type(form.txtAreaDeduction, "10");
    user::type(form.txtGreenBelt, "5");
    user::type(form.txtSurveyNo, "12/3");
    user::click(form.cmdSave);
    user::click(form.cmdSave);
    EXPECT_EQ(cell(&Tables::rsULCOrderUS84, "ExtNo = 1", "CaseNo"), "ULC/1");
    EXPECT_EQ(cell(&Tables::rsULCOrderUS84, "ExtNo = 1", "ResultDate"), "03/02/2001");
    EXPECT_EQ(cell(&Tables::rsULCOrderUS84, "ExtNo = 1", "Surplus"), "85");
    tables.rsULCOrderUS84->setFilter("ExtNo = 1");
    EXPECT_EQ(tables.rsULCOrderUS84->recordCount(), 1);
    user::type(form.txtCaseNumber, "unsaved");
    user::editCell(form.dgdTableAB, 0, Plot::Village, "Khandri");
    user::click(form.cmdClose);
    EXPECT_EQ(proposal.forms.loaded("frmUS84"), nullptr);

    auto& again = us84();
    EXPECT_EQ(again.txtCaseNumber.text(), "ULC/1");
    EXPECT_EQ(again.dtpResultDate.date(), (Date{2001, 2, 3}));
    EXPECT_EQ(again.txtNoOfPlotOwnedByApplicant.text(), "1");
    EXPECT_EQ(again.txtTotAreaOwnerShip.text(), "100.00");
    EXPECT_EQ(again.txtSurplusArea.text(), "85");
    EXPECT_EQ(again.txtSurveyNo.text(), "12/3");
    EXPECT_EQ(again.dgdTableAB.cellText(0, Plot::Village), "Khandri");
}

TEST_F(US84Order, TheSumOfThePlotsReplacesAStoredTotal) {
    auto& form = us84();
    user::type(form.txtNoOfPlotOwnedByApplicant, "1");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    user::editCell(form.dgdTableAB, 0, Plot::TotalArea, "12500");
    user::type(form.txtTotAreaOwnerShip, "3");
    user::click(form.cmdSave);
    user::click(form.cmdClose);
    auto& again = us84();
    EXPECT_EQ(again.lblTotalArea.caption(), "12500.00");
    EXPECT_EQ(again.txtTotAreaOwnerShip.text(), "12500.00");
    EXPECT_EQ(again.txtSurplusArea.text(), "12500");
}

TEST_F(US84Order, EnterOnTheLastColumnGoesToTheNextPlotAndFromTheLastOneOut) {
    auto& form = us84();
    user::type(form.txtNoOfPlotOwnedByApplicant, "2");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    user::clickCell(form.dgdTableAB, 0, Plot::Surplus);
    user::press(form.dgdTableAB, "Enter");
    EXPECT_EQ(form.dgdTableAB.currentRow(), 1);
    EXPECT_EQ(form.dgdTableAB.currentColumn(), Plot::Village);
    user::press(form.dgdTableAB, "Enter");
    EXPECT_EQ(form.dgdTableAB.currentColumn(), Plot::Taluka);
    user::clickCell(form.dgdTableAB, 1, Plot::Surplus);
    user::press(form.dgdTableAB, "Enter");
    EXPECT_FALSE(form.dgdTableAB.focused());
}

}  // namespace
}  // namespace plandesk::test
