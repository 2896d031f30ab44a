#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/Ports.h"

namespace plandesk::test {

/// What opening a saved proposal and saving it again comes to, worked out from the file alone. Slow and literal, apart
/// from the code that it foretells: it shares nothing with it but the rules of texts, numbers and dates.
struct Prediction {
    std::vector<Message> boxes;  ///< that the opening shows
    /// The second file up to the land records, as text; nothing when a form refuses the save.
    std::optional<std::string> file;
};

/// For a machine whose villages have the numbers `villages`, on the day `today` (dd/MM/yyyy).
Prediction predict(const std::string& firstFile, const std::vector<int>& villages, const std::string& today);

}  // namespace plandesk::test
