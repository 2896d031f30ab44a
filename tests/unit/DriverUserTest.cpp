#include <sstream>

#include "unit/DriverFixture.h"

namespace plandesk::driver::test {
namespace {

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

}  // namespace
}  // namespace plandesk::driver::test
