#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "controls/Ports.h"

namespace plandesk::test {

/// Rows of each in-memory table by its name, their cells with "|" between and "(null)" for one that is null.
using TableContents = std::map<std::string, std::vector<std::string>>;

/// What opening a saved proposal and saving it again comes to, worked out from the file alone. Slow and literal, apart
/// from the code that it foretells: it shares nothing with it but the rules of texts, numbers and dates.
struct Prediction {
    std::vector<Message> boxes;         ///< that reading the sections shows
    std::vector<Message> blockBoxes;    ///< that reading the blocks behind them shows
    TableContents tablesRead;           ///< after the opening
    std::optional<std::string> file{};  ///< the second file as text; nothing when a form refuses the save
    TableContents tablesSaved{};        ///< after the save, where there is a file
};

/// For a machine whose villages have the numbers `villages`, on the day `today` (dd/MM/yyyy).
Prediction predict(const std::string& firstFile, const std::vector<int>& villages, const std::string& today);

}  // namespace plandesk::test
