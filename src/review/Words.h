#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "review/CarriedAnswers.h"
#include "review/Review.h"
#include "review/SilentSystem.h"

namespace plandesk {

/// Makes findings at the places of answers, in the words of the pages.
class Words {
public:
    explicit Words(const mdiInterface& original) : original(original) {}

    /// The question of the answer. A form that is not loaded is loaded in a copy, for its words.
    std::string of(const Answered& answered);
    Finding finding(FindingKind kind, const Answered& answered, std::string sentence, std::string cause = "");

    /// The place of a cell of a table that is carried; the row counts all rows of the original, from 0.
    Answered cell(Tables::Member table, int row, int column);

private:
    const mdiInterface& original;
    std::optional<SilentSystem> spare;
    std::map<int, std::vector<RowKey>> keys;  ///< of the tables by their places
};

}  // namespace plandesk
