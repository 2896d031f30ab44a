// A copy of a running system is the same as its original, and does the same from then on.
// PLANDESK_SEED=N repeats the one sequence of that seed, PLANDESK_ROUNDS=N tries that many.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "shell/FormCatalogue.h"
#include "unit/FormEvents.h"
#include "unit/RandomRounds.h"
#include "unit/Sources.h"
#include "unit/StateText.h"

namespace plandesk::test {
namespace {

std::string stateOfAll(FormEvents& world) {
    std::string text = stateOf(world.proposal, world.shell);
    for (const Message& message : world.ports.dialogs.messages)
        text += "box " + message.title + ": " + message.text + '\n';
    return text;
}

/// `copy` is a system that was just started.
void copyTo(FormEvents& copy, const FormEvents& original) {
    copy.shell.copyFrom(original.shell);
    copy.ports.dialogs.answers = original.ports.dialogs.answers;
    copy.ports.dialogs.messages = original.ports.dialogs.messages;
    copy.ports.files.contents = original.ports.files.contents;
    copy.ports.printer = original.ports.printer;
}

/// The lines that are not the same, as far as one wants to read.
std::string difference(const std::string& a, const std::string& b) {
    std::istringstream first(a);
    std::istringstream second(b);
    std::string lines;
    for (std::string one, other; lines.size() < 2000;) {
        const bool more = static_cast<bool>(std::getline(first, one));
        const bool otherMore = static_cast<bool>(std::getline(second, other));
        if (!more && !otherMore)
            break;
        if (one != other)
            lines.append("< ").append(one.substr(0, 300)).append("\n> ").append(other.substr(0, 300)).append("\n");
    }
    return lines;
}

TEST(ProposalCopy, HoldsWhatTheOriginalHoldsAndLeavesItAlone) {
    FormEvents original;
    original.shell.press("mnuNew");
    original.fillFirstPage();
    original.relatePlots();
    for (const FormRow& row : formCatalogue())
        original.proposal.forms.touch(row.name);
    const std::string before = stateOfAll(original);
    FormEvents copy;
    copyTo(copy, original);
    EXPECT_EQ(difference(stateOfAll(copy), before), "");
    copy.box("frmAnnexureA", "txtTitle").setText("Another");
    copy.shell.press("mnuNew");
    EXPECT_EQ(difference(stateOfAll(original), before), "");
}

TEST(ProposalCopy, RunsNoReactionAndShowsNoBox) {
    FormEvents original;
    original.saveNewProposal("/plans/proposal.xml");
    FormEvents copy;
    copy.ports.files.contents.clear();  // a load reaction would miss the list of villages
    copy.shell.copyFrom(original.shell);
    EXPECT_TRUE(copy.ports.dialogs.messages.empty());
    EXPECT_EQ(copy.list("frmAnnexureA", "cboSector").listCount(), 3);
}

TEST(ProposalCopy, TablesThatTwoVariablesShareStayOneTable) {
    FormEvents original;
    original.proposal.tables.rsOwnership712 = original.proposal.tables.rsOwnership;
    FormEvents copy;
    copyTo(copy, original);
    EXPECT_EQ(copy.proposal.tables.rsOwnership712, copy.proposal.tables.rsOwnership);
    EXPECT_NE(copy.proposal.tables.rsOwnership, original.proposal.tables.rsOwnership);
}

TEST(ProposalCopy, EveryTableIsAmongThoseThatAreCopied) {
    EXPECT_EQ(Tables().byName().size() * sizeof(Tables::Reference), sizeof(Tables));
}

TEST(ProposalCopy, AGridKeepsATableThatNoVariableRefersTo) {
    FormEvents original;
    original.shell.press("mnuNew");
    original.relatePlots();
    original.proposal.tables.createAllTables();
    FormEvents copy;
    copyTo(copy, original);
    const Grid& grid = copy.grid("frmMain712", "dgdInfoOfExtract");
    ASSERT_NE(grid.table(), nullptr);
    EXPECT_NE(grid.table(), original.grid("frmMain712", "dgdInfoOfExtract").table());
    EXPECT_EQ(grid.table()->rowCount(), 3);
}

/// What the land records and orders are worked with, so that random events reach far into them.
void workOnLandRecords(FormEvents& world, Bytes& bytes) {
    struct Act {
        std::string_view form, key;
    };
    static constexpr std::array buttons = std::to_array<Act>({
        {"frmPlotExtractRelation", "cmdSave712Relation"},
        {"frmPlotExtractRelation", "cmdSave"},
        {"frmPlotExtractRelation", "cmdAddPlot"},
        {"frmMain712", "cmdSave"},
        {"frmPRCEXT", "cmdSave"},
        {"frmNaOrder", "cmdSave"},
        {"frmScrutinyULC", "cmdSave"},
        {"frmScrutinyULC", "cmdDetails"},
    });
    static constexpr std::array grids = std::to_array<Act>({
        {"frmPlotExtractRelation", "dgd712ExtractRelation"},
        {"frmPlotExtractRelation", "dgdPRCPlotRel"},
        {"frmMain712", "dgdInfoOfExtract"},
        {"frmMain712", "dgdOwner"},
        {"frmPRCEXT", "dgdInfoOfExtract"},
        {"frmPRCEXT", "dgdPAH"},
        {"frmScrutinyULC", "dgdULCOrderDetails"},
        {"frmUS84", "dgdTableAB"},
    });
    static constexpr std::array menus =
        std::to_array<std::string_view>({"mnuPlotExtRelationShip", "mnu712Ext", "mnuPrc", "mnuNaOrder", "mnuUlcOrder"});
    switch (bytes.below(6)) {
    case 0: {
        const Act& act = buttons[bytes.below(buttons.size())];
        user::click(world.proposal.forms.touch(act.form)->at(act.key));
        break;
    }
    case 1:
        world.shell.press(menus[bytes.below(menus.size())]);
        break;
    case 2:
        user::pick(world.list(bytes.below(2) == 0 ? "frmMain712" : "frmPRCEXT", "cmbExtract"),
                   static_cast<int>(bytes.below(4)));
        break;
    default: {
        const Act& act = grids[bytes.below(grids.size())];
        Grid& grid = world.grid(act.form, act.key);
        const auto row = static_cast<int>(bytes.below(3));
        const auto column = static_cast<int>(bytes.below(9));
        if (bytes.below(3) == 0)
            user::clickCell(grid, row, column);
        else
            user::editCell(grid, row, column, std::to_string(bytes.below(5)));
    }
    }
}

void act(FormEvents& world, Bytes& bytes) {
    static constexpr std::string_view path = "/plans/proposal.xml";
    switch (bytes.below(8)) {
    case 0:
    case 1:
    case 2:
        return workOnLandRecords(world, bytes);
    case 3:
        world.ports.dialogs.answers.assign(1, std::string(path));
        world.shell.press(bytes.below(2) == 0 ? "mnuSave" : "mnuOpen");
        return;
    default:
        return world.act(bytes);
    }
}

std::vector<std::uint8_t> randomBytes(std::mt19937& engine, std::size_t count) {
    std::vector<std::uint8_t> bytes(count);
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>(engine() >> 8);
    return bytes;
}

/// Some events, a copy, and the same further events on both. What differs, or nothing.
std::string compareOneSequence(std::uint32_t seed) {
    std::mt19937 engine(seed);
    FormEvents original;
    const std::vector<std::uint8_t> first = randomBytes(engine, 40 + engine() % 120);
    Bytes bytes(first);
    original.start(bytes);
    while (!bytes.empty() && !original.proposal.screen.ended())
        act(original, bytes);

    const std::string before = stateOfAll(original);
    FormEvents copy;
    copyTo(copy, original);
    if (stateOfAll(original) != before)
        return "the original was changed\n" + difference(before, stateOfAll(original));
    const std::vector<std::uint8_t> then = randomBytes(engine, 60);
    Bytes left(then);
    Bytes right(then);
    for (int event = 0;; ++event) {
        const std::string expected = event == 0 ? before : stateOfAll(original);
        const std::string found = stateOfAll(copy);
        if (found != expected)
            return "after " + std::to_string(event) + " further events\n" + difference(expected, found);
        if (left.empty() || original.proposal.screen.ended())
            return "";
        act(original, left);
        act(copy, right);
    }
}

TEST(ProposalCopy, DoesTheSameAsItsOriginalFromThenOn) {
    auto [rounds, seed] = RandomRounds(1000, 150);
    for (int round = 0; round < rounds; ++round, ++seed) {
        const std::string differs = compareOneSequence(static_cast<std::uint32_t>(seed));
        ASSERT_EQ(differs, "") << "PLANDESK_SEED=" << seed;
    }
}

// What a form points at would be shared by its copy. Such a member says in its type what becomes of it (Fixed), or is
// one of those that were looked at.
TEST(ProposalCopy, NoFormHasAMemberThatItsCopyWouldShare) {
    static const std::set<std::string> lookedAt{
        "Grid.h: Control* editor",  // these three are told by Grid::settleIn
        "Grid.h: const Control* labelBelow",
        "Grid.h: std::shared_ptr<Recordset> source",
        "ExtractForm.h: const ExtractWording* wording",  // one of two constant tables
        "DocCheckList.h: TextBox* box",                  // of a result, no member of the form
        "DocCheckList.h: const CheckBox* unticked",      // the same
        "frmAnnexureA.h: Control* field",                // the same
    };
    const std::regex pointer(
        R"(^\s+((?:const |mutable )?[\w:<>, ()]*(?:\*|std::function<[^;]*>|std::(?:shared|unique|weak)_ptr<[^;]*>|Tables::Reference)\s*\w+)(?: = [^;]*|\{[^;]*\})?;)");
    const std::filesystem::path sources = std::filesystem::path(PLANDESK_SOURCES) / "src";
    std::vector<std::filesystem::path> headers{sources / "proposal/Grid.h", sources / "proposal/DataForm.h",
                                               sources / "controls/Control.h", sources / "controls/Controls.h"};
    for (const std::string_view folder :
         {"particulars", "landrecords", "ulc", "fees", "drc", "reports", "reports/letters", "shell"})
        for (const auto& entry : std::filesystem::directory_iterator(sources / folder)) {
            const bool formsAlone = folder == "reports" || folder == "shell";
            if (entry.path().extension() == ".h" &&
                (!formsAlone || entry.path().filename().string().starts_with("frm")))
                headers.push_back(entry.path());
        }
    for (const std::filesystem::path& header : headers) {
        const std::string name = header.filename();
        std::ifstream file(header);
        for (std::string line; std::getline(file, line);) {
            std::smatch found;
            const bool suspect = std::regex_search(line, found, pointer) && line.find("Fixed<") == line.npos &&
                                 line.find("::*") == line.npos && line.find("return") == line.npos &&
                                 line.find("using") == line.npos;
            EXPECT_TRUE(!suspect || lookedAt.contains(name + ": " + found[1].str())) << name << ": " << line;
        }
    }
    EXPECT_GE(headers.size(), 30U);
}

}  // namespace
}  // namespace plandesk::test
