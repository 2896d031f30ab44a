// The one area of the Particulars that is computed: the area allowed for development.

#include <cstdint>
#include <string>

#include "base/Numbers.h"
#include "controls/Meaning.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

void frmAnnexureA::Opt2Y_Click() {
    if (refuseLetters(txtPltArea))
        return;
    if (refuseLetters(txtActualArea)) {
        Opt2.yes.setValue(false);
        return;
    }
    if (refuseEmpty(txtPltArea, "Enter Plot Area", "Plot Area") ||
        refuseEmpty(txtActualArea, "Enter Actual Area measured.", "Actual Area"))
        return;
    const bool actualIsLess = toDouble(txtActualArea.text()) < toDouble(txtPltArea.text());
    txtAreaAllowed.setText(actualIsLess ? txtActualArea.text() : txtPltArea.text());
    const Meaning meant(proposal.screen, txtAreaAllowed);
    proposal.feeArea = toInteger16(txtAreaAllowed.text());
    closeBox(txtAreaAllowed);
}

void frmAnnexureA::Opt2N_Click() {
    txtAreaAllowed.setText("");
    proposal.feeArea = 0;
    closeBox(txtAreaAllowed);
}

bool frmAnnexureA::refuseLetters(TextBox& area) {
    if (chkString(area.text(), "alpha") != -1)
        return false;
    const Meaning meant(proposal.screen, area);
    proposal.screen.message("Enter Numeric Data", "Invalid Data");
    area.setText("");
    area.setFocus();
    return true;
}

bool frmAnnexureA::refuseEmpty(TextBox& area, std::string_view text, std::string_view title) {
    if (!area.text().empty())
        return false;
    const Meaning meant(proposal.screen, area);
    proposal.screen.message(text, title);
    Opt2.yes.setValue(false);
    goToTab(0);
    area.setFocus();
    return true;
}

}  // namespace plandesk
