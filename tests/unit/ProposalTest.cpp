#include "proposal/Proposal.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

#include "unit/TestPorts.h"

namespace plandesk {
namespace {

struct ProposalTest : testing::Test {
    test::TestPorts ports;
    Proposal proposal{ports};
};

TEST_F(ProposalTest, StartsWithNothingOpenAndNothingCounted) {
    for (const auto& [name, flag] : Proposal::flags)
        EXPECT_FALSE(proposal.*flag) << name;
    for (const auto& [name, number] : Proposal::numbers)
        EXPECT_EQ(proposal.*number, 0) << name;
    for (const auto& [name, text] : Proposal::fragments)
        EXPECT_EQ(proposal.*text, "") << name;
    EXPECT_TRUE(proposal.forms.all().empty());
}

TEST_F(ProposalTest, NamesOfItsVariablesLeadToVariablesOfTheirOwn) {
    std::set<std::string_view> names;
    for (const auto& [name, flag] : Proposal::flags) {
        names.insert(name);
        EXPECT_FALSE(proposal.*flag) << name << " is another's variable";
        proposal.*flag = true;
    }
    for (const auto& [name, number] : Proposal::numbers) {
        names.insert(name);
        EXPECT_EQ(proposal.*number, 0) << name << " is another's variable";
        proposal.*number = static_cast<std::int16_t>(names.size());
    }
    for (const auto& [name, text] : Proposal::fragments) {
        names.insert(name);
        EXPECT_EQ(proposal.*text, "") << name << " is another's variable";
        proposal.*text = name;
    }
    EXPECT_EQ(names.size(), Proposal::flags.size() + Proposal::numbers.size() + Proposal::fragments.size());
    EXPECT_TRUE(proposal.isProposalOpen);
    EXPECT_TRUE(proposal.isDirectPrint);
    EXPECT_EQ(proposal.annexureBXML, "annexureBXML");
    EXPECT_EQ(proposal.secondScrutinyFees, "secondScrutinyFees");
}

TEST_F(ProposalTest, CommandsThatNobodyFilledInDoNothing) {
    proposal.commands.saveProposal();
    proposal.commands.SaveData();
    proposal.commands.CreateXMLFIle();
    proposal.commands.buildBlock(&Proposal::annexureBXML);
    proposal.commands.readBlock(&Proposal::naOrderXML);
    proposal.commands.readXml();
    proposal.commands.refreshMenus();
    proposal.commands.open("frmPlotExtractRelation");
    proposal.commands.print("rptReciept");
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(ports.files.contents.empty());
    EXPECT_EQ(ports.program.ends, 0);
}

TEST_F(ProposalTest, ProceduresAreFoundInAnyCase) {
    int runs = 0;
    proposal.procedures["saveProposal"] = [&runs] { ++runs; };
    const auto found = proposal.procedures.find(std::string_view("SAVEPROPOSAL"));
    ASSERT_NE(found, proposal.procedures.end());
    found->second();
    EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace plandesk
