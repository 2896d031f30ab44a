// What feeds the statutory letters. Of a control array, member n goes to column n + 1; gaps in the array stay gaps.

#include "reports/Feeds.h"

namespace plandesk {

namespace {

constexpr std::string_view supervisionForm = "frmofsupervision";
constexpr std::array supervisionRows = std::to_array<FeedRow>({
    {"Officername", 200, FeedRule::Trimmed, "txtOfficername", supervisionForm},
    {"Building", 200, FeedRule::Trimmed, "txtBuilding", supervisionForm},
    {"FPNo", 200, FeedRule::Trimmed, "txtFPNo", supervisionForm},
    {"Scheme", 200, FeedRule::Trimmed, "txtSchemeno", supervisionForm},
    {"Road", 200, FeedRule::Trimmed, "txtRoad", supervisionForm},
    {"Ward", 200, FeedRule::Trimmed, "txtWard", supervisionForm},
    {"Sector", 200, FeedRule::Trimmed, "txtSector", supervisionForm},
    {"EngineerName", 200, FeedRule::Trimmed, "txtEngineer", supervisionForm},
    {"Licenceno", 200, FeedRule::Trimmed, "txtLicencea", supervisionForm},
    {"AddressEngineer", 200, FeedRule::Trimmed, "txtAddengineer", supervisionForm},
    {"DTPicker", 200, FeedRule::Date, "DTPicker1", supervisionForm},
});
constexpr auto supervisionColumns = columnsOf(supervisionRows);

constexpr std::string_view commencementForm = "frmnoticeofcommencementofwork";
constexpr std::array commencementRows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtNoticeForCommencment(0)", commencementForm},
    {"FLD2", 500, FeedRule::Trimmed, "txtNoticeForCommencment(1)", commencementForm},
    {"FLD3", 500, FeedRule::Trimmed, "txtNoticeForCommencment(2)", commencementForm},
    {"FLD4", 500, FeedRule::Trimmed, "txtNoticeForCommencment(3)", commencementForm},
    {"FLD5", 500, FeedRule::Trimmed, "txtNoticeForCommencment(4)", commencementForm},
    {"FLD6", 500, FeedRule::Trimmed, "txtNoticeForCommencment(5)", commencementForm},
    {"FLD7", 500, FeedRule::Date, "DTPicker1", commencementForm},
    {"FLD8", 500, FeedRule::Trimmed, "txtNoticeForCommencment(7)", commencementForm},
    {"FLD9", 500, FeedRule::Date, "DTPicker2", commencementForm},
    {"FLD10", 500, FeedRule::Trimmed, "txtNoticeForCommencment(9)", commencementForm},
    {"FLD11", 500, FeedRule::Trimmed, "txtNoticeForCommencment(10)", commencementForm},
    {"FLD12", 500, FeedRule::Nothing},
    {"FLD13", 500, FeedRule::Trimmed, "txtNoticeForCommencment(12)", commencementForm},
    {"FLD14", 500, FeedRule::Trimmed, "txtNoticeForCommencment(13)", commencementForm},
    {"FLD15", 500, FeedRule::YesNo, "possessionreciept", commencementForm},
    {"FLD16", 500, FeedRule::Trimmed, "txtNoticeForCommencment(15)", commencementForm},
});
constexpr auto commencementColumns = columnsOf(commencementRows);

constexpr std::string_view plinthForm = "frmcompletionuptoplinthlevel";
constexpr std::array plinthRows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtCompletionPlint(0)", plinthForm},
    {"FLD2", 500, FeedRule::Trimmed, "txtCompletionPlint(1)", plinthForm},
    {"FLD3", 500, FeedRule::Trimmed, "txtCompletionPlint(2)", plinthForm},
    {"FLD4", 500, FeedRule::Trimmed, "txtCompletionPlint(3)", plinthForm},
    {"FLD5", 500, FeedRule::Trimmed, "txtCompletionPlint(4)", plinthForm},
    {"FLD6", 500, FeedRule::Trimmed, "txtCompletionPlint(5)", plinthForm},
    {"FLD7", 500, FeedRule::Trimmed, "txtCompletionPlint(6)", plinthForm},
    {"FLD8", 500, FeedRule::Trimmed, "txtCompletionPlint(7)", plinthForm},
    {"FLD9", 500, FeedRule::Date, "DTPicker1", plinthForm},
    {"FLD10", 500, FeedRule::Trimmed, "txtCompletionPlint(9)", plinthForm},
    {"FLD11", 500, FeedRule::Trimmed, "txtCompletionPlint(10)", plinthForm},
    {"FLD12", 500, FeedRule::Date, "DTPicker2", plinthForm},
    {"FLD13", 500, FeedRule::YesNo, "IsRightsTransfered", plinthForm},
    {"FLD14", 500, FeedRule::Trimmed, "txtCompletionPlint(13)", plinthForm},
});
constexpr auto plinthColumns = columnsOf(plinthRows);

