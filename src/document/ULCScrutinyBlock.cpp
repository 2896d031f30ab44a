#include "document/ULCScrutinyBlock.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "document/BlockText.h"
#include "proposal/Element.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "proposal/Proposal.h"
#include "ulc/frmScrutinyULC.h"

namespace plandesk {

namespace {

using Ownership = OwnershipColumn;
using Order = ULCOrderColumn;
using US84 = US84OrderColumn;
using Plot = US84PlotColumn;
using US20a1 = US20a1OrderColumn;
using US22 = US22OrderColumn;

constexpr auto areaPieces = piecesOf(appendEscaped, {Ownership::Name, Ownership::Area, Ownership::DocStatus});
constexpr auto orderPieces =
    piecesOf(appendEscaped, {Order::Name, Order::ULCOrderSelection, Order::OrderNo, Order::Remarks});
// What is not escaped breaks the document with an "&" or "<".
constexpr auto us84Pieces = piecesOf(
    appendTrimmed, {US84::CaseNo, US84::ResultDate, US84::AppName, US84::AppAddress, US84::TotalAreaUnderOwnerShip,
                    US84::AreaDeduction, US84::GreenBelt, US84::Surplus, US84::Survey});
constexpr auto plotPieces =
    piecesOf(appendTrimmed, {Plot::Village, Plot::Taluka, Plot::SrNo, Plot::TotalArea, Plot::ResrvType, Plot::ResArea,
                             Plot::GreenBelt, Plot::RoadWideing, Plot::ResrvArea, Plot::NetDevArea, Plot::UnDevArea,
                             Plot::OpenSpace, Plot::Recreational, Plot::areaRemained, Plot::Surplus});
constexpr auto us20a1Pieces =
    piecesOf(appendTrimmed, {US20a1::TypeOfScheme, US20a1::AMGSubmitted, US20a1::Details, US20a1::i, US20a1::ii,
                             US20a1::iii, US20a1::iv, US20a1::v, US20a1::vi, US20a1::vii, US20a1::viii, US20a1::ix,
                             US20a1::x, US20a1::xi, US20a1::xii, US20a1::Condition, US20a1::SpecDisc});
constexpr auto us22Pieces = piecesOf(appendTrimmed, {US22::FLD1, US22::FLD2});
constexpr int schemeColumns[] = {SchemeColumn::FLD1, SchemeColumn::FLD2, SchemeColumn::FLD3, SchemeColumn::FLD4,
                                 SchemeColumn::FLD5, SchemeColumn::FLD6, SchemeColumn::FLD7};

constexpr JoinedRow areaDivision = {"AREADIVISION", &Tables::rsOwnership, areaPieces};
constexpr JoinedRow ulcOrder = {"ULCORDER", &Tables::rsULCOrder, orderPieces};
constexpr JoinedRow us84Order = {"ULC-US-84", &Tables::rsULCOrderUS84, us84Pieces};
constexpr JoinedRow us84Plot = {"US-84-PLOT-", &Tables::rsUS84Plots, plotPieces};
constexpr JoinedRow us20a1Order = {"ULC-US-20a1", &Tables::rsULCOrderUS20a1, us20a1Pieces};
constexpr JoinedRow us22Order = {"ULC-US-22", &Tables::rsULCOrderUS22, us22Pieces};

constexpr std::array rowsOfExtract = {areaDivision, ulcOrder, us84Order, us84Plot, us20a1Order, us22Order};

using Row = std::span<const Value>;

class Builder {
public:
    explicit Builder(Proposal& proposal) : proposal(proposal), form(proposal.forms.get<frmScrutinyULC>()) {}

    std::string build() {
        Recordset& cards = proposal.tables.ensure(&Tables::rsOwnershipPRC);
        cards.setFilter("");
        ownership.setFilter("");
        orders.setFilter("");
        const bool byCards = form.ownershipCode() == "2";
        xml.reserve(proposal.ULCScrutinyXML.size());
        xml += "<ULCORDER-SCRUTINY>";
        appendElement(xml, "DOCCONTROLLINGOWNERSHIP", form.ownershipCode());
        appendElement(xml, "NOOFEXTRACT", std::to_string((byCards ? cards : ownership).recordCount()));
        ProgressOf progress(proposal.screen.ports.progress, form.caption(), ownership.recordCount());
        for (ownership.moveFirst(); !ownership.eof(); ownership.moveNext()) {
            if (!byCards || ownership.absolutePosition() <= cards.recordCount())
                appendExtract();
            if (!orders.eof())
                orders.moveNext();  // in step by place, not by number
            progress.step();
        }
        leaveFilters();
        xml += "</ULCORDER-SCRUTINY>";
        return std::move(xml);
    }

private:
    std::vector<Row> rowsOf(Tables::Member table) { return proposal.tables.ensure(table).rowsOfKey(extract); }
    std::vector<Row> rowsOf(const JoinedRow& row) { return rowsOf(row.table); }

