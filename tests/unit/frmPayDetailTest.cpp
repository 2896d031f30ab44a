#include "fees/frmPayDetail.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "unit/FeesFixture.h"
#include "unit/LayoutCheck.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

struct RowNames {
    std::string_view area;
    std::string_view rate;
    std::string_view amount;
};

/// The nine rows from the top of the form to its foot.
constexpr std::array rowNames = std::to_array<RowNames>({
    {"txtScrutinyRArea", "txtScrutinyRRate", "txtScrutinyRAmount"},
    {"txtScrutinyCArea", "txtScrutinyCRate", "txtScrutinyCAmount"},
    {"txtScrutinyIndArea", "txtScrutinyINDRate", "txtScrutinyINDAmount"},
    {"txtScrutinyRArea2", "txtScrutinyRRate2", "txtScrutinyRAmount2"},
    {"txtScrutinyCArea2", "txtScrutinyCRate2", "txtScrutinyCAmount2"},
    {"txtScrutinyIndArea2", "txtScrutinyINDRate2", "txtScrutinyINDAmount2"},
    {"txtArea", "txtRate", "txtTotal"},
    {"txtDevAreaC", "txtDevRateC", "txtDevAmtC"},
    {"txtDevAreaI", "txtDevRateI", "txtDevAmtI"},
});

constexpr std::string_view specialCharacter = "Do not enter any special character [!@#$%^&*]";

class frmPayDetailTest : public FeesTest {
protected:
    struct Row {
        TextBox& area;
        TextBox& rate;
        TextBox& amount;
    };

    TextBox& box(std::string_view name) { return fees().at<TextBox>(name); }
    Row row(const RowNames& names) { return {box(names.area), box(names.rate), box(names.amount)}; }
    /// The rows whose two first boxes both react to a change.
    std::vector<Row> changingRows() {
        std::vector<Row> rows;
        for (const RowNames& names : rowNames)
            if (names.rate != "txtRate")
                rows.push_back(row(names));
        return rows;
    }
    /// Leaves the box for another one of the form.
    void leave(TextBox& from) {
        user::focus(from);
        user::focus(fees().txtGrandTotal);
    }
    void expectRefused(TextBox& refused, std::string_view text, std::string_view title) {
        expectMessage(text, title);
        EXPECT_EQ(refused.text(), "") << refused.name();
        EXPECT_TRUE(refused.focused()) << refused.name();
        proposal.screen.dropFocus();
    }
    std::string firstList() { return first().txtPayDetail.text(); }
};

// Load

TEST_F(frmPayDetailTest, StartsWithCashTodayAndClosedArrows) {
    machine.clock.day = {2024, 2, 29};
    EXPECT_EQ(fees().caption(), "Payment Detail");
    EXPECT_TRUE(fees().OptCash.value());
    EXPECT_FALSE(fees().OptCheque.value());
    EXPECT_FALSE(fees().OptDraft.value());
    EXPECT_EQ(fees().DTPicker1.date().text(), "29/02/2024");
    EXPECT_FALSE(fees().cmdNext.enabled());
    EXPECT_FALSE(fees().cmdPrevious.enabled());
    EXPECT_FALSE(fees().frmChequeDetail.visible());
    EXPECT_EQ(fees().backColor(), proposal.formBackColor);
    expectNoMessage();
}

TEST_F(frmPayDetailTest, StartsWithTheFeeAreaOfTheParticularsAndEmptyBoxes) {
    proposal.feeArea = 451;
    fees().forEach<TextBox>(
        [](TextBox& each) { EXPECT_EQ(each.text(), each.name() == "txtArea" ? "451" : "") << each.name(); });
}

TEST_F(frmPayDetailTest, CarriesItsWords) {
    EXPECT_EQ(fees().OptCash.caption(), "Cash");
    EXPECT_EQ(fees().OptCheque.caption(), "Pay Order");
    EXPECT_EQ(fees().OptDraft.caption(), "Draft");
    EXPECT_EQ(fees().frmChequeDetail.caption(), "Bank Detail :");
    EXPECT_EQ(fees().cmdSave.caption(), "Save");
    EXPECT_EQ(fees().cmdSaveALL.caption(), "Save Proposal Information");
    EXPECT_EQ(fees().cmdPrint.caption(), "Print Payment Details");
    EXPECT_EQ(fees().cmdClose.caption(), "Close");
}

TEST_F(frmPayDetailTest, LayoutHasAPlaceForEveryControl) {
    fees().OptCheque.setValue(true);
    EXPECT_EQ(layoutFaults(fees()), std::vector<std::string>());
}

