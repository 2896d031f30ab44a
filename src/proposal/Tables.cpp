#include "proposal/Tables.h"

#include <algorithm>

namespace plandesk {

namespace {

constexpr std::array<Tables::Member, 2> plotTables = {&Tables::rsPlotPRC, &Tables::rsPlot712};
constexpr std::array<Tables::Member, 5> plotAndOrderTables = {
    &Tables::rsPlot712, &Tables::rsULCOrderUS22, &Tables::rsOwnershipPRC, &Tables::rsULCOrder, &Tables::rsSchemeGrid};
constexpr std::array<Tables::Member, 1> ownershipTable = {&Tables::rsOwnership};

constexpr std::array<std::span<const Tables::Member>, 8> allTables = {
    plotTables, extractTables, ownerTables, holderTables, orderTables, plotAndOrderTables, orderTables, ownershipTable};

}  // namespace

std::span<const std::span<const Tables::Member>> creationOrder() {
    return allTables;
}

void Tables::createAllTables() {
    for (const std::span<const Member> group : allTables)
        create(group);
}

void Tables::create(Member table) {
    const auto definition = std::ranges::find(tableDefinitions(), table, &TableDefinition::table);
    this->*table = std::make_shared<Recordset>(definition->columns);
}

void Tables::create(std::span<const Member> tables) {
    for (const Member table : tables)
        create(table);
}

Recordset& Tables::ensure(Member table) {
    if (!(this->*table))
        create(table);
    return *(this->*table);
}

std::vector<Tables::Named> Tables::byName() const {
    std::vector<Named> named;
    named.reserve(tableDefinitions().size());
    for (const TableDefinition& definition : tableDefinitions())
        named.push_back({definition.name, (this->*definition.table).get()});
    return named;
}

}  // namespace plandesk
