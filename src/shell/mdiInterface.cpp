#include "shell/mdiInterface.h"

#include <algorithm>
#include <array>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "document/AnnexureB.h"
#include "document/LandRecordBlocks.h"
#include "document/ReadXML.h"
#include "document/SaveProposal.h"
#include "drc/frmDRCTransfer.h"
#include "drc/frmDRCTransferCont.h"
#include "drc/frmDRCUtilisationForm.h"
#include "drc/frmIssuOfDRc.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "fees/frmPayDetail.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/Ownership.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "particulars/particulars.h"
#include "shell/frmAbout.h"
#include "shell/frmHelp.h"

namespace plandesk {

namespace {

// The discretion, development-right and conditional checklist forms keep their contents across New and Open.
constexpr std::array<std::string_view, 19> unloadedForms = {"AnnexureACont",
                                                            "frmAnnexureA",
                                                            "frmbuildingcompletioncertificate",
                                                            "frmcompletionuptoplinthlevel",
                                                            "frmDocCheckList",
                                                            "frmforpartoccupancycertificate",
                                                            "frmMain712",
                                                            "frmNaOrder",
                                                            "frmnoticeofcommencementofwork",
                                                            "frmofsupervision",
                                                            "frmPayDetail",
                                                            "frmPlotExtractRelation",
                                                            "frmPRCEXT",
                                                            "frmScrutinyULC",
                                                            "frmtdrfortransferringownership",
                                                            "frmULC20aDetails",
                                                            "frmUS22",
                                                            "frmUS84",
                                                            "frmPlotExtractRelation"};

constexpr Colour windowBack = fromBlueGreenRed(0x669DC6);
constexpr Colour highlight = fromBlueGreenRed(0xD3EBED);
constexpr Colour boxBack = white;  // the system's colour number 9

void uloadAllForms(Proposal& proposal) {
    for (const std::string_view form : unloadedForms)
        proposal.forms.unload(form);
}

void hideWhenLoaded(Proposal& proposal, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names)
        if (Form* form = proposal.forms.loaded(name))
            form->hide();
}

}  // namespace

mdiInterface::mdiInterface(Proposal& proposal) : proposal(proposal) {
    proposal.screen.setCaption("Plandesk  Proposal  System");
    declareForms();
    fillCommands();
    loadRoutine();
}

void mdiInterface::declareForms() {
    Forms& forms = proposal.forms;
    forms.declare<frmAnnexureA>();
    forms.declare<AnnexureACont>();
    forms.declare<frmPayDetail>();
    forms.declare<frmDocCheckList>();
    forms.declare<frmDocCheckList1>();
    forms.declare<frmPlotExtractRelation>();
    forms.declare<frmMain712>();
    forms.declare<frmPRCEXT>();
    forms.declare<frmNaOrder>();
    forms.declare<frmIssuOfDRc>();
    forms.declare<frmDRCTransfer>();
    forms.declare<frmDRCTransferCont>();
    forms.declare<frmDRCUtilisationForm>();
    forms.declare<frmAbout>();
    forms.declare<frmHelp>();
}

