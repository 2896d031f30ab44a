#include <sstream>
#include <utility>
#include <vector>

#include "unit/DriverFixture.h"

namespace plandesk::driver::test {
namespace {

TEST(DriverLook, AFailedExpectationSaysWhatItFound) {
    expectFailed("expect frmEverything.txtLocked x", "expected frmEverything.txtLocked \"x\", found \"fixed\"");
    expectFailed("expect frmEverything.Opt1Y true", "expected frmEverything.Opt1Y \"true\", found \"false\"");
    expectFailed("expect-menu mnuSave true", "expected mnuSave available, found not available");
    expectFailed("expect-menu mnuNew false", "expected mnuNew not available, found available");
    expectFailed("expect-flag isNewProposal true", "expected isNewProposal \"true\", found \"false\"");
    expectFailed("expect-caption x", "expected caption \"x\", found \"Plandesk  Proposal  System\"");
    expectFailed("expect-message a b", "expected message \"a\" \"b\", found none");
    expectFailed("expect-file none.txt x", "expected file none.txt, found no such file");
    expectFailed("print-file none.txt", "expected file none.txt, found no such file");
    expectFailed("expect-no-file /", "expected no file /, found one");
    expectFailed("expect-rows rsPlot712 3", "expected rsPlot712 with 3 rows, found 0");
    expectFailed("expect-rows rsDRCIssue 0", "expected rsDRCIssue with 0 rows, found no table");
    expectFailed("expect-table rsDRCIssue 0 0 x", "expected rsDRCIssue 0 0 \"x\", found no table");
}

TEST(DriverLook, OfLongTextsTheDifferenceIsShown) {
    const std::string common(1000, 'a');
    const Outcome outcome =
        runScript("set frmEverything.txtText " + common + "x\nexpect frmEverything.txtText " + common + "y\n");
    EXPECT_EQ(outcome.status, Session::Failed);
    EXPECT_EQ(outcome.err, "s.txt:2: expected frmEverything.txtText \"" + std::string(100, 'a') + "y\", found \"" +
                               std::string(100, 'a') + "x\" (from byte 900; they differ at byte 1000)\n");
}

TEST(DriverLook, LongLinesAreTaken) {
    const std::string text(100000, 'x');
    expectHeld("type frmEverything.txtText \"" + text + "\"\nexpect frmEverything.txtText \"" + text + "\"");
}

TEST(DriverLook, MessagesAreTakenOldestFirst) {
    expectHeld(R"(
expect-no-message
run requireParticulars
run frmEverything.ask
click frmEverything.cmdFail
expect-message "Plandesk Proposal System " "Please Fill Particular of Development ! " information
expect-message Ask Sure? question
expect-message "" Overflow
expect-no-message
)");
    const Outcome outcome = runScript(
        "run requireParticulars\nclick frmEverything.cmdFail\nexpect-no-message\n"
        "expect-message \"Plandesk Proposal System \" "
        "\"Please Fill Particular of Development ! \" none\nexpect-message \"\" Overflow\n");
    EXPECT_EQ(outcome.status, Session::Failed);
    EXPECT_EQ(outcome.err,
              "s.txt:3: expected no message, found message \"Plandesk Proposal System \" "
              "\"Please Fill Particular of Development ! \" information\n"
              "s.txt:4: expected message \"Plandesk Proposal System \" "
              "\"Please Fill Particular of Development ! \" none, found message \"Plandesk Proposal System \" "
              "\"Please Fill Particular of Development ! \" information\n");
}

TEST(DriverLook, FlagsNumbersColoursAndFragmentsAreProjectWide) {
    expectHeld(R"(
menu mnuNew
expect-flag isNewProposal true
expect-flag ISPROPOSALOPEN false
expect-flag feeArea 0
expect-flag currentFormNo 0
expect-flag annexureBXML ""
expect-flag activeButtonColor FFFFFF
expect-flag formBackColor FFF8F2
expect-caption "Draftline Architect Utility - New file  "
expect-menu mnuSave true
expect-menu MNUSAVEAS false
)");
}

TEST_F(DriverInAFolder, AFileIsComparedWithoutItsLastLineEnd) {
    for (const auto& [bytes, shown] :
         {std::pair{"a\r\n", "a"}, {"a\n", "a"}, {"a", "a"}, {"a\n\n", "a\\n"}, {"", ""}}) {
        folder.write("f.txt", bytes);
        expectHeld("expect-file f.txt \"" + std::string(shown) + "\"");
    }
    folder.write("f.txt", "a\nb\n");
    expectOutput("print-file f.txt", "a\nb\n");
    expectHeld("expect-no-file g.txt");
}

TEST(DriverLook, PrintsWhatIsAskedFor) {
    expectOutput(R"(
print frmEverything.txtLocked
print frmEverything.Opt1Y.enabled
print-flag formBackColor
run requireParticulars
click frmEverything.cmdFail
print-messages
print-messages
expect-no-message
print-table rsPlot712
print-table rsDRCIssue
)",
                 "fixed\ntrue\nFFF8F2\n"
                 "\"Plandesk Proposal System \" \"Please Fill Particular of Development ! \" information\n"
                 "\"\" \"Overflow\" critical\n"
                 "SrNo\tPlotDesciption\tPlot Name\tNo of PRC\n");
}

/// Whether the pieces stand in the text in this order.
testing::AssertionResult holdsInOrder(const std::string& text, const std::vector<std::string>& pieces) {
    std::size_t at = 0;
    for (const std::string& piece : pieces) {
        at = text.find(piece, at);
        if (at == text.npos)
            return testing::AssertionFailure() << piece << " is not in its place in " << text;
    }
    return testing::AssertionSuccess();
}

TEST(DriverDump, HasItsKeysInTheirOrderOnOneLine) {
    const Outcome outcome =
        runScript("touch frmEverything\nclick frmEverything.cmdFail\ndump\nexpect-message \"\" Overflow\n");
    EXPECT_EQ(outcome.status, Session::Held);
    ASSERT_EQ(outcome.out.find('\n'), outcome.out.size() - 1);
    const std::vector<std::string> pieces = {
        R"({"caption":"Plandesk  Proposal  System","flags":{"isNewProposal":false,)",
        R"("numbers":{"currentFormNo":0,)",
        R"("fragments":{"annexureBXML":"",)",
        R"("menus":{"mnuFile":true,"mnuNew":true,)",
        R"("mnuSave":false,)",
        R"("forms":{"frmEverything":{"visible":false,"caption":"Everything","controls":{)",
        R"("txtText":{"kind":"TextBox","visible":true,"enabled":true,"text":""},)",
        R"("txtOff":{"kind":"TextBox","visible":true,"enabled":false,"text":""},)",
        R"j("txtPage(0)":{"kind":"TextBox",)j",
        R"("Opt1Y":{"kind":"OptionButton","visible":true,"enabled":true,"value":false},)",
        R"("chkDone":{"kind":"CheckBox","visible":true,"enabled":true,"value":0},)",
        R"("cboList":{"kind":"ComboBox","visible":true,"enabled":true,"listindex":-1,"text":""},)",
        R"("DTPicker1":{"kind":"DatePicker","visible":true,"enabled":true,"date":"01/01/1900"},)",
        R"("lblSaid":{"kind":"Label","visible":true,"enabled":true,"caption":"nothing"},)",
        R"("strip":{"kind":"TabStrip","visible":true,"enabled":true,"tab":0},)",
        R"("grid":{"kind":"Grid","visible":true,"enabled":true,"rowcount":0,"row":-1,"column":0},)",
        R"("cmdGone":{"kind":"Button","visible":false,"enabled":true,"caption":"Gone"}}}},)",
        R"("tables":{"rsExtract712":{"columns":[)",
        R"("filter":"","rows":[]})",
        R"("messages":[{"title":"","text":"Overflow","icon":"critical"}],"shown":[],"printed":[]})"};
    EXPECT_TRUE(holdsInOrder(outcome.out, pieces));
}

TEST(DriverDump, ShowsTheCellsOfTablesByTheirKind) {
    std::ostringstream out;
    std::ostringstream err;
    Session session(programFolder, "s.txt", out, err);
    Recordset& table = *session.proposal.tables.rsPlot712;
    table.addNew();
    table.set(0, 4);
    table.set(1, std::string("\"quoted\" \xFF"));
    table.update();
    table.setFilter("SrNo = 9");
    std::istringstream script("dump\n");
    EXPECT_EQ(session.run(script), Session::Held);
    const std::vector<std::string> pieces = {
        R"("rsPlot712":{"columns":["SrNo","PlotDesciption","Plot Name","No of PRC"],"filter":"SrNo = 9",)",
        R"("rows":[[4,"\"quoted\" )",
        "\xEF\xBF\xBD\",null,null]]}",
    };
    EXPECT_TRUE(holdsInOrder(out.str(), pieces));
    EXPECT_EQ(out.str().find("rsDRCIssue"), std::string::npos) << "a table that was not created is not there";
}

}  // namespace
}  // namespace plandesk::driver::test
