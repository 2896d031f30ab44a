// What feeds the application for development permission.

#include "reports/Feeds.h"

namespace plandesk {

namespace {

constexpr std::array rows = std::to_array<FeedRow>({
    {"NameOfApplcant", 200, FeedRule::Upper, "txtApplicantNm", "frmAnnexureA"},
    {"AddOfApplcant", 250, FeedRule::Upper, "txtApplicantAddr", "frmAnnexureA"},
    {"BldgNo", 250, FeedRule::Fixed, "....."},
    {"vilage", 250, FeedRule::Fixed, "----------"},
    {"Sector", 250, FeedRule::Upper, "cboSector", "frmAnnexureA"},
    {"wardNO", 250, FeedRule::Fixed, "-------"},
    {"CTSNO", 250, FeedRule::Upper, "txtCTSNo", "frmAnnexureA"},
    {"plotno", 250, FeedRule::Upper, "txtpltno", "frmAnnexureA"},
    {"FinalPlotNo", 250, FeedRule::Upper, "txtFPNo", "frmAnnexureA"},
    {"archName", 250, FeedRule::Upper, "txtArchNm", "frmAnnexureA"},
    {"LicNo", 250, FeedRule::Upper, "txtRegNm", "frmAnnexureA"},
});
constexpr auto columns = columnsOf(rows);

}  // namespace

const Feed feedHeader{.rows = rows, .columns = columns, .table = &Tables::rsReportHeader};

}  // namespace plandesk
