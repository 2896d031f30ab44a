#pragma once

#include <cstdint>
#include <string_view>

#include "controls/Controls.h"
#include "landrecords/OwnerLists.h"
#include "proposal/DataForm.h"
#include "proposal/Grid.h"

namespace plandesk {

struct ExtractFamily;
struct ExtractFormKind;
struct ExtractWording;

/// The records of one family of extracts: survey data, owners and power-of-attorney holders of each. The number of
/// extracts and their link to plots are fixed on the relation form; here the count is only shown.
class ExtractForm : public DataForm {
public:
    void load() override;
    const Layout& layout() const override;
    int keyPress(int key) const override;
    bool enterActsAsTab() const override;

    void cmbExtract_Click();
    void cmdSave_Click();
    /// Fills the list of extracts from the plots and builds the rows of a table that has none yet. RuntimeError 6 for a
    /// count beyond 16 bits.
    void txtNoOfExtranct_LostFocus();
    /// Replaces the owners of the chosen extract by `count` untouched ones: names already typed are gone.
    void addOwner(std::int16_t count);
    /// The same for the power-of-attorney holders.
    void addPAH(std::int16_t count);
    void dgdPAHCallSetting();

    Label lblHead;
    TextBox txtCaseType{*this, "txtCaseType"};
    Label lblNoOfExt{*this, "lblNoOfExt", " No of 7/12 Extracts"};
    TextBox txtNoOfExtranct{*this, "txtNoOfExtranct"};
    Label lblSelectExtract{*this, "lblSelectExtract", "Select 7/12 Extract For Details"};
    ComboBox cmbExtract{*this, "cmbExtract"};
    Label lblInfoExtract{*this, "lblInfoExtract", " Information For Extract No :- 1"};
    Frame fraExt{*this, "fraExt", "Extract Details"};
    Grid dgdInfoOfExtract{*this, "dgdInfoOfExtract"};
    Grid dgdOwner{*this, "dgdOwner"};
    Grid dgdPAH{*this, "dgdPAH"};
    // Editors that float over cells
    GridEditor<DatePicker> DTPicker1{dgdInfoOfExtract, "DTPicker1"};
    GridEditor<ComboBox> cmbOwnSingingStatus{dgdOwner, "cmbOwnSingingStatus"};
    GridEditor<ComboBox> cmbEncumber{dgdOwner, "cmbEncumber"};
    GridEditor<ComboBox> cmbOwnType{dgdOwner, "cmbOwnType"};

    Label lblRemark{*this, "lblRemark", "7/12 Remarks"};
    TextBox txtRemark{*this, "txtRemark"};
    Button cmdSave;
    Button cmdReferesh;
    Button cmdClose{*this, "cmdClose", "Close"};
    Button Command1{*this, "Command1", "Command1"};

protected:
    ExtractForm(Proposal& proposal, const ExtractFormKind& kind);

private:
    void wire();
    void applyWording();
    void reread();
    void listExtracts();
    void buildRows();
    void showEditors(bool on);
    Recordset& chosen(Tables::Member table);
    void bindInfo();
    void bindOwners();
    void bindHolders();
    void infoUpdated(int column);
    void placeDate(bool focus);
    void dateChosen();
    void ownerCellChanged();
    void toggleSign();
    void cmdReferesh_Click();

    Fixed<const ExtractFormKind&> kind;
    Fixed<const ExtractFamily&> family;
    const ExtractWording* wording = nullptr;  ///< fixed when the form is loaded
    Fixed<OwnerLists> ownerLists;
    std::int16_t chosenExtract = 1;
    bool alreadyFilled = false;  ///< raised by Command1; a fill that stops early leaves it up
    bool bindingOwners = false;
};

/// "Scrutiny Of 7/12 Extract". Loaded while PRCs are the subject, it wears their labels and lists their plots.
class frmMain712 : public ExtractForm {
public:
    static constexpr std::string_view formName = "frmMain712";
    explicit frmMain712(Proposal& proposal);
};

/// "PRC Extract Scruitny ".
class frmPRCEXT : public ExtractForm {
public:
    static constexpr std::string_view formName = "frmPRCEXT";
    explicit frmPRCEXT(Proposal& proposal);
};

}  // namespace plandesk
