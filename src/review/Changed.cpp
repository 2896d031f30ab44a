// What the office would not read as it was typed, and why.

#include <algorithm>
#include <array>
#include <set>
#include <tuple>
#include <utility>

#include "base/Text.h"
#include "review/Checks.h"
#include "review/Marks.h"
#include "review/OfficeReading.h"

namespace plandesk {

namespace {

using Findings = std::vector<Finding>;

/// Each answer with a mark costs a save and an opening of its own; beyond these, what each of them does is not told.
constexpr std::size_t mostExamined = 24;

/// What never comes back as it was, whatever is typed: the document does not carry it, or the reader takes another.
struct Loss {
    std::string_view form;
    std::string_view control;  ///< how its key begins
    std::string_view cause;
};

constexpr std::array losses = std::to_array<Loss>({
    {"frmAnnexureA", "txtTikaNo", "Only the number that it begins with is read."},
    {"frmAnnexureA", "cboCaseType",
     "The office reads the case type from a code, and none without a major use of plot."},
    {"AnnexureACont", "Opt30", "The answer of the question before it is written in its place."},
    {"AnnexureACont", "Opt23",
     "Its digit is written without a separator before the next one, and both are read as one."},
    {"AnnexureACont", "opt21bi", "Only its hidden digit is read."},
    {"frmPayDetail", "",
     "Of a payment in cash, date, number, bank and branch are not read; a draft is read as a pay order, "
     "with the values behind the mode one place off."},
    {"frmDocCheckList1", "", "The rows of the conditional checklist are read into other rows of it."},
    {"frmDocCheckList", "", "Page 0 is read as no page, and the last row takes over the first conditional one."},
    {"frmMain712", "dgdOwner",
     "The owner type is written without a separator behind the encumbrance, which is read in "
     "upper case."},
    {"frmPRCEXT", "dgdOwner", "Encumbrances are read in upper case, and the first item of the signing status as PAH."},
    {"frmPRCEXT", "dgdInfoOfExtract",
     "The ferfar number of a property card is not written; the number of its owners is "
     "read in its place."},
    {"frmPRCEXT", "txtRemark", "The remark of the 7/12 extracts is written for the property cards too."},
    {"frmScrutinyULC", "dgdULCOrderDetails", "The details column of the orders is not written."},
    {"frmPlotExtractRelation", "", "Extracts and plots are read by their counts."},
});

std::string_view lossOf(const Answered& answered) {
    for (const Loss& loss : losses)
        if (loss.form == answered.form && answered.control.starts_with(loss.control))
            return loss.cause;
    return "";
}

std::string sentenceOf(const Difference& difference) {
    const std::string typed = "\"" + difference.first.text + "\"";
    if (difference.row == Difference::Row::FirstOnly)
        return "This row does not arrive.";
    if (difference.row == Difference::Row::SecondOnly)
        return "A row arrives that is not there.";
    if (trim(difference.first.text).empty())
        return "Nothing is answered, and \"" + difference.second + "\" arrives.";
    if (trim(difference.second).empty())
        return typed + " does not arrive.";
    return typed + " arrives as \"" + difference.second + "\".";
}

Finding findingOf(const Proposal& proposal, const Answered& answered, std::string sentence, std::string cause) {
    return {FindingKind::Changed,           answered.form,       answered.control, answered.row, answered.column,
            questionOf(proposal, answered), std::move(sentence), std::move(cause)};
}

/// The office's reading of the original with the marks of some answers taken out.
class Experiments {
public:
    explicit Experiments(const mdiInterface& original)
        : original(original), marked(markedAnswers(carriedAnswers(original.opened()))) {}

    const std::vector<Marked>& marks() const { return marked; }

