#include "shell/mdiInterface.h"

#include <gtest/gtest.h>

#include "World.h"
#include "controls/User.h"

namespace plandesk::test {

namespace {

constexpr std::string_view sheet = "frmAnnexureA";

}  // namespace

/// What the user sees of an entry.
struct Shown {
    std::string_view name;
    std::string_view caption;
    std::string_view parent;
    bool submenu;

    bool operator==(const Shown&) const = default;
};

TEST(MdiInterface, theMenuHasItsEntriesInOrder) {
    const std::vector<Shown> expected = {
        {"mnuFile", "&File", "", true},
        {"mnuNew", "&New", "mnuFile", false},
        {"mnuOpen", "&Open", "mnuFile", false},
        {"mnuSave", "&Save", "mnuFile", false},
        {"mnuSaveAs", "Save &As", "mnuFile", false},
        {"mnuExit", "E&xit", "mnuFile", false},
        {"mnuAppForm", "&Application Form", "", true},
        {"mnuAnnexure", "Particulars of Development", "mnuAppForm", false},
        {"mnuSupervision", "Form of supervision", "mnuAppForm", false},
        {"mnuCommencement", "Notice for commencement of work", "mnuAppForm", false},
        {"mnuComPlintLevel", "Completion up to plinth level", "mnuAppForm", false},
        {"mnuBldgCompCertificate", "Building completion certificate", "mnuAppForm", false},
        {"mnuOccCertificate", "Part occupancy certificate", "mnuAppForm", false},
        {"mnuIssDCR", "Issue of DRC", "mnuAppForm", false},
        {"mnuTransOwnerShip", "Transferring ownership", "mnuAppForm", false},
        {"mnuDcrTransForm", "DRC transfer form", "mnuAppForm", false},
        {"mnuDCRUtilization", "DRC utilization form", "mnuAppForm", false},
        {"mnuDocCheckList", "&Document Checklist", "", true},
        {"mnuMandatoryDocument", "Mandatory Document", "mnuDocCheckList", false},
        {"mnuOptionalMandatoryDoc", "Conditional Mandatory Documents", "mnuDocCheckList", false},
        {"mnuPlotareaExt", "&Plot area details", "", true},
        {"mnuPlotExtRelationShip", "&Plot extract relationship", "mnuPlotareaExt", false},
        {"mnu712Ext", "7/12 extract", "mnuPlotareaExt", false},
        {"mnuPrc", "PRC", "mnuPlotareaExt", false},
        {"mnuNaOrder", "NA Order", "mnuPlotareaExt", false},
        {"mnuUlcOrder", "ULC Order", "mnuPlotareaExt", false},
        {"mnuHelp", "&Help", "", true},
        {"mnuContent", "Contents....", "mnuHelp", false},
        {"mnuAbout", "About Architect Utility", "mnuHelp", false},
    };
    const auto menu = mainMenu();
    ASSERT_EQ(menu.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ((Shown{menu[i].name, menu[i].caption, menu[i].parent, menu[i].kind == EntryKind::Submenu}),
                  expected[i])
            << expected[i].name;
}

TEST(MdiInterface, theStartOffersFileApplicationFormAndHelpAlone) {
    World world;
    EXPECT_EQ(world.proposal.screen.caption(), "Plandesk  Proposal  System");
    for (const std::string_view open :
         {"mnuFile", "mnuNew", "mnuOpen", "mnuExit", "mnuAppForm", "mnuAnnexure", "mnuHelp", "mnuContent", "mnuAbout"})
        EXPECT_TRUE(world.shell.available(open)) << open;
    for (const std::string_view closed : {"mnuSave", "mnuSaveAs", "mnuDocCheckList", "mnuMandatoryDocument",
                                          "mnuOptionalMandatoryDoc", "mnuPlotareaExt", "mnu712Ext", "mnuPrc"})
        EXPECT_FALSE(world.shell.available(closed)) << closed;
    EXPECT_FALSE(world.proposal.isNewProposal);
    EXPECT_FALSE(world.proposal.isProposalOpen);
    EXPECT_FALSE(world.proposal.forms.loaded(sheet));
}

TEST(MdiInterface, theStartAssignsTheColours) {
    World world;
    EXPECT_EQ(world.proposal.activeButtonColor.text(), "FFFFFF");
    EXPECT_EQ(world.proposal.formBackColor.text(), "FFF8F2");
    EXPECT_EQ(world.shell.backColor().text(), "C69D66");
}

TEST(MdiInterface, aClosedEntryDoesNothing) {
    World world;
    EXPECT_FALSE(world.shell.press("mnuSave"));
    EXPECT_FALSE(world.shell.press("mnuMandatoryDocument"));
    EXPECT_FALSE(world.shell.press("mnuNothing"));
    EXPECT_FALSE(world.proposal.isSaveRequested);
    EXPECT_FALSE(world.proposal.forms.loaded("frmDocCheckList"));
}

TEST(MdiInterface, newShowsSectionIAndOpensTheMenus) {
    World world;
    ASSERT_TRUE(world.shell.press("mnuNew"));
    EXPECT_TRUE(world.proposal.isNewProposal);
    EXPECT_FALSE(world.proposal.isProposalOpen);
    EXPECT_TRUE(world.proposal.forms.loaded(sheet)->front());
    EXPECT_EQ(world.proposal.currentFormNo, 0);
    EXPECT_EQ(world.proposal.screen.caption(), "Draftline Architect Utility - New file  ");
    EXPECT_TRUE(world.shell.available("mnuSave"));
    EXPECT_FALSE(world.shell.available("mnuSaveAs"));
    EXPECT_TRUE(world.shell.available("mnuMandatoryDocument"));
    EXPECT_TRUE(world.shell.available("mnuPlotareaExt"));
}

TEST(MdiInterface, aSecondNewKeepsTheCaptionWhileNoFileWasOpen) {
    World world;
    world.shell.press("mnuNew");
    world.shell.press("mnuNew");
    EXPECT_EQ(world.proposal.screen.caption(), "Draftline Architect Utility - New file  ");
}

TEST(MdiInterface, newWhileAFileIsOpenClearsTheCaption) {
    World world;
    world.saveNewProposal("/home/a.xml");
    EXPECT_EQ(world.proposal.screen.caption(), "/home/a.xml");
    world.shell.press("mnuNew");
    EXPECT_EQ(world.proposal.screen.caption(), "");
    EXPECT_EQ(world.box(sheet, "txtPathNm").text(), "");
}

TEST(MdiInterface, newEmptiesTheListedFormsAndKeepsTheConditionalChecklist) {
    World world;
    world.shell.press("mnuNew");
    world.box(sheet, "txtTitle").setText("Bungalow");
    world.box("frmDocCheckList", "txtDocPageNo(0)").setText("4");
    world.box("frmDocCheckList1", "txtDocPageNo(0)").setText("5");
    world.box("frmPayDetail", "txtOther").setText("6");
    world.shell.press("mnuNew");
    EXPECT_EQ(world.box(sheet, "txtTitle").text(), "");
    EXPECT_EQ(world.box("frmDocCheckList", "txtDocPageNo(0)").text(), "");
    EXPECT_EQ(world.box("frmDocCheckList1", "txtDocPageNo(0)").text(), "5");
    EXPECT_EQ(world.box("frmPayDetail", "txtOther").text(), "");
}

TEST(MdiInterface, uloadAllFormsUnloadsWhatItLists) {
    World world;
    for (const std::string_view form :
         {"AnnexureACont", "frmAnnexureA", "frmDocCheckList", "frmPayDetail", "frmDocCheckList1"})
        world.proposal.forms.touch(form);
    world.proposal.procedures.at("uloadAllForms")();
    for (const std::string_view gone : {"AnnexureACont", "frmAnnexureA", "frmDocCheckList", "frmPayDetail"})
        EXPECT_FALSE(world.proposal.forms.loaded(gone)) << gone;
    EXPECT_TRUE(world.proposal.forms.loaded("frmDocCheckList1"));
}

TEST(MdiInterface, particularsFromTheMenuClearNothing) {
    World world;
    world.shell.press("mnuNew");
    world.box(sheet, "txtTitle").setText("Bungalow");
    world.proposal.forms.touch(sheet)->hide();
    world.proposal.isNewProposal = false;
    ASSERT_TRUE(world.shell.press("mnuAnnexure"));
    EXPECT_EQ(world.box(sheet, "txtTitle").text(), "Bungalow");
    EXPECT_TRUE(world.proposal.forms.touch(sheet)->front());
    EXPECT_TRUE(world.proposal.isNewProposal);
    EXPECT_TRUE(world.shell.available("mnuSave"));
}

TEST(MdiInterface, requireParticularsTellsWhatIsMissingUntilAProposalIsBegun) {
    World world;
    world.proposal.procedures.at("requireParticulars")();
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text, "Please Fill Particular of Development ! ");
    EXPECT_EQ(told[0].title, "Plandesk Proposal System ");
    world.shell.press("mnuNew");
    world.proposal.procedures.at("requireParticulars")();
    EXPECT_TRUE(world.ports.dialogs.take().empty());
}

TEST(MdiInterface, saveWithAnEmptyFirstPageStopsAtTheTitle) {
    World world;
    world.shell.press("mnuNew");
    world.shell.press("mnuSave");
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text, "Proposal Title Can not be blank !");
    EXPECT_TRUE(world.ports.dialogs.fileDialogs.empty());
    EXPECT_TRUE(world.proposal.isSaveRequested);
    EXPECT_TRUE(world.box(sheet, "txtTitle").focused());
}

