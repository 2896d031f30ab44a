#include "review/OfficeReading.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "base/CodePage.h"
#include "document/ProposalDocument.h"
#include "document/SaveProposal.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

void runStep(Proposal& proposal, const SaveStep& step) {
    if (step.action)
        step.action(proposal);
    else if (step.block)
        buildBlock(proposal, step.block);
    else if (Form* form = proposal.forms.touch(step.form))
        form->call(step.procedure);
}

/// Takes the texts of the blocks away for as long as the steps run that build them, and so finds out which of them are
/// not built.
class Blocks {
public:
    explicit Blocks(Proposal& proposal) : proposal(proposal) {
        for (const DocumentBlock& block : documentBlocks())
            kept.push_back(std::exchange(proposal.*block.fragment, ""));
    }

    /// Gives back the texts that were not built anew.
    void settle(OfficeReading& reading) {
        auto text = kept.begin();
        for (const DocumentBlock& block : documentBlocks()) {
            std::string& fragment = proposal.*block.fragment;
            if (fragment.empty()) {
                fragment = std::move(*text);
                (fragment.empty() ? reading.absent : reading.earlier).push_back(&block);
            }
            ++text;
        }
    }

private:
    Proposal& proposal;
    std::vector<std::string> kept;
};

/// Every step of a save, also those behind one that stops it, so that one gap does not hide all else.
void runSave(SilentSystem& system, OfficeReading& reading) {
    Proposal& proposal = system.proposal;
    Blocks blocks(proposal);
    const std::span<const SaveStep> steps = saveSteps();
    for (const SaveStep& step : steps) {
        if (&step == &steps.back())  // the one that joins the document
            blocks.settle(reading);
        bool ended = false;
        proposal.screen.event([&] {
            runStep(proposal, step);
            ended = true;
        });
        reading.stopped = reading.stopped || !ended || (step.needed && (proposal.*step.needed).empty());
    }
    reading.refusals = std::move(system.machine.told);
    if (system.machine.written)
        reading.refusals.pop_back();  // where it was written
    else
        reading.stopped = true;
}

/// What a form packs for the document, and the forms that are not in it without that.
struct Carrier {
    std::string_view box;
    std::string_view form;
};
constexpr std::array carriers = std::to_array<Carrier>({
    {"txtSectFourVal", "AnnexureACont"},
    {"txtDocChkList", "frmDocCheckList"},
    {"txtDocChkList", "frmDocCheckList1"},
    {"txtPayDetail", "frmPayDetail"},
});

/// A form whose answers were refused is told as missing; that nothing of it arrives goes without saying.
void leaveOutRefused(std::vector<Difference>& differences, const Proposal& saved) {
    const Form* first = saved.forms.loaded(frmAnnexureA::formName);
    for (const Carrier& carrier : carriers)
        if (first && first->at<TextBox>(carrier.box).text().empty())
            std::erase_if(differences,
                          [&](const Difference& difference) { return difference.first.form == carrier.form; });
}

/// What is left open and filled in by the save alone is as the user left it, and a zero that is not read, of the zeros
/// that a save puts into the open boxes of the payment, is no loss.
void leaveOutFillings(std::vector<Difference>& differences, const Proposal& typed, const Proposal& saved) {
    std::erase_if(differences, [](const Difference& difference) {
        return difference.first.form == "frmPayDetail" && difference.second.empty() &&
               sameAnswer(difference.first.text, "0");
    });
    const bool open = std::ranges::any_of(differences, [](const Difference& difference) {
        return difference.first.text.empty() && difference.row == Difference::Row::Both;
    });
    if (!open)
        return;
    const std::vector<Difference> filled = differencesOf(typed, saved);
    std::map<Answered::Place, std::string_view> fillings;
    for (const Difference& difference : filled)
        fillings.emplace(difference.first.place(), difference.second);
    std::erase_if(differences, [&fillings](const Difference& difference) {
        if (!meant(difference.first.text).empty() || difference.row != Difference::Row::Both)
            return false;
        const auto found = fillings.find(difference.first.place());
        return found != fillings.end() && found->second == difference.second;
    });
}

}  // namespace

OfficeReading readAsOffice(SilentSystem& copy, const Proposal& typed) {
    Proposal& proposal = copy.proposal;
    OfficeReading reading;
    copy.machine.told.clear();
    copy.machine.written.reset();
    runSave(copy, reading);
    reading.bytes =
        copy.machine.written ? *copy.machine.written : toCodePage(joinDocument(proposal) + "\r\n", systemCodePage());
    SilentSystem office(proposal.screen.ports);
    reading.wellFormed = office.shell.openBytes(reading.bytes, SilentMachine::path);
    if (!reading.wellFormed)
        return reading;
    // Forms that were not loaded yet are saved with what they have from the start.
    reading.differences = differencesOf(typed, office.proposal, &proposal);
    if (reading.stopped)
        leaveOutRefused(reading.differences, proposal);
    leaveOutFillings(reading.differences, typed, proposal);
    return reading;
}

}  // namespace plandesk
