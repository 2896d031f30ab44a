#include "desktop/ReviewLines.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "base/Text.h"
#include "controls/Controls.h"
#include "desktop/FormNames.h"
#include "desktop/LongText.h"

namespace plandesk::desktop {

namespace {

/// Bytes of an answer or sentence that a line shows.
constexpr std::size_t longestPart = 400;

QString translated(const char* text) {
    return QCoreApplication::translate("Review", text);
}

struct GroupLook {
    const char* title;
    const char* counted;
    QRgb colour;
};
constexpr std::array kinds = std::to_array<GroupLook>({
    {"Missing", "missing", 0xFFB3261E},
    {"Will not arrive as typed", "not as typed", 0xFFB26A00},
    {"To consider", "to consider", 0xFF2F5D8C},
});
constexpr QRgb plainColour = 0xFF5B4524;

bool turnsPages(const Form& form) {
    return form.layout().pages.size() > 1 && form.findKey(form.layout().tabs);
}

QString pageWords(const Form& form, int page) {
    const bool numbered = !form.layout().pages[static_cast<std::size_t>(page)].name.empty();
    return (numbered ? translated("page ") : QString()) + pageName(form, page);
}

/// Where the controls of a proposal stand. Each is worked out once: a thousand findings may be about one grid.
class Places {
public:
    explicit Places(const Proposal& proposal) : proposal(proposal) {}

    struct Place {
        int page = -1;  ///< of a form that is turned by tabs
        QString words;
    };
    const Place& of(const std::string& form, const std::string& control) {
        const auto [found, isNew] = known.try_emplace({form, control});
        if (isNew)
            found->second = work(form, control);
        return found->second;
    }

private:
    Place work(const std::string& name, const std::string& control) const {
        const Form* form = proposal.forms.loaded(name);
        if (!form)
            return {};
        const QString caption = beginning(trim(form->caption()), longestPart);
        const int page = turnsPages(*form) ? pageOf(*form, control) : -1;
        return {page, page < 0 ? caption : caption + QStringLiteral(", ") + pageWords(*form, page)};
    }

    const Proposal& proposal;
    std::map<std::pair<std::string, std::string>, Place> known;
};

QString sentence(const std::string& text, const std::string& cause) {
    const QString first = beginning(trim(text), longestPart);
    const QString second = beginning(trim(cause), longestPart);
    return second.isEmpty() ? first : first + QStringLiteral(" ") + second;
}

QString quoted(const std::string& answer) {
    return trim(answer).empty() ? translated("nothing")
                                : QStringLiteral("\u201c%1\u201d").arg(beginning(trim(answer), longestPart));
}

}  // namespace

ReviewGroups linesOf(const std::vector<Finding>& findings, const Proposal& proposal) {
    ReviewGroups groups;
    for (const GroupLook& look : kinds)
        groups.push_back({translated(look.title), QColor(look.colour), {}});
    Places places(proposal);
    for (const Finding& finding : findings) {
        const auto& [page, words] = places.of(finding.form, finding.control);
        groups[static_cast<std::size_t>(finding.kind)].lines.push_back(
            {beginning(finding.question, longestPart),
             sentence(finding.sentence, finding.cause),
             words,
             {finding.form, finding.control, finding.row, finding.column, finding.extract},
             page});
    }
    return groups;
}

std::vector<ReviewPage> pagesOf(const std::vector<Finding>& findings, const Proposal& proposal) {
    Places places(proposal);
    std::map<std::pair<std::string_view, int>, int> missing;
    for (const Finding& finding : findings)
        if (finding.kind == FindingKind::Missing)
            ++missing[{finding.form, places.of(finding.form, finding.control).page}];
    std::vector<ReviewPage> pages;
    for (PageCount& count : countAnswers(proposal)) {
        const Form& form = *proposal.forms.loaded(count.form);
        const int lacking = missing[{form.name(), count.paged ? count.page : -1}];
        const QString page = count.paged ? pageName(form, count.page) : QString();
        pages.push_back({beginning(trim(form.caption()), longestPart), page, std::move(count), lacking});
    }
    return pages;
}

ReviewGroup linesOf(const std::vector<FoundQuestion>& found, const Proposal& proposal) {
    ReviewGroup group{translated("Found"), QColor(plainColour), {}};
    Places places(proposal);
    for (const FoundQuestion& question : found)
        group.lines.push_back({beginning(question.words, longestPart),
                               beginning(trim(question.answer), longestPart),
                               places.of(question.form, question.control).words,
                               {question.form, question.control}});
    std::ranges::stable_sort(group.lines, comesBefore,
                             [](const ReviewLine& line) { return std::string_view(line.target.form); });
    return group;
}

ReviewGroups linesOf(const std::vector<Difference>& differences, const Proposal& proposal, const Proposal& other) {
    ReviewGroups groups;
    for (const char* title : {"Different", "Not in the file", "Only in the file"})
        groups.push_back({translated(title), QColor(plainColour), {}});
    Places places(proposal);
    for (const Difference& difference : differences) {
        const Answered& answered = difference.first;
        const Spot spot = spotOf(answered);
        const bool onlyThere = difference.row == Difference::Row::SecondOnly;
        ReviewLine line{beginning(questionOf(onlyThere ? other : proposal, answered), longestPart),
                        {},
                        places.of(answered.form, answered.control).words,
                        {answered.form, answered.control, onlyThere ? -1 : spot.row, spot.column, spot.extract}};
        if (difference.row == Difference::Row::Both)
            line.text = translated("Here %1, in the file %2.").arg(quoted(answered.text), quoted(difference.second));
        groups[static_cast<std::size_t>(difference.row)].lines.push_back(std::move(line));
    }
    return groups;
}

QString countsOf(const ReviewGroups& findings) {
    QStringList counts;
    for (std::size_t kind = 0; kind < kinds.size() && kind < findings.size(); ++kind)
        counts += QStringLiteral("%1 %2").arg(findings[kind].lines.size()).arg(translated(kinds[kind].counted));
    return counts.join(QStringLiteral(", "));
}

}  // namespace plandesk::desktop