TEST(MdiInterface, aFirstSaveAsksForTheFileAndTellsWhereItIs) {
    World world;
    world.shell.press("mnuNew");
    world.fillFirstPage();
    world.ports.dialogs.answers.push_back("/home/a.xml");
    world.shell.press("mnuSave");
    ASSERT_EQ(world.ports.dialogs.fileDialogs.size(), 1U);
    const FileDialog& asked = world.ports.dialogs.fileDialogs[0];
    EXPECT_EQ(asked.title, "Select Proposals Path");
    EXPECT_EQ(asked.defaultExtension, "xml");
    EXPECT_EQ(asked.filter, "xml File(s) (*.xml)");
    EXPECT_EQ(asked.fileName, "");
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text, "Proposal has been created [ /home/a.xml ]. ");
    EXPECT_EQ(told[0].title, "Proposal Information Path ");
    EXPECT_EQ(told[0].icon, Icon::Information);
    EXPECT_TRUE(world.proposal.isProposalOpen);
    EXPECT_TRUE(world.proposal.isNewProposal);
    EXPECT_TRUE(world.shell.available("mnuSave"));
    EXPECT_FALSE(world.shell.available("mnuSaveAs"));
    EXPECT_TRUE(world.ports.files.contents.at("/home/a.xml").ends_with("</INWARDINFO>\r\n"));
}

