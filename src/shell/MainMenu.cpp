#include "shell/MainMenu.h"

#include <algorithm>
#include <array>

#include "base/Text.h"

namespace plandesk {

namespace {

constexpr std::array entries = std::to_array<MenuEntry>({
    {"mnuFile", "&File", "", EntryKind::Submenu},
    {"mnuNew", "&New", "mnuFile", EntryKind::Command},
    {"mnuOpen", "&Open", "mnuFile", EntryKind::Command},
    {"mnuSave", "&Save", "mnuFile", EntryKind::Command},
    {"mnuSaveAs", "Save &As", "mnuFile", EntryKind::Command},
    {"mnuExit", "E&xit", "mnuFile", EntryKind::Command},
    {"mnuAppForm", "&Application Form", "", EntryKind::Submenu},
    {"mnuAnnexure", "Particulars of Development", "mnuAppForm", EntryKind::Command},
    {"mnuSupervision", "Form of supervision", "mnuAppForm", EntryKind::Form, "frmofsupervision"},
    {"mnuCommencement", "Notice for commencement of work", "mnuAppForm", EntryKind::Form,
     "frmnoticeofcommencementofwork"},
    {"mnuComPlintLevel", "Completion up to plinth level", "mnuAppForm", EntryKind::Form,
     "frmcompletionuptoplinthlevel"},
    {"mnuBldgCompCertificate", "Building completion certificate", "mnuAppForm", EntryKind::Form,
     "frmbuildingcompletioncertificate"},
    {"mnuOccCertificate", "Part occupancy certificate", "mnuAppForm", EntryKind::Form,
     "frmforpartoccupancycertificate"},
    {"mnuIssDCR", "Issue of DRC", "mnuAppForm", EntryKind::Form, "frmIssuOfDRc"},
    {"mnuTransOwnerShip", "Transferring ownership", "mnuAppForm", EntryKind::Form, "frmtdrfortransferringownership"},
    {"mnuDcrTransForm", "DRC transfer form", "mnuAppForm", EntryKind::Form, "frmDRCTransfer"},
    {"mnuDCRUtilization", "DRC utilization form", "mnuAppForm", EntryKind::Form, "frmDRCUtilisationForm"},
    {"mnuDocCheckList", "&Document Checklist", "", EntryKind::Submenu},
    {"mnuMandatoryDocument", "Mandatory Document", "mnuDocCheckList", EntryKind::Form, "frmDocCheckList"},
    {"mnuOptionalMandatoryDoc", "Conditional Mandatory Documents", "mnuDocCheckList", EntryKind::Form,
     "frmDocCheckList1"},
    {"mnuPlotareaExt", "&Plot area details", "", EntryKind::Submenu},
    {"mnuPlotExtRelationShip", "&Plot extract relationship", "mnuPlotareaExt", EntryKind::Form,
     "frmPlotExtractRelation"},
    {"mnu712Ext", "7/12 extract", "mnuPlotareaExt", EntryKind::Icon, "frmMain712", 0},
    {"mnuPrc", "PRC", "mnuPlotareaExt", EntryKind::Icon, "frmPRCEXT", 1},
    {"mnuNaOrder", "NA Order", "mnuPlotareaExt", EntryKind::Icon, "frmNaOrder", 2},
    {"mnuUlcOrder", "ULC Order", "mnuPlotareaExt", EntryKind::Icon, "frmScrutinyULC", 3},
    {"mnuHelp", "&Help", "", EntryKind::Submenu},
    {"mnuContent", "Contents....", "mnuHelp", EntryKind::Form, "frmHelp"},
    {"mnuAbout", "About Architect Utility", "mnuHelp", EntryKind::Form, "frmAbout"},
});

}  // namespace

std::span<const MenuEntry> mainMenu() {
    return entries;
}

const MenuEntry* findMenuEntry(std::string_view name) {
    const auto found =
        std::ranges::find_if(entries, [&](const MenuEntry& entry) { return equalsIgnoringCase(entry.name, name); });
    return found == entries.end() ? nullptr : found;
}

}  // namespace plandesk
