#include "shell/mdiInterface.h"

#include <algorithm>
#include <array>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "document/AnnexureB.h"
#include "document/ReadXML.h"
#include "document/SaveProposal.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "fees/frmPayDetail.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "particulars/particulars.h"
#include "shell/frmAbout.h"
#include "shell/frmHelp.h"

namespace plandesk {

namespace {

constexpr std::array entries = std::to_array<MenuEntry>({
    {"mnuFile", "&File", "", true},
    {"mnuNew", "&New", "mnuFile"},
    {"mnuOpen", "&Open", "mnuFile"},
    {"mnuSave", "&Save", "mnuFile"},
    {"mnuSaveAs", "Save &As", "mnuFile"},
    {"mnuExit", "E&xit", "mnuFile"},
    {"mnuAppForm", "&Application Form", "", true},
    {"mnuAnnexure", "Particulars of Development", "mnuAppForm"},
    {"mnuSupervision", "Form of supervision", "mnuAppForm"},
    {"mnuCommencement", "Notice for commencement of work", "mnuAppForm"},
    {"mnuComPlintLevel", "Completion up to plinth level", "mnuAppForm"},
    {"mnuBldgCompCertificate", "Building completion certificate", "mnuAppForm"},
    {"mnuOccCertificate", "Part occupancy certificate", "mnuAppForm"},
    {"mnuIssDCR", "Issue of DRC", "mnuAppForm"},
    {"mnuTransOwnerShip", "Transferring ownership", "mnuAppForm"},
    {"mnuDcrTransForm", "DRC transfer form", "mnuAppForm"},
    {"mnuDCRUtilization", "DRC utilization form", "mnuAppForm"},
    {"mnuDocCheckList", "&Document Checklist", "", true},
    {"mnuMandatoryDocument", "Mandatory Document", "mnuDocCheckList"},
    {"mnuOptionalMandatoryDoc", "Conditional Mandatory Documents", "mnuDocCheckList"},
    {"mnuPlotareaExt", "&Plot area details", "", true},
    {"mnuPlotExtRelationShip", "&Plot extract relationship", "mnuPlotareaExt"},
    {"mnu712Ext", "7/12 extract", "mnuPlotareaExt"},
    {"mnuPrc", "PRC", "mnuPlotareaExt"},
    {"mnuNaOrder", "NA Order", "mnuPlotareaExt"},
    {"mnuUlcOrder", "ULC Order", "mnuPlotareaExt"},
    {"mnuHelp", "&Help", "", true},
    {"mnuContent", "Contents....", "mnuHelp"},
    {"mnuAbout", "About Architect Utility", "mnuHelp"},
});

/// What an entry does that only brings one form to the front.
struct FormEntry {
    std::string_view entry;
    std::string_view form;
};

constexpr std::array formEntries = std::to_array<FormEntry>({
    {"mnuSupervision", "frmofsupervision"},
    {"mnuCommencement", "frmnoticeofcommencementofwork"},
    {"mnuComPlintLevel", "frmcompletionuptoplinthlevel"},
    {"mnuBldgCompCertificate", "frmbuildingcompletioncertificate"},
    {"mnuOccCertificate", "frmforpartoccupancycertificate"},
    {"mnuIssDCR", "frmIssuOfDRc"},
    {"mnuTransOwnerShip", "frmtdrfortransferringownership"},
    {"mnuDcrTransForm", "frmDRCTransfer"},
    {"mnuDCRUtilization", "frmDRCUtilisationForm"},
    {"mnuMandatoryDocument", "frmDocCheckList"},
    {"mnuOptionalMandatoryDoc", "frmDocCheckList1"},
    {"mnuPlotExtRelationShip", "frmPlotExtractRelation"},
    {"mnuContent", "frmHelp"},
    {"mnuAbout", "frmAbout"},
});

/// Entries that press an icon of the mandatory checklist. Those without a test of their own open the form outright.
struct IconEntry {
    std::string_view entry;
    int icon;
    std::string_view opens;
};

constexpr std::array iconEntries = std::to_array<IconEntry>({
    {"mnu712Ext", 0, ""},
    {"mnuPrc", 1, ""},
    {"mnuNaOrder", 2, "frmNaOrder"},
    {"mnuUlcOrder", 3, "frmScrutinyULC"},
});

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

std::span<const MenuEntry> mdiInterface::menu() {
    return entries;
}

void mdiInterface::declareForms() {
    Forms& forms = proposal.forms;
    forms.declare<frmAnnexureA>();
    forms.declare<AnnexureACont>();
    forms.declare<frmPayDetail>();
    forms.declare<frmDocCheckList>();
    forms.declare<frmDocCheckList1>();
    forms.declare<frmAbout>();
    forms.declare<frmHelp>();
}

void mdiInterface::fillCommands() {
    Commands& asked = proposal.commands;
    asked.saveProposal = [this] { saveProposal(); };
    asked.SaveData = [this] { SaveData(proposal); };
    asked.CreateXMLFIle = [this] { CreateXMLFIle(proposal); };
    asked.buildAnnexureB = [this] { buildAnnexureB(proposal); };
    asked.readXml = [this] { openFile(); };
    asked.refreshMenus = [this] { refreshMenus(); };
    asked.showPayment = [this] { showPayment(proposal); };
    asked.open = [this](std::string_view name) { openForm(name); };

    auto& named = proposal.procedures;
    named["saveProposal"] = asked.saveProposal;
    named["buildAnnexureB"] = asked.buildAnnexureB;
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
    for (const FormEntry& entry : formEntries)
        commands[std::string(entry.entry)] = [this, form = entry.form] { openForm(form); };
    for (const IconEntry& entry : iconEntries)
        commands[std::string(entry.entry)] = [this, icon = entry.icon] {
            proposal.forms.get<frmDocCheckList>().Image1_Click(icon);
        };
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

bool mdiInterface::available(std::string_view entry) const {
    const auto found =
        std::ranges::find_if(entries, [&](const MenuEntry& e) { return equalsIgnoringCase(e.name, entry); });
    if (found == entries.end() || closed.contains(std::string(entry)))
        return false;
    if (const auto form = std::ranges::find(formEntries, found->name, &FormEntry::entry);
        form != formEntries.end() && !proposal.forms.known(form->form))
        return false;
    if (const auto icon = std::ranges::find(iconEntries, found->name, &IconEntry::entry);
        icon != iconEntries.end() && !icon->opens.empty() && !proposal.forms.known(icon->opens))
        return false;
    return found->parent.empty() || available(found->parent);
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
    if (const auto command = commands.find(name); command != commands.end())
        command->second();
    else if (equalsIgnoringCase(name, "Timer1_Timer"))
        Timer1_Timer();
    else if (equalsIgnoringCase(name, "Timer2_Timer"))
        Timer2_Timer();
    else
        return false;
    return true;
}

void mdiInterface::closeBox() {
    proposal.screen.event([this] { mnuExit_Click(); });
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
    if (Form* form = proposal.forms.touch(name))
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
