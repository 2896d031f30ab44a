#include "review/Review.h"

#include <algorithm>
#include <array>

#include "review/Checks.h"
#include "review/Words.h"

namespace plandesk {

std::string_view kindWord(FindingKind kind) {
    static constexpr std::array words = std::to_array<std::string_view>({"missing", "changed", "consider"});
    return words.at(static_cast<std::size_t>(kind));
}

std::vector<Finding> review(const mdiInterface& original) {
    std::vector<Finding> findings;
    SilentSystem copy(original);
    Words words(original);
    findMissing(copy, words, findings);
    findDoubtful(copy.proposal, words, findings);
    findChanged(original, copy, words, findings);
    findUnsaved(copy, findings);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding& a, const Finding& b) { return a.kind < b.kind; });
    return findings;
}

std::string lineOf(const Finding& finding) {
    std::string line(kindWord(finding.kind));
    if (!finding.form.empty())
        line += " " + finding.form + (finding.control.empty() ? "" : "." + finding.control);
    if (!finding.question.empty())
        line += " \"" + finding.question + "\"";
    line += ": " + finding.sentence;
    if (!finding.cause.empty())
        line += " " + finding.cause;
    return line;
}

}  // namespace plandesk
