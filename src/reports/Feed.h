#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "proposal/Tables.h"

// How a report is fed: a table of one row for each column, with the control that it is copied from and the rule.

namespace plandesk {

class Proposal;

enum class FeedRule {
    Text,         ///< the text of a box or list, the caption of a label, as it stands
    Trimmed,      ///< the same without blanks around it
    Upper,        ///< the same, and in upper case
    Page,         ///< as it stands, "--" when it is empty
    Date,         ///< of a picker, dd/MM/yyyy
    YesNo,        ///< "YES" or "NO" of a question, "--" without an answer
    Fixed,        ///< the source itself is the text
    RowNumber,    ///< from 1
    OptionsWalk,  ///< set by `Feed::walk` alone
    Nothing,      ///< never set
};

/// One column and where its text comes from.
struct FeedRow {
    std::string_view column;
    int width;  ///< of the column, in characters
    FeedRule rule;
    std::string_view source{};  ///< control as NAME or NAME(INDEX), question as controls/Answers.h knows it, or text
    std::string_view form{};
    std::string_view whileOpen{};  ///< a control of the form; while it is disabled the column is blank
};

/// What feeds one report, or several of one table.
struct Feed {
    std::span<const FeedRow> rows;
    std::span<const Column> columns;  ///< of the table, made of the rows by columnsOf
    Tables::Member table = nullptr;   ///< the project-wide variable that keeps the table; null: nothing keeps it
    int count = 1;                    ///< rows of the table; the sources of several are control arrays, from index 0
    void (*walk)(Proposal& proposal, Recordset& table) = nullptr;  ///< goes over the filled row in the end
};

template <std::size_t count>
constexpr std::array<Column, count> columnsOf(const std::array<FeedRow, count>& rows) {
    std::array<Column, count> columns{};
    for (std::size_t i = 0; i < count; ++i)
        columns[i] = {rows[i].column, ColumnKind::Text, rows[i].width};
    return columns;
}

/// Makes the table anew from the live controls; touches their forms. The variable has the new table from the start,
/// also when a RuntimeError ends the feed: 3265 with its name for a form or control that is not there.
std::shared_ptr<Recordset> feedTable(const Feed& feed, Proposal& proposal);

/// What is wrong with the feed, one sentence for each fault: a column that is there twice, that has no source though
/// its rule wants one or has one that it ignores, or whose control is not there.
std::vector<std::string> feedFaults(const Feed& feed, Proposal& proposal);

}  // namespace plandesk
