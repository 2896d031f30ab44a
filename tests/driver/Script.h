#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace plandesk::driver {

/// The script itself is wrong; the run ends.
class ScriptError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Word {
    std::string text;  ///< without its quotes, escapes resolved
    bool quoted = false;
};

/// The words of a line; none for a blank line and a comment. ScriptError for quotes or escapes that are none.
std::vector<Word> splitWords(std::string_view line);

/// The text as a quoted word.
std::string quote(std::string_view text);

/// Nothing for a text that is no whole number of 32 bits.
std::optional<int> wholeNumber(std::string_view text);

/// ScriptError for a text that is no whole number from 0.
int countingNumber(const std::string& text);

}  // namespace plandesk::driver