TEST(MdiInterface, aSecondSaveAsksForNothing) {
    World world;
    world.saveNewProposal("/home/a.xml");
    world.ports.dialogs.fileDialogs.clear();
    world.box(sheet, "txtTitle").setText("Second");
    world.shell.press("mnuSave");
    EXPECT_TRUE(world.ports.dialogs.fileDialogs.empty());
    EXPECT_NE(world.ports.files.contents.at("/home/a.xml").find("<TITLE>Second</TITLE>"), std::string::npos);
}

TEST(MdiInterface, aCancelledFirstSaveWritesNothingAndSaysNothing) {
    World world;
    world.shell.press("mnuNew");
    world.fillFirstPage();
    world.shell.press("mnuSave");
    EXPECT_EQ(world.ports.dialogs.fileDialogs.size(), 1U);
    EXPECT_TRUE(world.ports.dialogs.take().empty());
    EXPECT_EQ(world.ports.files.contents.size(), 1U);
    EXPECT_FALSE(world.proposal.isProposalOpen);
    EXPECT_EQ(world.box(sheet, "txtPathNm").text(), "");
}

TEST(MdiInterface, aRefusedWriteIsToldOnceAndTheProposalCanBeSavedElsewhere) {
    World world;
    world.saveNewProposal("/home/a.xml");
    const std::string earlier = world.ports.files.contents.at("/home/a.xml");
    world.ports.files.failure = RuntimeError(ErrorNumber::DiskFull);
    world.box(sheet, "txtTitle").setText("Second");
    world.shell.press("mnuSave");
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text, "Disk full");
    EXPECT_TRUE(told[0].detail.starts_with("/home/a.xml was not written")) << told[0].detail;
    EXPECT_EQ(world.ports.files.contents.at("/home/a.xml"), earlier);
    EXPECT_EQ(world.box(sheet, "txtTitle").text(), "Second");

    world.ports.files.failure.reset();
    world.ports.dialogs.answers.push_back("/other/b.xml");
    ASSERT_TRUE(world.shell.press("mnuSaveAs"));
    EXPECT_NE(world.ports.files.contents.at("/other/b.xml").find("<TITLE>Second</TITLE>"), std::string::npos);
}

TEST(MdiInterface, aRefusedFirstSaveAsksForAFileAgain) {
    World world;
    world.shell.press("mnuNew");
    world.fillFirstPage();
    world.ports.files.failure = RuntimeError(ErrorNumber::PathNotFound);
    world.ports.dialogs.answers = {"/gone/a.xml", "/home/b.xml"};
    world.shell.press("mnuSave");
    EXPECT_FALSE(world.proposal.isProposalOpen);
    world.ports.files.failure.reset();
    world.shell.press("mnuSave");
    EXPECT_TRUE(world.ports.files.contents.contains("/home/b.xml"));
}

