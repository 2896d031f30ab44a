// New, Open, Save and Save As.

#include <optional>
#include <string>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Meaning.h"
#include "document/DocumentBlocks.h"
#include "document/SaveProposal.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmPayDetail.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "particulars/frmAnnexureA.h"
#include "shell/mdiInterface.h"

namespace plandesk {

namespace {

/// The path of the file that is open, which New carries across the unload of the form that holds it; empty without one.
std::string openPath(const Proposal& proposal) {
    const auto* form = static_cast<const frmAnnexureA*>(proposal.forms.loaded(frmAnnexureA::formName));
    return form ? form->txtPathNm.text() : "";
}

void hideDiscretion(Proposal& proposal) {
    for (const std::string_view name : {"frmDiscretionNewCase", "frmDiscretionrevisedCase"})
        if (Form* form = proposal.forms.loaded(name))
            form->hide();
}

}  // namespace

void mdiInterface::uloadAllForms() {
    proposal.forms.unloadDropped();
    proposal.forms.unload(frmPlotExtractRelation::formName);  // a second time
}

void mdiInterface::mnuNew_Click() {
    const std::string path = openPath(proposal);
    loadRoutine();
    proposal.isNewProposal = true;
    proposal.isProposalOpen = false;
    uloadAllForms();
    proposal.forms.get<frmMain712>().hide();
    auto& annexure = proposal.forms.get<frmAnnexureA>();
    annexure.txtPathNm.restoreText(path);  // so that emptying it below clears the caption when a file was open
    annexure.cmdFormNo_Click(0);
    proposal.screen.setCaption("Draftline Architect Utility - New file  ");
    annexure.txtPathNm.setText("");
    setAvailable("mnuSave", true);
    setAvailable("mnuSaveAs", false);
    refreshMenus();
}

void mdiInterface::mnuOpen_Click() {
    // A cancelled dialog leaves the flags of an opened proposal behind.
    proposal.isProposalOpen = true;
    proposal.isNewProposal = false;
    openFile();
}

void mdiInterface::openFile() {
    uloadAllForms();
    const std::string path =
        proposal.screen.ports.dialogs.openFile({"Select Proposals Path", "xml", "xml File(s) (*.xml)", "*.xml"});
    if (const std::string_view name = trim(path); name.empty() || equalsIgnoringCase(name, "*.xml"))
        return;
    renewTables();
    reader.LoadDocument(path);
    readDocument(path);
}

bool mdiInterface::openBytes(std::string_view bytes, const std::string& path) {
    proposal.isProposalOpen = true;
    proposal.isNewProposal = false;
    uloadAllForms();
    renewTables();
    const bool loaded = reader.LoadBytes(bytes);
    readDocument(path);
    return loaded;
}

void mdiInterface::renewTables() {
    proposal.tables.createAllTables();
    proposal.tables.create(&Tables::rsOwnership712);
    proposal.tables.create(&Tables::rsOwnership);
}

void mdiInterface::readDocument(const std::string& path) {
    reader.readSections();
    for (const DocumentBlock& block : documentBlocks())
        if (block.read)
            readBlock(block);
    proposal.forms.get<frmDocCheckList>().hide();
    proposal.forms.get<frmPayDetail>().hide();
    auto& annexure = proposal.forms.get<frmAnnexureA>();
    annexure.cmdFormNo_Click(0);
    proposal.screen.setCaption("Draftline Architect Utility  " + path);
    annexure.txtPathNm.setText(path);  // its change reaction leaves the bare path in the caption
    annexure.bringToFront();
    setAvailable("mnuSave", true);
    setAvailable("mnuSaveAs", true);
    refreshMenus();
}

void mdiInterface::readBlock(const DocumentBlock& block) {
    try {
        block.read(proposal, reader.document());
    } catch (const RuntimeError& error) {
        std::optional<Meaning> file;
        if (!reader.unread().empty())
            file.emplace(proposal.screen, reader.unread());
        proposal.screen.message(std::to_string(error.number) + ":" + error.description,
                                " Particulars of Development (Read XML) ", Icon::Critical);
    }
}

void mdiInterface::mnuSave_Click() {
    hideDiscretion(proposal);
    proposal.isSaveRequested = true;
    auto& annexure = proposal.forms.get<frmAnnexureA>();
    annexure.show();
    if (annexure.validateAnnexureFirstPage("Nothing was saved."))
        saveProposal(proposal);
}

void mdiInterface::mnuSaveAs_Click() {
    hideDiscretion(proposal);
    // The proposal counts as open again whatever happens, a run-time error too.
    struct OpenAgain {
        bool& flag;
        ~OpenAgain() { flag = true; }
    } const openAgain{proposal.isProposalOpen};
    proposal.isProposalOpen = false;
    proposal.isSaveAsRequested = true;
    saveProposal(proposal);
}

}  // namespace plandesk
