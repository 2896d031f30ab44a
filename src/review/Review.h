#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/mdiInterface.h"

namespace plandesk {

enum class FindingKind { Missing, Changed, Consider };

/// The word of scripts and files: "missing", "changed", "consider".
std::string_view kindWord(FindingKind kind);

/// One thing that a proposal still lacks, that the office would not get as typed, or that is worth a second look.
struct Finding {
    FindingKind kind;
    std::string form;     ///< where it can be mended; empty when it is about no one place
    std::string control;  ///< key of the control or grid
    int row = -1;         ///< of a cell: place of its row in the table, filter or not, from 0
    int column = -1;
    std::string question;  ///< in the words of the page
    std::string sentence;
    std::string cause{};  ///< why, where it is known
    int extract = 0;      ///< of a cell of the land records or orders: the extract that shows it; else 0
};

/// Looks a whole proposal through on copies of it; the proposal itself is not touched. What is missing comes first, in
/// the order of the forms, then what will not arrive as typed, a document that cannot be read before all else of it,
/// then what is to be considered.
std::vector<Finding> review(const mdiInterface& original);

/// One finding in one line, for lists.
std::string lineOf(const Finding& finding);

}  // namespace plandesk
