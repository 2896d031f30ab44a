#include "ulc/frmULC20aDetails.h"

#include "OrdersFixture.h"
#include "proposal/OrderColumns.h"
#include "ulc/Schemes.h"

namespace plandesk::test {
namespace {

using Scheme = SchemeGridColumn;

struct US20Order : Orders {
    US20Order() { saveLandRecords(); }

    Texts column(frmULC20aDetails& form, int column) {
        Texts texts;
        for (int row = 0; row < form.dgdSchemeDetails.rowCount(); ++row)
            texts.push_back(form.dgdSchemeDetails.cellText(row, column));
        return texts;
    }
    /// Built and sold figures "1", "2", ... and "10", "20", ... in the scheme's rows.
    void fill(frmULC20aDetails& form) {
        for (int row = 0; row < form.dgdSchemeDetails.rowCount(); ++row) {
            user::editCell(form.dgdSchemeDetails, row, Scheme::FLD2, std::to_string(row + 1));
            user::editCell(form.dgdSchemeDetails, row, Scheme::FLD3, std::to_string(10 * (row + 1)));
        }
    }
};

TEST_F(US20Order, ItStartsWithItsListAndNothingOfASchemeInSight) {
    tables.create(orderTables);  // the rows that the relation opened for new extracts are orders already
    auto& form = us20();
    EXPECT_EQ(form.caption(), "ULC Order Under Section  20 (a) (1)");
    EXPECT_EQ(items(form.cmbSchemaType), (Texts{"------Select Scheme------", "Plotting Scheme", "Component A Scheme",
                                                "Component B Scheme", "Special Dispense Scheme"}));
    EXPECT_EQ(form.cmbSchemaType.listIndex(), -1);
    for (const Control* control :
         {static_cast<const Control*>(&form.txtDetails), static_cast<const Control*>(&form.lblDetails),
          static_cast<const Control*>(&form.frmCommonSchema),
          static_cast<const Control*>(&form.fraTableForDispenseScheme),
          static_cast<const Control*>(&form.dgdSchemeDetails)})
        EXPECT_FALSE(control->visible()) << control->name();
}

TEST_F(US20Order, EachSchemeHasItsRowsItsColumnsAndItsClosingFigure) {
    auto& form = us20();
    user::pick(form.cmbSchemaType, 1);
    EXPECT_EQ(column(form, Scheme::No), (Texts{"i", "ii", "iii"}));
    EXPECT_EQ(column(form, Scheme::FLD1), (Texts{"Up to 100 sq. mts.", "Up to 250 sq. mts.", "Up to 500 sq. mts."}));
    EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD1).caption, "Size of plots");
    EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD2).caption, "No. of plots");
    EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD3).width, 0);
    EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::ExtNo).width, 0);
    EXPECT_EQ(form.lblSpecDispScheme.caption(), "Total number of plots to be developed :");
    EXPECT_TRUE(form.txtDetails.visible());

    const std::vector<std::pair<int, Texts>> schemes = {
        {2,
         {"Site & Services", "Core Houses", "One room tenements", "Tenements upto 25.0 sq. mts.",
          "Tenements upto 40.0 sq. mts.", "Tenements upto 50.0 sq. mts.", "Tenements upto 80.0 sq. mts."}},
        {3,
         {"Tenements upto 25.0 sq. mts. (0-25.0)", "Tenements upto 40.0 sq. mts. (25.1-40.0)",
          "Tenements upto 50.0 sq. mts. (40.1-50.0)", "Tenements upto 80.0 sq. mts. (50.1-80.0)"}},
        {4,
         {"Tenement upto 25.0 sq. mts. (0-25.0)", "Tenement upto 40.0 sq. mts. (25.1-40.0)",
          "Tenement upto 50.0 sq. mts. (40.1-50.0)", "Tenement upto 80.0 sq. mts. (50.1-80.0)"}},
    };
    const Texts numbers = {"i", "ii", "iii", "iv", "v", "vi", "vii"};
    for (const auto& [scheme, sizes] : schemes) {
        user::pick(form.cmbSchemaType, scheme);
        EXPECT_EQ(column(form, Scheme::FLD1), sizes);
        EXPECT_EQ(column(form, Scheme::No), Texts(numbers.begin(), numbers.begin() + static_cast<long>(sizes.size())));
        EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::No).width, 500);
        EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD1).caption, "TenementArea");
        EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD1).width, 4000);
        EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD2).caption, "No of tenement to be constructed");
        EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD2).width, 3600);
        EXPECT_EQ(form.dgdSchemeDetails.column(Scheme::FLD3).caption,
                  "No of tenement to be sold to govt. nominees at fixed rate");
        EXPECT_FALSE(form.dgdSchemeDetails.editable(Scheme::No));
        EXPECT_FALSE(form.dgdSchemeDetails.editable(Scheme::FLD1));
        EXPECT_TRUE(form.dgdSchemeDetails.editable(Scheme::FLD3));
        EXPECT_EQ(form.lblSpecDispScheme.caption(), "Build-up Area to be sold to govt. nominees at fixed rate . :");
        EXPECT_FALSE(form.txtDetails.visible());
    }
}

