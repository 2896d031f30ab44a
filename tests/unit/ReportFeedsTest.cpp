// What feeds the reports other than the Particulars of Development, column by column.

#include <gtest/gtest.h>

#include "base/Text.h"
#include "reports/ReportDesk.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

/// A column beside the control that it comes from.
struct Origin {
    std::string_view column;
    std::string_view control;
};

struct ReportFeeds : testing::Test, World {
    const ReportData& feed(std::string_view report) {
        proposal.commands.feed(report);
        given = shell.reports().filled(report).data;
        return given;
    }
    std::string at(std::string_view column, std::size_t row = 0) const {
        const std::string* text = given.find(column, row);
        return text ? *text : "no column";
    }
    static std::vector<std::string> namesOf(const ReportData& data) {
        return {data.columns.begin(), data.columns.end()};
    }

    /// Puts a text of its own, with blanks around it, into each control and looks for what `rule` makes of it in its
    /// column.
    void expectOrigins(std::string_view report, std::string_view form, std::span<const Origin> origins,
                       std::string (*rule)(std::string_view)) {
        const auto textOf = [](const Origin& origin) { return " of " + std::string(origin.column) + " "; };
        for (const Origin& origin : origins) {
            Control& control = this->control<Control>(form, origin.control);
            if (auto* list = dynamic_cast<ComboBox*>(&control))
                list->setText(textOf(origin));
            else
                dynamic_cast<TextBox&>(control).restoreText(textOf(origin));
        }
        feed(report);
        for (const Origin& origin : origins)
            EXPECT_EQ(at(origin.column), rule(textOf(origin))) << origin.column;
    }
    static std::string asItStands(std::string_view text) { return std::string(text); }
    static std::string trimmed(std::string_view text) { return std::string(trim(text)); }
    static std::string upper(std::string_view text) { return upperCase(trim(text)); }

    ReportData given;
};

// Payment

TEST_F(ReportFeeds, ThePaymentTakesEachFeeAsItsBoxHoldsIt) {
    constexpr Origin origins[] = {
        {"AreaDevResi", "txtArea"},
        {"RateDevResi", "txtRate"},
        {"AmtDevResi", "txtTotal"},
        {"AreaDevComm", "txtDevAreaC"},
        {"RateDevComm", "txtDevRateC"},
        {"AmtDevComm", "txtDevAmtC"},
        {"AreaDevInd", "txtDevAreaI"},
        {"RateDevInd", "txtDevRateI"},
        {"AmtDevInd", "txtDevAmtI"},
        {"AreaScuResi", "txtScrutinyRArea"},
        {"RateScuResi", "txtScrutinyRRate"},
        {"AmtScuResi", "txtScrutinyRAmount"},
        {"AreaScuComm", "txtScrutinyCArea"},
        {"RateScuComm", "txtScrutinyCRate"},
        {"AmtScuComm", "txtScrutinyCAmount"},
        {"AreaScuInd", "txtScrutinyIndArea"},
        {"RateScuInd", "txtScrutinyINDRate"},
        {"AmtScuInd", "txtScrutinyINDAmount"},
        {"CompoundFees", "txtCompoundFees"},
        {"Other", "txtOther"},
        {"TotalAmount", "txtGrandTotal"},
        {"PayOrderNo", "txtChqDraftNo"},
        {"BankName", "txtBankNm"},
        {"BranchName", "txtBranchNm"},
        {"AreaScuResi2", "txtScrutinyRArea2"},
        {"RateScuResi2", "txtScrutinyRRate2"},
        {"AmtScuResi2", "txtScrutinyRAmount2"},
        {"AreaScuComm2", "txtScrutinyCArea2"},
        {"RateScuComm2", "txtScrutinyCRate2"},
        {"AmtScuComm2", "txtScrutinyCAmount2"},
        {"AreaScuInd2", "txtScrutinyIndArea2"},
        {"RateScuInd2", "txtScrutinyINDRate2"},
        {"AmtScuInd2", "txtScrutinyINDAmount2"},
    };
    expectOrigins("rptPaymentDetails", "frmPayDetail", origins, asItStands);
    EXPECT_EQ(namesOf(given),
              split("AreaDevResi RateDevResi AmtDevResi AreaDevComm RateDevComm AmtDevComm AreaDevInd RateDevInd "
                    "AmtDevInd AreaScuResi RateScuResi AmtScuResi AreaScuComm RateScuComm AmtScuComm AreaScuInd "
                    "RateScuInd AmtScuInd CompoundFees Other TotalAmount PayMode PayDate PayOrderNo BankName "
                    "BranchName AreaScuResi2 RateScuResi2 AmtScuResi2 AreaScuComm2 RateScuComm2 AmtScuComm2 "
                    "AreaScuInd2 RateScuInd2 AmtScuInd2",
                    " "));
    EXPECT_EQ(given.columns.size(), 35U);
    for (const Column& column : proposal.tables.rsReportPayment->columns())
        EXPECT_EQ(column.width, 200);
}

