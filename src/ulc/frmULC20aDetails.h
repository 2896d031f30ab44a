#pragma once

#include <array>
#include <string_view>

#include "controls/Controls.h"
#include "proposal/Grid.h"
#include "ulc/OrderForm.h"

namespace plandesk {

/// The exemption scheme under section 20(a)(1) of the Urban Land (Ceiling and Regulation) Act, 1976, for one extract:
/// the type of scheme, the particulars that all schemes share, the scheme's fixed rows and a closing figure.
class frmULC20aDetails : public OrderForm {
public:
    static constexpr std::string_view formName = "frmULC20aDetails";

    explicit frmULC20aDetails(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    /// Unloads the form, as Close does: the next extract starts afresh.
    void pressClose() override { proposal.forms.unload(formName); }

    /// Shows the order of the extract; without one the form stays as it is. The date picker is never touched.
    void loadUS20a1Order();
    /// Replaces the order of the extract and the figures of its scheme: those of a scheme with more rows are lost.
    void saveUS20a1Order();
    void setCombo();
    /// Columns of the grid and caption of the closing figure for the chosen scheme; nothing for an index without one.
    void dgdSchemeDetailsColSetting();
    /// Fills the grid with the rows of the scheme and the figures saved for them. The figures have no scheme of their
    /// own: those of one scheme show again in the rows of another.
    void FillrsULCOrderUS20a1(int scheme);
    /// Takes villages, survey numbers and surplus from the order under section 8(4).
    void displayFieldsFromUS84();

    Frame fraUS20a1{*this, "fraUS20a1", "U/S 20(a) (1) Details"};
    ComboBox cmbSchemaType{*this, "cmbSchemaType"};
    Label lblDetails{*this, "lblDetails", "Details :"};
    TextBox txtDetails{*this, "txtDetails"};
    YesNo IsUlCUS84Submitted{*this, "IsUlCUS84Submitted"};
    Frame frmCommonSchema{*this, "frmCommonSchema", "Common For All Schemes"};
    DatePicker DTPAppllication{*this, "DTPAppllication"};
    std::array<TextBox, 12> txtCommonScheme{{{*this, "txtCommonScheme", 0},
                                             {*this, "txtCommonScheme", 1},
                                             {*this, "txtCommonScheme", 2},
                                             {*this, "txtCommonScheme", 3},
                                             {*this, "txtCommonScheme", 4},
                                             {*this, "txtCommonScheme", 5},
                                             {*this, "txtCommonScheme", 6},
                                             {*this, "txtCommonScheme", 7},
                                             {*this, "txtCommonScheme", 8},
                                             {*this, "txtCommonScheme", 9},
                                             {*this, "txtCommonScheme", 10},
                                             {*this, "txtCommonScheme", 11}}};
    YesNo IsReservationCondition{*this, "IsReservationCondition"};
    Frame fraTableForDispenseScheme{*this, "fraTableForDispenseScheme", "Table For Special Dispense Scheme"};
    Grid dgdSchemeDetails{*this, "dgdSchemeDetails"};
    Label lblSpecDispScheme{*this, "lblSpecDispScheme", "Total number of plots to be developed :"};
    TextBox txtSpeDisScheme{*this, "txtSpeDisScheme"};
    Button cmdSave{*this, "cmdSave", "Save ULC US 20 a 1- Scrutiny Inforamtion"};
    Button cmdReferesh{*this, "cmdReferesh", ""};  // no reaction
    Button cmdClose{*this, "cmdClose", "Close"};

private:
    void wire();
    void cmbSchemaType_Click();
    void IsUlCUS84Submitted_Click();
    void IsReservationCondition_Click();
    void bindScheme();
    bool enterOnGrid();
    void saveFigures(Tables::Member table, int column, std::int32_t extract);
};

}  // namespace plandesk
