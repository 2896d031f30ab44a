#include <cstdint>
#include <initializer_list>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "document/BlockReaders.h"
#include "document/Pieces.h"
#include "document/XmlChildren.h"
#include "fees/frmDiscretionNewCase.h"
#include "fees/frmDiscretionrevisedCase.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "proposal/Proposal.h"
#include "ulc/frmScrutinyULC.h"

namespace plandesk {

namespace {

using US84 = US84OrderColumn;
using US20a1 = US20a1OrderColumn;

// What stands for an extract without an order, so that it gets a row in each table all the same.
constexpr std::string_view emptyUS84 = "#########";
constexpr std::string_view emptyUS20a1 = "#################^#^#^#^#^#^#^";

constexpr std::size_t mostPieces = 24;
constexpr int schemePairs = 7;

/// Children of an extract's element that stand at the same place in each.
enum ExtractChild : std::size_t { areaDivision = 0, ulcOrder = 1, us84Order = 2, plotCount = 3 };

Pieces piecesOr(std::string_view mask, std::string_view text) {
    return firstPieces(trim(text).empty() ? mask : text, "#", mostPieces);
}

void readOwnership(Tables& tables, std::string_view content, std::int32_t extract) {
    const Pieces pieces = firstPieces(content, "#", mostPieces);
    Recordset& row = tables.ensure(&Tables::rsOwnership712);
    row.addNew();
    row.set(OwnershipColumn::ExtNo, extract);
    row.set(OwnershipColumn::Name, std::string(at(pieces, 0)));
    if (const std::string_view area = at(pieces, 1); isNumeric(area))
        row.set(OwnershipColumn::Area, toDouble(area));
    row.set(OwnershipColumn::DocStatus, std::string(at(pieces, 2)));
    row.update();
}

/// Consecutive pieces into columns in the order of the list; the row is the table's current one.
void setPieces(Recordset& row, const Pieces& pieces, std::initializer_list<int> columns, std::size_t first = 0) {
    for (const int column : columns)
        row.set(column, std::string(at(pieces, first++)));
}

void readOrder(Tables& tables, std::string_view content, std::int32_t extract) {
    using Order = ULCOrderColumn;
    Recordset& row = tables.ensure(&Tables::rsULCOrder);
    row.addNew();
    row.set(Order::ExtNo, extract);
    setPieces(row, firstPieces(content, "#", mostPieces),
              {Order::Name, Order::ULCOrderSelection, Order::OrderNo, Order::Remarks});
    row.update();
}

/// The order's own text does not hold the number of plots.
void readUS84(Tables& tables, const XmlChildren& children, std::int32_t extract) {
    const Pieces pieces = piecesOr(emptyUS84, children.text(us84Order));
    Recordset& row = tables.ensure(&Tables::rsULCOrderUS84);
    row.addNew();
    setPieces(row, pieces, {US84::CaseNo, US84::ResultDate, US84::AppName, US84::AppAddress});
    row.set(US84::NoOfPlots, std::string(children.text(plotCount)));
    setPieces(row, pieces,
              {US84::TotalAreaUnderOwnerShip, US84::AreaDeduction, US84::GreenBelt, US84::Surplus, US84::Survey}, 4);
    row.set(US84::ExtNo, extract);
    row.update();
}

void readPlot(Tables& tables, std::string_view content, int number, std::int32_t extract) {
    const Pieces pieces = firstPieces(content, "#", mostPieces);
    Recordset& row = tables.ensure(&Tables::rsUS84Plots);
    row.addNew();
    row.set(US84PlotColumn::No, std::to_string(number));
    for (int column = US84PlotColumn::Village; column <= US84PlotColumn::Surplus; ++column)
        row.set(column, std::string(at(pieces, static_cast<std::size_t>(column - US84PlotColumn::Village))));
    row.set(US84PlotColumn::ExtNo, extract);
    row.update();
}

/// The pieces before ("^" piece 0) or behind ("^" piece 1) the "^" of the pairs.
void readFigures(Recordset& row, const Pieces& pieces, std::size_t side, std::int32_t extract) {
    row.addNew();
    std::size_t next = US20a1::ExtNo;
    for (int pair = 0; pair < schemePairs; ++pair)
        row.set(SchemeColumn::FLD1 + pair, std::string(piece(at(pieces, next++), "^", side)));
    row.set(SchemeColumn::ExtNo, extract);
    row.update();
}

void readUS20a1(Tables& tables, std::string_view content, std::int32_t extract) {
    const Pieces pieces = piecesOr(emptyUS20a1, content);
    Recordset& row = tables.ensure(&Tables::rsULCOrderUS20a1);
    row.addNew();
    for (int column = US20a1::TypeOfScheme; column <= US20a1::SpecDisc; ++column)
        row.set(column, std::string(at(pieces, static_cast<std::size_t>(column))));
    row.set(US20a1::ExtNo, extract);
    row.update();
    // An order whose scheme was never opened has no pairs and fails at the first one.
    readFigures(tables.ensure(&Tables::rsSchemeBuilt), pieces, 0, extract);
    readFigures(tables.ensure(&Tables::rsSchemeSold), pieces, 1, extract);
}

void readUS22(Tables& tables, std::string_view content, std::int32_t extract) {
    Recordset& row = tables.ensure(&Tables::rsULCOrderUS22);
    row.addNew();
    setPieces(row, firstPieces(content, "#", mostPieces), {US22OrderColumn::FLD1, US22OrderColumn::FLD2});
    row.set(US22OrderColumn::ExtNo, extract);
    row.update();
}

/// The plots push the children behind them down.
void readExtract(Tables& tables, const XmlChildren& children, std::int32_t extract) {
    readOwnership(tables, children.text(areaDivision), extract);
    readOrder(tables, children.text(ulcOrder), extract);
    readUS84(tables, children, extract);
    const int plots = toInteger32(leadingNumber(children.text(plotCount)));
    std::size_t next = plotCount + 1;
    for (int plot = 1; plot <= plots; ++plot)
        readPlot(tables, children.text(next++), plot, extract);
    readUS20a1(tables, children.text(next), extract);
    readUS22(tables, children.text(next + 1), extract);
}

/// The member of a control array. RuntimeError 9 behind its last one.
TextBox& memberAt(std::deque<TextBox>& boxes, std::size_t index) {
    if (index >= boxes.size())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return boxes[index];
}

/// `rows`: each with a "~" behind it.
void fillRevised(frmDiscretionrevisedCase& form, std::string_view rows) {
    if (trim(rows).empty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    Pieces list = firstPieces(rows, "~", rows.size() + 1);
    list.pop_back();
    std::size_t i = 0;
    for (const std::string_view row : list) {
        const Pieces pieces = firstPieces(row, "#", mostPieces);
        memberAt(form.txtRule, i).setText(at(pieces, 0));
        memberAt(form.txtRuleC, i).setText(at(pieces, 1));
        memberAt(form.txtRuleD, i).setText(at(pieces, 2));
        ++i;
    }
}

void fillNew(frmDiscretionNewCase& form, std::string_view remarks) {
    if (trim(remarks).empty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    std::size_t i = 0;
    for (const std::string_view remark : firstPieces(remarks, "#", remarks.size() + 1))
        memberAt(form.txtRule, i++).setText(remark);
}

void createOrderTables(Tables& tables) {
    tables.create(&Tables::rsOwnership712);
    tables.create(&Tables::rsULCOrder);
    tables.create(orderTables);
}

void readULCBlock(Proposal& proposal, const XmlDocument& document, const XmlChildren& block) {
    auto& form = proposal.forms.get<frmScrutinyULC>();
    const std::string_view controlling =
        block.named(0, "DOCCONTROLLINGOWNERSHIP") ? trim(block.text(0)) : std::string_view();
    const bool known = controlling == "1" || controlling == "2";
    if (known)
        proposal.is712Current = controlling == "1";
    std::int32_t extracts = 0;
    if (block.named(1, "NOOFEXTRACT")) {
        form.txtNoOfExtranct.setText(block.text(1));
        extracts = toInteger32(leadingNumber(block.text(1)));
    }
    createOrderTables(proposal.tables);
    for (std::int32_t i = 1; i <= extracts; ++i)
        readExtract(proposal.tables, XmlChildren(document, block.at(static_cast<std::size_t>(i) + 1)), i);
    proposal.tables.rsOwnership = proposal.tables.rsOwnership712;
    proposal.ownershipRelationSaved = true;
    if (known)
        form.optDocCtrlOwn[controlling == "1" ? 0 : 1].setValue(true);
}

}  // namespace

void readULCScrutiny(Proposal& proposal, const XmlDocument& document) {
    createOrderTables(proposal.tables);
    forEachLandRecord(document, "ULCORDER-SCRUTINY",
                      [&](const XmlChildren& block) { readULCBlock(proposal, document, block); });
}

void readDiscretion(Proposal& proposal, const XmlDocument& document) {
    std::string revised;
    std::string_view newCase;
    const XmlChildren children(document, requiredRoot(document));
    for (std::size_t i = 0; i < children.count(); ++i) {
        if (children.named(i, "DISC-REV")) {
            const XmlChildren rows(document, children.at(i));
            for (std::size_t row = 0; row < rows.count(); ++row)
                revised.append(rows.text(row)).append("~");
        } else if (children.named(i, "DISC-NEW")) {
            newCase = children.text(i);
        }
    }
    auto& revisedForm = proposal.forms.get<frmDiscretionrevisedCase>();
    auto& newForm = proposal.forms.get<frmDiscretionNewCase>();
    // A blank block fails and ends the procedure: without DISC-REV the rows of DISC-NEW are lost too.
    fillRevised(revisedForm, revised);
    fillNew(newForm, newCase);
}

}  // namespace plandesk