void mdiInterface::fillCommands() {
    Commands& asked = proposal.commands;
    asked.saveProposal = [this] { saveProposal(); };
    asked.SaveData = [this] { SaveData(proposal); };
    asked.CreateXMLFIle = [this] { CreateXMLFIle(proposal); };
    asked.buildAnnexureB = [this] { buildAnnexureB(proposal); };
    asked.buildExtractBlock = [this] { buildExtractBlock(proposal); };
    asked.buildPRCBlock = [this] { buildPRCBlock(proposal); };
    asked.readXml = [this] { openFile(); };
    asked.refreshMenus = [this] { refreshMenus(); };
    asked.showPayment = [this] { showPayment(proposal); };
    asked.open = [this](std::string_view name) { openForm(name); };

    auto& named = proposal.procedures;
    named["saveProposal"] = asked.saveProposal;
    named["buildAnnexureB"] = asked.buildAnnexureB;
    named["buildExtractBlock"] = asked.buildExtractBlock;
    named["buildPRCBlock"] = asked.buildPRCBlock;
    named["buildOwnership"] = [this] { buildOwnership(proposal); };
    named["refreshMenus"] = asked.refreshMenus;
    named["uloadAllForms"] = [this] { uloadAllForms(proposal); };
    named["requireParticulars"] = [this] { requireParticulars(); };
    named["closeAllForms"] = [this] { closeAllForms(proposal); };
    named["showAnnexureFirstPage"] = [this] { showAnnexureFirstPage(proposal); };
    named["showSectionFourPage"] = [this] { showSectionFourPage(proposal); };
    named["showPaymentColors"] = [this] { proposal.forms.get<frmPayDetail>().showPaymentColors(); };
    named["createAllTables"] = [this] { proposal.tables.createAllTables(); };
    named["readSections"] = [this] { reader.readSections(); };
    for (const ReadXML::Step& step : ReadXML::steps)
        named[std::string(step.name)] = [this, &step] { (reader.*step.read)(); };

    commands["mnuNew"] = [this] { mnuNew_Click(); };
    commands["mnuOpen"] = [this] { mnuOpen_Click(); };
    commands["mnuSave"] = [this] { mnuSave_Click(); };
    commands["mnuSaveAs"] = [this] { mnuSaveAs_Click(); };
    commands["mnuExit"] = [this] { mnuExit_Click(); };
    commands["mnuAnnexure"] = [this] { mnuAnnexure_Click(); };
}

void mdiInterface::loadRoutine() {
    back = windowBack;
    proposal.activeButtonColor = white;
    proposal.formBackColor = fromBlueGreenRed(0xF2F8FF);
    proposal.tables.createAllTables();
    proposal.forms.unload("frmAnnexureA");
    setAvailable("mnuSave", false);
    setAvailable("mnuSaveAs", false);
    refreshMenus();
}

bool mdiInterface::available(std::string_view name) const {
    const MenuEntry* entry = findMenuEntry(name);
    return entry && !proposal.screen.modalForm() && !closed.contains(std::string(name)) &&
           (entry->form.empty() || proposal.forms.known(entry->form)) &&
           (entry->parent.empty() || available(entry->parent));
}

bool mdiInterface::press(std::string_view entry) {
    if (proposal.screen.ended() || !available(entry))
        return false;
    proposal.screen.event([&] {
        proposal.screen.dropFocus();
        run(entry);
    });
    return true;
}

bool mdiInterface::run(std::string_view procedure) {
    constexpr std::string_view click = "_Click";
    const std::string name(procedure.ends_with(click) ? procedure.substr(0, procedure.size() - click.size())
                                                      : procedure);
    const MenuEntry* entry = findMenuEntry(name);
    if (const auto command = commands.find(name); command != commands.end())
        command->second();
    else if (entry && entry->kind == EntryKind::Form)
        openForm(entry->form);
    else if (entry && entry->kind == EntryKind::Icon)
        proposal.forms.get<frmDocCheckList>().Image1_Click(entry->icon);
    else if (equalsIgnoringCase(name, "Timer1_Timer"))
        Timer1_Timer();
    else if (equalsIgnoringCase(name, "Timer2_Timer"))
        Timer2_Timer();
    else
        return false;
    return true;
}

bool mdiInterface::pressClose() {
    if (proposal.screen.modalForm())
        return false;
    proposal.screen.event([this] { mnuExit_Click(); });
    return true;
}

void mdiInterface::resized() {
    timer2Running = true;
}

void mdiInterface::Timer1_Timer() {
    const Form* form = proposal.screen.activeForm();
    if (!form)
        return;
    form->forEach<TextBox>([](TextBox& box) {
        if (box.enabled())
            box.setBackColor(box.focused() ? highlight : boxBack);
    });
}

void mdiInterface::Timer2_Timer() {
    if (!timer2Running)
        return;
    timer2Running = false;
    if (!minimised())
        paintBackground();
}

