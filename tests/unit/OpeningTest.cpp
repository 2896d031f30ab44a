// The command Open, step by step, and the development aid that repeats it.

#include <gtest/gtest.h>
#include <unistd.h>

#include "ProposalFile.h"
#include "controls/User.h"

namespace plandesk::test {

namespace {

constexpr std::string_view sheet = "frmAnnexureA";

using Boxes = std::vector<Message>;

bool operator==(const FileDialog& a, const FileDialog& b) {
    return a.title == b.title && a.defaultExtension == b.defaultExtension && a.filter == b.filter &&
           a.fileName == b.fileName;
}

/// Whether an address of that many bytes reaches the file and comes back.
bool comesBack(std::size_t size) {
    std::string address;
    while (address.size() < size)
        address.append("Flat ").append(std::to_string(address.size())).append(", ");
    address += "Khandri";
    World first;
    first.shell.press("mnuNew");
    first.fillFirstPage();
    first.box(sheet, "txtApplicantAddr").setText(address);
    first.ports.dialogs.answers.emplace_back("/home/long.xml");
    first.proposal.screen.event([&] { first.shell.run("mnuSaveAs_Click"); });
    const std::string& file = first.ports.files.contents.at("/home/long.xml");

    const ScratchFolder folder;
    World second;
    second.ports.dialogs.answers = {folder.write("long.xml", file)};
    second.shell.press("mnuOpen");
    return file.find(address) != std::string::npos && second.ports.dialogs.take().empty() &&
           second.box(sheet, "txtApplicantAddr").text() == address;
}

}  // namespace

TEST(Opening, asksForAFileWithItsOwnDialog) {
    World world;
    world.shell.press("mnuOpen");
    ASSERT_EQ(world.ports.dialogs.fileDialogs.size(), 1U);
    EXPECT_TRUE(world.ports.dialogs.fileDialogs[0] ==
                (FileDialog{"Select Proposals Path", "xml", "xml File(s) (*.xml)", "*.xml"}));
}

TEST(Opening, aCancelledDialogLeavesTheFormsUnloadedAndTheFlagsOfAnOpenedProposal) {
    World world;
    world.shell.press("mnuNew");
    world.box(sheet, "txtTitle").setText("Bungalow");
    world.shell.press("mnuOpen");
    EXPECT_TRUE(world.proposal.isProposalOpen);
    EXPECT_FALSE(world.proposal.isNewProposal);
    for (const std::string_view form : {"frmAnnexureA", "AnnexureACont", "frmPayDetail", "frmDocCheckList"})
        EXPECT_FALSE(world.proposal.forms.loaded(form)) << form;
    EXPECT_TRUE(world.ports.dialogs.take().empty());
    EXPECT_TRUE(world.shell.available("mnuSave"));
    EXPECT_FALSE(world.shell.available("mnuSaveAs"));
    EXPECT_EQ(world.proposal.screen.caption(), "Draftline Architect Utility - New file  ");
}

TEST(Opening, aCancelAtTheStartOpensNoMenu) {
    World world;
    world.shell.press("mnuOpen");
    for (const std::string_view entry : {"mnuSave", "mnuSaveAs", "mnuDocCheckList", "mnuPlotareaExt"})
        EXPECT_FALSE(world.shell.available(entry)) << entry;
    EXPECT_EQ(world.proposal.screen.caption(), "Plandesk  Proposal  System");
}

TEST(Opening, aNameThatIsEmptyOrThePatternStopsItToo) {
    for (const std::string_view name : {"", "   ", "*.xml", "*.XML", "  *.Xml "}) {
        World world;
        world.ports.dialogs.answers.emplace_back(name);
        world.shell.press("mnuOpen");
        EXPECT_FALSE(world.proposal.forms.loaded(sheet)) << name;
        EXPECT_TRUE(world.ports.dialogs.take().empty());
    }
}

// In a process of its own, for its memory is not to count in what other tests measure.
TEST(Opening, anAddressOfTenMegabytesComesBack) {
    EXPECT_EXIT(_exit(comesBack(10'000'000) ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(Opening, showsTheFirstPageUnderThePathOfTheFile) {
    Reading reading;
    World& world = reading.world;
    EXPECT_EQ(reading.open(ProposalFile().set("TITLE", "Bungalow")), Boxes());
    EXPECT_TRUE(world.proposal.isProposalOpen);
    EXPECT_FALSE(world.proposal.isNewProposal);
    EXPECT_TRUE(world.proposal.forms.loaded(sheet)->front());
    EXPECT_EQ(world.control<TabStrip>(sheet, "PropTab").tab(), 0);
    EXPECT_EQ(world.proposal.currentFormNo, 0);
    EXPECT_EQ(reading.text(sheet, "txtTitle"), "Bungalow");
    EXPECT_EQ(reading.text(sheet, "txtPathNm"), reading.path());
    EXPECT_EQ(world.proposal.screen.caption(), reading.path());
    for (const std::string_view entry : {"mnuSave", "mnuSaveAs", "mnuMandatoryDocument", "mnuPlotareaExt"})
        EXPECT_TRUE(world.shell.available(entry)) << entry;
    for (const std::string_view hidden : {"frmDocCheckList", "frmPayDetail"}) {
        ASSERT_TRUE(world.proposal.forms.loaded(hidden)) << hidden;
        EXPECT_FALSE(world.proposal.forms.loaded(hidden)->visible()) << hidden;
    }
}

TEST(Opening, theSameFileAgainShowsItsPathAgain) {
    Reading reading;
    reading.open(ProposalFile());
    reading.open(ProposalFile());
    EXPECT_EQ(reading.world.proposal.screen.caption(), reading.path());
}

TEST(Opening, aPathSetByTheFileItselfLeavesTheLongCaption) {
    Reading reading;
    reading.open(ProposalFile().append("ANNEXUREB", "PathNm", reading.path()));
    EXPECT_EQ(reading.world.proposal.screen.caption(), "Draftline Architect Utility  " + reading.path());
}

TEST(Opening, forgetsTheListedFormsAndKeepsTheConditionalChecklist) {
    Reading reading;
    World& world = reading.world;
    world.shell.press("mnuNew");
    world.box(sheet, "txtReservationArea").setText("5");
    world.box("frmPayDetail", "txtBankNm").setText("Bank");
    world.box("frmDocCheckList", "txtDocPageNo(40)").setText("5");
    world.box("frmDocCheckList1", "txtDocPageNo(0)").setText("5");
    world.proposal.forms.touch("frmPayDetail")->show();
    EXPECT_EQ(reading.open(ProposalFile()), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtReservationArea"), "");
    EXPECT_EQ(reading.text("frmPayDetail", "txtBankNm"), "");
    EXPECT_EQ(reading.text("frmDocCheckList", "txtDocPageNo(40)"), "");
    EXPECT_EQ(reading.text("frmDocCheckList1", "txtDocPageNo(0)"), "5");
    EXPECT_FALSE(world.proposal.forms.loaded("frmPayDetail")->visible());
}

TEST(Opening, theTablesAreCreatedAfresh) {
    Reading reading;
    Tables& tables = reading.world.proposal.tables;
    for (const auto& table : {tables.rsPlot712, tables.rsOwnership}) {
        ASSERT_TRUE(table);
        table->addNew();
        table->update();
    }
    ASSERT_EQ(tables.rsPlot712->rowCount(), 1);
    reading.open(ProposalFile());
    EXPECT_EQ(tables.rsPlot712->rowCount(), 0);
    ASSERT_TRUE(tables.rsOwnership);
    EXPECT_EQ(tables.rsOwnership->rowCount(), 0);
    ASSERT_TRUE(tables.rsOwnership712);
    EXPECT_EQ(tables.rsOwnership712->rowCount(), 0);
}

TEST(Opening, aFileWithoutARootIsABoxForEachStatementAndAnEmptyOpenProposal) {
    for (const std::string_view bytes : {"", "<INWARDINFO>", "no document"}) {
        Reading reading;
        EXPECT_EQ(reading.open(std::string(bytes)), hopeless());
        EXPECT_TRUE(reading.world.proposal.isProposalOpen);
        EXPECT_TRUE(reading.world.shell.available("mnuSave"));
        EXPECT_TRUE(reading.world.shell.available("mnuSaveAs"));
        EXPECT_EQ(reading.world.proposal.screen.caption(), reading.path());
        EXPECT_TRUE(reading.world.proposal.forms.loaded(sheet)->front());
        EXPECT_EQ(reading.text(sheet, "txtTitle"), "");
        EXPECT_TRUE(reading.world.option(sheet, "OptArch").value());
        EXPECT_TRUE(reading.world.option("frmPayDetail", "OptCash").value());
    }
}

TEST(Opening, aMissingFileIsLikeOneWithoutARoot) {
    Reading reading;
    reading.world.ports.dialogs.answers.emplace_back("/nowhere/a.xml");
    reading.world.shell.press("mnuOpen");
    const std::vector<Message> told = reading.world.ports.dialogs.take();
    EXPECT_EQ(told, hopeless());
    for (const Message& box : told)
        EXPECT_EQ(box.detail, "/nowhere/a.xml cannot be read, or is no well-formed XML file.");
    EXPECT_EQ(reading.text(sheet, "txtPathNm"), "/nowhere/a.xml");
}

TEST(Opening, aValueThatCannotBeReadIsToldWithFormAndQuestion) {
    Reading reading;
    const std::vector<Message> told = reading.open(ProposalFile().set("ONETHREE-RAD", ""));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text, "13 : Type mismatch");
    EXPECT_EQ(told[0].detail, "Particulars of Development: Does it comply with the provision of Appendix N?");
}

TEST(Opening, afterAHopelessFileAGoodOneOpensAsAtFirst) {
    Reading reading;
    reading.open("<x>");
    EXPECT_EQ(reading.open(ProposalFile().set("TITLE", "Bungalow")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtTitle"), "Bungalow");
    EXPECT_TRUE(reading.world.option("frmPayDetail", "OptCash").value());
}

TEST(Opening, savingAfterFailuresWritesWhatWasRead) {
    Reading reading;
    reading.open(ProposalFile().set("TITLE", "Kept").set("PROPOSALDATE", "never").set("FOUR-RAD", "x"));
    reading.world.shell.run("mnuSaveAs_Click");
    reading.world.ports.dialogs.answers.emplace_back("/home/b.xml");
    reading.world.shell.press("mnuSaveAs");
    const std::string& file = reading.world.ports.files.contents.at("/home/b.xml");
    EXPECT_NE(file.find("<TITLE>Kept</TITLE>"), std::string::npos);
    EXPECT_NE(file.find("<PROPOSALDATE>15/03/2024</PROPOSALDATE>"), std::string::npos);
    EXPECT_NE(file.find("<FOUR-RAD>2</FOUR-RAD>"), std::string::npos);
}

TEST(Opening, eachProcedureBehindTheSectionsIsReachedByName) {
    World world;
    for (const std::string_view name : {"readPlotRelations", "readExtracts712", "readExtractsPRC", "readNAOrder",
                                        "readULCScrutiny", "readDiscretion"}) {
        const auto procedure = world.proposal.procedures.find(name);
        ASSERT_NE(procedure, world.proposal.procedures.end()) << name;
        try {
            procedure->second();
            ADD_FAILURE() << name << " read a document that is not there";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number, 91) << name;
        }
    }
}

TEST(Opening, theReadXmlButtonTellsTheFlagAndKeepsIt) {
    Reading reading;
    World& world = reading.world;
    world.shell.press("mnuNew");
    world.ports.dialogs.answers.push_back(reading.folder.write("a.xml", ProposalFile().set("TITLE", "Bungalow").xml()));
    user::click(world.control<Button>(sheet, "Command1"));
    EXPECT_EQ(world.ports.dialogs.take(), (Boxes{{"", "File Open = False", Icon::Information}}));
    EXPECT_FALSE(world.proposal.isProposalOpen);
    EXPECT_TRUE(world.proposal.isNewProposal);
    EXPECT_EQ(reading.text(sheet, "txtTitle"), "Bungalow");
    EXPECT_EQ(world.proposal.screen.caption(), reading.folder.path("a.xml"));
    EXPECT_TRUE(world.shell.available("mnuSaveAs"));

    world.proposal.isProposalOpen = true;
    user::click(world.control<Button>(sheet, "Command1"));  // cancelled
    EXPECT_EQ(world.ports.dialogs.take(), (Boxes{{"", "File Open = True", Icon::Information}}));
    EXPECT_FALSE(world.proposal.forms.loaded(sheet));
}

}  // namespace plandesk::test