TEST_F(ReportFeeds, ThePaymentIsCashWhicheverModeIsChosenWithTheDateAndBankBesideIt) {
    date("frmPayDetail", "DTPicker1").setDate({2024, 1, 9});
    box("frmPayDetail", "txtBankNm").setText("State Bank");
    for (const std::string_view mode : {"OptCash", "OptCheque", "OptDraft"}) {
        option("frmPayDetail", mode).setValue(true);
        feed("rptPaymentDetails");
        EXPECT_EQ(at("PayMode"), "Cash") << mode;
        EXPECT_EQ(at("PayDate"), "09/01/2024") << mode;
        EXPECT_EQ(at("BankName"), "State Bank") << mode;
    }
}

TEST_F(ReportFeeds, TheOlderPaymentReportIsGivenTheSame) {
    box("frmPayDetail", "txtOther").setText("40.00");
    feed("rptPaymentDetails");
    EXPECT_EQ(*shell.reports().filled("rptPaymentDetails123").data.find("other"), "40.00");
}

// Application

TEST_F(ReportFeeds, TheApplicationIsInCapitalsWithThreeFixedTexts) {
    constexpr Origin origins[] = {
        {"NameOfApplcant", "txtApplicantNm"},
        {"AddOfApplcant", "txtApplicantAddr"},
        {"Sector", "cboSector"},
        {"CTSNO", "txtCTSNo"},
        {"plotno", "txtpltno"},
        {"FinalPlotNo", "txtFPNo"},
        {"archName", "txtArchNm"},
        {"LicNo", "txtRegNm"},
    };
    expectOrigins("rptReciept", "frmAnnexureA", origins, upper);
    EXPECT_EQ(at("BldgNo"), ".....");
    EXPECT_EQ(at("vilage"), "----------");
    EXPECT_EQ(at("wardNO"), "-------");
    EXPECT_EQ(
        namesOf(given),
        split("NameOfApplcant AddOfApplcant BldgNo vilage Sector wardNO CTSNO plotno FinalPlotNo archName LicNo", " "));
    for (const Column& column : proposal.tables.rsReportHeader->columns())
        EXPECT_EQ(column.width, column.name == "NameOfApplcant" ? 200 : 250);
}

// Checklist

std::string page(int box) {
    return "txtDocPageNo(" + std::to_string(box) + ")";
}

