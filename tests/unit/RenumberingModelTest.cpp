#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "LiteralGaps.h"
#include "base/RuntimeError.h"

// Renumbering against the gaps taken one after the other.

namespace plandesk::test {
namespace {

const Date today{2024, 3, 9};

class RenumberingModel : public testing::Test {
protected:
    static constexpr unsigned seed = 4000;
    std::mt19937 random{seed};
    Tables tables;

    int between(int first, int last) { return std::uniform_int_distribution<int>(first, last)(random); }

    std::vector<std::int32_t> numbers(int most, int first, int last) {
        std::vector<std::int32_t> list(static_cast<std::size_t>(between(0, most)));
        std::ranges::generate(list, [&] { return between(first, last); });
        return list;
    }
    NumberChanges someChanges(int most, int last) { return {numbers(most, -1, last), numbers(most, -1, last)}; }

    /// Two tables with the same rows of numbers up to `last`, under the same filter and sort, on the same row.
    struct Pair {
        std::shared_ptr<Recordset> one;
        std::shared_ptr<Recordset> other;
        std::array<Recordset*, 2> both() const { return {one.get(), other.get()}; }
    };
    Pair alikeTables(Tables::Member member, int rows, int last) {
        tables.create(member);
        Pair pair{tables.*member, nullptr};
        tables.create(member);
        pair.other = tables.*member;
        for (int row = 0; row < rows; ++row) {
            const bool numbered = between(0, 19) > 0;
            const int number = between(-1, last);
            for (Recordset* table : pair.both()) {
                table->addNew();
                if (numbered)
                    table->set("ExtNo", number);
                table->set(member == &Tables::rsExtract712 ? "SurveyNo" : "Name", std::to_string(row));
                table->update();
            }
        }
        const char* const filter = std::array{"", "ExtNo = 3", "ExtNo > 2"}.at(random() % 3);
        const char* const sort = std::array{"", " ExtNo ", " ExtNo DESC "}.at(random() % 3);
        const unsigned moves = random() % 3;
        for (Recordset* table : pair.both()) {
            table->setSort(sort);
            table->setFilter(filter);
            for (unsigned move = 0; move < moves && !table->eof(); ++move)
                table->moveNext();
        }
        return pair;
    }

    static std::string valuesOf(std::span<const Value> row) {
        std::string text;
        for (const Value& value : row)
            text += (isNull(value) ? "-" : valueText(value)) + "|";
        return text;
    }

    /// Everything that can be seen of a table.
    static std::string described(Recordset& table) {
        std::string text = "filter " + table.filter() + " sort " + table.sort() + " at " +
                           std::to_string(table.absolutePosition()) + (table.eof() ? " end" : "") + "\n";
        for (const auto& row : table.allRows())
            text += valuesOf(row) + "\n";
        text += "visible\n";
        for (int row = 1; row <= table.recordCount(); ++row)
            for (int column = 0; column < static_cast<int>(table.columns().size()); ++column)
                text += valueText(table.valueAt(row, column)) + "|";
        return text;
    }

