#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

#include <gtest/gtest.h>

#include "controls/Controls.h"
#include "driver/Session.h"
#include "proposal/Grid.h"
#include "unit/ScratchFolder.h"

namespace plandesk::driver {
namespace {

constexpr GridColumn gridColumns[] = {
    {.caption = "No", .width = 600, .locked = true},
    {.caption = "Description", .width = 2400},
    {.caption = "Name", .width = 1800, .button = true},
    {.caption = "Hidden", .width = 0},
};

/// A form with a control of each kind.
class frmEverything : public Form {
public:
    static constexpr std::string_view formName = "frmEverything";

    explicit frmEverything(Proposal& proposal) : Form(proposal.screen, formName, "Everything") {
        txtLocked.setText("fixed");
        txtLocked.locked = true;
        txtOff.setEnabled(false);
        cmdGone.setVisible(false);
        cmdFail.click = [] { throw RuntimeError(ErrorNumber::Overflow); };
        txtText.leaveCheck = [this] { return txtText.text() != "held"; };
        txtText.lostFocus = [this] { lblSaid.setCaption("left"); };
        imgPicture.click = [this] { lblSaid.setCaption("seen"); };
        lblSaid.setBackColor(fromBlueGreenRed(0x0000FF));
        cboList.addItem("first", 11);
        cboList.addItem("5", 12);
        Opt1.yes.click = [this] { lblSaid.setCaption("yes"); };
        strip.click = [this] { lblSaid.setCaption("turned"); };
        grid.bind(proposal.tables.rsPlot712);
        grid.setColumns(gridColumns);
        grid.buttonClick = [this](int column) { lblSaid.setCaption("button " + std::to_string(column)); };
        procedure("validate", [this] { lblSaid.setCaption("validated"); });
        procedure("ask", [this, &proposal] {
            const bool yes = proposal.screen.ports.dialogs.askYesNo({"Ask", "Sure?", Icon::Question});
            lblSaid.setCaption(yes ? "sure" : "unsure");
        });
        procedure("choose", [this, &proposal] {
            lblSaid.setCaption(proposal.screen.ports.dialogs.saveFile({"Save", "xml", "xml", "before.xml"}));
        });
        procedure("write", [&proposal] { proposal.screen.ports.files.writeWhole("written.txt", "one\r\ntwo\r\n"); });
    }
    void functionKey(std::string_view key) override { lblSaid.setCaption(key); }

    TextBox txtText{*this, "txtText"};
    TextBox txtLocked{*this, "txtLocked"};
    TextBox txtOff{*this, "txtOff"};
    TextBox txtPage0{*this, "txtPage", 0};
    TextBox txtPage1{*this, "txtPage", 1};
    YesNo Opt1{*this, "Opt1Y", "Opt1N"};
    YesNo IsNarrow{*this, "IsNarrow"};
    CheckBox chkDone{*this, "chkDone", "Done"};
    ComboBox cboList{*this, "cboList"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    Label lblSaid{*this, "lblSaid", "nothing"};
    Image imgPicture{*this, "imgPicture"};
    RichText rtfHelp{*this, "rtfHelp", "<p>Help</p>"};
    TabStrip strip{*this, "strip", 2};
    Grid grid{*this, "grid"};
    Button cmdFail{*this, "cmdFail", "Fail"};
    Button cmdGone{*this, "cmdGone", "Gone"};
};

/// Where the test program, the driver and the files that they read lie.
const std::filesystem::path programFolder = std::filesystem::read_symlink("/proc/self/exe").parent_path();

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

Outcome runScript(const std::string& script) {
    std::ostringstream out;
    std::ostringstream err;
    Session session(programFolder, "s.txt", out, err);
    session.proposal.forms.declare<frmEverything>();
    std::istringstream lines(script);
    const int status = session.run(lines);
    return {status, out.str(), err.str()};
}

/// The script holds, and prints this.
void expectOutput(const std::string& script, const std::string& out) {
    const Outcome outcome = runScript(script);
    EXPECT_EQ(outcome.status, Session::Held) << script;
    EXPECT_EQ(outcome.err, "") << script;
    EXPECT_EQ(outcome.out, out) << script;
}

void expectHeld(const std::string& script) {
    expectOutput(script, "");
}

/// The last line of the script is wrong; nothing behind it runs.
void expectWrong(const std::string& line, const std::string& reason) {
    const Outcome outcome = runScript("\n" + line + "\nprint-flag feeArea\n");
    EXPECT_EQ(outcome.status, Session::WrongScript) << line;
    EXPECT_EQ(outcome.err, "s.txt:2: " + reason + "\n") << line;
    EXPECT_EQ(outcome.out, "") << line;
}

/// The one expectation of the script, in its second line, does not hold.
void expectFailed(const std::string& line, const std::string& told) {
    const Outcome outcome = runScript("touch frmEverything\n" + line + "\nprint-flag feeArea\n");
    EXPECT_EQ(outcome.status, Session::Failed) << line;
    EXPECT_EQ(outcome.err, "s.txt:2: " + told + "\n") << line;
    EXPECT_EQ(outcome.out, "0\n") << "the script goes on after " << line;
}

class DriverInAFolder : public testing::Test {
protected:
    DriverInAFolder() { std::filesystem::current_path(std::filesystem::path(folder.path(""))); }
    ~DriverInAFolder() override { std::filesystem::current_path(earlier); }

