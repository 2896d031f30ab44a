#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// What a new case asks of the commissioner's discretion under the Development Control Regulations, rule by rule.
/// Nothing opens the form: it keeps the rows that a file brought along for the next save. New and Open leave it.
class frmDiscretionNewCase : public DataForm {
public:
    static constexpr std::string_view formName = "frmDiscretionNewCase";

    explicit frmDiscretionNewCase(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void enterPressed() override;
    void setBGColor();

    /// Sets `discretionNewXML`: the remarks as they stand, neither trimmed nor escaped.
    void setDiscretionNewForSave();

    Label lblHead{*this, "lblHead", "Discretion : New Case"};
    Series<TextBox> txtRule;  ///< the architect's remark on each of the 15 rules
    Button Command5{*this, "Command5", "Print Particulars of Development"};
    Button Command9{*this, "Command9", "Close"};
};

}  // namespace plandesk
