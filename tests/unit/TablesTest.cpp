#include "proposal/Tables.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace plandesk {
namespace {

struct Expected {
    std::string_view table;
    std::string_view columns;
};

constexpr Expected expectedTables[] = {
    {"rsExtract712",
     "ExtNo:integer|SurveyNo:text(100)|HissaNo:text(100)|DateOf712:date|FerFarNo:text(1000)|NoOfOwners :integer|"
     "CumulativeArea:double|NoOfPAHs:integer"},
    {"rsExtractPRC",
     "ExtNo:integer|SurveyNo:text(100)|HissaNo:text(100)|DateOf712:date|FerFarNo:text(500)|NoOfOwners :integer|"
     "CumulativeArea:double|NoOfPAHs:integer"},
    {"rsOwner712",
     "ExtNo:integer|OwnNo:integer|Name:text(200)|SingingStatus:text(100)|Encumbrances:text(100)|OwnerType:text(100)"},
    {"rsOwnerPRC",
     "ExtNo:integer|OwnNo:integer|Name:text(200)|SingingStatus:text(100)|Encumbrances:text(100)|OwnerType:text(100)"},
    {"rsPAH712", "ExtNo:integer|PAHNo:integer|Name:text(100)|PAHSing:boolean"},
    {"rsPAHPRC", "ExtNo:integer|PAHNo:integer|Name:text(100)|PAHSing:boolean"},
    {"rsPlot712", "SrNo:integer|PlotDesciption:text(100)|Plot Name:text(100)|No of PRC:double"},
    {"rsPlotPRC", "SrNo:integer|PlotDesciption:text(100)|Plot Name:text(100)|No of PRC:double"},
    {"rsPlot712Saved", "SrNo:integer|PlotDesciption:text(100)|Plot Name:text(100)|No of PRC:double"},
    {"rsPlotPRCSaved", "SrNo:integer|PlotDesciption:text(100)|Plot Name:text(100)|No of PRC:double"},
    {"rsOwnership", "ExtNo:integer|Name:text(2000)|Area:double|DocStatus:text(100)"},
    {"rsOwnership712", "ExtNo:integer|Name:text(2000)|Area:double|DocStatus:text(100)"},
    {"rsOwnershipPRC", "ExtNo:integer|Name:text(2000)|Area:double|DocStatus:text(100)"},
    {"rsULCOrder",
     "ExtNo:integer|Name:text(1000)|ULCOrderSelection:text(100)|OrderNo:text(100)|Details:text(10)|Remarks:text(250)"},
    {"rsSchemeGrid", "No:text(100)|FLD1:text(100)|FLD2:text(100)|FLD3:text(100)|ExtNo:integer"},
    {"rsUS84Plots",
     "No:text(100)|Village:text(100)|Taluka:text(100)|SrNo:text(100)|TotalArea:text(100)|ResrvType:text(100)|"
     "ResArea:text(100)|GreenBelt:text(100)|RoadWideing:text(100)|ResrvArea:text(100)|NetDevArea:text(100)|"
     "UnDevArea:text(100)|OpenSpace:text(100)|Recreational:text(100)|areaRemained:text(100)|Surplus:text(100)|"
     "ExtNo:integer"},
    {"rsULCOrderUS84",
     "CaseNo:text(100)|ResultDate:text(100)|AppName:text(100)|AppAddress:text(100)|NoOfPlots:text(10)|"
     "TotalAreaUnderOwnerShip:text(50)|AreaDeduction:text(50)|GreenBelt:text(50)|Surplus:text(50)|Survey:text(100)|"
     "ExtNo:integer"},
    {"rsULCOrderUS20a1",
     "TypeOfScheme:text(100)|AMGSubmitted:text(100)|Details:text(100)|i:text(100)|ii:text(10)|iii:text(50)|"
     "iv:text(50)|v:text(50)|vi:text(50)|vii:text(100)|viii:text(50)|ix:text(50)|x:text(50)|xi:text(50)|"
     "xii:text(100)|Condition:text(100)|SpecDisc:text(100)|ExtNo:integer"},
    {"rsSchemeBuilt",
     "FLD1:text(100)|FLD2:text(100)|FLD3:text(100)|FLD4:text(100)|FLD5:text(100)|FLD6:text(100)|FLD7:text(100)|"
     "ExtNo:integer"},
    {"rsSchemeSold",
     "FLD1:text(100)|FLD2:text(100)|FLD3:text(100)|FLD4:text(100)|FLD5:text(100)|FLD6:text(100)|FLD7:text(100)|"
     "ExtNo:integer"},
    {"rsULCOrderUS22", "FLD1:text(100)|FLD2:text(100)|ExtNo:integer"},
    {"rsDRCIssue",
     "InwardNo:text(50)|InwardDate:text(20)|FolioNo:text(50)|CSCTSNo:text(50)|Village:text(100)|"
     "ApplicantName:text(100)|ApplicantAddress:text(300)|OwnerName:text(100)|IsAchitectorSurveyor:text(5)|"
     "Name:text(100)|Address:text(300)|LicenceNumber:text(50)|IssueDate:text(20)|ValidityDate:text(20)|"
     "CertificateNo:text(50)|CertificateDate:text(20)|LandAreaNOCObtain:text(50)|ClearanceNo:text(50)|"
     "ClearanceDate:text(20)|IsReservationInc:text(5)|ReservationSerialNo:text(50)|LadSituatedAt:text(100)|"
     "DrcZone:text(50)|Sector:text(50)|FSIZone:text(50)|TotalAreaOfLand:text(50)|IsLargerReservation:text(5)|"
     "OtherReservation:text(100)|ProposedReservation:text(50)|AcquisitionDate:text(20)|IsFSICompensationRec:text(5)|"
     "FSICompensationArea:text(20)|CheckedByDE:text(5)"},
    {"rsDRCTransfer",
     "DRCNumber:text(50)|TotalBalanceAreaFigure:text(50)|TransferorFolioNo:text(50)|TransferorName1:text(100)|"
     "TransferorName2:text(100)|TransferorName3:text(100)|TransferorName4:text(100)|TransferorName5:text(100)|"
     "AttestationName:text(100)|AttestationAddress:text(300)|TransfareeName1:text(100)|TransfareeName2:text(100)|"
     "TransfareeName3:text(100)|TransfareeName4:text(100)|TransfareeName5:text(100)|"
     "TransfareeExistingFolioNo:text(50)|TransfareeDate:text(20)|TransfareePlace:text(100)|"
     "TransfareeCheckedBy:text(100)|SingTalliedBy:text(100)|RegTransferNo:text(50)|ApprovalDate:text(20)|"
     "ApprovalPlace:text(100)|FolioNumber1:text(100)|FolioNumber2:text(100)|FolioNumber3:text(100)|"
     "FolioNumber4:text(100)|FolioNumber5:text(100)|LoggedBy:text(100)|FullAddress:text(300)|"
     "DRCNameAddress:text(300)|VideReceiptNo:text(50)|ReceiptDate:text(20)"},
    {"rsDRCUtilisation",
     "DRCNumber:text(50)|TransferorFolioNo:text(50)|TransferorName1:text(100)|TransferorName2:text(100)|"
     "TransferorName3:text(100)|TransferorName4:text(100)|TransferorName5:text(100)|AttestationName:text(100)|"
     "AttestationAddress:text(300)|AttestationSign:text(100)|AreaUtilizeFigure:text(20)|ConsiderationRs:text(20)|"
     "BalanceBuiltUpAreaFig:text(20)|BalanceDrcAreaFig:text(20)|TransfareeName1:text(100)|TransfareeName2:text(100)|"
     "TransfareeName3:text(100)|TransfareeName4:text(100)|TransfareeName5:text(100)|"
     "TransfareeExistingFolioNo:text(50)|TransfareeDate:text(20)|TransfareePlace:text(50)|"
     "TransfareeCheckedBy:text(100)|SingTalliedBy:text(100)|RegTransferNo:text(50)|ApprovalDate:text(20)|"
     "ApprovalPlace:text(100)|FolioNumber1:text(100)|FolioNumber2:text(100)|FolioNumber3:text(100)|"
     "FolioNumber4:text(100)|FolioNumber5:text(100)|LoggedBy:text(100)|FullAddress:text(300)|"
     "DRCNameAddress:text(500)|VideReceiptNo:text(50)|ReceiptDate:text(50)"},
};

std::string described(const Column& column) {
    std::string name(column.name);
    switch (column.kind) {
    case ColumnKind::Integer:
        return name + ":integer";
    case ColumnKind::Text:
        return name + ":text(" + std::to_string(column.width) + ")";
    case ColumnKind::Date:
        return name + ":date";
    case ColumnKind::Double:
        return name + ":double";
    case ColumnKind::Boolean:
        return name + ":boolean";
    }
    return name;
}

std::string described(std::span<const Column> columns) {
    std::string text;
    for (const Column& column : columns)
        text += (text.empty() ? "" : "|") + described(column);
    return text;
}

std::string nameOf(Tables::Member member) {
    return std::string(std::ranges::find(tableDefinitions(), member, &TableDefinition::table)->name);
}

std::vector<std::string> present(const Tables& tables) {
    std::vector<std::string> names;
    for (const auto& [name, table] : tables.byName())
        if (table)
            names.emplace_back(name);
    return names;
}

TEST(Tables, HaveTheirExactColumns) {
    const auto definitions = tableDefinitions();
    ASSERT_EQ(definitions.size(), std::size(expectedTables));
    for (std::size_t index = 0; index < definitions.size(); ++index) {
        EXPECT_EQ(definitions[index].name, expectedTables[index].table);
        EXPECT_EQ(described(definitions[index].columns), expectedTables[index].columns) << definitions[index].name;
    }
}

TEST(Tables, AreCreatedWithTheColumnsOfTheirOwnName) {
    for (const TableDefinition& definition : tableDefinitions()) {
        Tables tables;
        tables.create(definition.table);
        EXPECT_EQ(present(tables), std::vector<std::string>{std::string(definition.name)});
        const Recordset& table = *(tables.*definition.table);
        EXPECT_EQ(described(table.columns()), described(definition.columns));
        EXPECT_EQ(table.rowCount(), 0);
    }
}

TEST(Tables, AreAllAbsentAtFirst) {
    EXPECT_EQ(Tables().byName().size(), 28u);
    EXPECT_TRUE(present(Tables()).empty());
}

TEST(Tables, AreAllCreatedInTheToldOrder) {
    std::vector<std::string> order;
    for (const auto group : creationOrder())
        for (const Tables::Member member : group)
            order.push_back(nameOf(member));
    EXPECT_EQ(order, (std::vector<std::string>{
                         "rsPlotPRC",        "rsPlot712",     "rsExtract712", "rsExtractPRC", "rsOwner712",
                         "rsOwnerPRC",       "rsPAH712",      "rsPAHPRC",     "rsUS84Plots",  "rsULCOrderUS84",
                         "rsULCOrderUS20a1", "rsSchemeBuilt", "rsSchemeSold", "rsPlot712",    "rsULCOrderUS22",
                         "rsOwnershipPRC",   "rsULCOrder",    "rsSchemeGrid", "rsUS84Plots",  "rsULCOrderUS84",
                         "rsULCOrderUS20a1", "rsSchemeBuilt", "rsSchemeSold", "rsOwnership"}));
}

TEST(Tables, CreateAllMakesNeitherSnapshotsNorWhatItsFormMakes) {
    Tables tables;
    tables.createAllTables();
    EXPECT_EQ(present(tables),
              (std::vector<std::string>{"rsExtract712", "rsExtractPRC", "rsOwner712", "rsOwnerPRC", "rsPAH712",
                                        "rsPAHPRC", "rsPlot712", "rsPlotPRC", "rsOwnership", "rsOwnershipPRC",
                                        "rsULCOrder", "rsSchemeGrid", "rsUS84Plots", "rsULCOrderUS84",
                                        "rsULCOrderUS20a1", "rsSchemeBuilt", "rsSchemeSold", "rsULCOrderUS22"}));
}

TEST(Tables, CreateAllReplacesWhatWasThereByEmptyTables) {
    Tables tables;
    tables.createAllTables();
    tables.rsOwner712->addNew();
    tables.create(&Tables::rsPlot712Saved);
    tables.rsPlot712Saved->addNew();
    tables.rsOwnership712 = tables.rsOwnership;
    tables.createAllTables();
    EXPECT_EQ(tables.rsOwner712->rowCount(), 0);
    EXPECT_EQ(tables.rsPlot712Saved->rowCount(), 1);
    EXPECT_NE(tables.rsOwnership712, tables.rsOwnership);
}

TEST(Tables, AreReferencesThatSeveralVariablesCanShare) {
    Tables tables;
    tables.createAllTables();
    tables.rsOwnership712 = tables.rsOwnership;
    tables.rsOwnership->addNew();
    EXPECT_EQ(tables.rsOwnership712->rowCount(), 1);
    tables.rsOwnership = tables.rsOwnershipPRC;
    EXPECT_EQ(tables.rsOwnership->rowCount(), 0);
    EXPECT_EQ(tables.rsOwnership712->rowCount(), 1);
}

TEST(Tables, OfAPairAreCreatedTogether) {
    Tables tables;
    tables.createAllTables();
    for (const Tables::Member member : {&Tables::rsExtract712, &Tables::rsExtractPRC, &Tables::rsOwner712})
        (tables.*member)->addNew();
    tables.create(extractTables);
    EXPECT_EQ(tables.rsExtract712->rowCount(), 0);
    EXPECT_EQ(tables.rsExtractPRC->rowCount(), 0);
    EXPECT_EQ(tables.rsOwner712->rowCount(), 1);

    const auto names = [](std::span<const Tables::Member> members) {
        std::string text;
        for (const Tables::Member member : members)
            text += nameOf(member) + " ";
        return text;
    };
    EXPECT_EQ(names(ownerTables), "rsOwner712 rsOwnerPRC ");
    EXPECT_EQ(names(holderTables), "rsPAH712 rsPAHPRC ");
    EXPECT_EQ(names(orderTables), "rsUS84Plots rsULCOrderUS84 rsULCOrderUS20a1 rsSchemeBuilt rsSchemeSold ");
}

TEST(Tables, ThatWereDroppedComeBackEmptyOnDemandAndNoOthersWithThem) {
    Tables tables;
    tables.createAllTables();
    tables.rsExtractPRC->addNew();
    tables.rsExtract712.reset();
    EXPECT_EQ(tables.ensure(&Tables::rsExtract712).rowCount(), 0);
    EXPECT_EQ(tables.ensure(&Tables::rsExtractPRC).rowCount(), 1);
    EXPECT_EQ(&tables.ensure(&Tables::rsExtract712), tables.rsExtract712.get());
}

}  // namespace
}  // namespace plandesk
