#include "unit/DriverFixture.h"

namespace plandesk::driver::test {
namespace {

TEST(DriverReport, WhatWasShownAndPrintedIsTakenOldestFirst) {
    expectHeld(R"(
click frmAnnexureA.cmdUS84
click frmDocCheckList.Command5
touch frmPrint
click frmPrint.SelectAllDoc
click frmPrint.PrintDoc(1)
click frmPrint.cmdNavPrev
expect-shown rptReciept
expect-printed RPTPAYMENTDETAILS
expect-shown rptdocchecklist
)");
    expectFailed("expect-shown rptReciept", "expected shown rptReciept, found none");
    expectFailed("expect-printed rptReciept", "expected printed rptReciept, found none");
    const Outcome outcome =
        runScript("click frmAnnexureA.cmdUS84\nexpect-shown rptDocChecklist\nexpect-shown rptReciept\n");
    EXPECT_EQ(outcome.err,
              "s.txt:2: expected shown rptDocChecklist, found shown rptReciept\n"
              "s.txt:3: expected shown rptReciept, found none\n");
}

TEST(DriverReport, FieldsAreThoseOfTheReportLastShownOrPrinted) {
    expectHeld(R"(
set frmAnnexureA.txtRegNm a1
click frmAnnexureA.cmdUS84
set frmAnnexureA.txtRegNm b2
expect-report rptReciept LICNO A1
close rptReciept
expect-report rptReciept LicNo A1
run fillHeader
expect-report rptReciept LicNo A1
click frmAnnexureA.cmdUS84
expect-report rptReciept LicNo B2
set frmDiscretionrevisedCase.txtRuleD(18) "as built"
click frmDiscretionrevisedCase.Command5
expect-report rptDiscretionRevCase fldd(18) "as built"
expect-report rptDiscretionRevCase SRNO 1
)");
    expectFailed("expect-report rptReciept LicNo 1",
                 "expected report rptReciept, found it was neither shown nor printed");
    const Outcome outcome = runScript(
        "click frmDiscretionrevisedCase.Command5\nexpect-report rptDiscretionRevCase SRNO(18) 20\n"
        "expect-report rptDiscretionRevCase SRNO(19) 20\nexpect-report rptDiscretionRevCase Fld1 1\n");
    EXPECT_EQ(outcome.status, Session::WrongScript);
    EXPECT_EQ(outcome.err,
              "s.txt:2: expected rptDiscretionRevCase SRNO(18) \"20\", found \"19\"\n"
              "s.txt:3: expected rptDiscretionRevCase SRNO(19) \"20\", found 19 rows\n"
              "s.txt:4: unknown field \"Fld1\"\n");
}

TEST(DriverReport, AnOpenReportThatIsFedAgainShowsItsNewFieldsAndIsNotShownAgain) {
    expectHeld(R"(
click frmAnnexureA.cmdUS84
expect-shown rptReciept
set frmAnnexureA.txtRegNm c3
run fillHeader
expect-report rptReciept LicNo C3
)");
    expectOutput("close rptReciept\n", "unavailable rptReciept\n");
}

TEST(DriverReport, APageThatWasNeverFedHasEmptyFields) {
    expectHeld(R"(
touch frmReportNav
click frmReportNav.cmdFormNo(1)
expect-shown rptAnnexutreA1
expect-report rptAnnexutreA1 txtAverage ""
)");
}

TEST(DriverReport, LayoutAndReportArePrintedInReadingOrder) {
    const Outcome layout = runScript("print-layout rptDiscretionNewCase\n");
    EXPECT_TRUE(
        layout.out.starts_with("label \"Discretion : New Case\"\nlabel \"%D\"\nlabel \"No\"\n"
                               "label \"      Rule\"\nlabel \"Architect Remarks \"\n"
                               "label \"Front, rear side1, side2 margin.\"\nfield Fld1\n"))
        << layout.out;
    const Outcome report = runScript(
        "set frmDiscretionNewCase.txtRule(0) \"two \\\"metres\\\"\"\nclick frmDiscretionNewCase.Command5\n"
        "print-report rptDiscretionNewCase\n");
    EXPECT_NE(report.out.find("label \"Front, rear side1, side2 margin.\"\nfield Fld1 \"two \\\"metres\\\"\"\n"
                              "label \"Balcony margin\"\nfield Fld2 \"\"\n"),
              report.out.npos)
        << report.out;
    const Outcome rows = runScript("click frmDiscretionrevisedCase.Command5\nprint-report rptDiscretionRevCase\n");
    std::size_t repeated = 0;
    for (std::size_t at = rows.out.find("field SRNO "); at != rows.out.npos; at = rows.out.find("field SRNO ", at + 1))
        ++repeated;
    EXPECT_EQ(repeated, 19U) << rows.out;
    expectFailed("print-report rptReciept", "expected report rptReciept, found it was neither shown nor printed");
}

TEST(DriverReport, TheDumpListsWhatWasNotYetTaken) {
    const Outcome outcome = runScript(
        "click frmAnnexureA.cmdUS84\nclick frmDocCheckList.Command5\nexpect-shown rptReciept\ntouch frmPrint\n"
        "click frmPrint.SelectAllDoc\nclick frmPrint.PrintDoc(4)\nclick frmPrint.cmdNavPrev\ndump\n");
    EXPECT_NE(outcome.out.find(R"("messages":[],"shown":["rptDocChecklist"],"printed":["rptFormofSupervision"]})"),
              outcome.out.npos);
    EXPECT_NE(outcome.out.find(R"("rsReportHeader":{"columns":["NameOfApplcant",)"), outcome.out.npos);
    EXPECT_EQ(outcome.out.find("rsReportPayment"), outcome.out.npos) << "not there before its first feed";
}

TEST(DriverReport, TablesOfReportsAreKnownBeforeTheyAreThere) {
    expectFailed("expect-table rsReportPayment 0 PayMode Cash",
                 "expected rsReportPayment 0 PayMode \"Cash\", found no table");
    expectHeld("run fillPayment\nexpect-table rsReportPayment 0 PayMode Cash\nexpect-rows rsReportPayment 1\n");
    expectHeld("run fillChecklist\nexpect-table rsReportChecklist 0 mtxtpagefrom6 null\n");
}

}  // namespace
}  // namespace plandesk::driver::test
