#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "controls/Controls.h"
#include "proposal/DataForm.h"
#include "proposal/Grid.h"

namespace plandesk {

/// What the form of the 7/12 extracts and that of the PRCs do not share.
struct ExtractFamily {
    std::string_view formName;
    std::string_view caption;
    std::string_view head;
    std::string_view saveCaption;
    std::string_view resetCaption;
    Tables::Member extracts;
    Tables::Member owners;
    Tables::Member holders;
    std::span<const Tables::Member> droppedByReset;
    std::int16_t Proposal::*total;      ///< number of extracts that the relation form left
    std::string Proposal::*lastRemark;  ///< as last read from a document
    bool prc;
};

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
    ExtractForm(Proposal& proposal, const ExtractFamily& family);

private:
    /// A list that floats over the cells of one column of `dgdOwner`.
    struct OwnerList {
        ComboBox& list;
        int column;
        bool opened = false;  ///< by the user, so that leaving it writes to the cell
    };

    void wire();
    void applyPrcLabels();
    bool showsPrc() const { return family.prc || !proposal.is712Current; }
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
    void openList(int column);
    void placeList(OwnerList& owner);
    void leaveList(OwnerList& owner);
    void ownerCellChanged();
    void toggleSign();
    void cmdReferesh_Click();

    const ExtractFamily& family;
    std::array<OwnerList, 3> ownerLists;
    std::int16_t chosenExtract = 1;
    bool alreadyFilled = false;
    bool bindingOwners = false;
    bool placing = false;
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
