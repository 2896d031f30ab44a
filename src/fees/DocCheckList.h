#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Controls.h"
#include "particulars/StepLinks.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// What makes one of the two checklists.
struct DocCheckListKind {
    std::string_view caption;
    /// Captions of the document rows, one part behind the other.
    std::array<std::span<const std::string_view>, 3> documents;
    int savedRows;                      ///< how many of the rows, from the first, are on the screen and saved
    std::string Proposal::*list;        ///< where the form leaves its checklist string
    std::string Proposal::*listBehind;  ///< checklist string that follows it in the document; null for none
    const Layout& layout;
};

extern const DocCheckListKind mandatoryDocuments;
extern const DocCheckListKind conditionalDocuments;

/// Row i of a checklist: `Check1`(i), `txtDocPageNo`(2i) and `txtDocPageNo`(2i + 1).
struct DocumentRow {
    DocumentRow(Form& form, int number, std::string_view document);

    CheckBox enclosed;
    TextBox pageFrom;
    TextBox pageTo;
};

/// A checklist of the documents that go with the proposal: each is ticked and given the pages, from and to, at which it
/// stands in the set. The icons are the doors to the forms of the land records.
class DocCheckList : public DataForm {
public:
    DocCheckList(Proposal& proposal, std::string_view name, const DocCheckListKind& kind);
    void load() override;
    const Layout& layout() const override;

    /// Leaves the checklist string, hides the form and shows frmAnnexureA. A row that cannot stand is told in a
    /// message; the string is then empty and this form is in front.
    void cmdSave_Click();
    /// Opens the form behind icon 0 to 3. The first two ask for extracts that are related to plots.
    void Image1_Click(int index);
    void cmdPrevious_Click();

    StepLinks links;
    Series<DocumentRow> rows;
    std::array<Image, 4> Image1{
        {{*this, "Image1", 0}, {*this, "Image1", 1}, {*this, "Image1", 2}, {*this, "Image1", 3}}};
    Button cmdPrevious{*this, "cmdPrevious", "Move to previous form"};
    Button cmdNext{*this, "cmdNext", "Move to next form"};
    Button cmdSave{*this, "cmdSave", "Save"};
    Button cmdSaveALL{*this, "cmdSaveALL", "Save Document Scrutiny Details"};
    Button Command5{*this, "Command5", "Print Particulars of Development"};
    Button cmdClose{*this, "cmdClose", "Close"};

    /// Why a row cannot stand, and the box to go to, or the document that is not ticked; no text when it can.
    struct Fault {
        std::string text;
        TextBox* box = nullptr;
        const CheckBox* unticked = nullptr;
    };
    /// Of every row that is saved and cannot stand. Tells and moves nothing.
    std::vector<Fault> faults();

private:
    void wireRows();
    static void txtDocPageNo_Change(DocumentRow& row, TextBox& page);
    static std::string rowText(const DocumentRow& row);
    static Fault rowFault(DocumentRow& row);
    void refuse(const Fault& fault);

    Fixed<const DocCheckListKind&> kind;
};

}  // namespace plandesk