TEST_F(ReportFeeds, TheChecklistHasNineMandatoryAndFiveConditionalPairsOfPages) {
    for (int index = 0; index < 28; ++index) {
        box("frmDocCheckList", page(index)).restoreText("m" + std::to_string(index));
        box("frmDocCheckList1", page(index)).restoreText("c" + std::to_string(index));
    }
    feed("rptDocChecklist");
    std::vector<std::string> names;
    for (const std::string_view column : {"txtpagefrom", "txtpageto"})
        for (int i = 1; i <= 9; ++i)
            names.push_back(std::string(column) + std::to_string(i));
    for (const std::string_view column : {"mtxtpagefrom", "mtxtpageto"})
        for (int i = 1; i <= 35; ++i)
            names.push_back(std::string(column) + std::to_string(i));
    EXPECT_EQ(namesOf(given), names);
    for (int i = 1; i <= 9; ++i) {
        EXPECT_EQ(at("txtpagefrom" + std::to_string(i)), "m" + std::to_string(2 * i - 2));
        EXPECT_EQ(at("txtpageto" + std::to_string(i)), "m" + std::to_string(2 * i - 1));
    }
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(at("mtxtpagefrom" + std::to_string(i)), "c" + std::to_string(16 + 2 * i));
        EXPECT_EQ(at("mtxtpageto" + std::to_string(i)), "c" + std::to_string(17 + 2 * i));
    }
    for (int i = 6; i <= 35; ++i) {
        EXPECT_EQ(at("mtxtpagefrom" + std::to_string(i)), "");
        EXPECT_EQ(at("mtxtpageto" + std::to_string(i)), "");
    }
    Recordset& table = *proposal.tables.rsReportChecklist;
    EXPECT_TRUE(isNull(table.get("mtxtpagefrom6")));
    for (const Column& column : table.columns())
        EXPECT_EQ(column.width, column.name.starts_with('m') ? 5 : 100) << column.name;
}

TEST_F(ReportFeeds, AChecklistRowWithoutPagesReadsDashes) {
    box("frmDocCheckList", page(1)).restoreText("7");
    feed("rptDocChecklist");
    EXPECT_EQ(at("txtpagefrom1"), "--");
    EXPECT_EQ(at("txtpageto1"), "7");
    EXPECT_EQ(at("txtpageto9"), "--");
    EXPECT_EQ(at("mtxtpagefrom1"), "--");
    EXPECT_EQ(at("mtxtpageto5"), "--");
    EXPECT_EQ(at("mtxtpagefrom6"), "");
}

// Letters

TEST_F(ReportFeeds, TheFormOfSupervisionHasNamedColumns) {
    constexpr Origin origins[] = {
        {"Officername", "txtOfficername"},
        {"Building", "txtBuilding"},
        {"FPNo", "txtFPNo"},
        {"Scheme", "txtSchemeno"},
        {"Road", "txtRoad"},
        {"Ward", "txtWard"},
        {"Sector", "txtSector"},
        {"EngineerName", "txtEngineer"},
        {"Licenceno", "txtLicencea"},
        {"AddressEngineer", "txtAddengineer"},
    };
    date("frmofsupervision", "DTPicker1").setDate({2024, 12, 31});
    expectOrigins("rptFormofSupervision", "frmofsupervision", origins, trimmed);
    EXPECT_EQ(at("DTPicker"), "31/12/2024");
    EXPECT_EQ(namesOf(given), split("Officername Building FPNo Scheme Road Ward Sector EngineerName Licenceno "
                                    "AddressEngineer DTPicker",
                                    " "));
}

/// A letter whose columns FLD1 to FLDn take the members 0 to n - 1 of its text array, but for some.
struct Letter {
    std::string_view report;
    std::string_view form;
    std::string_view array;
    int columns;
    std::vector<int> dates;  ///< members that DTPicker1, 2, 3 stand for
    int answer = -1;         ///< member that a question stands for
    std::string_view question{};
    int blank = -1;  ///< member that is left empty
};

const Letter letters[] = {
    {"rptNoticeforcommencementofwork",
     "frmnoticeofcommencementofwork",
     "txtNoticeForCommencment",
     16,
     {6, 8},
     14,
     "possessionreciept",
     11},
    {"rptformforintimationofcompletionofworkuptoplinthlevel",
     "frmcompletionuptoplinthlevel",
     "txtCompletionPlint",
     14,
     {8, 11},
     12,
     "IsRightsTransfered"},
    {"forbldgcompletion", "frmbuildingcompletioncertificate", "txtCompletionCertificate", 14, {6, 9, 13}},
    {"rptforpartoccupancycertificate", "frmforpartoccupancycertificate", "txtOccupancyCertificate", 6, {1, 5}},
    {"rptTDRfortransferringownership", "frmtdrfortransferringownership", "txtTDRTransOwn", 22, {}},
};