constexpr std::string_view buildingForm = "frmbuildingcompletioncertificate";
constexpr std::array buildingRows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtCompletionCertificate(0)", buildingForm},
    {"FLD2", 500, FeedRule::Trimmed, "txtCompletionCertificate(1)", buildingForm},
    {"FLD3", 500, FeedRule::Trimmed, "txtCompletionCertificate(2)", buildingForm},
    {"FLD4", 500, FeedRule::Trimmed, "txtCompletionCertificate(3)", buildingForm},
    {"FLD5", 500, FeedRule::Trimmed, "txtCompletionCertificate(4)", buildingForm},
    {"FLD6", 500, FeedRule::Trimmed, "txtCompletionCertificate(5)", buildingForm},
    {"FLD7", 500, FeedRule::Date, "DTPicker1", buildingForm},
    {"FLD8", 500, FeedRule::Trimmed, "txtCompletionCertificate(7)", buildingForm},
    {"FLD9", 500, FeedRule::Trimmed, "txtCompletionCertificate(8)", buildingForm},
    {"FLD10", 500, FeedRule::Date, "DTPicker2", buildingForm},
    {"FLD11", 500, FeedRule::Trimmed, "txtCompletionCertificate(10)", buildingForm},
    {"FLD12", 500, FeedRule::Trimmed, "txtCompletionCertificate(11)", buildingForm},
    {"FLD13", 500, FeedRule::Trimmed, "txtCompletionCertificate(12)", buildingForm},
    {"FLD14", 500, FeedRule::Date, "DTPicker3", buildingForm},
});
constexpr auto buildingColumns = columnsOf(buildingRows);

constexpr std::string_view occupancyForm = "frmforpartoccupancycertificate";
constexpr std::array occupancyRows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtOccupancyCertificate(0)", occupancyForm},
    {"FLD2", 500, FeedRule::Date, "DTPicker1", occupancyForm},
    {"FLD3", 500, FeedRule::Trimmed, "txtOccupancyCertificate(2)", occupancyForm},
    {"FLD4", 500, FeedRule::Trimmed, "txtOccupancyCertificate(3)", occupancyForm},
    {"FLD5", 500, FeedRule::Trimmed, "txtOccupancyCertificate(4)", occupancyForm},
    {"FLD6", 500, FeedRule::Date, "DTPicker2", occupancyForm},
});
constexpr auto occupancyColumns = columnsOf(occupancyRows);

constexpr std::string_view ownershipForm = "frmtdrfortransferringownership";
constexpr std::array ownershipRows = std::to_array<FeedRow>({
    {"FLD1", 500, FeedRule::Trimmed, "txtTDRTransOwn(0)", ownershipForm},
    {"FLD2", 500, FeedRule::Trimmed, "txtTDRTransOwn(1)", ownershipForm},
    {"FLD3", 500, FeedRule::Trimmed, "txtTDRTransOwn(2)", ownershipForm},
    {"FLD4", 500, FeedRule::Trimmed, "txtTDRTransOwn(3)", ownershipForm},
    {"FLD5", 500, FeedRule::Trimmed, "txtTDRTransOwn(4)", ownershipForm},
    {"FLD6", 500, FeedRule::Trimmed, "txtTDRTransOwn(5)", ownershipForm},
    {"FLD7", 500, FeedRule::Trimmed, "txtTDRTransOwn(6)", ownershipForm},
    {"FLD8", 500, FeedRule::Trimmed, "txtTDRTransOwn(7)", ownershipForm},
    {"FLD9", 500, FeedRule::Trimmed, "txtTDRTransOwn(8)", ownershipForm},
    {"FLD10", 500, FeedRule::Trimmed, "txtTDRTransOwn(9)", ownershipForm},
    {"FLD11", 500, FeedRule::Trimmed, "txtTDRTransOwn(10)", ownershipForm},
    {"FLD12", 500, FeedRule::Trimmed, "txtTDRTransOwn(11)", ownershipForm},
    {"FLD13", 500, FeedRule::Trimmed, "txtTDRTransOwn(12)", ownershipForm},
    {"FLD14", 500, FeedRule::Trimmed, "txtTDRTransOwn(13)", ownershipForm},
    {"FLD15", 500, FeedRule::Trimmed, "txtTDRTransOwn(14)", ownershipForm},
    {"FLD16", 500, FeedRule::Trimmed, "txtTDRTransOwn(15)", ownershipForm},
    {"FLD17", 500, FeedRule::Trimmed, "txtTDRTransOwn(16)", ownershipForm},
    {"FLD18", 500, FeedRule::Trimmed, "txtTDRTransOwn(17)", ownershipForm},
    {"FLD19", 500, FeedRule::Trimmed, "txtTDRTransOwn(18)", ownershipForm},
    {"FLD20", 500, FeedRule::Trimmed, "txtTDRTransOwn(19)", ownershipForm},
    {"FLD21", 500, FeedRule::Trimmed, "txtTDRTransOwn(20)", ownershipForm},
    {"FLD22", 500, FeedRule::Trimmed, "txtTDRTransOwn(21)", ownershipForm},
});
constexpr auto ownershipColumns = columnsOf(ownershipRows);

}  // namespace

const Feed feedSupervision{.rows = supervisionRows, .columns = supervisionColumns};
const Feed feedCommencement{.rows = commencementRows, .columns = commencementColumns};
const Feed feedPlinthCompletion{.rows = plinthRows, .columns = plinthColumns};
const Feed feedBuildingCompletion{.rows = buildingRows, .columns = buildingColumns};
const Feed feedPartOccupancy{.rows = occupancyRows, .columns = occupancyColumns};
const Feed feedTDROwnership{.rows = ownershipRows, .columns = ownershipColumns};

}  // namespace plandesk
