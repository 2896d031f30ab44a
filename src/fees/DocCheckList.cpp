#include "fees/DocCheckList.h"

#include <optional>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Meaning.h"
#include "fees/LandRecordDoors.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

Series<DocumentRow> makeRows(Form& form, const DocCheckListKind& kind) {
    Series<DocumentRow> rows;
    for (const auto part : kind.documents)
        for (const std::string_view document : part)
            rows.emplace_back(form, static_cast<int>(rows.size()), document);
    return rows;
}

int keyFilterPage(int key) {
    return key == ' ' || key == '.' ? 0 : key;
}

}  // namespace

DocumentRow::DocumentRow(Form& form, int number, std::string_view document)
    : enclosed(form, "Check1", document, number),
      pageFrom(form, "txtDocPageNo", 2 * number),
      pageTo(form, "txtDocPageNo", 2 * number + 1) {}

DocCheckList::DocCheckList(Proposal& proposal, std::string_view name, const DocCheckListKind& kind)
    : DataForm(proposal, name, kind.caption), links(*this, proposal), rows(makeRows(*this, kind)), kind(kind) {
    wireRows();
    for (Image& image : Image1) {
        image.toolTip = "Click Here to add the Details";
        image.click = [this, &image] { Image1_Click(image.index()); };
    }
    cmdPrevious.click = [this] { cmdPrevious_Click(); };
    cmdSave.click = [this] { cmdSave_Click(); };
    cmdSaveALL.click = [this] { this->proposal.commands.saveProposal(); };
    Command5.click = [this] { this->proposal.commands.print("rptDocChecklist"); };
    cmdSave.toolTip = keepsAnswersTip;
    cmdSaveALL.toolTip = savesAllTip;
    Command5.toolTip = printsTip;
    cmdClose.toolTip = closesProgramTip;
    cmdClose.click = [this] { closeAllForms(this->proposal); };
}

void DocCheckList::wireRows() {
    for (DocumentRow& row : rows) {
        for (TextBox* page : {&row.pageFrom, &row.pageTo}) {
            page->keyPress = keyFilterPage;
            page->change = [&row, page] { txtDocPageNo_Change(row, *page); };
        }
    }
}

void DocCheckList::load() {
    cmdNext.setEnabled(false);
    for (DocumentRow& row : rows) {
        if (row.enclosed.index() < kind->savedRows)
            continue;
        row.enclosed.setVisible(false);
        row.pageFrom.setVisible(false);
        row.pageTo.setVisible(false);
    }
    setFormColors(*this, proposal);
}

const Layout& DocCheckList::layout() const {
    return kind->layout;
}

void DocCheckList::txtDocPageNo_Change(DocumentRow& row, TextBox& page) {
    checkRateBox(page, page, page, false);
    const bool given = leadingNumber(page.text()) > 0;
    if (!given)
        page.setText("");
    row.enclosed.setValue(given ? 1 : 0);
}

std::string DocCheckList::rowText(const DocumentRow& row) {
    return row.enclosed.value() == 1 ? "1-" + row.pageFrom.text() + "-" + row.pageTo.text() : "0-0-0";
}

DocCheckList::Fault DocCheckList::rowFault(DocumentRow& row) {
    const bool noFrom = trim(row.pageFrom.text()).empty();
    const bool noTo = trim(row.pageTo.text()).empty();
    if (row.enclosed.value() == 0)  // a page to alone is let pass
        return noFrom ? Fault{}
                      : Fault{"Select the document enclosed and provide the page No!!", nullptr, &row.enclosed};
    if (noFrom)
        return {"Enter Document From Page No ! for : = " + row.enclosed.caption(), &row.pageFrom};
    if (noTo)
        return {"Enter Document To Page No ! for : = " + row.enclosed.caption(), &row.pageTo};
    return {};
}

std::vector<DocCheckList::Fault> DocCheckList::faults() {
    std::vector<Fault> found;
    for (DocumentRow& row : rows)
        if (row.enclosed.index() < kind->savedRows)
            if (Fault fault = rowFault(row); !fault.text.empty())
                found.push_back(std::move(fault));
    return found;
}

void DocCheckList::cmdSave_Click() {
    std::string& list = proposal.*kind->list;
    list.clear();
    for (DocumentRow& row : rows) {
        if (row.enclosed.index() >= kind->savedRows)
            break;
        if (const Fault fault = rowFault(row); !fault.text.empty())
            return refuse(fault);
        list += (row.enclosed.index() > 0 ? "#" : "") + rowText(row);
    }
    auto& form = proposal.forms.get<frmAnnexureA>();
    // Nothing stands between the two lists: the last row of the one runs into the first of the other.
    form.txtDocChkList.setText(kind->listBehind ? list + proposal.*kind->listBehind : list);
    hide();
    form.show();
}

void DocCheckList::refuse(const Fault& fault) {
    (proposal.*kind->list).clear();
    show();
    std::optional<Meaning> meant;
    if (fault.box)
        meant.emplace(screen(), *fault.box);
    screen().message(fault.text, "Document Checklist !");
    if (fault.box)
        fault.box->setFocus();
}

void DocCheckList::Image1_Click(int index) {
    openLandRecord(proposal, index);
}

void DocCheckList::cmdPrevious_Click() {
    auto& form = proposal.forms.get<AnnexureACont>();
    form.SectFourDet.setTab(AnnexureACont::lastTabBeforeChecklists);
    form.show();
}

}  // namespace plandesk
