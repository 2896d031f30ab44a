#include "unit/DriverFixture.h"

namespace plandesk::driver::test {
namespace {

TEST(DriverScript, BlankLinesAndCommentsDoNothing) {
    expectHeld("");
    expectHeld("\n# a comment \"unclosed\n   \n\t# indented\n");
}

TEST(DriverScript, WordsAreDividedByBlanksAndQuotedOnesHoldThem) {
    expectHeld("  set   frmEverything.txtText\t\"a  b\"  \nexpect frmEverything.txtText \"a  b\"");
    expectHeld("set frmEverything.txtText \"\"\nexpect frmEverything.txtText \"\"");
    expectHeld("set frmEverything.txtText #1\nexpect \"frmEverything.txtText\" \"#1\"");
    expectHeld("set frmEverything.txtText a\"b\nexpect frmEverything.txtText \"a\\\"b\"");
}

TEST(DriverScript, EscapesOfQuotedWordsAreResolved) {
    expectOutput("set frmEverything.txtText \"a\\\"b\\\\c\\nd\\te\\rf\"\nprint frmEverything.txtText",
                 "a\"b\\c\nd\te\rf\n");
    expectOutput("set frmEverything.txtText a\\nb\nprint frmEverything.txtText", "a\\nb\n");
}

TEST(DriverScript, LineEndsOfEitherKindAndAByteOrderMarkAreTaken) {
    expectHeld("\xEF\xBB\xBFset frmEverything.txtText a\r\nexpect frmEverything.txtText a\r\n");
}

TEST(DriverScript, WrongWordsEndTheRun) {
    expectWrong("touch \"frm", "a quote is not closed");
    expectWrong("touch \"frm\\", "a quote is not closed");
    expectWrong("touch \"a\"b", "a blank is missing behind a quoted word");
    expectWrong("touch \"a\\x\"", "unknown escape \\x");
    expectWrong("type frmEverything.txtText a b", "wrong number of words: type REF TEXT");
    expectWrong("clear", "wrong number of words: clear REF");
    expectWrong("dump all", "wrong number of words: dump ");
}

TEST(DriverScript, AnUnknownNameEndsTheRun) {
    expectWrong("frobnicate x", "unknown command \"frobnicate\"");
    expectWrong("touch frmNone", "unknown form \"frmNone\"");
    expectWrong("expect frmNone.loaded true", "unknown form \"frmNone\"");
    expectWrong("click frmEverything.cmdNone", "unknown control \"frmEverything.cmdNone\"");
    expectWrong("click frmEverything.txtPage", "unknown control \"frmEverything.txtPage\"");
    expectWrong("click frmEverything.txtText(0)", "unknown control \"frmEverything.txtText(0)\"");
    expectWrong("expect frmEverything.txtPage(2) x", "unknown control \"frmEverything.txtPage(2)\"");
    expectWrong("expect frmEverything.txtNone x", "unknown control or property \"frmEverything.txtNone\"");
    expectWrong("expect frmEverything.txtText.hue x", "unknown control or property \"frmEverything.txtText.hue\"");
    expectWrong("expect mdiInterface.hue x", "unknown control or property \"mdiInterface.hue\"");
    expectWrong("menu mnuNone", "unknown menu entry \"mnuNone\"");
    expectWrong("expect-menu mnuNone true", "unknown menu entry \"mnuNone\"");
    expectWrong("expect-flag isNone true", "unknown flag \"isNone\"");
    expectWrong("print-flag isNone", "unknown flag \"isNone\"");
    expectWrong("expect-rows rsNone 1", "unknown table \"rsNone\"");
    expectWrong("expect-table rsPlot712 0 None 1", "unknown column \"None\"");
    expectWrong("expect-table rsPlot712 0 99 1", "unknown column \"99\"");
    expectWrong("run nothingKnown", "unknown procedure \"nothingKnown\"");
    expectWrong("run frmEverything.nothing", "unknown procedure \"frmEverything.nothing\"");
    expectWrong("run mdiInterface.nothing", "unknown procedure \"mdiInterface.nothing\"");
    expectWrong("run frmNone.validate", "unknown form \"frmNone\"");
    expectWrong("close frmNone", "unknown form \"frmNone\"");
    expectWrong("pressform frmNone Tab", "unknown form \"frmNone\"");
    expectWrong("press frmEverything.txtText F9", "unknown key \"F9\"");
    expectWrong("expect-message a b purple", "unknown icon \"purple\"");
}

TEST(DriverScript, AMalformedValueEndsTheRun) {
    expectWrong("click frmEverything", "wrong reference \"frmEverything\"");
    expectWrong("expect frmEverything.grid.cell(0 x", "wrong reference \"frmEverything.grid.cell(0\"");
    expectWrong("expect frmEverything.txtPage() x", "wrong reference \"frmEverything.txtPage()\"");
    expectWrong("click frmEverything.txtText.text", "\"frmEverything.txtText.text\" is no control");
    expectWrong("type frmEverything.cboList x", "frmEverything.cboList is a ComboBox");
    expectWrong("pick frmEverything.txtText 1", "frmEverything.txtText is a TextBox");
    expectWrong("date frmEverything.txtText 01/01/2020", "frmEverything.txtText is a TextBox");
    expectWrong("tab frmEverything.txtText 1", "frmEverything.txtText is a TextBox");
    expectWrong("cell frmEverything.txtText 0 0 x", "frmEverything.txtText is a TextBox");
    expectWrong("expect frmEverything.txtText.rowcount 0",
                "unknown control or property \"frmEverything.txtText.rowcount\"");
    expectWrong("expect frmEverything.grid 0", "unknown control or property \"frmEverything.grid\"");
    expectWrong("set frmEverything.grid 0", "\"frmEverything.grid\" takes no value");
    expectWrong("date frmEverything.DTPicker1 31/02/2020", "no date \"31/02/2020\"");
    expectWrong("today tomorrow", "no date \"tomorrow\"");
    expectWrong("tab frmEverything.strip one", "\"one\" is no whole number from 0");
    expectWrong("expect-menu mnuNew maybe", "\"maybe\" is neither true nor false");
    expectWrong("fail write 0", "fail takes: write N, N from 1");
    expectWrong("fail read 1", "fail takes: write N, N from 1");
}

TEST(DriverScript, UnknownReportsAndFieldsAreWrong) {
    expectWrong("expect-report rptReceipt LicNo 1", "unknown report \"rptReceipt\"");
    expectWrong("expect-shown rptReceipt", "unknown report \"rptReceipt\"");
    expectWrong("expect-printed rptReceipt", "unknown report \"rptReceipt\"");
    expectWrong("print-layout rptReceipt", "unknown report \"rptReceipt\"");
    expectWrong("print-report rptReceipt", "unknown report \"rptReceipt\"");
    expectWrong("expect-report rptReciept LicNo(one) 1", "\"one\" is no whole number from 0");
    expectWrong("expect-report rptReciept LicNo(1 1", "unknown field \"LicNo(1\"");
}

TEST(DriverScript, AWrongScriptCountsMoreThanAFailure) {
    const Outcome outcome = runScript("expect-flag feeArea 1\nfrobnicate\n");
    EXPECT_EQ(outcome.status, Session::WrongScript);
    EXPECT_EQ(outcome.err, "s.txt:1: expected feeArea \"1\", found \"0\"\ns.txt:2: unknown command \"frobnicate\"\n");
}

TEST(DriverReference, NamesAreFoundInAnyCaseAndControlsHaveTheirOwnValue) {
    expectHeld(R"(
set FRMEVERYTHING.TXTTEXT typed
expect frmeverything.txttext typed
expect frmEverything.Opt1Y false
expect frmEverything.chkDone 0
expect frmEverything.cboList ""
expect frmEverything.DTPicker1 01/01/1900
expect frmEverything.lblSaid nothing
expect frmEverything.cmdFail Fail
expect frmEverything.strip 0
expect frmEverything.rtfHelp <p>Help</p>
expect frmEverything.imgPicture ""
)");
}

TEST(DriverReference, EachPropertyIsRead) {
    expectHeld(R"(
type frmEverything.txtText abc
expect frmEverything.txtText.text abc
expect frmEverything.txtText.focused true
expect frmEverything.txtPage(0).focused false
expect frmEverything.txtText.locked false
expect frmEverything.txtLocked.locked true
expect frmEverything.txtOff.enabled false
expect frmEverything.cmdGone.visible false
expect frmEverything.cmdGone.caption Gone
expect frmEverything.Opt1N.value false
expect frmEverything.IsNarrow(1).value false
expect frmEverything.chkDone.value 0
expect frmEverything.cboList.listcount 2
expect frmEverything.cboList.listindex -1
expect frmEverything.cboList.item(0) first
expect frmEverything.cboList.itemdata(1) 12
pick frmEverything.cboList 0
expect frmEverything.cboList.text first
expect frmEverything.cboList.listindex 0
expect frmEverything.DTPicker1.date 01/01/1900
expect frmEverything.strip.tab 0
expect frmEverything.rtfHelp.text <p>Help</p>
expect frmEverything.lblSaid.backcolor FF0000
expect frmEverything.TXTTEXT.BackColor FFFFFF
)");
}

TEST(DriverReference, FormsHaveTheirProperties) {
    expectHeld(R"(
expect frmAnnexureA.loaded false
menu mnuNew
expect frmAnnexureA.loaded true
expect frmAnnexureA.visible true
expect frmAnnexureA.front true
expect frmAnnexureA.caption "Particulars of Development"
expect frmPayDetail.loaded false
expect frmPayDetail.visible false
expect frmPayDetail.loaded true
expect frmPayDetail.front false
expect frmAnnexureA.backcolor FFF8F2
expect mdiInterface.caption "Draftline Architect Utility - New file  "
expect mdiInterface.visible true
expect mdiInterface.loaded true
expect mdiInterface.backcolor C69D66
)");
}

TEST(DriverReference, GridsAreReadByRowAndColumn) {
    expectHeld(R"(
expect frmEverything.grid.rowcount 0
expect frmEverything.grid.columncaption(1) Description
expect frmEverything.grid.columnwidth(3) 0
expect frmEverything.grid.row -1
expect frmEverything.grid.column 0
)");
    expectFailed("expect frmEverything.grid.cell(0,0) 1",
                 "expected frmEverything.grid.cell(0,0) \"1\", found Invalid property array index");
    expectFailed("expect frmEverything.cboList.item(2) x",
                 "expected frmEverything.cboList.item(2) \"x\", found Invalid property array index");
}

}  // namespace
}  // namespace plandesk::driver::test
