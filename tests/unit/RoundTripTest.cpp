// Random proposals with everything in them are saved, opened and saved again; boxes, tables and the second file are
// what the rules foretell from the first file alone. PLANDESK_SEED=N repeats the one proposal of that seed,
// PLANDESK_ROUNDS=N tries that many, from that seed on if one is given.

#include <iostream>

#include <gtest/gtest.h>

#include "ProposalFile.h"
#include "RoundTripModel.h"
#include "base/CodePage.h"
#include "unit/RandomRounds.h"
#include "unit/roundtrip/RandomProposal.h"

namespace plandesk::test {

namespace {

/// Each tells its failure in one box; without a root all of them do.
constexpr std::size_t blockProcedures = 6;

/// Saves the proposal of the world as a new file; nothing when a form refuses it.
std::optional<std::string> save(World& world, const std::string& path) {
    world.ports.dialogs.answers = {path};
    world.proposal.screen.event([&] { world.shell.run("mnuSaveAs_Click"); });
    const auto file = world.ports.files.contents.find(path);
    return file == world.ports.files.contents.end() ? std::nullopt : std::optional(file->second);
}

/// The rows of the tables that the model knows.
TableContents contentsOf(const World& world, const TableContents& known) {
    TableContents all;
    for (const auto& [name, table] : world.proposal.tables.byName()) {
        if (!known.contains(std::string(name)))
            continue;
        std::vector<std::string>& lines = all[std::string(name)];
        if (!table)
            continue;
        for (const auto& row : table->allRows()) {
            std::string line;
            for (const Value& value : row)
                line += (&value == row.data() ? "" : "|") + (isNull(value) ? "(null)" : valueText(value));
            lines.push_back(line);
        }
    }
    return all;
}

void expectTables(const World& world, const TableContents& expected, std::string_view when, std::uint64_t seed) {
    for (const auto& [name, rows] : contentsOf(world, expected))
        EXPECT_EQ(rows, expected.at(name)) << name << " after the " << when << ", seed " << seed;
}

/// Where two texts part, with what stands around there.
std::string difference(const std::string& found, const std::string& expected) {
    const auto at = static_cast<std::size_t>(
        std::mismatch(found.begin(), found.end(), expected.begin(), expected.end()).first - found.begin());
    const std::size_t from = at < 80 ? 0 : at - 80;
    return "found    " + found.substr(from, 200) + "\nexpected " + expected.substr(from, 200);
}

enum class Outcome { Refused, NoRoot, SecondRefused, BlocksFailed, Whole };

/// `rows`: takes up the number of rows that the opening has brought into each table.
Outcome roundTrip(const ScratchFolder& folder, std::uint64_t seed, std::map<std::string, std::size_t>& rows) {
    World first;
    first.shell.press("mnuNew");
    RandomProposal(first, seed).fill();
    const std::optional<std::string> file = save(first, "/home/first.xml");
    if (!file)
        return Outcome::Refused;
    const Prediction expected = predict(*file, {1, 2, 11}, first.ports.clock.day.text());
    std::vector<Message> boxes = expected.boxes;
    boxes.insert(boxes.end(), expected.blockBoxes.begin(), expected.blockBoxes.end());

    World second;
    const std::string path = folder.write("first.xml", *file);
    second.ports.dialogs.answers = {path};
    second.shell.press("mnuOpen");
    EXPECT_EQ(second.ports.dialogs.take(), boxes) << "boxes of the opening, seed " << seed;
    expectTables(second, expected.tablesRead, "opening", seed);
    for (const auto& [table, lines] : expected.tablesRead)
        rows[table] += lines.size();
    const std::optional<std::string> again = save(second, "/home/second.xml");
    EXPECT_EQ(again.has_value(), expected.file.has_value()) << "seed " << seed;
    if (!again || !expected.file)
        return Outcome::SecondRefused;
    const std::string wanted = toCodePage(*expected.file + "\r\n", systemCodePage());
    EXPECT_TRUE(*again == wanted) << "seed " << seed << "\n" << difference(*again, wanted);
    expectTables(second, expected.tablesSaved, "save", seed);
    const bool noRoot = expected.blockBoxes.size() == blockProcedures;
    return noRoot ? Outcome::NoRoot : expected.blockBoxes.empty() ? Outcome::Whole : Outcome::BlocksFailed;
}

bool emptyAfterReading(std::string_view table) {
    return table == "rsOwnershipPRC" || table == "rsSchemeGrid";
}

}  // namespace

TEST(RoundTrip, theSecondFileIsWhatTheRulesForetellFromTheFirst) {
    auto [rounds, seed] = RandomRounds(2000, 300);
    const ScratchFolder folder;
    std::map<Outcome, int> outcomes;
    std::map<std::string, std::size_t> rows;
    int files = 0;
    const int most = 10 * rounds + 100;  // where nothing can be saved the walk would have no end
    for (int tries = 0; files < rounds && !HasFailure(); ++seed, ++tries) {
        ASSERT_LT(tries, most) << "hardly a proposal is saved";
        const Outcome outcome = roundTrip(folder, seed, rows);
        ++outcomes[outcome];
        files += outcome > Outcome::SecondRefused || outcome == Outcome::NoRoot || rounds == 1 ? 1 : 0;
    }
    std::cout << files << " second files compared, " << outcomes[Outcome::NoRoot]
              << " of them after a file without a root and " << outcomes[Outcome::BlocksFailed]
              << " after one with a block that cannot be read whole; " << outcomes[Outcome::SecondRefused]
              << " refused the second time, " << outcomes[Outcome::Refused] << " the first time" << std::endl;
    for (const auto& [table, count] : rows)
        std::cout << count << " rows of " << table << ", ";
    std::cout << "read" << std::endl;
    // Else the random hands would hardly try what they are there for.
    if (files >= 200 && !HasFailure()) {
        EXPECT_GT(outcomes[Outcome::Whole], files / 4);
        EXPECT_GT(outcomes[Outcome::BlocksFailed], files / 50);
        for (const auto& [table, count] : rows)
            EXPECT_TRUE(count > 0 || emptyAfterReading(table)) << table;
    }
}

}  // namespace plandesk::test
