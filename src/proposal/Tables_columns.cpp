// The columns of the in-memory tables.

#include "proposal/InPlace.h"
#include "proposal/TableColumns.h"
#include "proposal/Tables.h"

namespace plandesk {

namespace {

// Column names are the system's own, misspellings included: look-ups, documents and reports go by them.

constexpr Column integer(std::string_view name) {
    return {name, ColumnKind::Integer};
}

constexpr Column text(std::string_view name, int width) {
    return {name, ColumnKind::Text, width};
}

constexpr Column date(std::string_view name) {
    return {name, ColumnKind::Date};
}

constexpr Column number(std::string_view name) {
    return {name, ColumnKind::Double};
}

constexpr Column boolean(std::string_view name) {
    return {name, ColumnKind::Boolean};
}

/// The two families differ in the width of FerFarNo alone.
constexpr auto extractColumns(int ferFarWidth) {
    return inPlace<ExtractColumn, Column>({
        {ExtractColumn::ExtNo, integer("ExtNo")},
        {ExtractColumn::SurveyNo, text("SurveyNo", 100)},
        {ExtractColumn::HissaNo, text("HissaNo", 100)},
        {ExtractColumn::DateOf712, date("DateOf712")},
        {ExtractColumn::FerFarNo, text("FerFarNo", ferFarWidth)},
        {ExtractColumn::NoOfOwners, integer("NoOfOwners ")},  // the blank belongs to the name
        {ExtractColumn::CumulativeArea, number("CumulativeArea")},
        {ExtractColumn::NoOfPAHs, integer("NoOfPAHs")},
    });
}

constexpr auto extract712 = extractColumns(1000);
constexpr auto extractPRC = extractColumns(500);

constexpr auto owner = inPlace<OwnerColumn, Column>({
    {OwnerColumn::ExtNo, integer("ExtNo")},
    {OwnerColumn::OwnNo, integer("OwnNo")},
    {OwnerColumn::Name, text("Name", 200)},
    {OwnerColumn::SingingStatus, text("SingingStatus", 100)},
    {OwnerColumn::Encumbrances, text("Encumbrances", 100)},
    {OwnerColumn::OwnerType, text("OwnerType", 100)},
});

constexpr auto holder = inPlace<HolderColumn, Column>({
    {HolderColumn::ExtNo, integer("ExtNo")},
    {HolderColumn::PAHNo, integer("PAHNo")},
    {HolderColumn::Name, text("Name", 100)},
    {HolderColumn::PAHSing, boolean("PAHSing")},
});

constexpr auto plot = inPlace<PlotColumn, Column>({
    {PlotColumn::SrNo, integer("SrNo")},
    {PlotColumn::PlotDesciption, text("PlotDesciption", 100)},
    {PlotColumn::PlotName, text("Plot Name", 100)},
    {PlotColumn::NoOfPRC, number("No of PRC")},  // counts the extracts of the plot in the 7/12 family too
});

constexpr auto ownership = inPlace<OwnershipColumn, Column>({
    {OwnershipColumn::ExtNo, integer("ExtNo")},
    {OwnershipColumn::Name, text("Name", 2000)},
    {OwnershipColumn::Area, number("Area")},
    {OwnershipColumn::DocStatus, text("DocStatus", 100)},
});

constexpr auto ulcOrder = inPlace<ULCOrderColumn, Column>({
    {ULCOrderColumn::ExtNo, integer("ExtNo")},
    {ULCOrderColumn::Name, text("Name", 1000)},
    {ULCOrderColumn::ULCOrderSelection, text("ULCOrderSelection", 100)},
    {ULCOrderColumn::OrderNo, text("OrderNo", 100)},
    {ULCOrderColumn::Details, text("Details", 10)},
    {ULCOrderColumn::Remarks, text("Remarks", 250)},
});

constexpr auto schemeGrid = inPlace<SchemeGridColumn, Column>({
    {SchemeGridColumn::No, text("No", 100)},
    {SchemeGridColumn::FLD1, text("FLD1", 100)},
    {SchemeGridColumn::FLD2, text("FLD2", 100)},
    {SchemeGridColumn::FLD3, text("FLD3", 100)},
    {SchemeGridColumn::ExtNo, integer("ExtNo")},
});

constexpr auto us84Plots = inPlace<US84PlotColumn, Column>({
    {US84PlotColumn::No, text("No", 100)},
    {US84PlotColumn::Village, text("Village", 100)},
    {US84PlotColumn::Taluka, text("Taluka", 100)},
    {US84PlotColumn::SrNo, text("SrNo", 100)},
    {US84PlotColumn::TotalArea, text("TotalArea", 100)},
    {US84PlotColumn::ResrvType, text("ResrvType", 100)},
    {US84PlotColumn::ResArea, text("ResArea", 100)},
    {US84PlotColumn::GreenBelt, text("GreenBelt", 100)},
    {US84PlotColumn::RoadWideing, text("RoadWideing", 100)},
    {US84PlotColumn::ResrvArea, text("ResrvArea", 100)},
    {US84PlotColumn::NetDevArea, text("NetDevArea", 100)},
    {US84PlotColumn::UnDevArea, text("UnDevArea", 100)},
    {US84PlotColumn::OpenSpace, text("OpenSpace", 100)},
    {US84PlotColumn::Recreational, text("Recreational", 100)},
    {US84PlotColumn::areaRemained, text("areaRemained", 100)},
    {US84PlotColumn::Surplus, text("Surplus", 100)},
    {US84PlotColumn::ExtNo, integer("ExtNo")},
});

constexpr auto ulcOrderUS84 = inPlace<US84OrderColumn, Column>({
    {US84OrderColumn::CaseNo, text("CaseNo", 100)},
    {US84OrderColumn::ResultDate, text("ResultDate", 100)},
    {US84OrderColumn::AppName, text("AppName", 100)},
    {US84OrderColumn::AppAddress, text("AppAddress", 100)},
    {US84OrderColumn::NoOfPlots, text("NoOfPlots", 10)},
    {US84OrderColumn::TotalAreaUnderOwnerShip, text("TotalAreaUnderOwnerShip", 50)},
    {US84OrderColumn::AreaDeduction, text("AreaDeduction", 50)},
    {US84OrderColumn::GreenBelt, text("GreenBelt", 50)},
    {US84OrderColumn::Surplus, text("Surplus", 50)},
    {US84OrderColumn::Survey, text("Survey", 100)},
    {US84OrderColumn::ExtNo, integer("ExtNo")},
});

constexpr auto ulcOrderUS20a1 = inPlace<US20a1OrderColumn, Column>({
    {US20a1OrderColumn::TypeOfScheme, text("TypeOfScheme", 100)},
    {US20a1OrderColumn::AMGSubmitted, text("AMGSubmitted", 100)},
    {US20a1OrderColumn::Details, text("Details", 100)},
    {US20a1OrderColumn::i, text("i", 100)},
    {US20a1OrderColumn::ii, text("ii", 10)},
    {US20a1OrderColumn::iii, text("iii", 50)},
    {US20a1OrderColumn::iv, text("iv", 50)},
    {US20a1OrderColumn::v, text("v", 50)},
    {US20a1OrderColumn::vi, text("vi", 50)},
    {US20a1OrderColumn::vii, text("vii", 100)},
    {US20a1OrderColumn::viii, text("viii", 50)},
    {US20a1OrderColumn::ix, text("ix", 50)},
    {US20a1OrderColumn::x, text("x", 50)},
    {US20a1OrderColumn::xi, text("xi", 50)},
    {US20a1OrderColumn::xii, text("xii", 100)},
    {US20a1OrderColumn::Condition, text("Condition", 100)},
    {US20a1OrderColumn::SpecDisc, text("SpecDisc", 100)},
    {US20a1OrderColumn::ExtNo, integer("ExtNo")},
});

constexpr auto scheme = inPlace<SchemeColumn, Column>({
    {SchemeColumn::FLD1, text("FLD1", 100)},
    {SchemeColumn::FLD2, text("FLD2", 100)},
    {SchemeColumn::FLD3, text("FLD3", 100)},
    {SchemeColumn::FLD4, text("FLD4", 100)},
    {SchemeColumn::FLD5, text("FLD5", 100)},
    {SchemeColumn::FLD6, text("FLD6", 100)},
    {SchemeColumn::FLD7, text("FLD7", 100)},
    {SchemeColumn::ExtNo, integer("ExtNo")},
});

constexpr auto ulcOrderUS22 = inPlace<US22OrderColumn, Column>({
    {US22OrderColumn::FLD1, text("FLD1", 100)},
    {US22OrderColumn::FLD2, text("FLD2", 100)},
    {US22OrderColumn::ExtNo, integer("ExtNo")},
});

constexpr auto drcIssue = inPlace<DRCIssueColumn, Column>({
    {DRCIssueColumn::InwardNo, text("InwardNo", 50)},
    {DRCIssueColumn::InwardDate, text("InwardDate", 20)},
    {DRCIssueColumn::FolioNo, text("FolioNo", 50)},
    {DRCIssueColumn::CSCTSNo, text("CSCTSNo", 50)},
    {DRCIssueColumn::Village, text("Village", 100)},
    {DRCIssueColumn::ApplicantName, text("ApplicantName", 100)},
    {DRCIssueColumn::ApplicantAddress, text("ApplicantAddress", 300)},
    {DRCIssueColumn::OwnerName, text("OwnerName", 100)},
    {DRCIssueColumn::IsAchitectorSurveyor, text("IsAchitectorSurveyor", 5)},
    {DRCIssueColumn::Name, text("Name", 100)},
    {DRCIssueColumn::Address, text("Address", 300)},
    {DRCIssueColumn::LicenceNumber, text("LicenceNumber", 50)},
    {DRCIssueColumn::IssueDate, text("IssueDate", 20)},
    {DRCIssueColumn::ValidityDate, text("ValidityDate", 20)},
    {DRCIssueColumn::CertificateNo, text("CertificateNo", 50)},
    {DRCIssueColumn::CertificateDate, text("CertificateDate", 20)},
    {DRCIssueColumn::LandAreaNOCObtain, text("LandAreaNOCObtain", 50)},
    {DRCIssueColumn::ClearanceNo, text("ClearanceNo", 50)},
    {DRCIssueColumn::ClearanceDate, text("ClearanceDate", 20)},
    {DRCIssueColumn::IsReservationInc, text("IsReservationInc", 5)},
    {DRCIssueColumn::ReservationSerialNo, text("ReservationSerialNo", 50)},
    {DRCIssueColumn::LadSituatedAt, text("LadSituatedAt", 100)},
    {DRCIssueColumn::DrcZone, text("DrcZone", 50)},
    {DRCIssueColumn::Sector, text("Sector", 50)},
    {DRCIssueColumn::FSIZone, text("FSIZone", 50)},
    {DRCIssueColumn::TotalAreaOfLand, text("TotalAreaOfLand", 50)},
    {DRCIssueColumn::IsLargerReservation, text("IsLargerReservation", 5)},
    {DRCIssueColumn::OtherReservation, text("OtherReservation", 100)},
    {DRCIssueColumn::ProposedReservation, text("ProposedReservation", 50)},
    {DRCIssueColumn::AcquisitionDate, text("AcquisitionDate", 20)},
    {DRCIssueColumn::IsFSICompensationRec, text("IsFSICompensationRec", 5)},
    {DRCIssueColumn::FSICompensationArea, text("FSICompensationArea", 20)},
    {DRCIssueColumn::CheckedByDE, text("CheckedByDE", 5)},
});

constexpr auto drcTransfer = inPlace<DRCTransferColumn, Column>({
    {DRCTransferColumn::DRCNumber, text("DRCNumber", 50)},
    {DRCTransferColumn::TotalBalanceAreaFigure, text("TotalBalanceAreaFigure", 50)},
    {DRCTransferColumn::TransferorFolioNo, text("TransferorFolioNo", 50)},
    {DRCTransferColumn::TransferorName1, text("TransferorName1", 100)},
    {DRCTransferColumn::TransferorName2, text("TransferorName2", 100)},
    {DRCTransferColumn::TransferorName3, text("TransferorName3", 100)},
    {DRCTransferColumn::TransferorName4, text("TransferorName4", 100)},
    {DRCTransferColumn::TransferorName5, text("TransferorName5", 100)},
    {DRCTransferColumn::AttestationName, text("AttestationName", 100)},
    {DRCTransferColumn::AttestationAddress, text("AttestationAddress", 300)},
    {DRCTransferColumn::TransfareeName1, text("TransfareeName1", 100)},
    {DRCTransferColumn::TransfareeName2, text("TransfareeName2", 100)},
    {DRCTransferColumn::TransfareeName3, text("TransfareeName3", 100)},
    {DRCTransferColumn::TransfareeName4, text("TransfareeName4", 100)},
    {DRCTransferColumn::TransfareeName5, text("TransfareeName5", 100)},
    {DRCTransferColumn::TransfareeExistingFolioNo, text("TransfareeExistingFolioNo", 50)},
    {DRCTransferColumn::TransfareeDate, text("TransfareeDate", 20)},
    {DRCTransferColumn::TransfareePlace, text("TransfareePlace", 100)},
    {DRCTransferColumn::TransfareeCheckedBy, text("TransfareeCheckedBy", 100)},
    {DRCTransferColumn::SingTalliedBy, text("SingTalliedBy", 100)},
    {DRCTransferColumn::RegTransferNo, text("RegTransferNo", 50)},
    {DRCTransferColumn::ApprovalDate, text("ApprovalDate", 20)},
    {DRCTransferColumn::ApprovalPlace, text("ApprovalPlace", 100)},
    {DRCTransferColumn::FolioNumber1, text("FolioNumber1", 100)},
    {DRCTransferColumn::FolioNumber2, text("FolioNumber2", 100)},
    {DRCTransferColumn::FolioNumber3, text("FolioNumber3", 100)},
    {DRCTransferColumn::FolioNumber4, text("FolioNumber4", 100)},
    {DRCTransferColumn::FolioNumber5, text("FolioNumber5", 100)},
    {DRCTransferColumn::LoggedBy, text("LoggedBy", 100)},
    {DRCTransferColumn::FullAddress, text("FullAddress", 300)},
    {DRCTransferColumn::DRCNameAddress, text("DRCNameAddress", 300)},
    {DRCTransferColumn::VideReceiptNo, text("VideReceiptNo", 50)},
    {DRCTransferColumn::ReceiptDate, text("ReceiptDate", 20)},
});

/// TransfareePlace, DRCNameAddress and ReceiptDate have other widths here than in drcTransfer.
constexpr auto drcUtilisation = inPlace<DRCUtilisationColumn, Column>({
    {DRCUtilisationColumn::DRCNumber, text("DRCNumber", 50)},
    {DRCUtilisationColumn::TransferorFolioNo, text("TransferorFolioNo", 50)},
    {DRCUtilisationColumn::TransferorName1, text("TransferorName1", 100)},
    {DRCUtilisationColumn::TransferorName2, text("TransferorName2", 100)},
    {DRCUtilisationColumn::TransferorName3, text("TransferorName3", 100)},
    {DRCUtilisationColumn::TransferorName4, text("TransferorName4", 100)},
    {DRCUtilisationColumn::TransferorName5, text("TransferorName5", 100)},
    {DRCUtilisationColumn::AttestationName, text("AttestationName", 100)},
    {DRCUtilisationColumn::AttestationAddress, text("AttestationAddress", 300)},
    {DRCUtilisationColumn::AttestationSign, text("AttestationSign", 100)},
    {DRCUtilisationColumn::AreaUtilizeFigure, text("AreaUtilizeFigure", 20)},
    {DRCUtilisationColumn::ConsiderationRs, text("ConsiderationRs", 20)},
    {DRCUtilisationColumn::BalanceBuiltUpAreaFig, text("BalanceBuiltUpAreaFig", 20)},
    {DRCUtilisationColumn::BalanceDrcAreaFig, text("BalanceDrcAreaFig", 20)},
    {DRCUtilisationColumn::TransfareeName1, text("TransfareeName1", 100)},
    {DRCUtilisationColumn::TransfareeName2, text("TransfareeName2", 100)},
    {DRCUtilisationColumn::TransfareeName3, text("TransfareeName3", 100)},
    {DRCUtilisationColumn::TransfareeName4, text("TransfareeName4", 100)},
    {DRCUtilisationColumn::TransfareeName5, text("TransfareeName5", 100)},
    {DRCUtilisationColumn::TransfareeExistingFolioNo, text("TransfareeExistingFolioNo", 50)},
    {DRCUtilisationColumn::TransfareeDate, text("TransfareeDate", 20)},
    {DRCUtilisationColumn::TransfareePlace, text("TransfareePlace", 50)},
    {DRCUtilisationColumn::TransfareeCheckedBy, text("TransfareeCheckedBy", 100)},
    {DRCUtilisationColumn::SingTalliedBy, text("SingTalliedBy", 100)},
    {DRCUtilisationColumn::RegTransferNo, text("RegTransferNo", 50)},
    {DRCUtilisationColumn::ApprovalDate, text("ApprovalDate", 20)},
    {DRCUtilisationColumn::ApprovalPlace, text("ApprovalPlace", 100)},
    {DRCUtilisationColumn::FolioNumber1, text("FolioNumber1", 100)},
    {DRCUtilisationColumn::FolioNumber2, text("FolioNumber2", 100)},
    {DRCUtilisationColumn::FolioNumber3, text("FolioNumber3", 100)},
    {DRCUtilisationColumn::FolioNumber4, text("FolioNumber4", 100)},
    {DRCUtilisationColumn::FolioNumber5, text("FolioNumber5", 100)},
    {DRCUtilisationColumn::LoggedBy, text("LoggedBy", 100)},
    {DRCUtilisationColumn::FullAddress, text("FullAddress", 300)},
    {DRCUtilisationColumn::DRCNameAddress, text("DRCNameAddress", 500)},
    {DRCUtilisationColumn::VideReceiptNo, text("VideReceiptNo", 50)},
    {DRCUtilisationColumn::ReceiptDate, text("ReceiptDate", 50)},
});

constexpr std::array definitions = std::to_array<TableDefinition>({
    {"rsExtract712", &Tables::rsExtract712, extract712},
    {"rsExtractPRC", &Tables::rsExtractPRC, extractPRC},
    {"rsOwner712", &Tables::rsOwner712, owner},
    {"rsOwnerPRC", &Tables::rsOwnerPRC, owner},
    {"rsPAH712", &Tables::rsPAH712, holder},
    {"rsPAHPRC", &Tables::rsPAHPRC, holder},
    {"rsPlot712", &Tables::rsPlot712, plot},
    {"rsPlotPRC", &Tables::rsPlotPRC, plot},
    {"rsPlot712Saved", &Tables::rsPlot712Saved, plot},
    {"rsPlotPRCSaved", &Tables::rsPlotPRCSaved, plot},
    {"rsOwnership", &Tables::rsOwnership, ownership},
    {"rsOwnership712", &Tables::rsOwnership712, ownership},
    {"rsOwnershipPRC", &Tables::rsOwnershipPRC, ownership},
    {"rsULCOrder", &Tables::rsULCOrder, ulcOrder},
    {"rsSchemeGrid", &Tables::rsSchemeGrid, schemeGrid},
    {"rsUS84Plots", &Tables::rsUS84Plots, us84Plots},
    {"rsULCOrderUS84", &Tables::rsULCOrderUS84, ulcOrderUS84},
    {"rsULCOrderUS20a1", &Tables::rsULCOrderUS20a1, ulcOrderUS20a1},
    {"rsSchemeBuilt", &Tables::rsSchemeBuilt, scheme},
    {"rsSchemeSold", &Tables::rsSchemeSold, scheme},
    {"rsULCOrderUS22", &Tables::rsULCOrderUS22, ulcOrderUS22},
    {"rsDRCIssue", &Tables::rsDRCIssue, drcIssue},
    {"rsDRCTransfer", &Tables::rsDRCTransfer, drcTransfer},
    {"rsDRCUtilisation", &Tables::rsDRCUtilisation, drcUtilisation},
});

}  // namespace

std::span<const TableDefinition> tableDefinitions() {
    return definitions;
}

}  // namespace plandesk