TEST_F(ReportFeeds, TheOtherLettersTakeTheirArrayByNumberAndKeepItsGaps) {
    for (const Letter& letter : letters) {
        std::vector<std::string> expected;
        for (int member = 0; member < letter.columns; ++member) {
            const auto date = std::ranges::find(letter.dates, member);
            const std::string text = "of " + std::to_string(member);
            if (date != letter.dates.end()) {
                const int picker = static_cast<int>(date - letter.dates.begin()) + 1;
                this->date(letter.form, "DTPicker" + std::to_string(picker)).setDate({2024, picker, member + 1});
                expected.push_back(Date{2024, picker, member + 1}.text());
            } else if (member == letter.answer) {
                expected.emplace_back("--");
            } else if (member == letter.blank) {
                expected.emplace_back();
            } else {
                box(letter.form, std::string(letter.array) + "(" + std::to_string(member) + ")")
                    .restoreText(" " + text + " ");
                expected.push_back(text);
            }
        }
        feed(letter.report);
        ASSERT_EQ(given.rows.size(), 1U) << letter.report;
        EXPECT_EQ(given.rows[0], expected) << letter.report;
        for (int member = 0; member < letter.columns; ++member)
            EXPECT_EQ(given.columns[static_cast<std::size_t>(member)], "FLD" + std::to_string(member + 1));
    }
}

TEST_F(ReportFeeds, AQuestionOfALetterReadsYesNoOrDashes) {
    for (const Letter& letter : letters) {
        if (letter.question.empty())
            continue;
        const std::string column = "FLD" + std::to_string(letter.answer + 1);
        const std::string name(letter.question);
        option(letter.form, name + "(1)").setValue(true);
        feed(letter.report);
        EXPECT_EQ(at(column), "YES") << letter.report;
        option(letter.form, name + "(0)").setValue(true);
        feed(letter.report);
        EXPECT_EQ(at(column), "NO") << letter.report;
    }
}

// Discretion

TEST_F(ReportFeeds, TheNewCaseHasItsFifteenRemarks) {
    for (int rule = 0; rule < 15; ++rule)
        box("frmDiscretionNewCase", "txtRule(" + std::to_string(rule) + ")").setText(" r" + std::to_string(rule) + " ");
    feed("rptDiscretionNewCase");
    ASSERT_EQ(given.columns.size(), 15U);
    for (int rule = 0; rule < 15; ++rule) {
        EXPECT_EQ(given.columns[static_cast<std::size_t>(rule)], "FLD" + std::to_string(rule + 1));
        EXPECT_EQ(at("Fld" + std::to_string(rule + 1)), "r" + std::to_string(rule));
    }
}

TEST_F(ReportFeeds, TheRevisedCaseHasARowForEachAmendment) {
    for (int row = 0; row < 19; ++row)
        for (const std::string array : {"txtRule", "txtRuleC", "txtRuleD"})
            box("frmDiscretionrevisedCase", array + "(" + std::to_string(row) + ")")
                .setText(" " + array + std::to_string(row) + " ");
    feed("rptDiscretionRevCase");
    EXPECT_EQ(namesOf(given), split("SRNO RULE FLDB FLDC FLDD", " "));
    ASSERT_EQ(given.rows.size(), 19U);
    for (std::size_t row = 0; row < 19; ++row) {
        const std::string number = std::to_string(row);
        EXPECT_EQ(given.rows[row][0], std::to_string(row + 1));
        EXPECT_EQ(given.rows[row][2], "txtRule" + number);
        EXPECT_EQ(given.rows[row][3], "txtRuleC" + number);
        EXPECT_EQ(given.rows[row][4], "txtRuleD" + number);
    }
    EXPECT_EQ(at("RULE", 0), "Gross plot area");
    EXPECT_EQ(at("RULE", 4), "Margin");
    EXPECT_EQ(at("RULE", 18), "Number of tenements");
}

// Which of them a procedure or a button shows

