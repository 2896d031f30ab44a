#include "ulc/frmULC20aDetails.h"

#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "proposal/InPlace.h"
#include "proposal/OrderColumns.h"
#include "ulc/OrderRows.h"
#include "ulc/Schemes.h"

namespace plandesk {

namespace {

enum CommonScheme { applicationDate = 1, villages = 2, surveyNumbers = 3, surplusArea = 4 };

constexpr GridColumn hidden = {.caption = "", .width = 0};

constexpr auto plottingColumns = inPlace<SchemeGridColumn, GridColumn>({
    {SchemeGridColumn::No, {.caption = "No", .width = 500, .locked = true, .whole = true}},
    {SchemeGridColumn::FLD1, {.caption = "Size of plots", .width = 4000, .locked = true, .whole = true}},
    {SchemeGridColumn::FLD2, {.caption = "No. of plots", .width = 3600}},
    {SchemeGridColumn::FLD3, hidden},
    {SchemeGridColumn::ExtNo, hidden},
});

constexpr auto tenementColumns = inPlace<SchemeGridColumn, GridColumn>({
    {SchemeGridColumn::No, {.caption = "No", .width = 500, .locked = true, .whole = true}},
    {SchemeGridColumn::FLD1, {.caption = "TenementArea", .width = 4000, .locked = true, .whole = true}},
    {SchemeGridColumn::FLD2, {.caption = "No of tenement to be constructed", .width = 3600}},
    {SchemeGridColumn::FLD3, {.caption = "No of tenement to be sold to govt. nominees at fixed rate", .width = 3600}},
    {SchemeGridColumn::ExtNo, hidden},
});

/// 1 for Yes, 0 for No, 2 for neither; any other text says nothing.
void answer(YesNo& question, std::string_view code) {
    if (code == "1")
        question.yes.setValue(true);
    else if (code == "0")
        question.no.setValue(true);
    else if (code == "2")
        question.clear();
}

}  // namespace

frmULC20aDetails::frmULC20aDetails(Proposal& proposal)
    : OrderForm(proposal, formName, "ULC Order Under Section  20 (a) (1)") {
    dgdSchemeDetails.allowDelete = false;
    DTPAppllication.setDate(screen().ports.clock.today());
    for (Control* later : {static_cast<Control*>(&lblDetails), static_cast<Control*>(&txtDetails),
                           static_cast<Control*>(&frmCommonSchema), static_cast<Control*>(&fraTableForDispenseScheme),
                           static_cast<Control*>(&dgdSchemeDetails)})
        later->setVisible(false);
    wire();
}

void frmULC20aDetails::wire() {
    cmbSchemaType.click = [this] { cmbSchemaType_Click(); };
    DTPAppllication.change = [this] { txtCommonScheme[applicationDate].setText(DTPAppllication.date().text()); };
    IsUlCUS84Submitted.onClick([this] { IsUlCUS84Submitted_Click(); });
    IsReservationCondition.onClick([this] { IsReservationCondition_Click(); });
    dgdSchemeDetails.enterKey = [this] { return enterOnGrid(); };
    cmdSave.click = [this] { saveUS20a1Order(); };
    cmdReferesh.toolTip = "Reset";  // it has no caption
    cmdClose.click = [this] { pressClose(); };
    procedure("loadUS20a1Order", [this] { loadUS20a1Order(); });
    procedure("saveUS20a1Order", [this] { saveUS20a1Order(); });
    procedure("setCombo", [this] { setCombo(); });
    procedure("displayFieldsFromUS84", [this] { displayFieldsFromUS84(); });
}

void frmULC20aDetails::load() {
    setCombo();
    bindScheme();
    dgdSchemeDetails.setColumns(plottingColumns);
    dgdSchemeDetailsColSetting();
    setFormColors(*this, proposal);
}

void frmULC20aDetails::setCombo() {
    cmbSchemaType.clear();
    for (const std::string_view name : schemeNames)
        cmbSchemaType.addItem(name);
}

void frmULC20aDetails::bindScheme() {
    proposal.tables.create(&Tables::rsSchemeGrid);
    dgdSchemeDetails.bind(proposal.tables.rsSchemeGrid);
}

void frmULC20aDetails::dgdSchemeDetailsColSetting() {
    const int scheme = cmbSchemaType.listIndex();
    if (scheme <= 0)
        return;
    const bool plots = scheme == plottingScheme;
    dgdSchemeDetails.setColumns(plots ? plottingColumns : tenementColumns);
    lblSpecDispScheme.setCaption(plots ? "Total number of plots to be developed :"
                                       : "Build-up Area to be sold to govt. nominees at fixed rate . :");
}

void frmULC20aDetails::cmbSchemaType_Click() {
    const int scheme = cmbSchemaType.listIndex();
    const bool details = scheme == plottingScheme;
    txtDetails.setVisible(details);
    lblDetails.setVisible(details);
    if (!details)
        txtDetails.setText("");
    dgdSchemeDetails.setVisible(true);
    bindScheme();
    dgdSchemeDetailsColSetting();
    FillrsULCOrderUS20a1(scheme);
}

void frmULC20aDetails::FillrsULCOrderUS20a1(int scheme) {
    const std::int32_t extract = orderExtract(proposal);
    const auto figures = [&](Tables::Member table) -> Recordset& {
        Recordset& rows = rowsOfExtract(proposal, table, extract, " ExtNo = ");
        if (rows.recordCount() == 0) {
            rows.addNew();
            rows.set(SchemeColumn::ExtNo, extract);
            rows.update();
        }
        return rows;
    };
    Recordset& built = figures(&Tables::rsSchemeBuilt);
    Recordset& sold = figures(&Tables::rsSchemeSold);
    Recordset& grid = *proposal.tables.rsSchemeGrid;
    int place = 0;
    for (const SchemeRow& row : schemeRows(scheme)) {
        grid.addNew();
        grid.set(SchemeGridColumn::No, std::string(row.number));
        grid.set(SchemeGridColumn::FLD1, std::string(row.size));
        grid.set(SchemeGridColumn::FLD2, built.get(place));
        grid.set(SchemeGridColumn::FLD3, sold.get(place));
        grid.set(SchemeGridColumn::ExtNo, extract);
        grid.update();
        ++place;
    }
    dgdSchemeDetails.refresh();
}

void frmULC20aDetails::IsUlCUS84Submitted_Click() {
    frmCommonSchema.setVisible(IsUlCUS84Submitted.yes.value());
    displayFieldsFromUS84();  // with "No" too, into boxes that nobody sees
}

void frmULC20aDetails::IsReservationCondition_Click() {
    fraTableForDispenseScheme.setVisible(IsReservationCondition.yes.value());
}

void frmULC20aDetails::displayFieldsFromUS84() {
    const std::int32_t extract = orderExtract(proposal);
    Recordset& plots = rowsOfExtract(proposal, &Tables::rsUS84Plots, extract, " ExtNo = ");
    std::string joinedVillages;
    std::string joinedNumbers;
    std::string_view comma;
    for (plots.moveFirst(); !plots.eof(); plots.moveNext()) {
        joinedVillages.append(comma).append(trimmedText(plots, US84PlotColumn::Village));
        joinedNumbers.append(comma).append(trimmedText(plots, US84PlotColumn::SrNo));
        comma = ",";
    }
    txtCommonScheme[villages].setText(joinedVillages);
    txtCommonScheme[surveyNumbers].setText(joinedNumbers);
    Recordset& orders = rowsOfExtract(proposal, &Tables::rsULCOrderUS84, extract, " ExtNo = ");
    const double surplus = orders.recordCount() > 0 ? leadingNumber(trimmedText(orders, US84OrderColumn::Surplus)) : 0;
    txtCommonScheme[surplusArea].setText(numberText(surplus));
}

void frmULC20aDetails::loadUS20a1Order() {
    Recordset& orders = rowsOfExtract(proposal, &Tables::rsULCOrderUS20a1, orderExtract(proposal));
    if (orders.recordCount() == 0)
        return;
    const std::string scheme = trimmedText(orders, US20a1OrderColumn::TypeOfScheme);
    cmbSchemaType.setListIndex(scheme.empty() ? static_cast<int>(noScheme) : toInteger16(scheme));
    answer(IsUlCUS84Submitted, trimmedText(orders, US20a1OrderColumn::AMGSubmitted));
    txtDetails.setText(valueText(orders.get(US20a1OrderColumn::Details)));
    for (int i = 0; TextBox & box : txtCommonScheme)
        box.setText(valueText(orders.get(US20a1OrderColumn::i + i++)));
    answer(IsReservationCondition, trimmedText(orders, US20a1OrderColumn::Condition));
    txtSpeDisScheme.setText(trimmedText(orders, US20a1OrderColumn::SpecDisc));
}

void frmULC20aDetails::saveUS20a1Order() {
    const std::int32_t extract = orderExtract(proposal);
    txtCommonScheme[applicationDate].setText(DTPAppllication.date().text());  // over what was loaded
    Recordset& orders = rowsOfExtract(proposal, &Tables::rsULCOrderUS20a1, extract, " ExtNo  = ");
    if (orders.recordCount() > 0)
        orders.deleteRow();
    orders.addNew();
    orders.set(US20a1OrderColumn::TypeOfScheme, std::to_string(cmbSchemaType.listIndex()));
    orders.set(US20a1OrderColumn::AMGSubmitted, std::to_string(IsUlCUS84Submitted.code()));
    orders.set(US20a1OrderColumn::Details, std::string(trim(txtDetails.text())));
    for (int i = 0; const TextBox& box : txtCommonScheme)
        orders.set(US20a1OrderColumn::i + i++, box.text());
    orders.set(US20a1OrderColumn::Condition, std::to_string(IsReservationCondition.code()));
    orders.set(US20a1OrderColumn::SpecDisc, txtSpeDisScheme.text());
    orders.set(US20a1OrderColumn::ExtNo, extract);
    orders.update();
    saveFigures(&Tables::rsSchemeBuilt, SchemeGridColumn::FLD2, extract);
    saveFigures(&Tables::rsSchemeSold, SchemeGridColumn::FLD3, extract);
}

/// The figures of the grid's column, row by row, into the columns of one row.
void frmULC20aDetails::saveFigures(Tables::Member table, int column, std::int32_t extract) {
    Recordset& figures = rowsOfExtract(proposal, table, extract);
    figures.deleteVisible();
    figures.addNew();
    Recordset& grid = proposal.tables.ensure(&Tables::rsSchemeGrid);
    const Bookmark place = grid.bookmark();
    int next = 0;
    for (grid.moveFirst(); !grid.eof(); grid.moveNext())
        figures.set(next++, trimmedText(grid, column));
    grid.setBookmark(place);
    figures.set(SchemeColumn::ExtNo, extract);
    figures.update();
}

bool frmULC20aDetails::enterOnGrid() {
    const int scheme = cmbSchemaType.listIndex();
    if (scheme == componentB || scheme == specialDispense)
        return true;  // nothing happens there
    const int last = scheme == plottingScheme ? SchemeGridColumn::FLD2 : SchemeGridColumn::FLD3;
    const int next = dgdSchemeDetails.currentRow() + 1;
    if (dgdSchemeDetails.currentColumn() != last || next >= dgdSchemeDetails.rowCount())
        return false;
    dgdSchemeDetails.moveTo(next, SchemeGridColumn::FLD2);
    if (scheme == componentA)
        dgdSchemeDetails.beginEdit("1");  // the key goes into the next row's figure
    return true;
}

}  // namespace plandesk
