#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "driver/Commands.h"
#include "driver/Dump.h"
#include "driver/Reference.h"
#include "driver/Session.h"

namespace plandesk::driver {

void compare(Session& session, const std::string& what, std::string_view expected, std::string_view found) {
    if (expected == found)
        return;
    constexpr std::size_t longText = 200;
    if (std::max(expected.size(), found.size()) <= longText)
        return session.failed(what + " " + quote(expected), quote(found));
    // Of long texts, what stands around the first difference.
    const auto ends = std::ranges::mismatch(expected, found);
    const auto at = static_cast<std::size_t>(ends.in1 - expected.begin());
    const std::size_t start = at - std::min(at, longText / 2);
    session.failed(what + " " + quote(expected.substr(start, longText)),
                   quote(found.substr(start, longText)) + " (from byte " + std::to_string(start) +
                       "; they differ at byte " + std::to_string(at) + ")");
}

namespace {

void expect(Session& session, const Words& words) {
    std::string found;
    try {
        found = textOf(valueOf(session, words[0]));
    } catch (const RuntimeError& error) {
        return session.failed(words[0].text + " " + quote(words[1].text), error.description);
    }
    compare(session, words[0].text, words[1].text, found);
}

bool truth(const Word& word) {
    if (word.text != "true" && word.text != "false")
        throw ScriptError(quote(word.text) + " is neither true nor false");
    return word.text == "true";
}

void expectMenu(Session& session, const Words& words) {
    if (!findMenuEntry(words[0].text))
        throw ScriptError("unknown menu entry " + quote(words[0].text));
    const bool expected = truth(words[1]);
    const bool found = session.shell.available(words[0].text);
    if (found != expected)
        session.failed(words[0].text + (expected ? " available" : " not available"),
                       found ? "available" : "not available");
}

std::string messageText(const Message& message) {
    return quote(message.title) + " " + quote(message.text) + " " + std::string(iconName(message.icon));
}

void expectMessage(Session& session, const Words& words) {
    std::string expected = quote(words[0].text) + " " + quote(words[1].text);
    if (words.size() == 3) {
        constexpr std::array icons = {Icon::None, Icon::Information, Icon::Question, Icon::Critical};
        if (std::ranges::find(icons, words[2].text, iconName) == icons.end())
            throw ScriptError("unknown icon " + quote(words[2].text));
        expected += " " + words[2].text;
    }
    if (session.dialogs.messages.empty())
        return session.failed("message " + expected, "none");
    const Message message = session.dialogs.messages.front();
    session.dialogs.messages.pop_front();
    const bool same = message.title == words[0].text && message.text == words[1].text &&
                      (words.size() == 2 || iconName(message.icon) == words[2].text);
    if (!same)
        session.failed("message " + expected, "message " + messageText(message));
}

void expectNoMessage(Session& session, const Words&) {
    if (!session.dialogs.messages.empty())
        session.failed("no message", "message " + messageText(session.dialogs.messages.front()));
}

PropertyValue flagNamed(const Session& session, const std::string& name) {
    if (const std::optional<PropertyValue> value = projectValue(session.proposal, name))
        return *value;
    throw ScriptError("unknown flag " + quote(name));
}

void expectFlag(Session& session, const Words& words) {
    compare(session, words[0].text, words[1].text, textOf(flagNamed(session, words[0].text)));
}

void expectCaption(Session& session, const Words& words) {
    compare(session, "caption", words[0].text, session.proposal.screen.caption());
}

/// Whole content of a file without its last line end; nothing when it does not exist.
std::optional<std::string> fileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file || !std::filesystem::is_regular_file(path))
        return std::nullopt;
    std::string text{std::istreambuf_iterator<char>(file), {}};
    if (text.ends_with('\n'))
        text.pop_back();
    if (text.ends_with('\r'))
        text.pop_back();
    return text;
}

void expectFile(Session& session, const Words& words) {
    const std::optional<std::string> found = fileText(words[0].text);
    if (found)
        compare(session, "file " + words[0].text, words[1].text, *found);
    else
        session.failed("file " + words[0].text, "no such file");
}

void expectNoFile(Session& session, const Words& words) {
    if (std::filesystem::exists(std::filesystem::symlink_status(words[0].text)))
        session.failed("no file " + words[0].text, "one");
}

const Recordset* tableNamed(const Session& session, const std::string& name) {
    for (const auto& [tableName, table] : session.proposal.tables.byName())
        if (equalsIgnoringCase(tableName, name))
            return table;
    throw ScriptError("unknown table " + quote(name));
}

