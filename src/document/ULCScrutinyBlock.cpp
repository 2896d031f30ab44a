#include "document/ULCScrutinyBlock.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "document/BlockText.h"
#include "proposal/Element.h"
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
using Append = void (*)(std::string& xml, const Value& value);

/// A row of a table as one element: the trimmed values of these columns with "#" between. What is not escaped breaks
/// the document with an "&" or "<".
struct JoinedRow {
    std::string_view element;
    std::span<const int> columns;
    Append append;
};

constexpr int areaColumns[] = {Ownership::Name, Ownership::Area, Ownership::DocStatus};
constexpr int orderColumns[] = {Order::Name, Order::ULCOrderSelection, Order::OrderNo, Order::Remarks};
constexpr int us84Columns[] = {
    US84::CaseNo,        US84::ResultDate, US84::AppName, US84::AppAddress, US84::TotalAreaUnderOwnerShip,
    US84::AreaDeduction, US84::GreenBelt,  US84::Surplus, US84::Survey};
constexpr int plotColumns[] = {Plot::Village,      Plot::Taluka,       Plot::SrNo,      Plot::TotalArea,
                               Plot::ResrvType,    Plot::ResArea,      Plot::GreenBelt, Plot::RoadWideing,
                               Plot::ResrvArea,    Plot::NetDevArea,   Plot::UnDevArea, Plot::OpenSpace,
                               Plot::Recreational, Plot::areaRemained, Plot::Surplus};
constexpr int us20a1Columns[] = {US20a1::TypeOfScheme, US20a1::AMGSubmitted, US20a1::Details, US20a1::i,  US20a1::ii,
                                 US20a1::iii,          US20a1::iv,           US20a1::v,       US20a1::vi, US20a1::vii,
                                 US20a1::viii,         US20a1::ix,           US20a1::x,       US20a1::xi, US20a1::xii,
                                 US20a1::Condition,    US20a1::SpecDisc};
constexpr int us22Columns[] = {US22::FLD1, US22::FLD2};
constexpr int schemeColumns[] = {SchemeColumn::FLD1, SchemeColumn::FLD2, SchemeColumn::FLD3, SchemeColumn::FLD4,
                                 SchemeColumn::FLD5, SchemeColumn::FLD6, SchemeColumn::FLD7};

constexpr JoinedRow areaDivision = {"AREADIVISION", areaColumns, appendEscaped};
constexpr JoinedRow ulcOrder = {"ULCORDER", orderColumns, appendEscaped};
constexpr JoinedRow us84Order = {"ULC-US-84", us84Columns, appendTrimmed};
constexpr JoinedRow us84Plot = {"US-84-PLOT-", plotColumns, appendTrimmed};
constexpr JoinedRow us20a1Order = {"ULC-US-20a1", us20a1Columns, appendTrimmed};
constexpr JoinedRow us22Order = {"ULC-US-22", us22Columns, appendTrimmed};

class Builder {
public:
    explicit Builder(Proposal& proposal) : proposal(proposal), form(proposal.forms.get<frmScrutinyULC>()) {}

    std::string build() {
        Recordset& cards = cleared(&Tables::rsOwnershipPRC);
        ownership.setFilter("");
        orders.setFilter("");
        const bool byCards = form.ownershipCode() == "2";
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
        xml += "</ULCORDER-SCRUTINY>";
        return std::move(xml);
    }

private:
    Recordset& cleared(Tables::Member table) {
        Recordset& rows = proposal.tables.ensure(table);
        rows.setFilter("");
        return rows;
    }

    Recordset& rowsOf(Tables::Member table) {
        Recordset& rows = cleared(table);
        rows.setFilter(filter);
        return rows;
    }

    void appendExtract() {
        const int place = ownership.absolutePosition();
        const std::string element = "EXTRACT-" + std::to_string(place);
        filter = " ExtNo = " + valueText(ownership.get(Ownership::ExtNo));
        xml.append("<").append(element).append(" DOCTYPE = '");
        xml.append(place > proposal.noOfExtract712 ? "PRC" : "712").append("' >");
        appendRow(areaDivision, ownership);
        appendRow(ulcOrder, orders);  // behind the last order the values are left out and the "#" stay
        appendIfAny(us84Order, rowsOf(&Tables::rsULCOrderUS84));
        appendPlots(rowsOf(&Tables::rsUS84Plots));
        appendSchemeOrder();
        appendRow(us22Order, rowsOf(&Tables::rsULCOrderUS22));
        xml.append("</").append(element).append(">");
    }

    void appendValues(const JoinedRow& row, Recordset& table) {
        std::string_view separator;
        const bool there = !table.eof();
        for (const int column : row.columns) {
            xml += separator;
            separator = "#";
            if (there)
                row.append(xml, table.get(column));
        }
    }

    void open(std::string_view element) { xml.append("<").append(element).append(">"); }
    void close(std::string_view element) { xml.append("</").append(element).append(">"); }

    void appendRow(const JoinedRow& row, Recordset& table) {
        open(row.element);
        appendValues(row, table);
        close(row.element);
    }

    void appendIfAny(const JoinedRow& row, Recordset& table) {
        if (table.recordCount() > 0)
            return appendRow(row, table);
        appendElement(xml, row.element, "");
    }

    void appendPlots(Recordset& plots) {
        appendElement(xml, "NO-OF-PLOT", std::to_string(plots.recordCount()));
        for (plots.moveFirst(); !plots.eof(); plots.moveNext()) {
            const std::string element = std::string(us84Plot.element) + std::to_string(plots.absolutePosition());
            open(element);
            appendValues(us84Plot, plots);
            close(element);
        }
    }

    /// The order, a "#" behind its last value too, and seven pairs of figures whatever the scheme. An order whose
    /// scheme was never opened has no pairs.
    void appendSchemeOrder() {
        Recordset& order = rowsOf(&Tables::rsULCOrderUS20a1);
        Recordset& built = rowsOf(&Tables::rsSchemeBuilt);
        Recordset& sold = rowsOf(&Tables::rsSchemeSold);
        open(us20a1Order.element);
        if (order.recordCount() > 0) {
            appendValues(us20a1Order, order);
            xml += "#";
            if (built.recordCount() > 0)
                appendPairs(built, sold);
        }
        close(us20a1Order.element);
    }

    void appendPairs(Recordset& built, Recordset& sold) {
        std::string_view separator;
        for (const int column : schemeColumns) {
            xml += separator;
            separator = "#";
            appendTrimmed(xml, built.get(column));
            xml += "^";
            if (!sold.eof())
                appendTrimmed(xml, sold.get(column));
        }
    }

    Proposal& proposal;
    const frmScrutinyULC& form;
    Recordset& ownership = proposal.tables.ensure(&Tables::rsOwnership);
    Recordset& orders = proposal.tables.ensure(&Tables::rsULCOrder);
    std::string filter;
    std::string xml;
};

}  // namespace

void buildULCScrutinyXML(Proposal& proposal) {
    proposal.ULCScrutinyXML = Builder(proposal).build();
}

}  // namespace plandesk