    void appendExtract() {
        const int place = ownership.absolutePosition();
        const Row owned = ownership.row();
        const auto* number = std::get_if<std::int32_t>(&owned[Ownership::ExtNo]);
        if (!number)
            throw RuntimeError(ErrorNumber::ArgumentsOfWrongType);
        extract = *number;
        anyExtract = true;
        xml += "<EXTRACT-";
        appendNumber(xml, place);
        xml.append(" DOCTYPE = '").append(place > proposal.noOfExtract712 ? "PRC" : "712").append("' >");
        appendRow(areaDivision, {&owned, 1});
        const Row order = orders.eof() ? Row() : orders.row();
        // Behind the last order the values are left out and the "#" stay.
        appendRow(ulcOrder, {&order, orders.eof() ? 0U : 1U});
        appendIfAny(us84Order, rowsOf(us84Order));
        appendPlots(rowsOf(us84Plot));
        appendSchemeOrder();
        appendRow(us22Order, rowsOf(us22Order));
        closeNumbered(xml, "EXTRACT-", place);
    }

    /// The first of the rows; without one the "#" alone.
    void appendValues(const JoinedRow& row, std::span<const Row> rows) {
        appendJoined(xml, row.pieces, rows.empty() ? Row() : rows.front());
    }

    void open(std::string_view element) { xml.append("<").append(element).append(">"); }
    void close(std::string_view element) { xml.append("</").append(element).append(">"); }

    void appendRow(const JoinedRow& row, std::span<const Row> rows) {
        open(row.element);
        appendValues(row, rows);
        close(row.element);
    }

    void appendIfAny(const JoinedRow& row, std::span<const Row> rows) {
        if (!rows.empty())
            return appendRow(row, rows);
        appendElement(xml, row.element, "");
    }

    void appendPlots(std::span<const Row> plots) {
        appendElement(xml, "NO-OF-PLOT", std::to_string(plots.size()));
        int number = 0;
        for (const Row& plot : plots) {
            openNumbered(xml, us84Plot.element, ++number);
            appendValues(us84Plot, {&plot, 1});
            closeNumbered(xml, us84Plot.element, number);
        }
    }

    /// The order, a "#" behind its last value too, and seven pairs of figures whatever the scheme. An order whose
    /// scheme was never opened has no pairs.
    void appendSchemeOrder() {
        const std::vector<Row> order = rowsOf(us20a1Order);
        const std::vector<Row> built = rowsOf(&Tables::rsSchemeBuilt);
        open(us20a1Order.element);
        if (!order.empty()) {
            appendValues(us20a1Order, order);
            xml += "#";
            if (!built.empty())
                appendPairs(built, rowsOf(&Tables::rsSchemeSold));
        }
        close(us20a1Order.element);
    }

    void appendPairs(std::span<const Row> built, std::span<const Row> sold) {
        std::string_view separator;
        for (const int column : schemeColumns) {
            xml += separator;
            separator = "#";
            appendTrimmed(xml, built.front()[static_cast<std::size_t>(column)]);
            xml += "^";
            if (!sold.empty())
                appendTrimmed(xml, sold.front()[static_cast<std::size_t>(column)]);
        }
    }

    /// The rows are looked up without a filter, but the last extract's stays on their tables, the plots' behind its
    /// last row.
    void leaveFilters() {
        if (!anyExtract)
            return;
        for (const Tables::Member table : {&Tables::rsULCOrderUS84, &Tables::rsUS84Plots, &Tables::rsULCOrderUS20a1,
                                           &Tables::rsSchemeBuilt, &Tables::rsSchemeSold, &Tables::rsULCOrderUS22})
            proposal.tables.ensure(table).setFilter(" ExtNo = " + std::to_string(extract));
        for (Recordset& plots = *proposal.tables.rsUS84Plots; !plots.eof();)
            plots.moveNext();
    }

    Proposal& proposal;
    const frmScrutinyULC& form;
    Recordset& ownership = proposal.tables.ensure(&Tables::rsOwnership);
    Recordset& orders = proposal.tables.ensure(&Tables::rsULCOrder);
    std::int32_t extract = 0;  // whose rows are written
    bool anyExtract = false;
    std::string xml;
};

}  // namespace

std::span<const JoinedRow> orderRows() {
    return rowsOfExtract;
}

std::size_t schemePairs() {
    return std::size(schemeColumns);
}

void buildULCScrutinyXML(Proposal& proposal) {
    proposal.ULCScrutinyXML = Builder(proposal).build();
}

}  // namespace plandesk
