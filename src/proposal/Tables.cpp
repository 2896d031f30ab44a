#include "proposal/Tables.h"

#include <algorithm>

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
constexpr std::array<Column, 8> extractColumns(int ferFarWidth) {
    return {integer("ExtNo"),
            text("SurveyNo", 100),
            text("HissaNo", 100),
            date("DateOf712"),
            text("FerFarNo", ferFarWidth),
            integer("NoOfOwners "),  // the blank belongs to the name
            number("CumulativeArea"),
            integer("NoOfPAHs")};
}

constexpr auto extract712 = extractColumns(1000);
constexpr auto extractPRC = extractColumns(500);

constexpr std::array owner = {
    integer("ExtNo"),           integer("OwnNo"),          text("Name", 200),
    text("SingingStatus", 100), text("Encumbrances", 100), text("OwnerType", 100),
};

constexpr std::array holder = {integer("ExtNo"), integer("PAHNo"), text("Name", 100), boolean("PAHSing")};

constexpr std::array plot = {
    integer("SrNo"), text("PlotDesciption", 100), text("Plot Name", 100),
    number("No of PRC"),  // counts the extracts of the plot in the 7/12 family too
};

constexpr std::array ownership = {integer("ExtNo"), text("Name", 2000), number("Area"), text("DocStatus", 100)};

constexpr std::array ulcOrder = {
    integer("ExtNo"),     text("Name", 1000),  text("ULCOrderSelection", 100),
    text("OrderNo", 100), text("Details", 10), text("Remarks", 250),
};

constexpr std::array schemeGrid = {
    text("No", 100), text("FLD1", 100), text("FLD2", 100), text("FLD3", 100), integer("ExtNo"),
};

constexpr std::array us84Plots = {
    text("No", 100),          text("Village", 100),      text("Taluka", 100),       text("SrNo", 100),
    text("TotalArea", 100),   text("ResrvType", 100),    text("ResArea", 100),      text("GreenBelt", 100),
    text("RoadWideing", 100), text("ResrvArea", 100),    text("NetDevArea", 100),   text("UnDevArea", 100),
    text("OpenSpace", 100),   text("Recreational", 100), text("areaRemained", 100), text("Surplus", 100),
    integer("ExtNo"),
};

constexpr std::array ulcOrderUS84 = {
    text("CaseNo", 100),       text("ResultDate", 100), text("AppName", 100),
    text("AppAddress", 100),   text("NoOfPlots", 10),   text("TotalAreaUnderOwnerShip", 50),
    text("AreaDeduction", 50), text("GreenBelt", 50),   text("Surplus", 50),
    text("Survey", 100),       integer("ExtNo"),
};

constexpr std::array ulcOrderUS20a1 = {
    text("TypeOfScheme", 100),
    text("AMGSubmitted", 100),
    text("Details", 100),
    text("i", 100),
    text("ii", 10),
    text("iii", 50),
    text("iv", 50),
    text("v", 50),
    text("vi", 50),
    text("vii", 100),
    text("viii", 50),
    text("ix", 50),
    text("x", 50),
    text("xi", 50),
    text("xii", 100),
    text("Condition", 100),
    text("SpecDisc", 100),
    integer("ExtNo"),
};

constexpr std::array scheme = {
    text("FLD1", 100), text("FLD2", 100), text("FLD3", 100), text("FLD4", 100),
    text("FLD5", 100), text("FLD6", 100), text("FLD7", 100), integer("ExtNo"),
};

constexpr std::array ulcOrderUS22 = {text("FLD1", 100), text("FLD2", 100), integer("ExtNo")};

constexpr std::array drcIssue = {
    text("InwardNo", 50),
    text("InwardDate", 20),
    text("FolioNo", 50),
    text("CSCTSNo", 50),
    text("Village", 100),
    text("ApplicantName", 100),
    text("ApplicantAddress", 300),
    text("OwnerName", 100),
    text("IsAchitectorSurveyor", 5),
    text("Name", 100),
    text("Address", 300),
    text("LicenceNumber", 50),
    text("IssueDate", 20),
    text("ValidityDate", 20),
    text("CertificateNo", 50),
    text("CertificateDate", 20),
    text("LandAreaNOCObtain", 50),
    text("ClearanceNo", 50),
    text("ClearanceDate", 20),
    text("IsReservationInc", 5),
    text("ReservationSerialNo", 50),
    text("LadSituatedAt", 100),
    text("DrcZone", 50),
    text("Sector", 50),
    text("FSIZone", 50),
    text("TotalAreaOfLand", 50),
    text("IsLargerReservation", 5),
    text("OtherReservation", 100),
    text("ProposedReservation", 50),
    text("AcquisitionDate", 20),
    text("IsFSICompensationRec", 5),
    text("FSICompensationArea", 20),
    text("CheckedByDE", 5),
};

