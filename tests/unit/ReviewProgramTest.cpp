// The program plandesk-review, as it is run from a command line.

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "unit/ProgramRun.h"
#include "unit/ScratchFolder.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

namespace fs = std::filesystem;

const fs::path program = fs::read_symlink("/proc/self/exe").parent_path() / "plandesk-review";

struct ReviewProgram : testing::Test {
    ScratchFolder folder;

    /// A proposal with these answers on its first page, saved.
    std::string saved(const std::string& name, const std::string& title, const std::string& area = "1",
                      const std::string& remark = "") const {
        World world;
        world.shell.press("mnuNew");
        world.fillFirstPage();
        world.box("frmAnnexureA", "txtTitle").setText(title);
        world.box("frmAnnexureA", "txtPltArea").setText(area);
        world.box("frmNaOrder", "txtNARemark").setText(remark);
        world.ports.dialogs.answers.emplace_back("/home/saved.xml");
        world.proposal.screen.event([&] { world.shell.run("mnuSaveAs_Click"); });
        return folder.write(name, world.ports.files.contents.at("/home/saved.xml"));
    }
    static Result review(const std::string& arguments) { return runProgram(program, arguments); }
};

bool tells(const Result& result, const std::string& line) {
    return ("\n" + result.second).find("\n" + line) != std::string::npos;
}

TEST_F(ReviewProgram, TellsWhatIsMissingInOneLineEach) {
    const Result result = review("'" + saved("a.xml", "Bungalow", "1", "begun") + "'");
    EXPECT_EQ(result.first, 1);
    EXPECT_TRUE(tells(result, "missing frmNaOrder.txtLandArea \"Land Area\": This question is marked with *"))
        << result.second;
    EXPECT_FALSE(tells(result, "missing frmAnnexureA.")) << result.second;
}

TEST_F(ReviewProgram, TellsNothingOfACompleteProposal) {
    EXPECT_EQ(review("'" + saved("a.xml", "Bungalow") + "'"), Result(0, ""));
}

TEST_F(ReviewProgram, TellsTheSameAsJson) {
    const Result result = review("--json '" + saved("a.xml", "Bungalow", "1", "begun") + "'");
    EXPECT_EQ(result.first, 1);
    EXPECT_TRUE(result.second.starts_with("[\n  {\n    \"kind\": \"missing\"")) << result.second;
    EXPECT_TRUE(tells(result, "    \"control\": \"txtLandArea\"")) << result.second;
}

TEST_F(ReviewProgram, ComparesTwoProposalsAnswerByAnswer) {
    const std::string first = saved("a.xml", "Bungalow", "2");
    const std::string second = saved("b.xml", "Row houses", "2.00");
    EXPECT_EQ(review("--compare '" + first + "' '" + second + "'"),
              Result(1, "changed frmAnnexureA.txtTitle \"Proposal Title\": \"Bungalow\" became \"Row houses\"\n"));
    EXPECT_EQ(review("--compare '" + first + "' '" + first + "'"), Result(0, ""));
    EXPECT_EQ(review("--json --compare '" + first + "' '" + first + "'"), Result(0, "[]\n"));
}

TEST_F(ReviewProgram, WhatCannotBeReadIsOneLineAndStatusTwo) {
    const std::string usage = "usage: plandesk-review [--json] FILE, or plandesk-review [--json] --compare FILE FILE\n";
    const std::string good = saved("a.xml", "Bungalow");
    const std::string broken = folder.write("broken.xml", "<INWARDINFO>");
    const std::string other = folder.write("other.xml", "<html/>");
    EXPECT_EQ(review(""), Result(2, usage));
    EXPECT_EQ(review("--jsn '" + good + "'"), Result(2, usage));
    EXPECT_EQ(review("'" + good + "' '" + good + "'"), Result(2, usage));
    EXPECT_EQ(review("--compare '" + good + "'"), Result(2, usage));
    EXPECT_EQ(review(broken), Result(2, broken + ": cannot be read, or is no well-formed XML file\n"));
    EXPECT_EQ(review("--compare '" + good + "' " + other), Result(2, other + ": is no proposal document\n"));
    EXPECT_EQ(review("/nowhere/a.xml").first, 2);
}

}  // namespace
}  // namespace plandesk::test
