#include <algorithm>
#include <array>

#include "base/Text.h"
#include "driver/Commands.h"
#include "driver/Session.h"
#include "review/GoTo.h"
#include "review/Review.h"

namespace plandesk::driver {

namespace {

bool isKind(const Finding& finding, const std::string& word) {
    return kindWord(finding.kind) == word;
}

void mustBeKind(const std::string& word) {
    for (const FindingKind kind : {FindingKind::Missing, FindingKind::Changed, FindingKind::Consider})
        if (kindWord(kind) == word)
            return;
    throw ScriptError("unknown kind of finding " + quote(word));
}

std::string list(const std::vector<Finding>& findings, const std::string& kind) {
    std::string lines;
    for (const Finding& finding : findings)
        if (isKind(finding, kind))
            lines += "\n  " + lineOf(finding);
    return lines.empty() ? "none" : lines;
}

/// FORM.CONTROL as two texts; a control with nothing behind a point is the form's own.
std::pair<std::string, std::string> place(const std::string& reference) {
    const std::size_t point = reference.find('.');
    return {reference.substr(0, point), point == std::string::npos ? "" : reference.substr(point + 1)};
}

void expectFinding(Session& session, const Words& words) {
    mustBeKind(words[0].text);
    const auto [form, control] = place(words[1].text);
    const std::vector<Finding> findings = review(session.shell);
    const bool found = std::ranges::any_of(findings, [&, &form = form, &control = control](const Finding& finding) {
        return isKind(finding, words[0].text) && equalsIgnoringCase(finding.form, form) &&
               equalsIgnoringCase(finding.control, control);
    });
    if (!found)
        session.failed(words[0].text + " finding at " + words[1].text, list(findings, words[0].text));
}

void expectFindings(Session& session, const Words& words) {
    mustBeKind(words[0].text);
    const std::vector<Finding> findings = review(session.shell);
    const auto count =
        std::ranges::count_if(findings, [&](const Finding& each) { return isKind(each, words[0].text); });
    if (std::to_string(count) != words[1].text)
        session.failed(words[1].text + " findings " + words[0].text,
                       std::to_string(count) + ": " + list(findings, words[0].text));
}

void printFindings(Session& session, const Words&) {
    for (const Finding& finding : review(session.shell))
        session.out << lineOf(finding) << '\n';
}

void goToControl(Session& session, const Words& words) {
    const auto [form, control] = place(words[0].text);
    if (!session.form(form).findKey(control))
        throw ScriptError("unknown control " + quote(words[0].text));
    if (!goTo(session.proposal, form, control))
        session.unavailable(words[0]);
}

constexpr std::array commands = std::to_array<Command>({
    {"expect-finding", 2, 2, "KIND FORM.CONTROL", expectFinding},
    {"expect-findings", 2, 2, "KIND N", expectFindings},
    {"print-findings", 0, 0, "", printFindings},
    {"goto", 1, 1, "FORM.CONTROL", goToControl},
});

}  // namespace

std::span<const Command> reviewCommands() {
    return commands;
}

}  // namespace plandesk::driver