TEST_F(ReportFeeds, AProcedureShowsItsReportOnlyWhereItDoesSoItself) {
    const std::pair<std::string_view, std::string_view> procedures[] = {
        {"fillPayment", ""},
        {"fillHeader", ""},
        {"fillChecklist", "rptDocChecklist"},
        {"fillSupervision", ""},
        {"fillCommencement", ""},
        {"fillPlinthCompletion", ""},
        {"fillBuildingCompletion", ""},
        {"fillPartOccupancy", "rptforpartoccupancycertificate"},
        {"fillTDROwnership", ""},
    };
    for (const auto& [procedure, shown] : procedures) {
        shell.reports().unloadAll();
        proposal.procedures.find(procedure)->second();
        const auto previews = shell.reports().previews();
        EXPECT_EQ(previews.empty() ? "" : previews.front()->name, shown) << procedure;
    }
}

TEST_F(ReportFeeds, AFormsButtonShowsItsReport) {
    const std::tuple<std::string_view, std::string_view, std::string_view> buttons[] = {
        {"frmAnnexureA", "cmdPrint", "rptAnnexutreA"},
        {"AnnexureACont", "Command5", "rptAnnexutreA"},
        {"frmAnnexureA", "cmdUS84", "rptReciept"},
        {"frmPayDetail", "cmdPrint", ""},
        {"frmDocCheckList", "Command5", "rptDocChecklist"},
        {"frmDocCheckList1", "Command5", "rptDocChecklist"},
        {"frmDiscretionNewCase", "Command5", "rptDiscretionNewCase"},
        {"frmDiscretionrevisedCase", "Command5", "rptDiscretionRevCase"},
        {"frmofsupervision", "Command5", "rptFormofSupervision"},
        {"frmnoticeofcommencementofwork", "Command5", "rptNoticeforcommencementofwork"},
        {"frmcompletionuptoplinthlevel", "Command5", "rptformforintimationofcompletionofworkuptoplinthlevel"},
        {"frmbuildingcompletioncertificate", "Command5", "forbldgcompletion"},
        {"frmforpartoccupancycertificate", "Command5", "rptforpartoccupancycertificate"},
        {"frmtdrfortransferringownership", "Command5", "rptTDRfortransferringownership"},
    };
    for (const auto& [form, key, shown] : buttons) {
        shell.reports().unloadAll();
        button(form, key).press();
        const auto previews = shell.reports().previews();
        EXPECT_EQ(previews.empty() ? "" : previews.front()->name, shown) << form;
        EXPECT_LE(previews.size(), 1U);
    }
    EXPECT_TRUE(ports.dialogs.take().empty());
}

TEST_F(ReportFeeds, TheDiscretionFormsFeedByTheirOwnProcedures) {
    box("frmDiscretionNewCase", "txtRule(0)").setText("open");
    EXPECT_TRUE(proposal.forms.touch("frmDiscretionNewCase")->run("setRptDiscretion"));
    EXPECT_TRUE(proposal.forms.touch("frmDiscretionrevisedCase")->run("setRPTDiscretionPrint"));
    EXPECT_EQ(*shell.reports().filled("rptDiscretionNewCase").data.find("FLD1"), "open");
    EXPECT_EQ(shell.reports().filled("rptDiscretionRevCase").data.rows.size(), 19U);
    EXPECT_TRUE(shell.reports().previews().empty());
}

TEST_F(ReportFeeds, TheTablesOfReportsAreMadeAnewAtEachFeedAndAbsentBefore) {
    EXPECT_EQ(proposal.tables.rsReportPayment, nullptr);
    feed("rptPaymentDetails");
    const auto first = proposal.tables.rsReportPayment;
    ASSERT_NE(first, nullptr);
    feed("rptPaymentDetails");
    EXPECT_NE(proposal.tables.rsReportPayment, first);
    shell.press("mnuNew");
    EXPECT_NE(proposal.tables.rsReportPayment, nullptr) << "it lives until the next feed";
}

}  // namespace
}  // namespace plandesk::test
