#pragma once

#include <string_view>

namespace plandesk {

class Proposal;
class ReportDesk;

/// Turns what stands in the forms into reports: copies the live controls, saved or not, into the table of a report,
/// gives the report a copy of the table and places its window.
class rptAnnexture {
public:
    rptAnnexture(Proposal& proposal, ReportDesk& desk) : proposal(proposal), desk(desk) {}

    /// Runs the procedure of that report, which shows it where it does so itself. False when it ended in a message of
    /// its own, as that of the Particulars does at any RuntimeError.
    /// RuntimeError 3265 for an unknown report, and what the feed of another report meets.
    bool fill(std::string_view report);
    /// What the print button of a form does.
    void print(std::string_view report);

private:
    bool fillParticulars();

    Proposal& proposal;
    ReportDesk& desk;
};

/// Gives the six pages of the Particulars the row that was fed last, and their place.
void bindParticularsPages(const Proposal& proposal, ReportDesk& desk);

}  // namespace plandesk
