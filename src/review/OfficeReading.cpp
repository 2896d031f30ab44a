#include "review/OfficeReading.h"

#include <algorithm>
#include <array>
#include <map>

#include "base/CodePage.h"
#include "document/DocumentBlocks.h"
#include "document/ProposalDocument.h"
#include "document/SaveProposal.h"
#include "particulars/frmAnnexureA.h"
#include "review/Questions.h"

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

/// Every step of a save, also those behind one that stops it, so that one gap does not hide all else.
bool runSave(SilentSystem& system) {
    Proposal& proposal = system.proposal;
    bool stopped = false;
    for (const SaveStep& step : saveSteps()) {
        bool ended = false;
        proposal.screen.event([&] {
            runStep(proposal, step);
            ended = true;
        });
        stopped = stopped || !ended || (step.needed && (proposal.*step.needed).empty());
    }
    return !stopped && system.machine.written.has_value();
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
void leaveOutRefused(std::vector<Answered>& answers, const Proposal& proposal) {
    const Form* first = proposal.forms.loaded(frmAnnexureA::formName);
    for (const Carrier& carrier : carriers)
        if (first && first->at<TextBox>(carrier.box).text().empty())
            std::erase_if(answers, [&](const Answered& answered) { return answered.form == carrier.form; });
}

}  // namespace

OfficeReading readAsOffice(SilentSystem& system) {
    Proposal& proposal = system.proposal;
    std::vector<Answered> typed = carriedAnswers(proposal);
    OfficeReading reading;
    system.machine.told.clear();
    system.machine.written.reset();
    reading.stopped = !runSave(system);
    if (reading.stopped) {
        reading.told = system.machine.told;
        leaveOutRefused(typed, proposal);
    }
    reading.bytes = system.machine.written ? *system.machine.written
                                           : toCodePage(joinDocument(proposal) + "\r\n", systemCodePage());
    SilentSystem office(proposal.screen.ports);
    reading.wellFormed = office.shell.openBytes(reading.bytes, SilentMachine::path);
    if (!reading.wellFormed)
        return reading;
    const std::vector<Answered> saved = carriedAnswers(proposal);
    reading.differences = differencesOf(typed, carriedAnswers(office.proposal));
    // A save fills the open boxes of the payment with zeros; that such a zero is not read is no loss.
    std::erase_if(reading.differences, [](const Difference& difference) {
        return difference.first.form == "frmPayDetail" && difference.second.empty() &&
               sameAnswer(difference.first.text, "0");
    });
    // What is left open and filled in by the save alone is as the user left it.
    std::map<Answered::Place, std::string_view> after;
    for (const Answered& answered : saved)
        after.emplace(answered.place(), answered.text);
    std::erase_if(reading.differences, [&after](const Difference& difference) {
        if (!difference.first.text.empty() || difference.row != Difference::Row::Both)
            return false;
        const auto found = after.find(difference.first.place());
        return found != after.end() && found->second == difference.second;
    });
    return reading;
}

}  // namespace plandesk
