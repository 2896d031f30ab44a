#include "driver/Script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

namespace plandesk::driver {

namespace {

constexpr std::string_view blanks = " \t";

struct Escape {
    char written;
    char meant;
};
constexpr std::array escapes = std::to_array<Escape>({{'"', '"'}, {'\\', '\\'}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}});

char resolve(char written) {
    for (const Escape& escape : escapes)
        if (escape.written == written)
            return escape.meant;
    throw ScriptError(std::string("unknown escape \\") + written);
}

/// Takes a quoted word off the front of the line.
Word takeQuoted(std::string_view& line) {
    Word word{"", true};
    for (std::size_t at = 1; at < line.size(); ++at) {
        if (line[at] == '"') {
            line.remove_prefix(at + 1);
            if (!line.empty() && blanks.find(line.front()) == blanks.npos)
                throw ScriptError("a blank is missing behind a quoted word");
            return word;
        }
        if (line[at] != '\\')
            word.text += line[at];
        else if (++at < line.size())
            word.text += resolve(line[at]);
    }
    throw ScriptError("a quote is not closed");
}

Word takePlain(std::string_view& line) {
    const std::size_t end = std::min(line.find_first_of(blanks), line.size());
    Word word{std::string(line.substr(0, end)), false};
    line.remove_prefix(end);
    return word;
}

}  // namespace

std::vector<Word> splitWords(std::string_view line) {
    std::vector<Word> words;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
        if (line.empty() || (words.empty() && line.front() == '#'))
            return words;
        words.push_back(line.front() == '"' ? takeQuoted(line) : takePlain(line));
    }
}

std::string quote(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text) {
        bool escaped = false;
        for (const Escape& escape : escapes) {
            if (escape.meant != character)
                continue;
            quoted += '\\';
            quoted += escape.written;
            escaped = true;
        }
        if (!escaped)
            quoted += character;
    }
    return quoted + '"';
}

std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

int countingNumber(const std::string& text) {
    const std::optional<int> number = wholeNumber(text);
    if (!number || *number < 0)
        throw ScriptError(quote(text) + " is no whole number from 0");
    return *number;
}

}  // namespace plandesk::driver
