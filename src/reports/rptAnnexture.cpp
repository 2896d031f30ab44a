#include "reports/rptAnnexture.h"

#include <string>

#include "base/RuntimeError.h"
#include "proposal/Proposal.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"
#include "reports/papers/Particulars.h"

namespace plandesk {

namespace {

void give(ReportDesk& desk, const Feed& feed, const Recordset* table) {
    for (const Report& row : reportCatalogue())
        if (row.feed == &feed) {
            desk.bind(row.name, table ? ReportData(*table) : ReportData());
            desk.place(row.name, row.window);
        }
}

}  // namespace

bool rptAnnexture::fill(std::string_view report) {
    const Report& row = findReport(report);
    if (row.feed == &feedParticulars)
        return fillParticulars();
    give(desk, *row.feed, feedTable(*row.feed, proposal).get());
    if (row.shownBy == ShownBy::Procedure)
        desk.show(row.name);
    return true;
}

bool rptAnnexture::fillParticulars() {
    try {
        feedTable(feedParticulars, proposal);
        if (!proposal.isDirectPrint)
            if (Form* navigator = proposal.forms.touch("frmReportNav"))
                navigator->show();
        bindParticularsPages(proposal, desk);
        if (!proposal.isDirectPrint)
            desk.show(particularsPages.front());
        return true;
    } catch (const RuntimeError& error) {
        proposal.screen.message(error.description + " - " + std::to_string(error.number), "", Icon::None);
        return false;
    }
}

void rptAnnexture::print(std::string_view report) {
    if (fill(report) && findReport(report).shownBy == ShownBy::Button)
        desk.show(report);
}

void bindParticularsPages(const Proposal& proposal, ReportDesk& desk) {
    give(desk, feedParticulars, proposal.tables.rsReportParticulars.get());
}

}  // namespace plandesk