TEST_F(US20Order, NoSchemeLeavesTheGridEmptyAndIsStoredAsZero) {
    auto& form = us20();
    user::pick(form.cmbSchemaType, 1);
    user::type(form.txtDetails, "gone");
    user::pick(form.cmbSchemaType, 0);
    EXPECT_EQ(form.dgdSchemeDetails.rowCount(), 0);
    EXPECT_EQ(form.txtDetails.text(), "");
    user::click(form.cmdSave);
    EXPECT_EQ(cell(&Tables::rsULCOrderUS20a1, "ExtNo = 1", "TypeOfScheme"), "0");
}

TEST_F(US20Order, NeitherYesNorNoIsStoredAsTwoAndComesBackAsNeither) {
    auto& form = us20();
    user::pick(form.cmbSchemaType, 1);
    user::click(form.cmdSave);
    EXPECT_EQ(cell(&Tables::rsULCOrderUS20a1, "ExtNo = 1", "AMGSubmitted"), "2");
    EXPECT_EQ(cell(&Tables::rsULCOrderUS20a1, "ExtNo = 1", "Condition"), "2");
    user::click(form.IsUlCUS84Submitted.yes);
    user::click(form.IsReservationCondition.no);
    form.loadUS20a1Order();
    EXPECT_EQ(form.IsUlCUS84Submitted.code(), 2);
    EXPECT_EQ(form.IsReservationCondition.code(), 2);
}

TEST_F(US20Order, WithNoTheCommonParticularsAreHiddenAndFilledAndStoredAllTheSame) {
    auto& order = us84();
    user::type(order.txtNoOfPlotOwnedByApplicant, "2");
    user::leave(order.txtNoOfPlotOwnedByApplicant);
    user::editCell(order.dgdTableAB, 0, US84PlotColumn::Village, " Khandri ");
    user::editCell(order.dgdTableAB, 0, US84PlotColumn::SrNo, "1");
    user::editCell(order.dgdTableAB, 1, US84PlotColumn::Village, "Tervale");
    user::editCell(order.dgdTableAB, 1, US84PlotColumn::SrNo, "2");
    user::type(order.txtTotAreaOwnerShip, "50");
    user::click(order.cmdSave);
    auto& form = us20();
    user::click(form.IsUlCUS84Submitted.yes);
    EXPECT_TRUE(form.frmCommonSchema.visible());
    user::click(form.IsUlCUS84Submitted.no);
    EXPECT_FALSE(form.frmCommonSchema.visible());
    EXPECT_EQ(form.txtCommonScheme[2].text(), "Khandri,Tervale");
    EXPECT_EQ(form.txtCommonScheme[3].text(), "1,2");
    EXPECT_EQ(form.txtCommonScheme[4].text(), "50");
    user::click(form.cmdSave);
    EXPECT_EQ(cell(&Tables::rsULCOrderUS20a1, "ExtNo = 1", "AMGSubmitted"), "0");
    EXPECT_EQ(cell(&Tables::rsULCOrderUS20a1, "ExtNo = 1", "iii"), "Khandri,Tervale");
    EXPECT_EQ(cell(&Tables::rsULCOrderUS20a1, "ExtNo = 1", "v"), "50");
}

TEST_F(US20Order, WithoutAnOrderUnderSectionEightTheSurplusIsZero) {
    auto& form = us20(2);
    user::click(form.IsUlCUS84Submitted.yes);
    EXPECT_EQ(form.txtCommonScheme[4].text(), "0");
}

TEST_F(US20Order, TheConditionShowsTheTable) {
    auto& form = us20();
    user::click(form.IsReservationCondition.yes);
    EXPECT_TRUE(form.fraTableForDispenseScheme.visible());
    user::click(form.IsReservationCondition.no);
    EXPECT_FALSE(form.fraTableForDispenseScheme.visible());
}

