#include "fees/LandRecordDoors.h"

#include <array>
#include <string>
#include <string_view>

#include "base/Numbers.h"
#include "controls/Controls.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

/// What must stand before a door opens.
struct Relation {
    std::string Proposal::*fragment = nullptr;  ///< null: the door opens always
    std::string_view count{};                   ///< box of the relation form that must hold a number above 0
    std::string_view message{};
};

struct Door {
    std::string_view form;
    Relation needs{};
    bool is712 = false;
    std::string_view caption{};                  ///< empty: the form keeps its own
    void (*prepare)(Form& form) = [](Form&) {};  ///< runs before the form is shown
    bool choosesFirstExtract = true;
    bool modal = false;
};

constexpr std::array doors = std::to_array<Door>({
    {.form = "frmMain712",
     .needs = {&Proposal::plotRelXML, "txtNoOfExtract712", "Please Enter Relationship Details  for 7/12 Extract !"},
     .is712 = true,
     .caption = "Scrutiny Of 7/12  Extract"},
    {.form = "frmPRCEXT",
     .needs = {&Proposal::plotPrcDetailsXML, "txtNoOfPrc",
               "Please Enter Relationship Details for Property Register Card !"},
     .caption = "Scrutiny Of PRC Extract"},
    {.form = "frmNaOrder",
     .prepare = [](Form& form) { form.call("cmbAreaForNA_Click"); },
     .choosesFirstExtract = false,
     .modal = true},
    {.form = "frmScrutinyULC",
     .prepare =
         [](Form& form) {
             form.at("optDocCtrlOwn(0)").fire("Click");
             form.call("cmbExtract_Click");
         }},
});

bool related(Proposal& proposal, const Relation& relation) {
    if (!relation.fragment)
        return true;
    if ((proposal.*relation.fragment).empty())
        return false;
    const Form* form = proposal.forms.touch("frmPlotExtractRelation");
    return form && leadingNumber(form->at<TextBox>(relation.count).text()) > 0;
}

void chooseFirstExtract(const Form& form) {
    if (auto& extracts = form.at<ComboBox>("cmbExtract"); extracts.listCount() > 0)
        extracts.setListIndex(0);
}

}  // namespace

void openLandRecord(Proposal& proposal, int icon) {
    const Door& door = doors.at(static_cast<std::size_t>(icon));
    if (!related(proposal, door.needs))
        return proposal.screen.message(door.needs.message, "");
    proposal.is712Current = door.is712;
    Form* form = proposal.forms.touch(door.form);
    if (form) {
        if (!door.caption.empty())
            form->setCaption(door.caption);
        door.prepare(*form);
    }
    if (form && door.modal)
        form->showModal();
    else
        proposal.commands.open(door.form);
    if (form && door.choosesFirstExtract)
        chooseFirstExtract(*form);
}

}  // namespace plandesk
