#include "proposal/Tables.h"

#include <algorithm>

#include "proposal/DRCColumns.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"

namespace plandesk {

namespace {

constexpr std::array definitions = std::to_array<TableDefinition>({
    {"rsExtract712", &Tables::rsExtract712, extract712TableColumns},
    {"rsExtractPRC", &Tables::rsExtractPRC, extractPRCTableColumns},
    {"rsOwner712", &Tables::rsOwner712, ownerTableColumns},
    {"rsOwnerPRC", &Tables::rsOwnerPRC, ownerTableColumns},
    {"rsPAH712", &Tables::rsPAH712, holderTableColumns},
    {"rsPAHPRC", &Tables::rsPAHPRC, holderTableColumns},
    {"rsPlot712", &Tables::rsPlot712, plotTableColumns},
    {"rsPlotPRC", &Tables::rsPlotPRC, plotTableColumns},
    {"rsPlot712Saved", &Tables::rsPlot712Saved, plotTableColumns},
    {"rsPlotPRCSaved", &Tables::rsPlotPRCSaved, plotTableColumns},
    {"rsOwnership", &Tables::rsOwnership, ownershipTableColumns},
    {"rsOwnership712", &Tables::rsOwnership712, ownershipTableColumns},
    {"rsOwnershipPRC", &Tables::rsOwnershipPRC, ownershipTableColumns},
    {"rsULCOrder", &Tables::rsULCOrder, ulcOrderTableColumns},
    {"rsSchemeGrid", &Tables::rsSchemeGrid, schemeGridTableColumns},
    {"rsUS84Plots", &Tables::rsUS84Plots, us84PlotTableColumns},
    {"rsULCOrderUS84", &Tables::rsULCOrderUS84, us84OrderTableColumns},
    {"rsULCOrderUS20a1", &Tables::rsULCOrderUS20a1, us20a1OrderTableColumns},
    {"rsSchemeBuilt", &Tables::rsSchemeBuilt, schemeTableColumns},
    {"rsSchemeSold", &Tables::rsSchemeSold, schemeTableColumns},
    {"rsULCOrderUS22", &Tables::rsULCOrderUS22, us22OrderTableColumns},
    {"rsDRCIssue", &Tables::rsDRCIssue, drcIssueTableColumns},
    {"rsDRCTransfer", &Tables::rsDRCTransfer, drcTransferTableColumns},
    {"rsDRCUtilisation", &Tables::rsDRCUtilisation, drcUtilisationTableColumns},
});

constexpr std::array plotTables = std::to_array<Tables::Member>({&Tables::rsPlotPRC, &Tables::rsPlot712});
constexpr std::array plotAndOrderTables = std::to_array<Tables::Member>(
    {&Tables::rsPlot712, &Tables::rsULCOrderUS22, &Tables::rsOwnershipPRC, &Tables::rsULCOrder, &Tables::rsSchemeGrid});
constexpr std::array ownershipTable = std::to_array<Tables::Member>({&Tables::rsOwnership});

struct NamedTable {
    std::string_view name;
    Tables::Member table;
};
constexpr std::array reportTables = std::to_array<NamedTable>({
    {"rsReportParticulars", &Tables::rsReportParticulars},
    {"rsReportPayment", &Tables::rsReportPayment},
    {"rsReportHeader", &Tables::rsReportHeader},
    {"rsReportChecklist", &Tables::rsReportChecklist},
});

constexpr std::array allTables =
    std::to_array<std::span<const Tables::Member>>({plotTables, extractTables, ownerTables, holderTables, orderTables,
                                                    plotAndOrderTables, orderTables, ownershipTable});

}  // namespace

std::span<const TableDefinition> tableDefinitions() {
    return definitions;
}

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

Tables::Reference Tables::copyOf(const Reference& table, Copies& copies) {
    if (!table)
        return nullptr;
    Reference& copy = copies[table.get()];
    if (!copy)
        copy = table->copy();
    return copy;
}

void Tables::copyFrom(const Tables& original, Copies& copies) {
    for (const TableDefinition& definition : tableDefinitions())
        this->*definition.table = copyOf(original.*definition.table, copies);
    for (const NamedTable& report : reportTables)
        this->*report.table = copyOf(original.*report.table, copies);
}

std::vector<Tables::Named> Tables::byName() const {
    std::vector<Named> named;
    named.reserve(tableDefinitions().size() + reportTables.size());
    for (const TableDefinition& definition : tableDefinitions())
        named.push_back({definition.name, (this->*definition.table).get()});
    for (const NamedTable& table : reportTables)
        named.push_back({table.name, (this->*table.table).get()});
    return named;
}

}  // namespace plandesk
