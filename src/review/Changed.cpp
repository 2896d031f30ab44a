// What the office would not read as it was typed, and why.

#include <algorithm>
#include <array>
#include <set>
#include <tuple>
#include <utility>

#include "base/Text.h"
#include "review/Checks.h"
#include "review/Losses.h"
#include "review/Marks.h"
#include "review/OfficeReading.h"

namespace plandesk {

namespace {

/// Each mark costs a save and an opening of its own; beyond these, what each of them does is not told.
constexpr std::size_t mostExamined = 24;

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

/// Where answers differ; a row that is not there as a whole is another matter than one of its cells.
using Places = std::set<std::pair<Answered::Place, Difference::Row>>;

Places placesOf(const std::vector<Difference>& differences) {
    Places places;
    for (const Difference& difference : differences)
        places.insert({difference.first.place(), difference.row});
    return places;
}

/// The office's reading of the original with marks of its answers taken out.
class Experiments {
public:
    explicit Experiments(const mdiInterface& original) : original(original), marked(markedAnswers(original.opened())) {}

    /// Those that may make the file unreadable come first from now on.
    void breakingFirst() {
        std::stable_partition(marked.begin(), marked.end(), [](const Marked& mark) { return mark.breaks; });
    }

    const std::vector<Marked>& marks() const { return marked; }

    /// `text` gives what to put in the place of each marked answer: its text, `clean` or `alone`.
    template <class Text>
    OfficeReading read(const Text& text) const {
        SilentSystem copy(original);
        std::vector<const Marked*> put;
        std::vector<const std::string*> texts;
        for (const Marked& mark : marked)
            if (const std::string& instead = text(mark); instead != mark.answered.text) {
                replaceAnswer(copy.proposal, mark.answered, instead);
                put.push_back(&mark);
                texts.push_back(&instead);
            }
        OfficeReading reading = readAsOffice(copy, original.opened());
        // What was put in is no difference where it arrives.
        std::erase_if(reading.differences, [&](const Difference& difference) {
            for (std::size_t each = 0; each < put.size(); ++each)
                if (put[each]->answered.samePlace(difference.first) && sameAnswer(*texts[each], difference.second))
                    return true;
            return false;
        });
        return reading;
    }

    OfficeReading withoutMarks() const {
        return read([](const Marked& mark) -> const std::string& { return mark.clean; });
    }
    OfficeReading withAlone(const Marked& only) const {
        return read([&only](const Marked& mark) -> const std::string& {
            return mark.answered.samePlace(only.answered) ? only.alone : mark.clean;
        });
    }
    OfficeReading without(const std::set<const Marked*>& some) const {
        return read([&some](const Marked& mark) -> const std::string& {
            const bool out = std::ranges::any_of(
                some, [&mark](const Marked* each) { return each->answered.samePlace(mark.answered); });
            return out ? mark.clean : mark.answered.text;
        });
    }

private:
    const mdiInterface& original;
    std::vector<Marked> marked;
};

/// What the save refuses is missing, when it is not told yet.
void tellRefusals(const OfficeReading& reading, Findings& findings) {
    const std::string_view cause =
        reading.stopped ? "It stops the save." : "The save goes on with what this form left earlier.";
    for (const Message& message : reading.refusals) {
        const Control* about = message.about;
        const bool known = std::ranges::any_of(findings, [&](const Finding& finding) {
            return finding.sentence == trim(message.text) ||
                   (about && finding.form == about->form().name() && finding.control == about->key());
        });
        if (!known)
            findings.push_back({FindingKind::Missing, about ? about->form().name() : "", about ? about->key() : "", -1,
                                -1, message.detail, std::string(trim(message.text)), std::string(cause)});
    }
    if (reading.stopped && reading.refusals.empty())
        findings.push_back(
            {FindingKind::Missing, "", "", -1, -1, "", "The save ends without a word, and writes no file."});
}

/// Blocks that are not built by the next save, and where they would be.
struct BlockForm {
    std::string_view element;
    std::string_view form;
    std::string_view words;
};
constexpr std::array blockForms = std::to_array<BlockForm>({
    {"a712Extract", "frmMain712", "The 7/12 extracts are"},
    {"PRC", "frmPRCEXT", "The property cards are"},
    {"ULCORDER-SCRUTINY", "frmScrutinyULC", "The orders are"},
});

void tellEarlier(const OfficeReading& reading, Findings& findings) {
    for (const DocumentBlock* block : reading.earlier) {
        const auto known = std::ranges::find(blockForms, block->element, &BlockForm::element);
        if (known != blockForms.end())
            findings.push_back(
                {FindingKind::Consider, std::string(known->form), "", -1, -1, "",
                 std::string(known->words) + " written as they were saved earlier, since none is listed now."});
    }
}

/// Tells each difference with its cause, where the cause is known.
class Teller {
public:
    Teller(const mdiInterface& original, Words& words, Findings& findings)
        : original(original), words(words), experiments(original), findings(findings) {}

