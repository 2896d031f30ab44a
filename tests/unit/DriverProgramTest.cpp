#include <ctime>
#include <filesystem>
#include <utility>

#include "unit/DriverFixture.h"
#include "unit/ProgramRun.h"

namespace plandesk::driver::test {
namespace {

// The program itself.

using plandesk::test::Result;

Result runProgram(const std::string& arguments) {
    return plandesk::test::runProgram(programFolder / "plandesk-driver", arguments);
}

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

TEST_F(DriverInAFolder, AScriptIncludesAnotherToldFromItsOwnFolder) {
    folder.write("outer.txt", "include parts/inner.txt\nexpect-flag feeArea 1\nprint-flag feeArea\n");
    std::filesystem::create_directory("parts");
    folder.write("parts/inner.txt",
                 "\xEF\xBB\xBF# a mark and a comment\r\ninclude innermost.txt\nexpect-flag feeArea 2\n");
    folder.write("parts/innermost.txt", "print-flag isNewProposal\n");
    EXPECT_EQ(runProgram("outer.txt"), Result(1,
                                              "false\nparts/inner.txt:3: expected feeArea \"2\", found \"0\"\n"
                                              "outer.txt:2: expected feeArea \"1\", found \"0\"\n0\n"));
    EXPECT_EQ(runProgram("- < outer.txt").first, 1);
}

TEST_F(DriverInAFolder, AWrongLineOfAnIncludedFileIsToldThereAndEndsTheRun) {
    folder.write("outer.txt", "include inner.txt\nprint-flag feeArea\n");
    folder.write("inner.txt", "\nfrobnicate\n");
    EXPECT_EQ(runProgram("outer.txt"), Result(2, "inner.txt:2: unknown command \"frobnicate\"\n"));
    folder.write("none.txt", "include gone.txt\n");
    EXPECT_EQ(runProgram("none.txt"), Result(2, "none.txt:1: gone.txt: cannot be read\n"));
    folder.write("folder.txt", "include .\n");
    EXPECT_EQ(runProgram("folder.txt"), Result(2, "folder.txt:1: .: cannot be read\n"));
    folder.write("itself.txt", "include itself.txt\n");
    EXPECT_EQ(runProgram("itself.txt"), Result(2, "itself.txt:1: files include each other too deeply\n"));
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
}  // namespace plandesk::driver::test
