#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"
#include "driver/Commands.h"
#include "driver/Session.h"
#include "reports/ReportCatalogue.h"

namespace plandesk::driver {

namespace {

void mustBeReport(const Word& name) {
    if (!isReport(name.text))
        throw ScriptError("unknown report " + quote(name.text));
}

/// What was shown or printed last under that name; null, with a failure told, when there is none.
const Preview* lastOf(Session& session, const Word& name) {
    mustBeReport(name);
    const auto last = session.reports.last.find(name.text);
    if (last != session.reports.last.end())
        return &last->second;
    session.failed("report " + name.text, "it was neither shown nor printed");
    return nullptr;
}

struct FieldReference {
    std::string name;
    std::size_t row;
};

/// FIELD, or FIELD(ROW).
FieldReference fieldNamed(const std::string& word) {
    const std::size_t bracket = word.find('(');
    if (bracket == word.npos)
        return {word, 0};
    if (!word.ends_with(')'))
        throw ScriptError("unknown field " + quote(word));
    const int row = countingNumber(word.substr(bracket + 1, word.size() - bracket - 2));
    return {word.substr(0, bracket), static_cast<std::size_t>(row)};
}

void expectReport(Session& session, const Words& words) {
    const FieldReference field = fieldNamed(words[1].text);
    const Preview* report = lastOf(session, words[0]);
    if (!report)
        return;
    if (std::ranges::none_of(findReport(report->name).feed->rows,
                             [&](const FeedRow& known) { return equalsIgnoringCase(known.column, field.name); }))
        throw ScriptError("unknown field " + quote(field.name));
    const std::string what = words[0].text + " " + words[1].text;
    const std::vector<std::vector<std::string>>& rows = report->data.rows;
    if (const std::string* found = report->data.find(field.name, field.row))
        compare(session, what, words[2].text, *found);
    else if (rows.empty() && field.row == 0)  // a report that was never fed prints empty fields
        compare(session, what, words[2].text, "");
    else
        session.failed(what + " " + quote(words[2].text), std::to_string(rows.size()) + " rows");
}

/// Takes the oldest name of the list.
void expectOldest(Session& session, const Word& name, std::deque<std::string>& names, const std::string& what) {
    mustBeReport(name);
    if (names.empty())
        return session.failed(what + " " + name.text, "none");
    const std::string found = std::move(names.front());
    names.pop_front();
    if (findReport(name.text).name != found)
        session.failed(what + " " + name.text, what + " " + found);
}

void expectShown(Session& session, const Words& words) {
    expectOldest(session, words[0], session.reports.shown, "shown");
}

void expectPrinted(Session& session, const Words& words) {
    expectOldest(session, words[0], session.reports.printed, "printed");
}

/// One item a line in reading order, fields with what they hold when the paper is filled.
void printPaper(Session& session, const Paper& paper, bool filled) {
    for (const auto* part : {&paper.header, &paper.body, &paper.footer})
        for (const PaperSection& section : *part)
            for (const PaperRow& row : section.rows)
                for (const PaperCell& cell : row.cells)
                    for (const PaperItem& item : cell) {
                        if (!item.isField())
                            session.out << "label " << quote(item.text) << '\n';
                        else
                            session.out << "field " << item.field << (filled ? " " + quote(item.value) : "") << '\n';
                    }
}

void printLayout(Session& session, const Words& words) {
    mustBeReport(words[0]);
    if (const Paper* layout = findLayout(words[0].text))
        printPaper(session, *layout, false);
}

void printReport(Session& session, const Words& words) {
    if (const Preview* report = lastOf(session, words[0]))
        printPaper(session, report->paper, true);
}

constexpr std::array commands = std::to_array<Command>({
    {"expect-report", 3, 3, "NAME FIELD VALUE", expectReport},
    {"expect-shown", 1, 1, "NAME", expectShown},
    {"expect-printed", 1, 1, "NAME", expectPrinted},
    {"print-layout", 1, 1, "NAME", printLayout},
    {"print-report", 1, 1, "NAME", printReport},
});

}  // namespace

std::span<const Command> reportCommands() {
    return commands;
}

}  // namespace plandesk::driver