TEST(MdiInterface, saveAsTestsNoFirstPageAndLeavesTheProposalOpen) {
    World world;
    world.saveNewProposal("/home/a.xml");
    world.shell.press("mnuOpen");  // cancelled: the forms are unloaded, the flags those of an opened proposal
    world.proposal.commands.refreshMenus();
    EXPECT_TRUE(world.proposal.isProposalOpen);
    ASSERT_TRUE(world.shell.run("mnuSaveAs_Click"));
    EXPECT_TRUE(world.proposal.isSaveAsRequested);
    EXPECT_TRUE(world.proposal.isProposalOpen);
    EXPECT_TRUE(world.ports.dialogs.take().empty());
    EXPECT_EQ(world.ports.dialogs.fileDialogs.size(), 3U);
}

TEST(MdiInterface, aSaveAsStoppedByAnEmptyCarrierStillLeavesTheFlagTrue) {
    World world;
    world.shell.press("mnuNew");
    world.box("frmPayDetail", "txtOther").setText("1");
    world.option("frmPayDetail", "OptCheque").setValue(true);
    world.box("frmPayDetail", "txtChqDraftNo").setText("12!");  // the payment form refuses, so its carrier stays empty
    world.shell.run("mnuSaveAs_Click");
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back().text, "Fill the Payment Detail Information");
    EXPECT_EQ(told.back().title, "Data Require");
    EXPECT_EQ(told.back().icon, Icon::Information);
    EXPECT_TRUE(world.proposal.isProposalOpen);
}

TEST(MdiInterface, exitAsksAndNoStays) {
    World world;
    world.shell.press("mnuExit");
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text, " Do you want to Exit  ! ");
    EXPECT_EQ(told[0].title, "VDMA PLANDESK UTILITY ");
    EXPECT_EQ(told[0].icon, Icon::Question);
    EXPECT_EQ(world.ports.program.ends, 0);
    world.ports.dialogs.answers.push_back("yes");
    world.shell.pressClose();
    EXPECT_EQ(world.ports.program.ends, 1);
    EXPECT_FALSE(world.shell.press("mnuNew"));
}

TEST(MdiInterface, theTimerHighlightsTheActiveBoxAndWhitensTheOtherOpenOnes) {
    World world;
    world.shell.press("mnuNew");
    world.box(sheet, "txtTitle").setFocus();
    world.shell.Timer1_Timer();
    EXPECT_EQ(world.box(sheet, "txtTitle").backColor().text(), "EDEBD3");
    EXPECT_EQ(world.box(sheet, "txtDevRights").backColor().text(), "E0E0E0");
    world.box(sheet, "txtpltno").setFocus();
    world.shell.Timer1_Timer();
    EXPECT_EQ(world.box(sheet, "txtTitle").backColor().text(), "FFFFFF");
    EXPECT_EQ(world.box(sheet, "txtpltno").backColor().text(), "EDEBD3");
}

TEST(MdiInterface, theTimerDoesNothingWithoutAForm) {
    World world;
    world.shell.Timer1_Timer();
    EXPECT_FALSE(world.proposal.forms.loaded(sheet));
}

TEST(MdiInterface, aBurstOfResizesPaintsThePictureOnce) {
    World world;
    int painted = 0;
    world.shell.paintBackground = [&painted] { ++painted; };
    world.shell.Timer2_Timer();
    EXPECT_EQ(painted, 0);
    for (int i = 0; i < 5; ++i)
        world.shell.resized();
    world.shell.Timer2_Timer();
    world.shell.Timer2_Timer();
    EXPECT_EQ(painted, 1);
}

TEST(MdiInterface, aMinimisedWindowPaintsNothing) {
    World world;
    int painted = 0;
    world.shell.paintBackground = [&painted] { ++painted; };
    world.shell.minimised = [] { return true; };
    world.shell.resized();
    world.shell.Timer2_Timer();
    EXPECT_EQ(painted, 0);
    EXPECT_FALSE(world.shell.timer2Enabled());
}

TEST(MdiInterface, aMissingVillageFileIsToldAndTheProgramGoesOn) {
    World world;
    world.ports.files.contents.clear();
    world.shell.press("mnuNew");
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text, "File not found");
    EXPECT_TRUE(world.proposal.forms.loaded(sheet)->visible());
    EXPECT_TRUE(world.shell.available("mnuSave"));
}

TEST(MdiInterface, anIconEntryAsksForTheRelationFirst) {
    World world;
    world.shell.press("mnuNew");
    world.shell.press("mnu712Ext");
    world.shell.press("mnuPrc");
    const std::vector<Message> told = world.ports.dialogs.take();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].text, "Please Enter Relationship Details  for 7/12 Extract !");
    EXPECT_EQ(told[1].text, "Please Enter Relationship Details for Property Register Card !");
}

}  // namespace plandesk::test