TEST_F(US20Order, SavedFiguresShowAgainInTheRowsOfAnotherScheme) {
    auto& form = us20();
    user::pick(form.cmbSchemaType, 2);
    fill(form);
    user::click(form.cmdSave);
    EXPECT_EQ(cell(&Tables::rsSchemeBuilt, "ExtNo = 1", "FLD7"), "7");
    EXPECT_EQ(cell(&Tables::rsSchemeSold, "ExtNo = 1", "FLD7"), "70");
    user::pick(form.cmbSchemaType, 1);
    EXPECT_EQ(column(form, Scheme::FLD2), (Texts{"1", "2", "3"}));
    user::click(form.cmdSave);
    EXPECT_EQ(cell(&Tables::rsSchemeBuilt, "ExtNo = 1", "FLD3"), "3");
    EXPECT_EQ(cell(&Tables::rsSchemeBuilt, "ExtNo = 1", "FLD4"), "");
    EXPECT_EQ(cell(&Tables::rsSchemeSold, "ExtNo = 1", "FLD7"), "");
}

TEST_F(US20Order, ALoadedOrderKeepsThePickersDateWhichTheNextSaveWrites) {
    auto& form = us20();
    user::pick(form.cmbSchemaType, 1);
    user::type(form.txtDetails, "Row houses");
    user::click(form.IsUlCUS84Submitted.yes);
    user::pickDate(form.DTPAppllication, {2001, 2, 3});
    EXPECT_EQ(form.txtCommonScheme[1].text(), "03/02/2001");
    for (int i = 5; i < 12; ++i)
        form.txtCommonScheme[static_cast<std::size_t>(i)].setText("c" + std::to_string(i));
    form.txtCommonScheme[0].setText("inward");
    user::type(form.txtSpeDisScheme, "12");
    fill(form);
    user::click(form.cmdSave);
    user::click(form.cmdClose);
    EXPECT_EQ(proposal.forms.loaded("frmULC20aDetails"), nullptr);

    auto& again = us20();
    EXPECT_EQ(again.cmbSchemaType.listIndex(), 1);
    EXPECT_EQ(again.txtDetails.text(), "Row houses");
    EXPECT_TRUE(again.IsUlCUS84Submitted.yes.value());
    EXPECT_EQ(again.txtCommonScheme[0].text(), "inward");
    EXPECT_EQ(again.txtCommonScheme[1].text(), "03/02/2001");
    EXPECT_EQ(again.txtCommonScheme[11].text(), "c11");
    EXPECT_EQ(again.txtSpeDisScheme.text(), "12");
    EXPECT_EQ(column(again, Scheme::FLD2), (Texts{"1", "2", "3"}));
    EXPECT_EQ(again.DTPAppllication.date(), ports.clock.today());
    user::click(again.cmdSave);
    EXPECT_EQ(cell(&Tables::rsULCOrderUS20a1, "ExtNo = 1", "ii"), ports.clock.today().text());
}

TEST_F(US20Order, EnterGoesDownTheFiguresOfAScheme) {
    auto& form = us20();
    user::click(form.IsReservationCondition.yes);
    Grid& grid = form.dgdSchemeDetails;

    user::pick(form.cmbSchemaType, 1);
    user::clickCell(grid, 0, Scheme::FLD2);
    user::press(grid, "Enter");
    EXPECT_EQ(grid.currentRow(), 1);
    EXPECT_EQ(grid.currentColumn(), Scheme::FLD2);
    EXPECT_FALSE(grid.editing());
    user::clickCell(grid, 2, Scheme::FLD2);
    user::press(grid, "Enter");
    EXPECT_FALSE(grid.focused());

    user::pick(form.cmbSchemaType, 2);
    user::clickCell(grid, 0, Scheme::FLD3);
    user::press(grid, "Enter");
    EXPECT_EQ(grid.currentRow(), 1);
    EXPECT_EQ(grid.currentColumn(), Scheme::FLD2);
    ASSERT_TRUE(grid.editing());
    EXPECT_EQ(grid.editText(), "1");
    user::clickCell(grid, 6, Scheme::FLD3);
    user::press(grid, "Enter");
    EXPECT_FALSE(grid.focused());

    for (const int scheme : {3, 4}) {
        user::pick(form.cmbSchemaType, scheme);
        user::clickCell(grid, 0, Scheme::FLD3);
        user::press(grid, "Enter");
        EXPECT_EQ(grid.currentRow(), 0);
        EXPECT_EQ(grid.currentColumn(), Scheme::FLD3);
        EXPECT_TRUE(grid.focused());
    }
}

}  // namespace
}  // namespace plandesk::test
