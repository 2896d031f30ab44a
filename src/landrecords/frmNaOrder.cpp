#include "landrecords/frmNaOrder.h"

#include <string>

#include "base/Text.h"

namespace plandesk {

namespace {

constexpr std::string_view areas[] = {"--- Select ---", "Residential", "Commercial", "Industrial", "Mixed"};
constexpr int mixed = 4;

constexpr LayoutRow orderRows[] = {
    {"", " N.A. Order No.", "txtNaOrderNo", "", "*"},
    {"", "Date : ", "DTPicker1", "", "*"},
    {"", " Land Area", "txtLandArea", " Sq.Mtr.", "*"},
    {"", " Area for which N.A. Order Issued", "cmbAreaForNA", "", "*"},
    {"", "", "txtArea1 lblUOM1", "", "", "lblAreaDesc1"},
    {"", "", "txtArea2 lblUOM2", "", "", "lblAreaDesc2"},
    {"", "N.A. Order Remark", "txtNARemark"},
};

constexpr LayoutGroup groups[] = {{"", orderRows}};
constexpr LayoutPage pages[] = {{groups}};

constexpr Layout sheet{
    .questionWidth = 34,
    .pages = pages,
    .buttons = "cmdSave cmdReferesh cmdClose Command1",
    .centred = true,
};

}  // namespace

frmNaOrder::frmNaOrder(Proposal& proposal) : DataForm(proposal, formName, "N.A. Order Details") {
    txtNARemark.multiLine = true;
    txtLandArea.keyPress = txtArea1.keyPress = txtArea2.keyPress = keyFilterDecimal;
    cmbAreaForNA.click = [this] { cmbAreaForNA_Click(); };
    Command1.toolTip = readsAgainTip;
    cmdSave.click = [this] { cmdSave_Click(); };
    cmdClose.click = [this] { hide(); };
    Command1.click = [this] { this->proposal.commands.readBlock(&Proposal::naOrderXML); };
    procedure("SaveNaOrder", [this] { SaveNaOrder(); });
}

void frmNaOrder::load() {
    DTPicker1.setDate(screen().ports.clock.today());
    for (const std::string_view area : areas)
        cmbAreaForNA.addItem(area, cmbAreaForNA.listCount());
    setFormColors(*this, proposal);
}

const Layout& frmNaOrder::layout() const {
    return sheet;
}

void frmNaOrder::cmbAreaForNA_Click() {
    const std::string text(trim(cmbAreaForNA.text()));
    for (int item = 0; !text.empty() && item < cmbAreaForNA.listCount(); ++item) {
        if (cmbAreaForNA.item(item) == text) {
            cmbAreaForNA.setListIndex(item);
            break;
        }
    }
    if (cmbAreaForNA.listIndex() < 0)
        return;
    const int use = cmbAreaForNA.itemData(cmbAreaForNA.listIndex());
    for (Control* control : {static_cast<Control*>(&txtArea1), static_cast<Control*>(&lblUOM1)})
        control->setVisible(use != 0);
    for (Control* control : {static_cast<Control*>(&txtArea2), static_cast<Control*>(&lblAreaDesc1),
                             static_cast<Control*>(&lblAreaDesc2), static_cast<Control*>(&lblUOM2)})
        control->setVisible(use == mixed);
}

void frmNaOrder::cmdSave_Click() {
    SaveNaOrder();
    hide();
}

void frmNaOrder::SaveNaOrder() {
    proposal.commands.buildBlock(&Proposal::naOrderXML);
}

}  // namespace plandesk
