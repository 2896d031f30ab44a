#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// The order that permits non-agricultural use of the land. Its values live in the controls alone.
class frmNaOrder : public DataForm {
public:
    static constexpr std::string_view formName = "frmNaOrder";

    explicit frmNaOrder(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    bool enterActsAsTab() const override { return false; }

    /// Chooses the item that the list's text names and opens the areas that belong to it.
    void cmbAreaForNA_Click();
    void cmdSave_Click();
    /// Asks for a new `naOrderXML`.
    void SaveNaOrder();

    TextBox txtNaOrderNo{*this, "txtNaOrderNo"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    TextBox txtLandArea{*this, "txtLandArea"};
    ComboBox cmbAreaForNA{*this, "cmbAreaForNA"};
    Label lblAreaDesc1{*this, "lblAreaDesc1", "[Residential.Area]"};
    TextBox txtArea1{*this, "txtArea1"};
    Label lblUOM1{*this, "lblUOM1", " Sq.Mtr."};
    Label lblAreaDesc2{*this, "lblAreaDesc2", " [Commercial.Area]"};
    TextBox txtArea2{*this, "txtArea2"};
    Label lblUOM2{*this, "lblUOM2", " Sq.Mtr."};
    TextBox txtNARemark{*this, "txtNARemark"};
    Button cmdSave{*this, "cmdSave", "Save N.A.Order Information"};
    Button cmdReferesh{*this, "cmdReferesh", "Reset "};  // no reaction
    Button cmdClose{*this, "cmdClose", "Close"};
    Button Command1{*this, "Command1", "Command1"};
};

}  // namespace plandesk
