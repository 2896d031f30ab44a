#include "proposal/ExtractGaps.h"

#include <algorithm>
#include <span>

#include "base/Numbers.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk {

std::int64_t HoledNumbers::counted(std::int64_t number) const {
    // A hole at place i of the list stands behind as many counted numbers as its own number less i.
    const auto passed = std::partition_point(
        holes.begin(), holes.end(), [&](const std::int64_t& hole) { return hole - (&hole - holes.data()) <= number; });
    return number + (passed - holes.begin());
}

std::optional<std::int64_t> HoledNumbers::count(std::int64_t number) const {
    const auto hole = std::ranges::lower_bound(holes, number);
    if (hole != holes.end() && *hole == number)
        return std::nullopt;
    return number - (hole - holes.begin());
}

std::int64_t HoledNumbers::leaveOut(std::int64_t number) {
    const std::int64_t hole = counted(number);
    holes.insert(std::ranges::lower_bound(holes, hole), hole);
    return hole;
}

Renumbering::Renumbering(const NumberChanges& changes, std::int32_t shift) {
    const auto passedOver = [](std::int32_t number) { return number < 1; };
    // Backwards: a number that comes last is its own, one that comes before is counted without those behind it.
    std::vector<std::int64_t> places;
    const std::vector<std::int32_t> lastFirst(changes.added.rbegin(), changes.added.rend());
    for (const std::int32_t number : lastFirst)
        if (!passedOver(number))
            places.push_back(old.leaveOut(std::int64_t{number} + shift));
    std::ranges::reverse(places);
    for (const std::int32_t number : changes.deleted) {
        if (!passedOver(number)) {
            kept.leaveOut(std::int64_t{number} + shift);
            anyDeleted = true;
        }
    }
    for (const std::int64_t place : places)
        addedNumbers.push_back(afterDeletions(place));
}

std::optional<std::int32_t> Renumbering::of(std::int32_t number) const {
    return afterDeletions(old.counted(number));
}

std::optional<std::int32_t> Renumbering::afterDeletions(std::int64_t number) const {
    toInteger32(static_cast<double>(number));  // it overflows where the additions take it, though a deletion follow
    const std::optional<std::int64_t> now = kept.count(number);
    return now ? std::optional(static_cast<std::int32_t>(*now)) : std::nullopt;
}

namespace {

void renumberRows(Recordset& table, const Renumbering& changes, int extNo) {
    for (const std::span<const Value> row : table.allRows())
        if (const auto* number = std::get_if<std::int32_t>(&row[static_cast<std::size_t>(extNo)]))
            changes.of(*number);  // a number that overflows tells before any row has changed
    table.setFilter("");
    for (table.moveFirst(); !table.eof(); table.moveNext()) {
        const auto* number = std::get_if<std::int32_t>(&table.get(extNo));
        if (!number)
            continue;
        const std::optional<std::int32_t> now = changes.of(*number);
        if (!now)
            table.deleteRow();
        else if (*now != *number)
            table.set(extNo, *now);
    }
}

void addRow(Recordset& table, int extNo, std::int32_t number, GapKind kind, Date today) {
    table.addNew();
    if (kind == GapKind::Dated)
        table.set(ExtractColumn::DateOf712, today);
    if (kind == GapKind::WithStatus)
        table.set(OwnershipColumn::DocStatus, 0);
    table.set(extNo, number);
    table.update();
}

}  // namespace

void renumber(Recordset& table, const Renumbering& changes, GapKind kind, Date today) {
    const int extNo = columnIndex(table.columns(), "ExtNo");  // it stands at another place in each table
    if (!changes.adds() && !changes.deletes())
        return;
    renumberRows(table, changes, extNo);
    const auto& added = changes.ofAdded();
    for (auto number = added.begin(); number != added.end(); ++number) {
        if (number + 1 == added.end()) {  // the last new row alone stands behind the sorted ones
            table.setFilter("");
            table.setSort(" ExtNo ");
        }
        if (*number)
            addRow(table, extNo, **number, kind, today);
    }
    if (!changes.deletes())
        return;
    table.setFilter("");
    table.moveFirst();
}

std::array<GapTable, 12> gapTables(const ExtractFamily& family) {
    return {{
        {family.extracts, GapKind::Dated},
        {family.owners, GapKind::NumberOnly},
        {family.holders, GapKind::NumberOnly},
        {&Tables::rsOwnership, GapKind::WithStatus, true},
        {&Tables::rsULCOrder, GapKind::NumberOnly, true},
        {&Tables::rsSchemeGrid, GapKind::NumberOnly, true},
        {&Tables::rsULCOrderUS22, GapKind::NumberOnly, true},
        {&Tables::rsUS84Plots, GapKind::NumberOnly, true},
        {&Tables::rsULCOrderUS84, GapKind::NumberOnly, true},
        {&Tables::rsULCOrderUS20a1, GapKind::NumberOnly, true},
        {&Tables::rsSchemeBuilt, GapKind::NumberOnly, true},
        {&Tables::rsSchemeSold, GapKind::NumberOnly, true},
    }};
}

}  // namespace plandesk