    void tell(OfficeReading reading) {
        if (reading.wellFormed && reading.differences.empty())
            return;
        if (!reading.wellFormed)
            experiments.breakingFirst();
        const std::vector<Marked>& marks = experiments.marks();
        const OfficeReading base = marks.empty() ? reading : experiments.withoutMarks();
        for (const Marked& mark : marks) {
            if (alone.size() == mostExamined)
                break;
            alone.push_back(experiments.withAlone(mark));
        }
        if (!reading.wellFormed)
            reading = tellUnreadable(base);
        const Losses losses(original.opened(), base);
        const Places always = placesOf(base.differences);
        for (const OfficeReading& each : alone)
            moved.push_back(placesOf(each.differences));
        collectMissing();
        for (const Difference& difference : reading.differences) {
            const Answered& answered = difference.first;
            // What is to be filled in yet arrives as something or other.
            if (missing.contains({answered.form, answered.control, answered.row, answered.column}))
                continue;
            std::string cause = always.contains({answered.place(), difference.row}) ? losses.causeOf(difference)
                                                                                    : causeOfMark(difference);
            findings.push_back(words.finding(FindingKind::Changed, answered, sentenceOf(difference), std::move(cause)));
        }
    }

private:
    /// The answers that make the file ill-formed; gives the reading without them.
    OfficeReading tellUnreadable(const OfficeReading& base) {
        const std::vector<Marked>& marks = experiments.marks();
        std::set<const Marked*> breaking;
        for (std::size_t mark = 0; mark < alone.size(); ++mark)
            if (base.wellFormed && !alone[mark].wellFormed) {
                breaking.insert(&marks[mark]);
                findings.push_back(words.finding(FindingKind::Changed, marks[mark].answered,
                                                 "No program can read the file while this stands here.",
                                                 causeOf(marks[mark], marks[mark].answered)));
            }
        OfficeReading readable = experiments.without(breaking);
        if (readable.wellFormed)
            return readable;
        findings.push_back({FindingKind::Changed, "", "", -1, -1, "",
                            breaking.empty() ? "No program can read the file."
                                             : "Further answers make the file unreadable, once these are mended."});
        return base;
    }

    std::string causeOf(const Marked& mark, const Answered& affected) const {
        const std::string who = mark.answered.samePlace(affected) ? "" : " in \"" + words.of(mark.answered) + "\"";
        return (mark.mark == "\r" ? "Its line break" : mark.mark) + who + " " + mark.effect + ".";
    }

    /// Of the marks that move the answer, its own before others.
    std::string causeOfMark(const Difference& difference) const {
        const Answered& answered = difference.first;
        const std::vector<Marked>& marks = experiments.marks();
        const Marked* found = nullptr;
        for (std::size_t mark = 0; mark < alone.size(); ++mark)
            if (moved[mark].contains({answered.place(), difference.row}) &&
                (!found || marks[mark].answered.samePlace(answered))) {
                const bool own = found && found->answered.samePlace(answered);
                found = own ? found : &marks[mark];
            }
        return found ? causeOf(*found, answered) : "Separators in several answers move it together.";
    }

    void collectMissing() {
        for (const Finding& finding : findings)
            if (finding.kind == FindingKind::Missing)
                missing.insert({finding.form, finding.control, finding.row, finding.column});
    }

    const mdiInterface& original;
    Words& words;
    Experiments experiments;
    Findings& findings;
    std::vector<OfficeReading> alone;  ///< with each mark as the only one
    std::vector<Places> moved;
    std::set<std::tuple<std::string, std::string, int, int>> missing;
};

}  // namespace

void findChanged(const mdiInterface& original, SilentSystem& copy, Words& words, Findings& findings) {
    OfficeReading reading = readAsOffice(copy, original.opened());
    tellRefusals(reading, findings);
    tellEarlier(reading, findings);
    Teller(original, words, findings).tell(std::move(reading));
}

}  // namespace plandesk