/// Place of the column that the word names or counts from 0.
std::size_t columnOf(const Recordset& table, const Word& word) {
    const auto columns = table.columns();
    const auto named =
        std::ranges::find_if(columns, [&](const Column& column) { return equalsIgnoringCase(column.name, word.text); });
    if (named != columns.end())
        return static_cast<std::size_t>(named - columns.begin());
    const std::optional<int> place = wholeNumber(word.text);
    if (!place || *place < 0 || *place >= static_cast<int>(columns.size()))
        throw ScriptError("unknown column " + quote(word.text));
    return static_cast<std::size_t>(*place);
}

void expectTable(Session& session, const Words& words) {
    const std::string what = words[0].text + " " + words[1].text + " " + words[2].text;
    const auto row = static_cast<std::size_t>(countingNumber(words[1].text));
    const Recordset* table = tableNamed(session, words[0].text);
    if (!table)
        return session.failed(what + " " + quote(words[3].text), "no table");
    const std::size_t column = columnOf(*table, words[2]);
    const auto rows = table->allRows();
    if (row >= rows.size())
        return session.failed(what + " " + quote(words[3].text), std::to_string(rows.size()) + " rows");
    compare(session, what, words[3].text, cellText(rows[row][column]));
}

void expectRows(Session& session, const Words& words) {
    const int expected = countingNumber(words[1].text);
    const Recordset* table = tableNamed(session, words[0].text);
    if (!table)
        session.failed(words[0].text + " with " + words[1].text + " rows", "no table");
    else if (table->rowCount() != expected)
        session.failed(words[0].text + " with " + words[1].text + " rows", std::to_string(table->rowCount()));
}

void print(Session& session, const Words& words) {
    try {
        session.out << textOf(valueOf(session, words[0])) << '\n';
    } catch (const RuntimeError& error) {
        throw ScriptError(words[0].text + ": " + error.description);
    }
}

void printMessages(Session& session, const Words&) {
    for (const Message& message : session.dialogs.messages)
        session.out << messageText(message) << '\n';
    session.dialogs.messages.clear();
}

/// The column names, then the rows, their cells quoted and divided by tabs.
void printTable(Session& session, const Words& words) {
    const Recordset* table = tableNamed(session, words[0].text);
    if (!table)
        return;
    const char* divider = "";
    for (const Column& column : table->columns())
        session.out << std::exchange(divider, "\t") << column.name;
    session.out << '\n';
    for (const std::span<const Value> row : table->allRows()) {
        divider = "";
        for (const Value& value : row)
            session.out << std::exchange(divider, "\t") << (isNull(value) ? "null" : quote(cellText(value)));
        session.out << '\n';
    }
}

void printFlag(Session& session, const Words& words) {
    session.out << textOf(flagNamed(session, words[0].text)) << '\n';
}

void printFile(Session& session, const Words& words) {
    if (const std::optional<std::string> text = fileText(words[0].text))
        session.out << *text << '\n';
    else
        session.failed("file " + words[0].text, "no such file");
}

void dump(Session& session, const Words&) {
    writeDump(session, session.out);
}

constexpr std::array commands = std::to_array<Command>({
    {"expect", 2, 2, "REF[.PROPERTY] VALUE", expect},
    {"expect-menu", 2, 2, "NAME true|false", expectMenu},
    {"expect-message", 2, 3, "TITLE TEXT [ICON]", expectMessage},
    {"expect-no-message", 0, 0, "", expectNoMessage},
    {"expect-flag", 2, 2, "NAME VALUE", expectFlag},
    {"expect-caption", 1, 1, "TEXT", expectCaption},
    {"expect-file", 2, 2, "PATH TEXT", expectFile},
    {"expect-no-file", 1, 1, "PATH", expectNoFile},
    {"expect-table", 4, 4, "NAME ROW COLUMN VALUE", expectTable},
    {"expect-rows", 2, 2, "NAME N", expectRows},
    {"print", 1, 1, "REF[.PROPERTY]", print},
    {"print-messages", 0, 0, "", printMessages},
    {"print-table", 1, 1, "NAME", printTable},
    {"print-flag", 1, 1, "NAME", printFlag},
    {"print-file", 1, 1, "PATH", printFile},
    {"dump", 0, 0, "", dump},
});

}  // namespace

std::span<const Command> lookCommands() {
    return commands;
}

}  // namespace plandesk::driver
