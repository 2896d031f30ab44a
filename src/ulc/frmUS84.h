#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "proposal/Grid.h"
#include "ulc/OrderForm.h"

namespace plandesk {

/// The order of the competent authority under section 8(4) of the Urban Land (Ceiling and Regulation) Act, 1976, for
/// one extract: the case, the applicant, the plots under development and the surplus area that results. Areas are in
/// square metres.
class frmUS84 : public OrderForm {
public:
    static constexpr std::string_view formName = "frmUS84";

    explicit frmUS84(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    /// Unloads the form, as Close does: the next extract starts afresh.
    void pressClose() override { proposal.forms.unload(formName); }

    /// Shows the order and the plots of the extract; without an order the boxes keep what they hold.
    void loadUS84Order();
    /// Replaces the order of the extract. Its plots stand in their table from the moment they are typed.
    void saveUS84Order();
    /// Replaces the plots of the extract by as many empty ones as the box says: what was typed is gone. RuntimeError 6
    /// or 13 for a number that is no 16-bit count; the plots stay then.
    void FillRecords();
    void colRsUS84TbaleSetting();
    void setLblTotalArea();
    /// Surplus = total under ownership - (deduction + green belt), not rounded. A box that holds no number leaves the
    /// surplus as it stands.
    void getSurplus();

    TextBox txtCaseNumber{*this, "txtCaseNumber"};
    DatePicker dtpResultDate{*this, "dtpResultDate"};
    TextBox txtApplicantName{*this, "txtApplicantName"};
    TextBox txtApplicantAddress{*this, "txtApplicantAddress"};
    TextBox txtNoOfPlotOwnedByApplicant{*this, "txtNoOfPlotOwnedByApplicant"};
    Grid dgdTableAB{*this, "dgdTableAB"};
    Label lblTotalArea{*this, "lblTotalArea", "0.00"};
    TextBox txtTotAreaOwnerShip{*this, "txtTotAreaOwnerShip"};
    TextBox txtAreaDeduction{*this, "txtAreaDeduction"};
    TextBox txtGreenBelt{*this, "txtGreenBelt"};
    TextBox txtSurplusArea{*this, "txtSurplusArea"};
    TextBox txtSurveyNo{*this, "txtSurveyNo"};
    Button cmdSave{*this, "cmdSave", "Save ULC US 8(4) Scrutiny Information"};
    Button cmdReferesh{*this, "cmdReferesh", "Reset"};  // no reaction
    Button cmdClose{*this, "cmdClose", "Close"};

private:
    void wire();
    void bindPlots();
    /// Sum of the total areas of the plots in sight.
    double totalArea();
    void totalChanged();
    void txtTotAreaOwnerShip_Change();
    void areaChanged(TextBox& box);
    void txtNoOfPlotOwnedByApplicant_LostFocus();
    bool enterOnGrid();
};

}  // namespace plandesk