constexpr std::array drcTransfer = {
    text("DRCNumber", 50),
    text("TotalBalanceAreaFigure", 50),
    text("TransferorFolioNo", 50),
    text("TransferorName1", 100),
    text("TransferorName2", 100),
    text("TransferorName3", 100),
    text("TransferorName4", 100),
    text("TransferorName5", 100),
    text("AttestationName", 100),
    text("AttestationAddress", 300),
    text("TransfareeName1", 100),
    text("TransfareeName2", 100),
    text("TransfareeName3", 100),
    text("TransfareeName4", 100),
    text("TransfareeName5", 100),
    text("TransfareeExistingFolioNo", 50),
    text("TransfareeDate", 20),
    text("TransfareePlace", 100),
    text("TransfareeCheckedBy", 100),
    text("SingTalliedBy", 100),
    text("RegTransferNo", 50),
    text("ApprovalDate", 20),
    text("ApprovalPlace", 100),
    text("FolioNumber1", 100),
    text("FolioNumber2", 100),
    text("FolioNumber3", 100),
    text("FolioNumber4", 100),
    text("FolioNumber5", 100),
    text("LoggedBy", 100),
    text("FullAddress", 300),
    text("DRCNameAddress", 300),
    text("VideReceiptNo", 50),
    text("ReceiptDate", 20),
};

/// TransfareePlace, DRCNameAddress and ReceiptDate have other widths here than in drcTransfer.
constexpr std::array drcUtilisation = {
    text("DRCNumber", 50),
    text("TransferorFolioNo", 50),
    text("TransferorName1", 100),
    text("TransferorName2", 100),
    text("TransferorName3", 100),
    text("TransferorName4", 100),
    text("TransferorName5", 100),
    text("AttestationName", 100),
    text("AttestationAddress", 300),
    text("AttestationSign", 100),
    text("AreaUtilizeFigure", 20),
    text("ConsiderationRs", 20),
    text("BalanceBuiltUpAreaFig", 20),
    text("BalanceDrcAreaFig", 20),
    text("TransfareeName1", 100),
    text("TransfareeName2", 100),
    text("TransfareeName3", 100),
    text("TransfareeName4", 100),
    text("TransfareeName5", 100),
    text("TransfareeExistingFolioNo", 50),
    text("TransfareeDate", 20),
    text("TransfareePlace", 50),
    text("TransfareeCheckedBy", 100),
    text("SingTalliedBy", 100),
    text("RegTransferNo", 50),
    text("ApprovalDate", 20),
    text("ApprovalPlace", 100),
    text("FolioNumber1", 100),
    text("FolioNumber2", 100),
    text("FolioNumber3", 100),
    text("FolioNumber4", 100),
    text("FolioNumber5", 100),
    text("LoggedBy", 100),
    text("FullAddress", 300),
    text("DRCNameAddress", 500),
    text("VideReceiptNo", 50),
    text("ReceiptDate", 50),
};

constexpr std::array<TableDefinition, 24> definitions = {{
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
}};

constexpr std::array<Tables::Member, 2> plotTables = {&Tables::rsPlotPRC, &Tables::rsPlot712};
constexpr std::array<Tables::Member, 5> plotAndOrderTables = {
    &Tables::rsPlot712, &Tables::rsULCOrderUS22, &Tables::rsOwnershipPRC, &Tables::rsULCOrder, &Tables::rsSchemeGrid};
constexpr std::array<Tables::Member, 1> ownershipTable = {&Tables::rsOwnership};

constexpr std::array<std::span<const Tables::Member>, 8> allTables = {
    plotTables, extractTables, ownerTables, holderTables, orderTables, plotAndOrderTables, orderTables, ownershipTable};

}  // namespace

std::span<const TableDefinition> tableDefinitions() {
    return definitions;
}

std::span<const std::span<const Tables::Member>> creationOrder() {
    return allTables;
}

void Tables::createAllTables() {
    for (const std::span<const Member> group : allTables)
        create(group);
}

void Tables::create(Member table) {
    const auto definition = std::ranges::find(definitions, table, &TableDefinition::table);
    this->*table = std::make_shared<Recordset>(definition->columns);
}

void Tables::create(std::span<const Member> tables) {
    for (const Member table : tables)
        create(table);
}

Recordset& Tables::ensure(Member table) {
    if (!(this->*table))
        create(table);
    return *(this->*table);
}

std::vector<Tables::Named> Tables::byName() const {
    std::vector<Named> named;
    named.reserve(definitions.size());
    for (const TableDefinition& definition : definitions)
        named.push_back({definition.name, (this->*definition.table).get()});
    return named;
}

}  // namespace plandesk
