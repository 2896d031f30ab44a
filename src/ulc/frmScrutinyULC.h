#pragma once

#include <array>
#include <string_view>

#include "controls/Controls.h"
#include "proposal/DataForm.h"
#include "proposal/Grid.h"

namespace plandesk {

/// For each extract of the proposal: the document that controls ownership, the status of the ownership document, and
/// the order under the Urban Land (Ceiling and Regulation) Act, 1976, that applies.
class frmScrutinyULC : public DataForm {
public:
    static constexpr std::string_view formName = "frmScrutinyULC";

    explicit frmScrutinyULC(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;

    /// Takes the ownership rows of the controlling document that is on and lists the extracts. Does no more than change
    /// a caption until the land records of both kinds were saved.
    void optDocCtrlOwn_Click();
    /// Shows the rows of the chosen extract.
    void cmbExtract_Click();
    void cmdSave_Click();
    /// Gives each row of the ownership a row of orders, with the names as they are now.
    void fillRsULCDetails();
    /// "1" for 7/12 extracts, "2" for property cards, empty while neither is chosen.
    std::string_view ownershipCode() const;

    Frame fraProposal{*this, "fraProposal", "Proposal Information"};
    OptionGroup controllingDocument;
    std::array<OptionButton, 2> optDocCtrlOwn{{{*this, controllingDocument, "optDocCtrlOwn", "7/12 Utara(Extract)", 0},
                                               {*this, controllingDocument, "optDocCtrlOwn", "Property Card", 1}}};
    TextBox txtProposalDate{*this, "txtProposalDate"};
    TextBox txtCaseType{*this, "txtCaseType"};
    TextBox txtProposalNo{*this, "txtProposalNo"};  // nothing fills it
    TextBox txtArea{*this, "txtArea"};              // nor this
    Label lblNoOfExt{*this, "lblNoOfExt", "No of 7/12 Extracts + PRC"};
    TextBox txtNoOfExtranct{*this, "txtNoOfExtranct"};
    ComboBox cmbExtract{*this, "cmbExtract"};
    Frame fraOwnership{*this, "fraOwnership", "Ownership Information"};
    Grid dgdOwner{*this, "dgdOwner"};
    Grid dgdULCOrderDetails{*this, "dgdULCOrderDetails"};
    // Editors that float over cells
    GridEditor<ComboBox> cmbDocStatus{dgdOwner, "cmbDocStatus"};
    GridEditor<ComboBox> cmbULCORDERDetails{dgdULCOrderDetails, "cmbULCORDERDetails"};
    GridEditor<Button> cmdDetails{dgdULCOrderDetails, "cmdDetails", "Details"};
    Button cmdSave{*this, "cmdSave", "Save ULC Order Scrutiny Information"};
    Button cmdReferesh{*this, "cmdReferesh", "Reset"};  // no reaction
    Button cmdClose{*this, "cmdClose", "Close"};

private:
    void wire();
    void chooseOwnership();
    void listExtracts();
    void showOwnership(int extract);
    void showOrders(int extract);
    void placeDocStatus();
    void placeOrderCell(int column);
    // The button of a cell was pressed or the cell clicked: what floats over it comes up and takes the focus.
    void openDocStatus(int column);
    void openOrderCell(int column);
    void cmbDocStatus_Click();
    void cmbULCORDERDetails_Click();
    void cmdDetails_Click();
};

}  // namespace plandesk