    /// `keeps` tells of each marked answer, by its place among them, whether it keeps its marks.
    template <class Keeps>
    OfficeReading read(const Keeps& keeps) const {
        SilentSystem copy(original);
        for (std::size_t place = 0; place < marked.size(); ++place)
            if (!keeps(place))
                replaceAnswer(copy.proposal, marked[place].answered, marked[place].clean);
        return readAsOffice(copy);
    }

private:
    const mdiInterface& original;
    std::vector<Marked> marked;
};

using Places = std::set<Answered::Place>;

Places placesOf(const std::vector<Difference>& differences) {
    Places places;
    for (const Difference& difference : differences)
        places.insert(difference.first.place());
    return places;
}

std::string causeOf(const Proposal& proposal, const Marked& mark, const Answered& affected) {
    const std::string who =
        mark.answered.samePlace(affected) ? "" : " in \"" + questionOf(proposal, mark.answered) + "\"";
    return mark.mark + who + " " + mark.effect + ".";
}

/// What stops the save is missing, when it is not told yet.
void tellStop(const OfficeReading& reading, Findings& findings) {
    if (!reading.stopped)
        return;
    bool told = false;
    for (const Message& message : reading.told) {
        // The run goes on behind the stop, and may tell that it has written its file.
        if (message.text.find(SilentMachine::path) != std::string::npos)
            continue;
        const Control* about = message.about;
        const bool known = std::ranges::any_of(findings, [&](const Finding& finding) {
            return finding.sentence == trim(message.text) ||
                   (about && finding.form == about->form().name() && finding.control == about->key());
        });
        told = true;
        if (!known)
            findings.push_back({FindingKind::Missing, about ? about->form().name() : "", about ? about->key() : "", -1,
                                -1, message.detail, std::string(trim(message.text)), "It stops the save."});
    }
    if (!told)
        findings.push_back(
            {FindingKind::Missing, "", "", -1, -1, "", "The save ends without a word, and writes no file."});
}

}  // namespace

void findChanged(const mdiInterface& original, std::vector<Finding>& findings) {
    const Proposal& proposal = original.opened();
    const Experiments experiments(original);
    const std::vector<Marked>& marks = experiments.marks();
    OfficeReading full;
    {
        SilentSystem copy(original);
        full = readAsOffice(copy);
        tellStop(full, findings);
    }
    if (full.wellFormed && full.differences.empty())
        return;

    // What each marked answer does alone, beside what happens without any.
    const std::size_t examined = std::min(marks.size(), mostExamined);
    const OfficeReading base = marks.empty() ? full : experiments.read([](std::size_t) { return false; });
    std::vector<OfficeReading> alone;
    alone.reserve(examined);
    for (std::size_t mark = 0; mark < examined; ++mark)
        alone.push_back(experiments.read([mark](std::size_t place) { return place == mark; }));

    if (!full.wellFormed) {
        const std::size_t before = findings.size();
        std::set<std::size_t> breaking;
        for (std::size_t mark = 0; mark < examined; ++mark)
            if (base.wellFormed && !alone[mark].wellFormed) {
                breaking.insert(mark);
                findings.push_back(findingOf(proposal, marks[mark].answered,
                                             "No program can read the file while this stands here.",
                                             causeOf(proposal, marks[mark], marks[mark].answered)));
            }
        if (findings.size() == before)
            findings.push_back({FindingKind::Changed, "", "", -1, -1, "", "No program can read the file."});
        full =
            experiments.read([&](std::size_t place) { return place >= examined ? false : !breaking.contains(place); });
    }

    std::set<std::tuple<std::string_view, std::string_view, int, int>> toBeFilledIn;
    const std::vector<Finding> told = findings;
    for (const Finding& finding : told)
        if (finding.kind == FindingKind::Missing)
            toBeFilledIn.insert({finding.form, finding.control, finding.row, finding.column});
    const Places always = placesOf(base.differences);
    std::vector<Places> moved;
    moved.reserve(alone.size());
    for (const OfficeReading& reading : alone)
        moved.push_back(placesOf(reading.differences));
    for (const Difference& difference : full.differences) {
        const Answered& answered = difference.first;
        const bool missing = toBeFilledIn.contains({answered.form, answered.control, answered.row, answered.column});
        if (missing)  // what is to be filled in yet arrives as something or other
            continue;
        std::string cause;
        if (always.contains(answered.place())) {
            cause = lossOf(difference.first);
        } else {
            const auto does = [&](std::size_t mark) { return moved[mark].contains(answered.place()); };
            std::size_t found = examined;
            for (std::size_t mark = 0; mark < examined; ++mark)
                if (does(mark) && (found == examined || marks[mark].answered.samePlace(difference.first)))
                    found = mark;
            cause = found < examined ? causeOf(proposal, marks[found], difference.first)
                                     : "Separators in several answers move it together.";
        }
        findings.push_back(findingOf(proposal, difference.first, sentenceOf(difference), std::move(cause)));
    }
}

}  // namespace plandesk
