#include "document/SaveProposal.h"

#include <array>
#include <string_view>

#include "base/CodePage.h"
#include "base/RuntimeError.h"
#include "controls/Meaning.h"
#include "document/DocumentBlocks.h"
#include "document/ProposalDocument.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

/// Without ownership rows the earlier block stays.
void buildOrdersIfAny(Proposal& proposal) {
    if (proposal.tables.ensure(&Tables::rsOwnership).recordCount() > 0)
        buildBlock(proposal, &Proposal::ULCScrutinyXML);
}

constexpr std::array steps = std::to_array<SaveStep>({
    {"frmPayDetail", "cmdSave_Click"},
    {"frmDocCheckList1", "cmdSave_Click", &Proposal::conditionalDocList},
    {"frmDocCheckList", "cmdSave_Click", &Proposal::mandatoryDocList},
    {"AnnexureACont", "cmdSave_Click"},
    {.block = &Proposal::annexureBXML},
    {"frmNaOrder", "SaveNaOrder"},
    {"frmPlotExtractRelation", "Save712ExtractRaltionShip"},
    {.action = [](Proposal& proposal) { proposal.isSavingLandRecord = proposal.is712Current = true; }},
    {"frmMain712", "cmdSave_Click"},
    {.action = [](Proposal& proposal) { proposal.isSavingLandRecord = proposal.is712Current = false; }},
    {"frmPRCEXT", "cmdSave_Click"},
    {"frmScrutinyULC", "optDocCtrlOwn_Click"},
    {.action = buildOrdersIfAny},
    {"frmDiscretionrevisedCase", "setDiscretionForSave"},
    {"frmDiscretionNewCase", "setDiscretionNewForSave"},
    {"frmAnnexureA", "cmdSave_Click"},
});

struct Guard {
    const std::string& (*carrier)(const Proposal& proposal, const frmAnnexureA& form);
    std::string_view message;
};

constexpr std::array guards = std::to_array<Guard>({
    {[](const Proposal& proposal, const frmAnnexureA&) -> const std::string& { return proposal.annexureBXML; },
     "Fill Information regarding AnnexureB"},
    {[](const Proposal&, const frmAnnexureA& form) -> const std::string& { return form.txtSectFourVal.text(); },
     "Fill Information regarding section IVs-V"},
    {[](const Proposal&, const frmAnnexureA& form) -> const std::string& { return form.txtDocChkList.text(); },
     "Check the document checkList"},
    {[](const Proposal&, const frmAnnexureA& form) -> const std::string& { return form.txtPayDetail.text(); },
     "Fill the Payment Detail Information"},
});

void writeProposal(Proposal& proposal, const std::string& path) {
    const Meaning meant(proposal.screen, path + " was not written; what the file held before is still there.");
    const std::string bytes = toCodePage(proposal.proposalText + "\r\n", systemCodePage());
    try {
        proposal.screen.ports.files.writeWhole(path, bytes);
    } catch (const RuntimeError&) {
        proposal.commands.fileNotWritten();
        throw;
    }
}

}  // namespace

std::span<const SaveStep> saveSteps() {
    return steps;
}

void saveProposal(Proposal& proposal) {
    for (const SaveStep& step : steps) {
        if (step.action)
            step.action(proposal);
        else if (step.block)
            buildBlock(proposal, step.block);
        else if (Form* form = proposal.forms.touch(step.form))
            form->call(step.procedure);
        if (step.needed && (proposal.*step.needed).empty())
            return;
    }
}

void SaveData(Proposal& proposal) {
    auto& form = proposal.forms.get<frmAnnexureA>();
    for (const Guard& guard : guards) {
        if (guard.carrier(proposal, form).empty()) {
            proposal.screen.message(guard.message, "Data Require");
            return;
        }
    }
    if (!form.validate())
        return;
    proposal.proposalText = joinDocument(proposal);
    if (!proposal.isProposalOpen)
        form.txtPathNm.setText(proposal.screen.ports.dialogs.saveFile(
            {"Select Proposals Path", "xml", "xml File(s) (*.xml)", "", form.txtTitle.text()}));
    CreateXMLFIle(proposal);
}

void CreateXMLFIle(Proposal& proposal) {
    const std::string path = proposal.forms.get<frmAnnexureA>().txtPathNm.text();
    if (path.empty())
        return;
    writeProposal(proposal, path);
    proposal.screen.message("Proposal has been created [ " + path + " ]. ", "Proposal Information Path ");
    proposal.isProposalOpen = true;
}

}  // namespace plandesk
