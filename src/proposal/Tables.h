#pragma once

#include <array>
#include <map>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "proposal/Recordset.h"

// Columns stand in LandRecordColumns.h, OrderColumns.h and DRCColumns.h: for each table an enumeration of their places,
// by which everything goes that reads, writes, shows or reacts to one, and below it the columns. A place without its
// column does not compile. The names in quotes are the system's own, misspellings included: look-ups, documents and
// reports go by them.

namespace plandesk {

struct TableDefinition;

/// The project-wide tables of the open proposal. Each variable is a reference: creating a table anew leaves the old one
/// to whoever else refers to it. A null one has not been created yet or was dropped.
struct Tables {
    using Reference = std::shared_ptr<Recordset>;
    using Member = Reference Tables::*;

    // Land records
    Reference rsExtract712;
    Reference rsExtractPRC;
    Reference rsOwner712;
    Reference rsOwnerPRC;
    Reference rsPAH712;
    Reference rsPAHPRC;

    // Plots, and their snapshots
    Reference rsPlot712;
    Reference rsPlotPRC;
    Reference rsPlot712Saved;
    Reference rsPlotPRCSaved;

    // Ownership: rsOwnership is the table that now counts, rsOwnership712 the one that did when a land-record save
    // ended
    Reference rsOwnership;
    Reference rsOwnership712;
    Reference rsOwnershipPRC;

    // Orders under the Urban Land Ceiling Act
    Reference rsULCOrder;
    Reference rsSchemeGrid;
    Reference rsUS84Plots;
    Reference rsULCOrderUS84;
    Reference rsULCOrderUS20a1;
    Reference rsSchemeBuilt;
    Reference rsSchemeSold;
    Reference rsULCOrderUS22;

    // Transfer of development rights: one row each, created anew by each save of its form
    Reference rsDRCIssue;
    Reference rsDRCTransfer;
    Reference rsDRCUtilisation;

    // What reports are fed through: each made anew by its feed, which knows its columns
    Reference rsReportParticulars;
    Reference rsReportPayment;
    Reference rsReportHeader;
    Reference rsReportChecklist;

    /// Creates every table of creationOrder, empty. Snapshots, rsOwnership712, the development-rights tables and those
    /// of reports stay.
    void createAllTables();

    /// Creates the table, or those of the list in its order, empty.
    void create(Member table);
    void create(std::span<const Member> tables);

    /// The table, created empty if it was dropped or never made.
    Recordset& ensure(Member table);

    /// Copies of tables by their originals. Variables that share a table share its copy.
    using Copies = std::map<const Recordset*, Reference>;
    /// The copy of that table, made at the first call; null for null.
    static Reference copyOf(const Reference& table, Copies& copies);
    /// Every variable gets the copy of the table it has there.
    void copyFrom(const Tables& original, Copies& copies);

    struct Named {
        std::string_view name;
        Recordset* table;  ///< null when there is none
    };
    /// Every variable by its name, in the order of declaration.
    std::vector<Named> byName() const;
};

struct TableDefinition {
    std::string_view name;
    Tables::Member table;
    std::span<const Column> columns;
};

/// Every table with its columns, in the order of declaration, but for those of reports.
std::span<const TableDefinition> tableDefinitions();

// Tables that are always created together: whoever needs one of them empty gets all of them empty.
inline constexpr std::array extractTables =
    std::to_array<Tables::Member>({&Tables::rsExtract712, &Tables::rsExtractPRC});
inline constexpr std::array ownerTables = std::to_array<Tables::Member>({&Tables::rsOwner712, &Tables::rsOwnerPRC});
inline constexpr std::array holderTables = std::to_array<Tables::Member>({&Tables::rsPAH712, &Tables::rsPAHPRC});
inline constexpr std::array orderTables =
    std::to_array<Tables::Member>({&Tables::rsUS84Plots, &Tables::rsULCOrderUS84, &Tables::rsULCOrderUS20a1,
                                   &Tables::rsSchemeBuilt, &Tables::rsSchemeSold});

/// What createAllTables creates, in this order; what is created a second time is still empty then.
std::span<const std::span<const Tables::Member>> creationOrder();

}  // namespace plandesk
