#include "ulc/frmUS84.h"

#include <span>
#include <string>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "proposal/InPlace.h"
#include "proposal/OrderColumns.h"
#include "ulc/OrderRows.h"

namespace plandesk {

namespace {

constexpr GridColumn hidden = {.caption = "", .width = 0};

constexpr auto plotColumns = inPlace<US84PlotColumn, GridColumn>({
    {US84PlotColumn::No, {.caption = "No", .width = 0}},
    {US84PlotColumn::Village, {.caption = "[Village]", .width = 800}},
    {US84PlotColumn::Taluka, {.caption = "[Taluka]", .width = 800}},
    {US84PlotColumn::SrNo, {.caption = "[S.No/H. No.]", .width = 1200}},
    {US84PlotColumn::TotalArea, {.caption = "[Total Area]", .width = 1150}},
    {US84PlotColumn::ResrvType, {.caption = "[Resrv.Type]", .width = 1200}},
    {US84PlotColumn::ResArea, {.caption = "[Res.Area]", .width = 1000}},
    {US84PlotColumn::GreenBelt, {.caption = "[Green Belt]", .width = 1150}},
    {US84PlotColumn::RoadWideing, {.caption = "[Road Wideng.]", .width = 1400}},
    {US84PlotColumn::ResrvArea, {.caption = "[Resrv.Area]", .width = 1200}},
    {US84PlotColumn::NetDevArea, {.caption = "[Net Dvp. Area]", .width = 1400}},
    {US84PlotColumn::UnDevArea, {.caption = "[Un Dvp. Area]", .width = 1300}},
    {US84PlotColumn::OpenSpace, {.caption = "[Open Spc.]", .width = 1100}},
    {US84PlotColumn::Recreational, {.caption = "[Recreational gnd]", .width = 1400}},
    {US84PlotColumn::areaRemained, {.caption = "[Area remained]", .width = 1400}},
    {US84PlotColumn::Surplus, {.caption = "[Surplus Area]", .width = 1300}},
    {US84PlotColumn::ExtNo, hidden},
});

/// A box that the order holds, in the order in which a loaded order fills them.
struct Field {
    TextBox frmUS84::*box;
    int column;
};

constexpr Field ahead[] = {{&frmUS84::txtCaseNumber, US84OrderColumn::CaseNo}};
constexpr Field behindDate[] = {
    {&frmUS84::txtApplicantName, US84OrderColumn::AppName},
    {&frmUS84::txtApplicantAddress, US84OrderColumn::AppAddress},
    {&frmUS84::txtNoOfPlotOwnedByApplicant, US84OrderColumn::NoOfPlots},
    {&frmUS84::txtTotAreaOwnerShip, US84OrderColumn::TotalAreaUnderOwnerShip},
    {&frmUS84::txtAreaDeduction, US84OrderColumn::AreaDeduction},
    {&frmUS84::txtGreenBelt, US84OrderColumn::GreenBelt},
    {&frmUS84::txtSurplusArea, US84OrderColumn::Surplus},
    {&frmUS84::txtSurveyNo, US84OrderColumn::Survey},
};

void zeroWhenEmpty(TextBox& box) {
    if (trim(box.text()).empty())
        box.setText("0");
}

/// An empty box counts as 0. RuntimeError 13 for a text that is no number.
double areaOf(const TextBox& box) {
    return trim(box.text()).empty() ? 0 : toDouble(box.text());
}

}  // namespace

frmUS84::frmUS84(Proposal& proposal) : OrderForm(proposal, formName, "ULC Order Under Section 8 (4)") {
    dgdTableAB.allowDelete = false;
    dtpResultDate.setDate(screen().ports.clock.today());
    for (TextBox* area : {&txtTotAreaOwnerShip, &txtAreaDeduction, &txtGreenBelt, &txtSurplusArea})
        area->rightAligned = true;
    wire();
}

void frmUS84::wire() {
    txtNoOfPlotOwnedByApplicant.keyPress = keyFilterNumeric;
    txtNoOfPlotOwnedByApplicant.lostFocus = [this] { txtNoOfPlotOwnedByApplicant_LostFocus(); };
    txtTotAreaOwnerShip.keyPress = keyFilterDecimal;
    txtTotAreaOwnerShip.change = [this] { txtTotAreaOwnerShip_Change(); };
    for (TextBox* area : {&txtAreaDeduction, &txtGreenBelt, &txtSurplusArea}) {
        area->keyPress = keyFilterDecimal;
        area->change = [this, area] { areaChanged(*area); };
    }
    lblTotalArea.change = [this] { totalChanged(); };
    dgdTableAB.afterColumnUpdate = [this](int column) {
        if (column == US84PlotColumn::TotalArea)
            lblTotalArea.setCaption(formatAmount(totalArea()));
    };
    dgdTableAB.enterKey = [this] { return enterOnGrid(); };
    cmdSave.click = [this] { saveUS84Order(); };
    cmdClose.click = [this] { pressClose(); };
    procedure("loadUS84Order", [this] { loadUS84Order(); });
    procedure("saveUS84Order", [this] { saveUS84Order(); });
    procedure("FillRecords", [this] { FillRecords(); });
    procedure("colRsUS84TbaleSetting", [this] { colRsUS84TbaleSetting(); });
    procedure("setLblTotalArea", [this] { setLblTotalArea(); });
    procedure("getSurplus", [this] { getSurplus(); });
}

void frmUS84::load() {
    bindPlots();
    setLblTotalArea();
    setFormColors(*this, proposal);
}

void frmUS84::bindPlots() {
    proposal.tables.ensure(&Tables::rsUS84Plots);
    dgdTableAB.bind(proposal.tables.rsUS84Plots);
    colRsUS84TbaleSetting();
}

void frmUS84::colRsUS84TbaleSetting() {
    dgdTableAB.setColumns(plotColumns);
}

void frmUS84::setLblTotalArea() {
    dgdTableAB.placeBelow(lblTotalArea, US84PlotColumn::TotalArea);
    lblTotalArea.setVisible(true);
}

void frmUS84::loadUS84Order() {
    const std::int32_t extract = orderExtract(proposal);
    Recordset& orders = rowsOfExtract(proposal, &Tables::rsULCOrderUS84, extract);
    if (orders.recordCount() > 0) {
        for (const Field& field : ahead)
            (this->*field.box).setText(trimmedText(orders, field.column));
        const std::string date = trimmedText(orders, US84OrderColumn::ResultDate);
        dtpResultDate.setDate(date.empty() ? screen().ports.clock.today() : toDate(date));
        for (const Field& field : behindDate)
            (this->*field.box).setText(trimmedText(orders, field.column));
    }
    rowsOfExtract(proposal, &Tables::rsUS84Plots, extract);
    // The form's total takes over from the stored one, through its change of caption, unless it stands there already.
    lblTotalArea.setCaption(formatGrouped(totalArea()));
    dgdTableAB.refresh();
}

double frmUS84::totalArea() {
    Recordset& plots = proposal.tables.ensure(&Tables::rsUS84Plots);
    double total = 0;
    for (int row = 1; row <= plots.recordCount(); ++row)
        total += valueNumber(plots.valueAt(row, US84PlotColumn::TotalArea));
    return total;
}

void frmUS84::totalChanged() {
    lblTotalArea.setCaption(formatAmount(lblTotalArea.caption()));
    txtTotAreaOwnerShip.setText(lblTotalArea.caption());
}

void frmUS84::txtTotAreaOwnerShip_Change() {
    zeroWhenEmpty(txtTotAreaOwnerShip);
    txtTotAreaOwnerShip.setText(formatAmount(txtTotAreaOwnerShip.text()));
    getSurplus();
}

void frmUS84::areaChanged(TextBox& box) {
    zeroWhenEmpty(box);
    getSurplus();
}

void frmUS84::getSurplus() {
    try {
        txtSurplusArea.setText(
            numberText(areaOf(txtTotAreaOwnerShip) - (areaOf(txtGreenBelt) + areaOf(txtAreaDeduction))));
    } catch (const RuntimeError&) {
        // Half a number while it is typed is no error to tell.
    }
}

void frmUS84::txtNoOfPlotOwnedByApplicant_LostFocus() {
    zeroWhenEmpty(txtNoOfPlotOwnedByApplicant);
    FillRecords();
    bindPlots();
}

void frmUS84::FillRecords() {
    const std::int32_t extract = orderExtract(proposal);
    const std::int16_t count = toInteger16(txtNoOfPlotOwnedByApplicant.text());
    dgdTableAB.bind(nullptr);
    Recordset& plots = rowsOfExtract(proposal, &Tables::rsUS84Plots, extract, " ExtNo = ");
    plots.deleteVisible();  // also when the number is the same: the plots typed so far are gone
    for (int number = 1; number <= count; ++number) {
        plots.addNew();
        plots.set(US84PlotColumn::No, std::to_string(number));
        plots.set(US84PlotColumn::ExtNo, extract);
        plots.update();
    }
}

bool frmUS84::enterOnGrid() {
    const int row = dgdTableAB.currentRow();
    if (dgdTableAB.currentColumn() != US84PlotColumn::Surplus ||
        row >= leadingNumber(txtNoOfPlotOwnedByApplicant.text()) - 1 || row + 1 >= dgdTableAB.rowCount())
        return false;
    dgdTableAB.moveTo(row + 1, US84PlotColumn::Village);
    return true;
}

void frmUS84::saveUS84Order() {
    Recordset& orders = freshRow(proposal, &Tables::rsULCOrderUS84, orderExtract(proposal));
    orders.set(US84OrderColumn::ResultDate, dtpResultDate.date().text());
    for (const std::span<const Field> fields : {std::span<const Field>(ahead), std::span<const Field>(behindDate)})
        for (const Field& field : fields)
            orders.set(field.column, std::string(trim((this->*field.box).text())));
    orders.update();
}

}  // namespace plandesk