TEST_F(frmPayDetailTest, LayoutNamesTheFeeRowsAsThePaperDoes) {
    const std::vector<std::string> expected = {
        "[A . Scrutiny Fees  ]",
        "Total Residential FSI: txtScrutinyRArea txtScrutinyRRate txtScrutinyRAmount",
        "Total Commercial FSI: txtScrutinyCArea txtScrutinyCRate txtScrutinyCAmount",
        "Total Industrial FSI: txtScrutinyIndArea txtScrutinyINDRate txtScrutinyINDAmount",
        "[B . Scrutiny Fees  (Subdivision/Amalgamation)]",
        "Total area of plot (Residential use): txtScrutinyRArea2 txtScrutinyRRate2 txtScrutinyRAmount2",
        "Total area of plot (Commercial use): txtScrutinyCArea2 txtScrutinyCRate2 txtScrutinyCAmount2",
        "Total area of plot (Industrial use): txtScrutinyIndArea2 txtScrutinyINDRate2 txtScrutinyINDAmount2",
        "[C . Development Permission Fees]",
        "Total Residential FSI: txtArea txtRate txtTotal",
        "Total Commercial FSI: txtDevAreaC txtDevRateC txtDevAmtC",
        "Total Industrial FSI: txtDevAreaI txtDevRateI txtDevAmtI",
        "[]",
        "B . Compound Wall Fees: txtCompoundFees",
        "E . Other: txtOther",
        "TOTAL AMOUNT :: txtGrandTotal",
        "[]",
        ": OptCash OptCheque OptDraft",
        "Payment Date: DTPicker1",
        "[]",
        "Pay Order No.: txtChqDraftNo",
        "Bank Name: txtBankNm",
        "Branch Name: txtBranchNm",
    };
    const std::vector<std::string_view> heads = {" Description", "Total Area ", "Rate", "Amount"};
    std::vector<std::string> found;
    int tables = 0;
    for (const LayoutGroup& group : fees().layout().pages[0].groups) {
        found.push_back("[" + std::string(group.title) + "]");
        for (const LayoutRow& each : group.rows)
            found.push_back(std::string(each.question) + ": " + std::string(each.controls));
        if (!group.heads.empty()) {
            EXPECT_EQ(std::vector(group.heads.begin(), group.heads.end()), heads);
            ++tables;
        }
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(tables, 3);
}

// Area, rate and amount

TEST_F(frmPayDetailTest, AmountIsAreaTimesRateInEveryRowThatReactsToChanges) {
    ASSERT_EQ(changingRows().size(), 8U);
    for (const Row& each : changingRows()) {
        user::type(each.area, "120.5");
        EXPECT_EQ(each.amount.text(), "") << each.amount.name();
        user::type(each.rate, "3");
        EXPECT_EQ(each.amount.text(), "361.50") << each.amount.name();
        user::type(each.area, "100");
        EXPECT_EQ(each.amount.text(), "300.00") << each.amount.name();
    }
    expectNoMessage();
}

TEST_F(frmPayDetailTest, AreaWithAnEmptyRateLeavesTheAmount) {
    for (const Row& each : changingRows()) {
        each.amount.setText("5");
        each.area.setText("120");
        EXPECT_EQ(each.amount.text(), "5.00");
        each.area.setText("");
        each.rate.setText("7");
        EXPECT_EQ(each.amount.text(), "5.00");
    }
    expectNoMessage();
}

TEST_F(frmPayDetailTest, LetterInAnAreaOrRateIsRefusedAndTheAmountStays) {
    for (const Row& each : changingRows()) {
        for (TextBox* changed : {&each.area, &each.rate}) {
            each.area.setText("2");
            each.rate.setText("3");
            changed->setText("2a");
            expectRefused(*changed, "Enter Numeric Data", "Payment Detail");
            EXPECT_EQ(each.amount.text(), "6.00");
        }
    }
}

TEST_F(frmPayDetailTest, SpecialCharacterInAnAreaOrRateIsRefused) {
    for (const Row& each : changingRows()) {
        for (TextBox* changed : {&each.area, &each.rate}) {
            each.area.setText("2");
            each.rate.setText("3");
            changed->setText("2%");
            expectRefused(*changed, specialCharacter, "Payment Details");
            EXPECT_EQ(each.amount.text(), "6.00");
        }
    }
}

TEST_F(frmPayDetailTest, LetterInThePartnerEmptiesTheChangedBox) {
    for (const Row& each : changingRows()) {
        each.rate.restoreText("x");
        each.area.setText("2");
        expectRefused(each.area, "Enter Numeric values", "Payment Details");
        each.area.restoreText("y");
        each.rate.setText("3");
        expectRefused(each.rate, "Enter Numeric values", "Payment Details");
        EXPECT_EQ(each.amount.text(), "");
    }
}

TEST_F(frmPayDetailTest, AreaOfTheDevelopmentFeeReactsToo) {
    fees().txtRate.setText("4");
    fees().txtArea.setText("25");
    EXPECT_EQ(fees().txtTotal.text(), "100.00");
    fees().txtArea.setText("a");
    expectRefused(fees().txtArea, "Enter Numeric Data", "Payment Detail");
}

TEST_F(frmPayDetailTest, ProductOfATextThatIsNoNumberIsOneBoxAndTheTextStays) {
    fees().txtScrutinyRArea.setText("10");
    user::type(fees().txtScrutinyRRate, "1.2.");
    expectError("Type mismatch");
    EXPECT_EQ(fees().txtScrutinyRRate.text(), "1.2.");
    EXPECT_EQ(fees().txtScrutinyRAmount.text(), "12.00");
}

TEST_F(frmPayDetailTest, PointTypedFirstIsOneBoxAndTypingGoesOn) {
    fees().txtScrutinyRArea.setText("10");
    user::type(fees().txtScrutinyRRate, ".5");
    expectError("Type mismatch");
    EXPECT_EQ(fees().txtScrutinyRRate.text(), ".5");
    EXPECT_EQ(fees().txtScrutinyRAmount.text(), "5.00");
}

TEST_F(frmPayDetailTest, ProductBeyondTheRangeIsAnOverflow) {
    const std::string large = "1" + std::string(200, '0');
    fees().txtScrutinyRArea.setText(large);
    user::edit(fees().txtScrutinyRRate, large);
    expectError("Overflow");
    EXPECT_EQ(fees().txtScrutinyRRate.text(), large);
}

TEST_F(frmPayDetailTest, LeavingAnAreaOrRateFormatsIt) {
    for (const RowNames& names : rowNames) {
        for (const std::string_view name : {names.area, names.rate}) {
            TextBox& each = box(name);
            user::type(each, "12.345");
            EXPECT_EQ(each.text(), "12.345");
            leave(each);
            EXPECT_EQ(each.text(), "12.35") << name;
        }
    }
    expectNoMessage();
}

TEST_F(frmPayDetailTest, FormattedAreaGivesTheAmountAnew) {
    fees().txtScrutinyRRate.setText("100");
    user::type(fees().txtScrutinyRArea, "1.234");
    EXPECT_EQ(fees().txtScrutinyRAmount.text(), "123.40");
    leave(fees().txtScrutinyRArea);
    EXPECT_EQ(fees().txtScrutinyRAmount.text(), "123.00");
}

TEST_F(frmPayDetailTest, LeavingAnEmptyBoxKeepsItEmpty) {
    leave(fees().txtDevAreaC);
    leave(fees().txtCompoundFees);
    EXPECT_EQ(fees().txtDevAreaC.text(), "");
    EXPECT_EQ(fees().txtCompoundFees.text(), "");
}

TEST_F(frmPayDetailTest, AmountIsFormattedAtEachChangeAndTypedFiguresGoBeforeTheDecimals) {
    for (const RowNames& names : rowNames) {
        TextBox& amount = box(names.amount);
        amount.setText("12.5");
        EXPECT_EQ(amount.text(), "12.50") << names.amount;
        user::type(amount, "17");
        EXPECT_EQ(amount.text(), "17.00") << names.amount;
        // A point of the user's own is the second one, with which the text is no number any more.
        user::type(amount, "12.5");
        EXPECT_EQ(amount.text(), "12.5.00") << names.amount;
    }
}

TEST_F(frmPayDetailTest, BoxesForNumbersTakeDigitsAndPoints) {
    std::vector<TextBox*> boxes = {&fees().txtCompoundFees, &fees().txtOther};
    for (const RowNames& names : rowNames)
        for (const std::string_view name : {names.area, names.rate, names.amount})
            boxes.push_back(&box(name));
    for (TextBox* each : boxes) {
        EXPECT_EQ(user::filteredKey(*each, '7'), '7') << each->name();
        EXPECT_EQ(user::filteredKey(*each, '.'), '.') << each->name();
        EXPECT_EQ(user::filteredKey(*each, 8), 8) << each->name();
        for (const int key : {'a', 'Z', '-', ',', ' ', '$', '%'})
            EXPECT_EQ(user::filteredKey(*each, key), 0) << each->name() << " " << key;
    }
    EXPECT_EQ(boxes.size(), 29U);
}

TEST_F(frmPayDetailTest, BankBoxesTakeTextWithoutTheEightSpecialKeys) {
    fees().OptCheque.setValue(true);
    for (TextBox* each : {&fees().txtChqDraftNo, &fees().txtBankNm, &fees().txtBranchNm})
        EXPECT_EQ(typed(*each, "A#$%&*@^~ 1'-b"), "A 1'-b") << each->name();
}

// txtRate

TEST_F(frmPayDetailTest, RateOfTheDevelopmentFeeMultipliesOnlyWhenItIsLeft) {
    fees().txtArea.setText("200");
    user::type(fees().txtRate, "1.5");
    EXPECT_EQ(fees().txtTotal.text(), "");
    leave(fees().txtRate);
    EXPECT_EQ(fees().txtTotal.text(), "300.00");
    EXPECT_EQ(fees().txtRate.text(), "1.50");
    fees().txtRate.setText("7x");
    expectNoMessage();
}

TEST_F(frmPayDetailTest, RateOfTheDevelopmentFeeIsCheckedWhenItIsLeftAndGetsTheFocusBack) {
    fees().txtArea.setText("200");
    fees().txtRate.setText("7x");
    leave(fees().txtRate);
    expectRefused(fees().txtRate, "Enter Numeric Data", "Payment Detail");
    fees().txtRate.setText("7!");
    leave(fees().txtRate);
    expectRefused(fees().txtRate, specialCharacter, "Payment Details");
    fees().txtRate.setText("7");
    fees().txtArea.restoreText("y");
    leave(fees().txtRate);
    expectRefused(fees().txtRate, "Enter Numeric values", "Payment Details");
    EXPECT_EQ(fees().txtTotal.text(), "");
}

TEST_F(frmPayDetailTest, RateWithAnEmptyAreaStopsWithoutAMessage) {
    fees().txtArea.setText("");
    user::type(fees().txtRate, "7");
    leave(fees().txtRate);
    expectNoMessage();
    EXPECT_EQ(fees().txtTotal.text(), "");
    EXPECT_EQ(fees().txtRate.text(), "7.00");
}

TEST_F(frmPayDetailTest, EmptyRateStopsWithoutAMessage) {
    fees().txtArea.setText("200");
    leave(fees().txtRate);
    expectNoMessage();
    EXPECT_EQ(fees().txtTotal.text(), "");
}

TEST_F(frmPayDetailTest, LeavingARateThatIsNoNumberIsAnError) {
    fees().txtArea.setText("200");
    user::type(fees().txtRate, "1.2.3");
    leave(fees().txtRate);
    expectError("Type mismatch");
    EXPECT_EQ(fees().txtRate.text(), "1.2.3");
    EXPECT_EQ(fees().txtTotal.text(), "");
}

// Compound wall fees, other, sum

TEST_F(frmPayDetailTest, SingleFeesAreCheckedAddedAndFormattedWhenLeft) {
    for (TextBox* each : {&fees().txtCompoundFees, &fees().txtOther}) {
        user::type(*each, "12.345");
        EXPECT_EQ(each->text(), "12.345");
        EXPECT_EQ(fees().txtGrandTotal.text(), "12.35");
        leave(*each);
        EXPECT_EQ(each->text(), "12.35");
        each->setText("9a");
        expectRefused(*each, "Enter Numeric Data", "Payment Detail");
        EXPECT_EQ(fees().txtGrandTotal.text(), "0.00");
        each->setText("9*");
        expectRefused(*each, specialCharacter, "Payment Details");
    }
}

TEST_F(frmPayDetailTest, TotalCountsEveryAmountOnce) {
    double part = 1;
    for (const RowNames& names : rowNames) {
        box(names.amount).setText(std::to_string(part));
        part *= 2;
    }
    fees().txtCompoundFees.setText("512");
    fees().txtOther.setText("1024.25");
    EXPECT_EQ(fees().txtGrandTotal.text(), "2047.25");
}

TEST_F(frmPayDetailTest, TotalIsTakenFromTheDisplayedTexts) {
    // Each amount is rounded before it is added.
    fees().txtScrutinyRAmount.setText("0.004");
    fees().txtScrutinyCAmount.setText("0.004");
    EXPECT_EQ(fees().txtGrandTotal.text(), "0.00");
    // The number that a text begins with counts.
    fees().txtTotal.setText("12abc");
    EXPECT_EQ(fees().txtTotal.text(), "12abc");
    EXPECT_EQ(fees().txtGrandTotal.text(), "12.00");
}

TEST_F(frmPayDetailTest, TotalTypedOverStaysUntilAnAmountChanges) {
    fees().txtOther.setText("5");
    user::type(fees().txtGrandTotal, "99");
    EXPECT_EQ(fees().txtGrandTotal.text(), "99");
    EXPECT_TRUE(fees().run("calcTotal"));
    EXPECT_EQ(fees().txtGrandTotal.text(), "5.00");
}

TEST_F(frmPayDetailTest, SumBeyondTheRangeIsAnOverflow) {
    const std::string large = "9" + std::string(308, '0');
    user::edit(fees().txtScrutinyRAmount, large);
    expectNoMessage();
    user::edit(fees().txtScrutinyCAmount, large);
    expectError("Overflow");
    EXPECT_EQ(fees().txtScrutinyCAmount.text(), large);
}

// Payment

TEST_F(frmPayDetailTest, BankDetailsAreThereForAPayOrderOrADraft) {
    user::click(fees().OptCheque);
    EXPECT_TRUE(fees().frmChequeDetail.visible());
    EXPECT_EQ(fees().lblName.caption(), "Pay Order No.");
    user::click(fees().OptDraft);
    EXPECT_TRUE(fees().frmChequeDetail.visible());
    EXPECT_EQ(fees().lblName.caption(), "Draft No.");
    user::click(fees().OptCash);
    EXPECT_FALSE(fees().frmChequeDetail.visible());
}

// validate

TEST_F(frmPayDetailTest, CashNeedsNoBankDetails) {
    fees().txtChqDraftNo.setText("1!");
    EXPECT_TRUE(fees().validate());
    expectNoMessage();
}

TEST_F(frmPayDetailTest, SpecialCharacterInTheRateIsRefusedForAnyPayment) {
    for (OptionButton* option : {&fees().OptCash, &fees().OptCheque, &fees().OptDraft}) {
        option->setValue(true);
        fees().txtRate.setText("1&");
        EXPECT_FALSE(fees().validate());
        expectRefused(fees().txtRate, specialCharacter, "Payment Details");
    }
}

TEST_F(frmPayDetailTest, SpecialCharacterInTheNumberIsRefusedAndEmptied) {
    fees().OptCheque.setValue(true);
    fees().txtChqDraftNo.setText("12[3");
    EXPECT_FALSE(fees().validate());
    expectRefused(fees().txtChqDraftNo, specialCharacter, "Payment Details");
}

TEST_F(frmPayDetailTest, EmptyNumberIsAskedForByItsName) {
    fees().OptCheque.setValue(true);
    EXPECT_FALSE(fees().validate());
    expectRefused(fees().txtChqDraftNo, "Enter Cheque No", "");
    fees().OptDraft.setValue(true);
    EXPECT_FALSE(fees().validate());
    expectRefused(fees().txtChqDraftNo, "Enter Draft No", "");
}

TEST_F(frmPayDetailTest, SpecialCharacterInBankOrBranchIsToldAndTheTextStays) {
    fees().OptCheque.setValue(true);
    fees().txtChqDraftNo.setText("1");
    fees().txtBankNm.setText("Bank & Co");
    EXPECT_FALSE(fees().validate());
    expectMessage(specialCharacter, "Proposal Details");
    EXPECT_EQ(fees().txtBankNm.text(), "Bank & Co");
    EXPECT_TRUE(fees().txtBankNm.focused());

    fees().txtBankNm.setText("Bank");
    fees().txtBranchNm.setText("Fort!");
    EXPECT_FALSE(fees().validate());
    expectMessage(specialCharacter, "Proposal Details");
    EXPECT_EQ(fees().txtBranchNm.text(), "Fort!");
    EXPECT_TRUE(fees().txtBranchNm.focused());
}

TEST_F(frmPayDetailTest, EmptyBankAndBranchAreAskedFor) {
    for (OptionButton* option : {&fees().OptCheque, &fees().OptDraft}) {
        option->setValue(true);
        fees().txtChqDraftNo.setText("1");
        fees().txtBankNm.setText("");
        fees().txtBranchNm.setText("");
        EXPECT_FALSE(fees().validate());
        expectRefused(fees().txtBankNm, "Enter Bank Name", "");
        fees().txtBankNm.setText("Bank");
        EXPECT_FALSE(fees().validate());
        expectRefused(fees().txtBranchNm, "Enter Branch Name", "");
        fees().txtBranchNm.setText("Fort");
        EXPECT_TRUE(fees().validate());
        expectNoMessage();
    }
}

TEST_F(frmPayDetailTest, ValidateIsReachableByName) {
    fees().OptCheque.setValue(true);
    EXPECT_TRUE(fees().run("validate"));
    expectMessage("Enter Cheque No", "");
}

// SaveData

TEST_F(frmPayDetailTest, SavingAllDefaultsFillsEveryEmptyBoxWithZero) {
    machine.clock.day = {2024, 1, 5};
    proposal.feeArea = 0;
    fees().SaveData();
    expectNoMessage();
    fees().forEach<TextBox>(
        [](TextBox& each) { EXPECT_EQ(each.text(), each.name() == "txtArea" ? "0" : "0.00") << each.name(); });
    EXPECT_EQ(
        firstList(),
        "0$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$"
        "0.00$$0.00$$0.00$$CASH$$05/01/2024$$0.00$$0.00$$0.00");
    EXPECT_EQ(proposal.secondScrutinyFees, "$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00$$0.00");
}

TEST_F(frmPayDetailTest, ZeroFilledIntoABoxHasItsReactions) {
    fees().txtScrutinyRArea.setText("50");
    fees().txtScrutinyRAmount.setText("77");
    fees().SaveData();
    // The rate's zero makes the amount anew.
    EXPECT_EQ(fees().txtScrutinyRAmount.text(), "0.00");
    EXPECT_EQ(fees().txtScrutinyRArea.text(), "50");
}

TEST_F(frmPayDetailTest, BlanksAloneAreFilledToo) {
    fees().txtBankNm.setText("   ");
    fees().SaveData();
    EXPECT_EQ(fees().txtBankNm.text(), "0.00");
}

TEST_F(frmPayDetailTest, ListsHoldEachValueAtItsPlace) {
    int number = 0;
    fees().forEach<TextBox>([&number](TextBox& each) { each.restoreText("v" + std::to_string(++number)); });
    fees().txtRate.restoreText("r");
    fees().txtChqDraftNo.restoreText(" 0042 ");
    fees().txtBankNm.restoreText("  Bank of  Hosavel ");
    fees().txtBranchNm.restoreText("Fort ");
    fees().DTPicker1.setDate({2023, 12, 1});
    fees().SaveData();
    EXPECT_EQ(firstList(),
              "v19$$r$$v21$$v22$$v23$$v24$$v25$$v26$$v27$$v1$$v2$$v3$$v4$$v5$$v6$$v7$$v8$$v9$$v28$$v29$$v30$$"
              "CASH$$01/12/2023$$0042$$Bank of  Hosavel$$Fort");
    EXPECT_EQ(proposal.secondScrutinyFees, "$$v10$$v11$$v12$$v13$$v14$$v15$$v16$$v17$$v18");
}

TEST_F(frmPayDetailTest, ValuesAreSavedAsDisplayed) {
    fees().txtScrutinyCArea.setText(" 7 ");
    fees().SaveData();
    EXPECT_EQ(split(firstList(), "$$")[12], " 7 ");
}

TEST_F(frmPayDetailTest, ModeOfAPayOrderIsWritten) {
    fees().OptCheque.setValue(true);
    fees().SaveData();
    const std::vector<std::string> pieces = split(firstList(), "$$");
    ASSERT_EQ(pieces.size(), 26U);
    EXPECT_EQ(pieces[21], "PAYORDER");
    EXPECT_EQ(pieces[23], "0.00");  // the empty number was filled before it could be asked for
}

TEST_F(frmPayDetailTest, DraftHasNoModeAndItsPiecesSlideForward) {
    fees().OptDraft.setValue(true);
    fees().DTPicker1.setDate({2024, 3, 9});
    fees().txtChqDraftNo.setText("42");
    fees().txtBankNm.setText("Bank");
    fees().txtBranchNm.setText("Fort");
    fees().SaveData();
    const std::vector<std::string> pieces = split(firstList(), "$$");
    ASSERT_EQ(pieces.size(), 25U);
    EXPECT_EQ(std::vector(pieces.begin() + 20, pieces.end()),
              (std::vector<std::string>{"0.00", "09/03/2024", "42", "Bank", "Fort"}));
}

TEST_F(frmPayDetailTest, NoModeChosenWritesNoneEither) {
    fees().OptCash.setValue(false);
    fees().SaveData();
    EXPECT_EQ(split(firstList(), "$$").size(), 25U);
}

TEST_F(frmPayDetailTest, SecondListKeepsTheValuesOfTheFirstSave) {
    fees().txtScrutinyRArea2.setText("1");
    fees().SaveData();
    const std::string saved = proposal.secondScrutinyFees;
    EXPECT_EQ(split(saved, "$$").size(), 10U);
    EXPECT_EQ(split(saved, "$$")[1], "1");
    fees().txtScrutinyRArea2.setText("2");
    for (int save = 0; save < 100; ++save)
        fees().SaveData();
    EXPECT_EQ(proposal.secondScrutinyFees, saved) << "nothing that is never read piles up";
}

TEST_F(frmPayDetailTest, SecondListSurvivesTheForm) {
    fees().txtScrutinyRArea2.setText("1");
    fees().SaveData();
    const std::string saved = proposal.secondScrutinyFees;
    proposal.forms.unload("frmPayDetail");
    fees().SaveData();
    EXPECT_EQ(proposal.secondScrutinyFees, saved);
}

TEST_F(frmPayDetailTest, FirstListIsMadeAnewAtEachSave) {
    fees().SaveData();
    fees().txtOther.setText("3");
    fees().SaveData();
    EXPECT_EQ(split(firstList(), "$$").size(), 26U);
    EXPECT_EQ(split(firstList(), "$$")[19], "3");
}

TEST_F(frmPayDetailTest, RefusedDetailsLeaveBothListsAndTheZerosInTheBoxes) {
    fees().OptCheque.setValue(true);
    fees().txtBankNm.setText("B!");
    fees().SaveData();
    expectMessage(specialCharacter, "Proposal Details");
    EXPECT_EQ(firstList(), "");
    EXPECT_EQ(proposal.secondScrutinyFees, "");
    EXPECT_EQ(fees().txtDevAreaC.text(), "0.00");
}

TEST_F(frmPayDetailTest, AreaThatIsNoNumberStopsTheSaveWithAnError) {
    fees().txtScrutinyRArea.setText("1.2.3");
    EXPECT_THROW(fees().SaveData(), RuntimeError);
    EXPECT_EQ(firstList(), "");
    EXPECT_EQ(proposal.secondScrutinyFees, "");
    EXPECT_EQ(fees().txtScrutinyRArea.text(), "1.2.3");
}

// Buttons and links

TEST_F(frmPayDetailTest, SaveIsReachableByButtonAndByName) {
    fees().show();
    user::click(fees().cmdSave);
    EXPECT_FALSE(firstList().empty());
    EXPECT_TRUE(fees().visible());
    first().txtPayDetail.setText("");
    EXPECT_TRUE(fees().run("SaveData"));
    EXPECT_FALSE(firstList().empty());
    first().txtPayDetail.setText("");
    EXPECT_TRUE(fees().run("cmdSave_Click"));
    EXPECT_FALSE(firstList().empty());
}

TEST_F(frmPayDetailTest, SaveProposalInformationSavesTheWholeProposal) {
    user::click(fees().cmdSaveALL);
    EXPECT_EQ(savedProposals, 1);
    EXPECT_EQ(firstList(), "");
}

TEST_F(frmPayDetailTest, PrintAsksForTheReportOfThePayment) {
    user::click(fees().cmdPrint);
    EXPECT_EQ(printed, std::vector<std::string>{"rptPaymentDetails"});
    EXPECT_TRUE(proposal.noReportReturn);
}

TEST_F(frmPayDetailTest, CloseEndsTheProgramWithoutAQuestion) {
    first();
    user::click(fees().cmdClose);
    EXPECT_EQ(machine.program.ends, 1);
    EXPECT_EQ(proposal.forms.loaded("frmPayDetail"), nullptr);
    EXPECT_EQ(proposal.forms.loaded("frmAnnexureA"), nullptr);
    expectNoMessage();
}

TEST_F(frmPayDetailTest, LinksLeadToTheSections) {
    EXPECT_EQ(fees().links.lblAnnextureA.caption(), "Sections I to III");
    EXPECT_EQ(fees().links.lblAnnexureB.caption(), "Sections IV and V");
    EXPECT_EQ(fees().links.lblPayment.caption(), "Payment Detail");
    fees().show();
    user::click(fees().links.lblAnnexureB);
    EXPECT_TRUE(second().front());
    first().PropTab.setTab(2);
    user::click(fees().links.lblAnnextureA);
    EXPECT_TRUE(first().front());
    EXPECT_EQ(first().PropTab.tab(), 0);
}

TEST_F(frmPayDetailTest, LinkToTheFormItselfKeepsTheTypedArea) {
    fees().txtArea.setText("12");
    user::click(fees().links.lblPayment);
    EXPECT_EQ(fees().txtArea.text(), "12");
}

TEST_F(frmPayDetailTest, ShowingThePaymentTakesTheFeeAreaAnewAndPaintsTheLinks) {
    fees().txtArea.setText("12");
    fees().txtRate.setText("2");
    fees().links.lblPayment.setForeColor(black);
    fees().links.lblAnnextureA.setForeColor(black);
    fees().links.lblAnnexureB.setForeColor(black);
    proposal.feeArea = 300;
    showPayment(proposal);
    EXPECT_TRUE(fees().front());
    EXPECT_EQ(fees().txtArea.text(), "300");
    EXPECT_EQ(fees().txtTotal.text(), "600.00");
    EXPECT_EQ(fees().links.lblPayment.foreColor(), red);
    EXPECT_EQ(fees().links.lblAnnextureA.foreColor(), blue);
    EXPECT_EQ(fees().links.lblAnnexureB.foreColor(), blue);
}

TEST_F(frmPayDetailTest, EnterMovesOnLikeTab) {
    fees().show();
    user::press(fees().txtScrutinyRArea, "Enter");
    EXPECT_TRUE(fees().txtScrutinyRRate.focused());
    user::press(fees().txtScrutinyRRate, "Enter");
    EXPECT_TRUE(fees().txtScrutinyRAmount.focused());
}

TEST_F(frmPayDetailTest, ClosingTheFormHidesItAndKeepsItsValues) {
    fees().show();
    fees().txtOther.setText("3");
    fees().pressClose();
    EXPECT_FALSE(fees().visible());
    EXPECT_EQ(fees().txtOther.text(), "3");
}

// In the whole system

constexpr std::array paymentElements = std::to_array<std::string_view>({
    "AREADEVRESI",
    "RATEDEVRESI",
    "AMTDEVRESI",
    "AREADEVCOM",
    "RATEDEVCOM",
    "AMTDEVCOM",
    "AREADEVIND",
    "RATEDEVIND",
    "AMTDEVIND",
    "AREASCRUTINYRESI",
    "RATESCRUTINYRESI",
    "AMTSCRUTINYRESI",
    "AREASCRUTINYCOM",
    "RATESCRUTINYCOM",
    "AMTSCRUTINYCOM",
    "AREASCRUTINYIND",
    "RATESCRUTINYIND",
    "AMTSCRUTINYIND",
    "COMPUNDFEES",
    "OTHER",
    "TOTALAMOUNT",
    "PAYMODE",
    "PAYDATE",
    "DRAFTCHQNO",
    "BANKNAME",
    "BRANCHNM",
    "AREA-SCRUT-RESI-2",
    "RATE-SCRUT-RESI-2",
    "AMOUNT-SCRUT-RESI-2",
    "AREA-SCRUT-COMM-2",
    "RATE-SCRUT-COMM-2",
    "AMOUNT-SCRUT-COMM-2",
    "AREA-SCRUT-IND-2",
    "RATE-SCRUT-IND-2",
    "AMOUNT-SCRUT-IND-2",
});

/// A proposal that is saved through the menu; what its payment detail then reads.
class PaymentInTheDocumentTest : public ::testing::Test {
protected:
    PaymentInTheDocumentTest() {
        world.shell.press("mnuNew");
        world.fillFirstPage();
        world.ports.dialogs.take();
    }
    frmPayDetail& fees() { return world.proposal.forms.get<frmPayDetail>(); }
    std::string savedPayment() {
        world.ports.dialogs.answers.emplace_back("/p.xml");
        world.shell.press("mnuSave");
        const std::string& document = world.ports.files.contents["/p.xml"];
        const std::size_t start = document.find("<PAYMENTDETAIL>");
        const std::size_t end = document.find("</PAYMENTDETAIL>");
        return end == std::string::npos ? "" : document.substr(start, end - start);
    }
    static std::string payment(const std::vector<std::string>& values) {
        std::string text = "<PAYMENTDETAIL>";
        for (std::size_t i = 0; i < paymentElements.size(); ++i)
            text += "<" + std::string(paymentElements[i]) + ">" + values.at(i) + "</" +
                    std::string(paymentElements[i]) + ">";
        return text;
    }
    /// Values of the boxes in the order of the form, "v1" to "v30" for the fees.
    void numberFees() {
        int number = 0;
        fees().forEach<TextBox>([&number](TextBox& each) { each.restoreText("v" + std::to_string(++number)); });
        fees().DTPicker1.setDate({2024, 3, 9});
        fees().txtRate.restoreText("20");
        fees().txtChqDraftNo.restoreText("7");
        fees().txtBankNm.restoreText("<Bank");
        fees().txtBranchNm.restoreText("Fort");
    }
    static std::vector<std::string> numberedValues(const std::vector<std::string>& paid) {
        std::vector<std::string> values = {"v19", "20", "v21", "v22", "v23", "v24", "v25", "v26", "v27", "v1", "v2",
                                           "v3",  "v4", "v5",  "v6",  "v7",  "v8",  "v9",  "v28", "v29", "v30"};
        values.insert(values.end(), paid.begin(), paid.end());
        for (int number = 10; number <= 18; ++number)
            values.push_back("v" + std::to_string(number));
        return values;
    }
    World world;
};

TEST_F(PaymentInTheDocumentTest, EachValueStandsInItsElement) {
    numberFees();
    fees().OptCheque.setValue(true);
    EXPECT_EQ(savedPayment(), payment(numberedValues({"PAYORDER", "09/03/2024", "7", "&lt;Bank", "Fort"})));
}

TEST_F(PaymentInTheDocumentTest, DraftSlidesItsValuesIntoTheElementsBefore) {
    numberFees();
    fees().OptDraft.setValue(true);
    EXPECT_EQ(savedPayment(), payment(numberedValues({"09/03/2024", "7", "&lt;Bank", "Fort", ""})));
}

TEST_F(PaymentInTheDocumentTest, SecondScrutinyFeesKeepTheValuesOfTheFirstSave) {
    fees().txtScrutinyRArea2.setText("11");
    const std::string first = savedPayment();
    fees().txtScrutinyRArea2.setText("22");
    fees().txtOther.setText("5");
    const std::string second = savedPayment();
    EXPECT_NE(first.find("<AREA-SCRUT-RESI-2>11<"), std::string::npos);
    EXPECT_NE(second.find("<AREA-SCRUT-RESI-2>11<"), std::string::npos);
    EXPECT_NE(second.find("<OTHER>5<"), std::string::npos);
    // A new proposal does not begin afresh either.
    world.shell.press("mnuNew");
    world.fillFirstPage();
    EXPECT_NE(savedPayment().find("<AREA-SCRUT-RESI-2>11<"), std::string::npos);
}

TEST_F(PaymentInTheDocumentTest, LinkOfSectionFourShowsThePaymentWithTheFeeArea) {
    world.proposal.feeArea = 88;
    user::click(world.control<Label>("AnnexureACont", "lblPayment"));
    EXPECT_TRUE(fees().front());
    EXPECT_EQ(fees().txtArea.text(), "88");
}

TEST_F(PaymentInTheDocumentTest, PaymentColoursAreReachableByName) {
    world.proposal.feeArea = 88;
    world.proposal.procedures.at("showPaymentColors")();
    EXPECT_EQ(fees().txtArea.text(), "88");
}

}  // namespace
}  // namespace plandesk::test
