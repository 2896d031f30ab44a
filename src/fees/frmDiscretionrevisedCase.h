#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// The same for a revised case: what the revised drawing changes against the sanctioned one, amendment by amendment.
class frmDiscretionrevisedCase : public DataForm {
public:
    static constexpr std::string_view formName = "frmDiscretionrevisedCase";

    explicit frmDiscretionrevisedCase(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void enterPressed() override;
    void setBGColor();

    /// Sets `discretionRevisedXML`: the rows as they stand, neither trimmed nor escaped.
    void setDiscretionForSave();

    Label lblHead{*this, "lblHead", "Discretion : Revised Case"};
    Series<Label> lblRule;     ///< the 19 amendments
    Series<TextBox> txtRule;   ///< figure of the revised drawing
    Series<TextBox> txtRuleC;  ///< figure of the sanctioned drawing
    Series<TextBox> txtRuleD;  ///< the architect's remark
    Button Command5{*this, "Command5", "Print Particulars of Development"};
    Button Command9{*this, "Command9", "Close"};
};

}  // namespace plandesk
