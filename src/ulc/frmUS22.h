#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "ulc/OrderForm.h"

namespace plandesk {

/// Two areas of the order under section 22 of the Urban Land (Ceiling and Regulation) Act, 1976, for one extract: the
/// one that the first row of `rsULCOrder` stands for.
class frmUS22 : public OrderForm {
public:
    static constexpr std::string_view formName = "frmUS22";

    explicit frmUS22(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    /// Unloads the form, as Close does: the next extract starts afresh.
    void pressClose() override { proposal.forms.unload(formName); }

    /// Shows the order of the extract; without one the boxes keep what they hold.
    void loadUS22Order();
    /// Replaces the order of the extract. RuntimeError 3021 when no extract is chosen.
    void saveUS22Order();

    Frame fraUS22{*this, "fraUS22", "ULC Order Under Section (22)"};
    TextBox txtAreaExistingStruct{*this, "txtAreaExistingStruct"};
    TextBox txtLandAppurantArea{*this, "txtLandAppurantArea"};
    Button cmdSave{*this, "cmdSave", "Save ULC US 22 - Scrutiny Information"};
    Button cmdReferesh{*this, "cmdReferesh", "Reset"};  // no reaction
    Button cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace plandesk
