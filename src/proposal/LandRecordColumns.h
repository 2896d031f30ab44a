#pragma once

#include "proposal/InPlace.h"
#include "proposal/RowFilter.h"

// The columns of the tables of plots, extracts and ownership, as Tables.h tells.

namespace plandesk {

/// rsExtract712, rsExtractPRC
struct ExtractColumn {
    enum : int { ExtNo, SurveyNo, HissaNo, DateOf712, FerFarNo, NoOfOwners, CumulativeArea, NoOfPAHs, count };
};

/// The two families differ in the width of FerFarNo alone.
constexpr auto extractTableColumns(int ferFarWidth) {
    return inPlace<ExtractColumn, Column>({
        {ExtractColumn::ExtNo, Column::integer("ExtNo")},
        {ExtractColumn::SurveyNo, Column::text("SurveyNo", 100)},
        {ExtractColumn::HissaNo, Column::text("HissaNo", 100)},
        {ExtractColumn::DateOf712, Column::date("DateOf712")},
        {ExtractColumn::FerFarNo, Column::text("FerFarNo", ferFarWidth)},
        {ExtractColumn::NoOfOwners, Column::integer("NoOfOwners ")},  // the blank belongs to the name
        {ExtractColumn::CumulativeArea, Column::number("CumulativeArea")},
        {ExtractColumn::NoOfPAHs, Column::integer("NoOfPAHs")},
    });
}
inline constexpr auto extract712TableColumns = extractTableColumns(1000);
inline constexpr auto extractPRCTableColumns = extractTableColumns(500);

/// rsOwner712, rsOwnerPRC
struct OwnerColumn {
    enum : int { ExtNo, OwnNo, Name, SingingStatus, Encumbrances, OwnerType, count };
};

inline constexpr auto ownerTableColumns = inPlace<OwnerColumn, Column>({
    {OwnerColumn::ExtNo, Column::integer("ExtNo")},
    {OwnerColumn::OwnNo, Column::integer("OwnNo")},
    {OwnerColumn::Name, Column::text("Name", 200)},
    {OwnerColumn::SingingStatus, Column::text("SingingStatus", 100)},
    {OwnerColumn::Encumbrances, Column::text("Encumbrances", 100)},
    {OwnerColumn::OwnerType, Column::text("OwnerType", 100)},
});

/// rsPAH712, rsPAHPRC
struct HolderColumn {
    enum : int { ExtNo, PAHNo, Name, PAHSing, count };
};

inline constexpr auto holderTableColumns = inPlace<HolderColumn, Column>({
    {HolderColumn::ExtNo, Column::integer("ExtNo")},
    {HolderColumn::PAHNo, Column::integer("PAHNo")},
    {HolderColumn::Name, Column::text("Name", 100)},
    {HolderColumn::PAHSing, Column::boolean("PAHSing")},
});

/// rsPlot712, rsPlotPRC and their snapshots
struct PlotColumn {
    enum : int { SrNo, PlotDesciption, PlotName, NoOfPRC, count };
};

inline constexpr auto plotTableColumns = inPlace<PlotColumn, Column>({
    {PlotColumn::SrNo, Column::integer("SrNo")},
    {PlotColumn::PlotDesciption, Column::text("PlotDesciption", 100)},
    {PlotColumn::PlotName, Column::text("Plot Name", 100)},
    {PlotColumn::NoOfPRC, Column::number("No of PRC")},  // counts the extracts of the plot in the 7/12 family too
});

/// rsOwnership, rsOwnership712, rsOwnershipPRC
struct OwnershipColumn {
    enum : int { ExtNo, Name, Area, DocStatus, count };
};

inline constexpr auto ownershipTableColumns = inPlace<OwnershipColumn, Column>({
    {OwnershipColumn::ExtNo, Column::integer("ExtNo")},
    {OwnershipColumn::Name, Column::text("Name", 2000)},
    {OwnershipColumn::Area, Column::number("Area")},
    {OwnershipColumn::DocStatus, Column::text("DocStatus", 100)},
});

}  // namespace plandesk