void mdiInterface::mnuNew_Click() {
    // The file's path outlives the unload, so that emptying the path box below clears the caption exactly when a file
    // was open.
    const Form* earlier = proposal.forms.loaded("frmAnnexureA");
    const std::string path = earlier ? static_cast<const frmAnnexureA*>(earlier)->txtPathNm.text() : "";
    loadRoutine();
    proposal.isNewProposal = true;
    proposal.isProposalOpen = false;
    uloadAllForms(proposal);
    if (Form* form = proposal.forms.touch("frmMain712"))
        form->hide();
    auto& annexure = proposal.forms.get<frmAnnexureA>();
    annexure.txtPathNm.restoreText(path);
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
    uloadAllForms(proposal);
    const std::string path =
        proposal.screen.ports.dialogs.openFile({"Select Proposals Path", "xml", "xml File(s) (*.xml)", "*.xml"});
    if (const std::string_view name = trim(path); name.empty() || equalsIgnoringCase(name, "*.xml"))
        return;
    proposal.tables.createAllTables();
    proposal.tables.create(&Tables::rsOwnership712);
    proposal.tables.create(&Tables::rsOwnership);
    reader.LoadDocument(path);
    reader.readSections();
    for (const ReadXML::Step& step : ReadXML::steps)
        readStep(step);
    for (const std::string_view name : {"frmDocCheckList", "frmPayDetail"})
        proposal.forms.touch(name)->hide();
    auto& annexure = proposal.forms.get<frmAnnexureA>();
    annexure.cmdFormNo_Click(0);
    proposal.screen.setCaption("Draftline Architect Utility  " + path);
    annexure.txtPathNm.setText(path);  // its change reaction leaves the bare path in the caption
    annexure.bringToFront();
    setAvailable("mnuSave", true);
    setAvailable("mnuSaveAs", true);
    refreshMenus();
}

void mdiInterface::readStep(const ReadXML::Step& step) {
    try {
        (reader.*step.read)();
    } catch (const RuntimeError& error) {
        proposal.screen.message(std::to_string(error.number) + ":" + error.description,
                                " Particulars of Development (Read XML) ", Icon::Critical);
    }
}

void mdiInterface::mnuSave_Click() {
    hideWhenLoaded(proposal, {"frmDiscretionNewCase", "frmDiscretionrevisedCase"});
    proposal.isSaveRequested = true;
    auto& annexure = proposal.forms.get<frmAnnexureA>();
    annexure.show();
    if (annexure.validateAnnexureFirstPage())
        saveProposal();
}

void mdiInterface::mnuSaveAs_Click() {
    hideWhenLoaded(proposal, {"frmDiscretionNewCase", "frmDiscretionrevisedCase"});
    proposal.isProposalOpen = false;
    proposal.isSaveAsRequested = true;
    saveProposal();
    proposal.isProposalOpen = true;
}

void mdiInterface::saveProposal() {
    try {
        plandesk::saveProposal(proposal);
    } catch (const RuntimeError&) {
        // A proposal that could not be written to its file can be saved elsewhere.
        setAvailable("mnuSaveAs", true);
        throw;
    }
}

void mdiInterface::mnuExit_Click() {
    if (proposal.screen.ports.dialogs.askYesNo({"VDMA PLANDESK UTILITY ", " Do you want to Exit  ! ", Icon::Question}))
        proposal.screen.end();
}

void mdiInterface::mnuAnnexure_Click() {
    auto& annexure = proposal.forms.get<frmAnnexureA>();
    annexure.PropTab.setTab(0);
    annexure.show();
    setAvailable("mnuSave", true);
    proposal.isNewProposal = true;
    refreshMenus();
}

void mdiInterface::refreshMenus() {
    const bool begun = proposal.isNewProposal || proposal.isProposalOpen;
    setAvailable("mnuDocCheckList", begun);
    setAvailable("mnuPlotareaExt", begun);
}

bool mdiInterface::requireParticulars() {
    const bool missing = !proposal.isNewProposal && !proposal.isProposalOpen;
    if (missing)
        proposal.screen.message("Please Fill Particular of Development ! ", "Plandesk Proposal System ");
    return missing;
}

void mdiInterface::openForm(std::string_view name) {
    if (equalsIgnoringCase(name, frmPlotExtractRelation::formName))
        proposal.forms.get<frmPlotExtractRelation>().open();
    else if (Form* form = proposal.forms.touch(name))
        form->show();
    else
        proposal.screen.message("This form is not there yet.", "");
}

void mdiInterface::setAvailable(std::string_view entry, bool on) {
    if (on)
        closed.erase(std::string(entry));
    else
        closed.insert(std::string(entry));
    proposal.screen.mainWindowTouched();
}

}  // namespace plandesk
