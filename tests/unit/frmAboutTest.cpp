#include "shell/frmAbout.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "controls/User.h"
#include "unit/LayoutCheck.h"
#include "unit/TestPorts.h"

namespace plandesk::test {
namespace {

class frmAboutTest : public ::testing::Test {
protected:
    frmAboutTest() { proposal.forms.declare<frmAbout>(); }

    frmAbout& about() { return proposal.forms.get<frmAbout>(); }
    void writeVersionFile(std::string text) { machine.files.contents["/program/version.ini"] = std::move(text); }
    void expectTexts(const std::vector<std::string>& expected) {
        EXPECT_EQ((std::vector{about().caption(), about().lblTitle.caption(), about().lblVersion.caption(),
                               about().lblDescription.caption(), about().lblDisclaimer.caption()}),
                  expected);
    }

    TestPorts machine;
    Proposal proposal{machine};
};

TEST_F(frmAboutTest, ShowsTheFourLinesOfTheVersionFile) {
    writeVersionFile("Proposals\n2.5.1\nWhat it does\nNo warranty\nmore\nand more\n");
    expectTexts({"About Proposals", "Proposals", "Version 2.5.1", "What it does", "No warranty"});
    EXPECT_TRUE(machine.dialogs.take().empty());
}

TEST_F(frmAboutTest, ReadsLinesWithEitherEnd) {
    writeVersionFile("Proposals\r\n2.5.1\r\nWhat it does\r\nNo warranty");
    expectTexts({"About Proposals", "Proposals", "Version 2.5.1", "What it does", "No warranty"});
}

TEST_F(frmAboutTest, KeepsTheProgramsOwnWordsWithoutTheFileAndSaysNothing) {
    expectTexts({"About Plandesk", "Plandesk", "Version 1.0.0", "", ""});
    EXPECT_TRUE(machine.dialogs.take().empty());
}

TEST_F(frmAboutTest, KeepsTheDefaultsOfLinesThatAreMissing) {
    writeVersionFile("Proposals\n");
    expectTexts({"About Proposals", "Proposals", "Version 1.0.0", "", ""});
    about().pressClose();
    writeVersionFile("");
    expectTexts({"About Plandesk", "Plandesk", "Version 1.0.0", "", ""});
}

TEST_F(frmAboutTest, TakesAnEmptyLineAsItStands) {
    writeVersionFile("\n\nWhat it does\n");
    expectTexts({"About ", "", "Version ", "What it does", ""});
}

TEST_F(frmAboutTest, FileThatCannotBeReadIsToldAndTheFormStands) {
    struct LockedFiles : MemoryFiles {
        void readLines(const std::filesystem::path&, const std::function<void(std::string_view)>&) override {
            throw RuntimeError(ErrorNumber::PathFileAccess);
        }
    } locked;
    Proposal other{Ports{machine.dialogs, machine.clock, locked, machine.program}};
    other.forms.declare<frmAbout>();
    EXPECT_EQ(other.forms.get<frmAbout>().lblVersion.caption(), "Version 1.0.0");
    const std::vector<Message> shown = machine.dialogs.take();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, "Path/File access error");
    EXPECT_EQ(shown[0].icon, Icon::Critical);
}

TEST_F(frmAboutTest, ClosesByButtonAndByCloseBoxAndReadsTheFileAgain) {
    about().show();
    user::click(about().cmdOK);
    EXPECT_EQ(proposal.forms.loaded("frmAbout"), nullptr);
    writeVersionFile("Proposals\n");
    EXPECT_EQ(about().lblTitle.caption(), "Proposals");
    about().pressClose();
    EXPECT_EQ(proposal.forms.loaded("frmAbout"), nullptr);
}

TEST_F(frmAboutTest, StartsTheSystemInformationToolOfTheMachine) {
    machine.program.hasSystemInformation = true;
    user::click(about().cmdSysInfo);
    EXPECT_EQ(machine.program.systemInformationStarts, 1);
    EXPECT_TRUE(machine.dialogs.take().empty());
    EXPECT_TRUE(about().run("StartSysInfo"));
    EXPECT_EQ(machine.program.systemInformationStarts, 2);
}

TEST_F(frmAboutTest, SaysThatThereIsNoSystemInformation) {
    user::click(about().cmdSysInfo);
    const std::vector<Message> shown = machine.dialogs.take();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, "System Information Is Unavailable At This Time");
    EXPECT_EQ(shown[0].title, "");
    EXPECT_EQ(shown[0].icon, Icon::Information);
}

TEST_F(frmAboutTest, HasItsButtonsAndAPlaceForEachControl) {
    EXPECT_EQ(about().cmdSysInfo.caption(), "&System Info...");
    EXPECT_EQ(about().cmdOK.caption(), "OK");
    EXPECT_EQ(layoutFaults(about()), std::vector<std::string>());
}

}  // namespace
}  // namespace plandesk::test