    std::filesystem::path earlier = std::filesystem::current_path();
    test::ScratchFolder folder;
};

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

TEST(DriverScript, ReportsAreNotThereYet) {
    expectWrong("expect-report r f v", "not there yet");
    expectWrong("expect-shown r", "not there yet");
    expectWrong("expect-printed r", "not there yet");
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

TEST(DriverUser, TypesOverAppendsAndClears) {
    expectHeld(R"(
type frmEverything.txtText first
type frmEverything.txtText second
append frmEverything.txtText " and \"third\""
expect frmEverything.txtText "second and \"third\""
clear frmEverything.txtText
expect frmEverything.txtText ""
)");
}

TEST(DriverUser, PressesKeysOnAControlAndOnAForm) {
    expectHeld(R"(
type frmEverything.txtText ab
press frmEverything.txtText Backspace
press frmEverything.txtText c
press frmEverything.txtText space
press frmEverything.txtText ü
expect frmEverything.txtText "ac ü"
press frmEverything.txtText Esc
expect frmEverything.lblSaid Esc
pressform frmEverything F2
expect frmEverything.lblSaid F2
press frmEverything.txtText f3
expect frmEverything.lblSaid F3
pressform frmEverything x
expect frmEverything.txtText "ac üx"
press frmEverything.chkDone Space
expect frmEverything.chkDone 1
press frmEverything.cmdFail Enter
expect-message "" Overflow critical
press frmEverything.txtText Tab
expect-no-message
)");
}

TEST(DriverUser, ClicksPicksAndTurnsTabs) {
    expectHeld(R"(
click frmEverything.Opt1Y
expect frmEverything.Opt1Y true
expect frmEverything.lblSaid yes
click frmEverything.IsNarrow(0)
expect frmEverything.IsNarrow(0) true
click frmEverything.chkDone
click frmEverything.chkDone
expect frmEverything.chkDone 0
click frmEverything.imgPicture
expect frmEverything.lblSaid seen
pick frmEverything.cboList "5"
expect frmEverything.cboList.listindex 1
pick frmEverything.cboList 0
expect frmEverything.cboList first
pick frmEverything.cboList 5
expect-message "" "Invalid property value" critical
pick frmEverything.cboList "none of it"
expect-message "" "Invalid property value" critical
expect frmEverything.cboList first
date frmEverything.DTPicker1 29/02/2024
expect frmEverything.DTPicker1 29/02/2024
tab frmEverything.strip 1
expect frmEverything.strip 1
expect frmEverything.lblSaid turned
tab frmEverything.strip 2
expect-message "" "Invalid procedure call or argument" critical
)");
}

TEST(DriverUser, LeavingRunsTheLeaveCheckAndLostFocus) {
    expectHeld(R"(
type frmEverything.txtText held
leave frmEverything.txtText
expect frmEverything.txtText.focused true
expect frmEverything.lblSaid nothing
type frmEverything.txtText free
leave frmEverything.txtText
expect frmEverything.txtText.focused false
expect frmEverything.lblSaid left
)");
}

TEST(DriverUser, WhatIsNotThereIsUnavailableAndStaysAsItIs) {
    expectOutput(R"(
menu MnuSave
click FRMeverything.cmdGone
type frmEverything.txtOff x
append frmEverything.txtOff x
clear frmEverything.txtLocked
type frmEverything.txtLocked x
press frmEverything.txtLocked x
press frmEverything.txtLocked Backspace
press frmEverything.txtOff Tab
press frmEverything.lblSaid Tab
leave frmEverything.txtOff
expect frmEverything.txtLocked fixed
expect frmEverything.txtOff ""
expect-no-message
)",
                 "unavailable MnuSave\n"
                 "unavailable FRMeverything.cmdGone\n"
                 "unavailable frmEverything.txtOff\n"
                 "unavailable frmEverything.txtOff\n"
                 "unavailable frmEverything.txtLocked\n"
                 "unavailable frmEverything.txtLocked\n"
                 "unavailable frmEverything.txtLocked\n"
                 "unavailable frmEverything.txtLocked\n"
                 "unavailable frmEverything.txtOff\n"
                 "unavailable frmEverything.lblSaid\n"
                 "unavailable frmEverything.txtOff\n");
}

TEST(DriverUser, EditsTheCellsOfAGrid) {
    std::ostringstream out;
    std::ostringstream err;
    Session session(programFolder, "s.txt", out, err);
    session.proposal.forms.declare<frmEverything>();
    for (int row = 0; row < 2; ++row) {
        session.proposal.tables.rsPlot712->addNew();
        session.proposal.tables.rsPlot712->set(0, row + 1);
        session.proposal.tables.rsPlot712->update();
    }
    std::istringstream script(R"(
cell frmEverything.grid 1 1 "Survey 12"
expect frmEverything.grid.cell(1,1) "Survey 12"
expect-table rsPlot712 1 1 "Survey 12"
expect-table rsPlot712 1 SRNO 2
expect-table rsPlot712 0 1 null
expect-rows rsPlot712 2
cellclick frmEverything.grid 0 2
expect frmEverything.grid.row 0
expect frmEverything.grid.column 2
cellbutton frmEverything.grid 0 2
expect frmEverything.lblSaid "button 2"
cell frmEverything.grid 0 0 7
cell frmEverything.grid 0 3 7
cell frmEverything.grid 9 1 x
cellclick frmEverything.grid 9 1
cellbutton frmEverything.grid 0 1
deleterow frmEverything.grid 9
deleterow frmEverything.grid 0
expect frmEverything.grid.rowcount 1
expect-table rsPlot712 1 1 x
print-table rsPlot712
)");
    EXPECT_EQ(session.run(script), Session::Failed);
    EXPECT_EQ(err.str(), "s.txt:21: expected rsPlot712 1 1 \"x\", found 1 rows\n");
    std::string expected;
    for (int unavailable = 0; unavailable < 6; ++unavailable)
        expected += "unavailable frmEverything.grid\n";
    EXPECT_EQ(out.str(), expected + "SrNo\tPlotDesciption\tPlot Name\tNo of PRC\n\"2\"\t\"Survey 12\"\tnull\tnull\n");
}

TEST(DriverUser, ClosesFormsAndTheMainWindow) {
    expectOutput(
        R"(
close frmAnnexureA
menu mnuNew
close FRMANNEXUREA
expect frmAnnexureA.visible false
expect frmAnnexureA.loaded true
close frmAnnexureA
close mdiInterface
expect-message "VDMA PLANDESK UTILITY " " Do you want to Exit  ! " question
expect mdiInterface.visible true
answer yes
close mdiInterface
expect-message "VDMA PLANDESK UTILITY " " Do you want to Exit  ! "
menu mnuNew
click frmAnnexureA.cmdFormNo(0)
type frmAnnexureA.txtTitle x
close mdiInterface
expect frmAnnexureA.txtTitle ""
expect mdiInterface.visible false
expect-no-message
)",
        "unavailable frmAnnexureA\nunavailable frmAnnexureA\nunavailable mnuNew\n"
        "unavailable frmAnnexureA.cmdFormNo(0)\nunavailable frmAnnexureA.txtTitle\nunavailable mdiInterface\n");
}

TEST(DriverUser, AnswersWaitForQuestionsAndFileDialogs) {
    expectHeld(R"(
run frmEverything.ask
expect frmEverything.lblSaid unsure
answer yes
click frmEverything.cmdFail
run frmEverything.ask
expect frmEverything.lblSaid sure
answer no
run frmEverything.ask
expect frmEverything.lblSaid unsure
run frmEverything.choose
expect frmEverything.lblSaid before.xml
answer "a folder/after.xml"
answer cancel
run frmEverything.choose
expect frmEverything.lblSaid "a folder/after.xml"
run frmEverything.choose
expect frmEverything.lblSaid before.xml
answer ok
click frmEverything.cmdFail
answer x.xml
run frmEverything.choose
expect frmEverything.lblSaid x.xml
)");
}

TEST(DriverMachine, SetsTheDateOfTheRun) {
    expectHeld("today 05/06/2026\ntouch frmAnnexureA\nexpect frmAnnexureA.DTPicker1 05/06/2026\n");
}

TEST(DriverMachine, AssignsToEachKindAsProgramCodeDoes) {
    expectHeld(R"(
set frmEverything.txtOff "by code"
expect frmEverything.txtOff "by code"
set frmEverything.IsNarrow(1) true
expect frmEverything.IsNarrow(1) true
set frmEverything.IsNarrow(1) false
expect frmEverything.IsNarrow(1) false
set frmEverything.chkDone 1
expect frmEverything.chkDone 1
set frmEverything.cboList 1
expect frmEverything.cboList 5
set frmEverything.cboList -1
expect frmEverything.cboList ""
set frmEverything.cboList "5"
expect frmEverything.cboList.listindex 1
set frmEverything.cboList "any text"
expect frmEverything.cboList.listindex -1
expect frmEverything.cboList "any text"
set frmEverything.DTPicker1 01/02/2003
expect frmEverything.DTPicker1 01/02/2003
set frmEverything.strip 1
expect frmEverything.strip 1
set frmEverything.lblSaid "new words"
expect frmEverything.lblSaid "new words"
expect-no-message
)");
}

TEST(DriverMachine, AnErrorOfAnAssignmentIsOneBox) {
    expectHeld(R"(
set frmEverything.cboList 9
expect-message "" "Invalid property value" critical
set frmEverything.chkDone 2
expect-message "" "Invalid property value" critical
set frmEverything.chkDone x
expect-message "" "Type mismatch" critical
set frmEverything.Opt1Y maybe
expect-message "" "Type mismatch" critical
set frmEverything.DTPicker1 32/01/2020
expect-message "" "Type mismatch" critical
set frmEverything.strip 2
expect-message "" "Invalid procedure call or argument" critical
expect-no-message
)");
}

TEST(DriverMachine, TouchingLoadsAForm) {
    expectHeld(
        "touch FRMPAYDETAIL\nexpect frmPayDetail.loaded true\nexpect frmPayDetail.visible false\ntouch mdiInterface");
}

TEST(DriverMachine, RunsProceduresOfTheSystemTheMainWindowAndForms) {
    expectHeld(R"(
run FRMEVERYTHING.VALIDATE
expect frmEverything.lblSaid validated
run frmEverything.Opt1Y_Click
expect frmEverything.lblSaid yes
run frmEverything.cmdFail_Click
expect-message "" Overflow critical
run mnuNew_Click
expect-flag isNewProposal true
run mdiInterface.mnuNew_Click
run uloadAllForms
expect frmAnnexureA.loaded false
run mdiInterface.createAllTables
run requireParticulars
expect-no-message
)");
}

TEST_F(DriverInAFolder, AFailingWriteLeavesNoFile) {
    expectHeld(R"(
fail write 2
run frmEverything.write
expect-message "" "Disk full" critical
expect-no-file written.txt
run frmEverything.write
expect-no-message
expect-file written.txt "one\r\ntwo"
)");
}

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

// The program itself.

/// Exit status and what it printed, errors included.
std::pair<int, std::string> runProgram(const std::string& arguments) {
    const std::string program = (programFolder / "plandesk-driver").string();
    FILE* pipe = popen(("'" + program + "' " + arguments + " 2>&1").c_str(), "r");
    if (!pipe)
        return {-1, "not started"};
    std::string output;
    std::array<char, 4096> block;
    for (std::size_t count = 0; (count = fread(block.data(), 1, block.size(), pipe)) > 0;)
        output.append(block.data(), count);
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

using Result = std::pair<int, std::string>;

TEST_F(DriverInAFolder, TheProgramRunsAScriptFileOrStandardInput) {
    folder.write("held.txt", "expect-flag feeArea 0\nprint-flag feeArea\n");
    folder.write("failed.txt", "\nexpect-flag feeArea 1\n");
    folder.write("wrong.txt", "frobnicate\n");
    EXPECT_EQ(runProgram("held.txt"), Result(0, "0\n"));
    EXPECT_EQ(runProgram("< held.txt"), Result(0, "0\n"));
    EXPECT_EQ(runProgram("- < failed.txt"), Result(1, "-:2: expected feeArea \"1\", found \"0\"\n"));
    EXPECT_EQ(runProgram("./failed.txt"), Result(1, "./failed.txt:2: expected feeArea \"1\", found \"0\"\n"));
    EXPECT_EQ(runProgram("wrong.txt"), Result(2, "wrong.txt:1: unknown command \"frobnicate\"\n"));
}

TEST_F(DriverInAFolder, TheProgramRefusesWhatItCannotRead) {
    EXPECT_EQ(runProgram("none.txt"), Result(2, "none.txt: cannot be read\n"));
    EXPECT_EQ(runProgram("."), Result(2, ".: cannot be read\n"));
    const std::string usage = "plandesk-driver [--folder DIR] [SCRIPT]\n";
    EXPECT_EQ(runProgram("--frob"), Result(2, usage));
    EXPECT_EQ(runProgram("one two"), Result(2, usage));
    EXPECT_EQ(runProgram("--folder"), Result(2, usage));
}

TEST_F(DriverInAFolder, TheProgramsOwnFolderIsWhereItLiesOrAsGiven) {
    folder.write("about.txt", "touch frmAbout\nprint frmAbout.caption\n");
    EXPECT_NE(runProgram("about.txt"), Result(0, "About Ours\n"));
    folder.write("version.ini", "Ours\n9.9.9\n");
    EXPECT_EQ(runProgram("--folder ./ about.txt"), Result(0, "About Ours\n"));
    EXPECT_EQ(runProgram("--folder none about.txt"), Result(0, "About Plandesk\n"));
}

TEST_F(DriverInAFolder, TheMachinesDateIsTheDateOfARunWithoutOne) {
    folder.write("date.txt", "print frmAnnexureA.DTPicker1\n");
    const std::time_t now = std::time(nullptr);
    std::array<char, 16> today = {};
    std::strftime(today.data(), today.size(), "%d/%m/%Y", std::localtime(&now));
    EXPECT_EQ(runProgram("date.txt"), Result(0, std::string(today.data()) + "\n"));
}

}  // namespace
}  // namespace plandesk::driver
