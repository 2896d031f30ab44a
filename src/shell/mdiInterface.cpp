#include "shell/mdiInterface.h"

#include <string>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "document/DocumentBlocks.h"
#include "document/ReadXML.h"
#include "document/SaveProposal.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmPayDetail.h"
#include "landrecords/Ownership.h"
#include "particulars/frmAnnexureA.h"
#include "particulars/particulars.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"
#include "reports/rptAnnexture.h"
#include "shell/FormCatalogue.h"

namespace plandesk {

namespace {

constexpr Colour windowBack = fromBlueGreenRed(0x669DC6);
constexpr Colour highlight = fromBlueGreenRed(0xD3EBED);
constexpr int formAfterReports = 5;  // its number in the catalogue of forms, from 1: the mandatory checklist
constexpr Colour boxBack = white;    // the system's colour number 9

}  // namespace

mdiInterface::mdiInterface(Proposal& proposal)
    : proposal(proposal),
      desk(std::make_unique<ReportDesk>(proposal)),
      feeds(std::make_unique<rptAnnexture>(proposal, *desk)) {
    proposal.screen.setCaption("Plandesk  Proposal  System");
    proposal.forms.declare(formCatalogue());
    fillCommands();
    loadRoutine();
}

mdiInterface::~mdiInterface() = default;

void mdiInterface::fillCommands() {
    Commands& asked = proposal.commands;
    asked.saveProposal = [this] { saveProposal(proposal); };
    asked.SaveData = [this] { SaveData(proposal); };
    asked.CreateXMLFIle = [this] { CreateXMLFIle(proposal); };
    asked.fileNotWritten = [this] { setAvailable("mnuSaveAs", true); };
    asked.readXml = [this] { openFile(); };
    asked.refreshMenus = [this] { refreshMenus(); };
    asked.buildBlock = [this](Commands::Fragment fragment) { buildBlock(proposal, fragment); };
    asked.readBlock = [this](Commands::Fragment fragment) {
        plandesk::readBlock(proposal, fragment, reader.document());
    };
    asked.open = [this](std::string_view name) { openForm(name); };
    asked.feed = [this](std::string_view report) { return feeds->fill(report); };
    asked.print = [this](std::string_view report) { feeds->print(report); };
    asked.reports = desk.get();

    auto& named = proposal.procedures;
    named["saveProposal"] = asked.saveProposal;
    named["buildOwnership"] = [this] { buildOwnership(proposal); };
    named["refreshMenus"] = asked.refreshMenus;
    named["uloadAllForms"] = [this] { uloadAllForms(); };
    named["requireParticulars"] = [this] { requireParticulars(); };
    named["closeAllForms"] = [this] { closeAllForms(proposal); };
    named["showAnnexureFirstPage"] = [this] { showAnnexureFirstPage(proposal); };
    named["showSectionFourPage"] = [this] { showSectionFourPage(proposal); };
    named["showPaymentColors"] = [this] { proposal.forms.get<frmPayDetail>().showPaymentColors(); };
    named["createAllTables"] = [this] { proposal.tables.createAllTables(); };
    named["bindParticularsPages"] = [this] { plandesk::bindParticularsPages(proposal, *desk); };
    named["closeReports"] = [this] { closeReports(); };
    for (const Report& report : reportCatalogue())
        if (!report.procedure.empty())
            named[std::string(report.procedure)] = [this, &report] { feeds->fill(report.name); };
    named["readSections"] = [this] { reader.readSections(); };
    for (const DocumentBlock& block : documentBlocks()) {
        if (block.build && !block.builder.empty())
            named[std::string(block.builder)] = [this, &block] { block.build(proposal); };
        if (block.read)
            named[std::string(block.reader)] = [this, &block] { block.read(proposal, reader.document()); };
    }

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

void mdiInterface::copyFrom(const mdiInterface& original) {
    proposal.copyFrom(original.proposal);
    reader.copyFrom(original.reader);
    desk->copyFrom(*original.desk);
    back = original.back;
    timer2Running = original.timer2Running;
    closed = original.closed;
}

bool mdiInterface::available(std::string_view name) const {
    const MenuEntry* entry = findMenuEntry(name);
    return entry && !proposal.screen.modalForm() && !closed.contains(std::string(name)) &&
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

void mdiInterface::mnuExit_Click() {
    const std::string_view meaning = available("mnuSave") ? "Answers that were not saved are lost." : "";
    if (proposal.screen.ports.dialogs.askYesNo(
            {"VDMA PLANDESK UTILITY ", " Do you want to Exit  ! ", Icon::Question, std::string(meaning)}))
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

void mdiInterface::closeReports() {
    desk->unloadAll();
    if (proposal.noReportReturn)
        openForm(formCatalogue()[formAfterReports - 1].name);
    else
        proposal.forms.get<frmAnnexureA>().show();
}

void mdiInterface::openForm(std::string_view name) {
    if (!proposal.forms.open(name))
        throw RuntimeError(ErrorNumber::ItemNotFound, "There is no form " + std::string(name));
}

void mdiInterface::setAvailable(std::string_view entry, bool on) {
    if (on)
        closed.erase(std::string(entry));
    else
        closed.insert(std::string(entry));
    proposal.screen.mainWindowTouched();
}

}  // namespace plandesk