    void expectAlike(const Pair& pair, const NumberChanges& changes, int shift, GapKind kind) {
        renumber(*pair.one, Renumbering(changes, shift), kind, today);
        renumberLiterally(*pair.other, changes, shift, kind, today);
        EXPECT_EQ(described(*pair.one), described(*pair.other));
        // What the tables do next shows that they stand alike inside too.
        for (Recordset* table : pair.both())
            if (!table->eof())
                table->moveNext();
        EXPECT_EQ(pair.one->absolutePosition(), pair.other->absolutePosition());
    }
};

TEST_F(RenumberingModel, RandomChangesLeaveATableAsGapAfterGapDoes) {
    constexpr int rounds = 5000;
    constexpr std::array<std::pair<Tables::Member, GapKind>, 3> kinds = {{{&Tables::rsExtract712, GapKind::Dated},
                                                                          {&Tables::rsOwner712, GapKind::NumberOnly},
                                                                          {&Tables::rsOwnership, GapKind::WithStatus}}};
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        const auto [member, kind] = kinds.at(random() % kinds.size());
        const Pair pair = alikeTables(member, between(0, 12), 8);
        expectAlike(pair, someChanges(round % 4 == 0 ? 0 : 6, 10), between(0, 3) == 0 ? between(-3, 3) : 0, kind);
        // Once more: what one change leaves is what the next one finds.
        expectAlike(pair, someChanges(4, 10), 0, kind);
    }
}

TEST_F(RenumberingModel, LongListsLeaveATableAsGapAfterGapDoes) {
    for (int round = 0; round < 4 && !HasFailure(); ++round) {
        const Pair pair = alikeTables(&Tables::rsOwner712, 600, 400);
        expectAlike(pair, someChanges(300, 500), 0, GapKind::NumberOnly);
    }
}

/// The numbers from 1 on and those that are added, with what each became, by counting alone.
void expectNumbersAlike(const NumberChanges& changes, int last) {
    struct Extract {
        int number;
        bool gone = false;
    };
    std::vector<Extract> extracts;
    for (int number = 1; number <= last; ++number)
        extracts.push_back({number});
    for (const int added : changes.added) {
        for (Extract& each : extracts)
            each.number += each.number >= added ? 1 : 0;
        extracts.push_back({added});
    }
    for (const int deleted : changes.deleted) {
        for (Extract& each : extracts) {
            each.gone = each.gone || each.number == deleted;
            each.number -= !each.gone && each.number > deleted ? 1 : 0;
        }
    }
    const Renumbering renumbering(changes);
    ASSERT_EQ(renumbering.ofAdded().size(), changes.added.size());
    for (std::size_t i = 0; i < extracts.size(); ++i) {
        const auto number = static_cast<std::size_t>(last);
        const std::optional<std::int32_t> now =
            i < number ? renumbering.of(static_cast<int>(i) + 1) : renumbering.ofAdded()[i - number];
        ASSERT_EQ(now, extracts[i].gone ? std::nullopt : std::optional(extracts[i].number)) << "extract " << i;
    }
}

TEST_F(RenumberingModel, FourThousandNumbersBeforeFourThousandExtractsBecomeWhatCountingMakesOfThem) {
    constexpr int many = 4000;
    NumberChanges rising;
    for (int number = 1; number <= many; ++number) {
        rising.added.push_back(number);
        rising.deleted.push_back(number / 2 + 1);
    }
    expectNumbersAlike(rising, many);
    expectNumbersAlike({rising.added, {}}, many);
    expectNumbersAlike({{}, rising.added}, many);
    NumberChanges falling = rising;
    std::ranges::reverse(falling.added);
    std::ranges::reverse(falling.deleted);
    expectNumbersAlike(falling, many);
    NumberChanges mixed = rising;
    std::ranges::generate(mixed.added, [&] { return between(1, 2 * many); });
    std::ranges::generate(mixed.deleted, [&] { return between(1, 2 * many); });
    expectNumbersAlike(mixed, many);
}

TEST_F(RenumberingModel, ANumberThatOverflowsOnTheWayIsAnErrorThoughADeletionWouldBringItBack) {
    const Renumbering changes({.added = {1}, .deleted = {1}});
    EXPECT_EQ(changes.of(2147483646), 2147483646);
    EXPECT_THROW(changes.of(2147483647), RuntimeError);
    Recordset& owners = tables.ensure(&Tables::rsOwner712);
    for (const int number : {7, 2147483647}) {
        owners.addNew();
        owners.set("ExtNo", number);
        owners.update();
    }
    owners.setFilter("ExtNo = 7");
    EXPECT_THROW(renumber(owners, changes, GapKind::NumberOnly, today), RuntimeError);
    EXPECT_EQ(owners.filter(), "ExtNo = 7");
    EXPECT_EQ(owners.rowCount(), 2);
    EXPECT_EQ(owners.get("ExtNo"), Value(7));
}

}  // namespace
}  // namespace plandesk::test
