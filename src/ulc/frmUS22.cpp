#include "ulc/frmUS22.h"

#include <string>

#include "base/Text.h"
#include "proposal/OrderColumns.h"
#include "ulc/OrderRows.h"

namespace plandesk {

namespace {

constexpr LayoutRow areaRows[] = {
    {"", "Area Of existing Structure :", "txtAreaExistingStruct"},
    {"", "Land Apprurant Area : ", "txtLandAppurantArea"},
};
constexpr LayoutGroup groups[] = {{"", areaRows, {}, "fraUS22"}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 30, .pages = pages, .buttons = "cmdSave cmdReferesh cmdClose"};

}  // namespace

frmUS22::frmUS22(Proposal& proposal) : OrderForm(proposal, formName, "ULC Order Under Section  22") {
    txtAreaExistingStruct.keyPress = txtLandAppurantArea.keyPress = keyFilterDecimal;
    cmdSave.click = [this] { saveUS22Order(); };
    cmdClose.click = [this] { pressClose(); };
    procedure("loadUS22Order", [this] { loadUS22Order(); });
    procedure("saveUS22Order", [this] { saveUS22Order(); });
}

void frmUS22::load() {
    setFormColors(*this, proposal);
}

const Layout& frmUS22::layout() const {
    return sheet;
}

void frmUS22::loadUS22Order() {
    Recordset& orders = rowsOfExtract(proposal, &Tables::rsULCOrderUS22, orderExtract(proposal));
    if (orders.recordCount() == 0)
        return;
    txtAreaExistingStruct.setText(trimmedText(orders, US22OrderColumn::FLD1));
    txtLandAppurantArea.setText(trimmedText(orders, US22OrderColumn::FLD2));
}

void frmUS22::saveUS22Order() {
    proposal.tables.ensure(&Tables::rsULCOrder).moveFirst();
    Recordset& orders = freshRow(proposal, &Tables::rsULCOrderUS22, orderExtract(proposal));
    orders.set(US22OrderColumn::FLD1, std::string(trim(txtAreaExistingStruct.text())));
    orders.set(US22OrderColumn::FLD2, std::string(trim(txtLandAppurantArea.text())));
    orders.update();
}

}  // namespace plandesk
