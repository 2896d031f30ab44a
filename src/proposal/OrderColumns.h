#pragma once

#include "proposal/InPlace.h"
#include "proposal/RowFilter.h"

// The columns of the tables of the orders under the Urban Land Ceiling Act, as Tables.h tells.

namespace plandesk {

/// rsULCOrder
struct ULCOrderColumn {
    enum : int { ExtNo, Name, ULCOrderSelection, OrderNo, Details, Remarks, count };
};

inline constexpr auto ulcOrderTableColumns = inPlace<ULCOrderColumn, Column>({
    {ULCOrderColumn::ExtNo, Column::integer("ExtNo")},
    {ULCOrderColumn::Name, Column::text("Name", 1000)},
    {ULCOrderColumn::ULCOrderSelection, Column::text("ULCOrderSelection", 100)},
    {ULCOrderColumn::OrderNo, Column::text("OrderNo", 100)},
    {ULCOrderColumn::Details, Column::text("Details", 10)},
    {ULCOrderColumn::Remarks, Column::text("Remarks", 250)},
});

/// rsSchemeGrid
struct SchemeGridColumn {
    enum : int { No, FLD1, FLD2, FLD3, ExtNo, count };
};

inline constexpr auto schemeGridTableColumns = inPlace<SchemeGridColumn, Column>({
    {SchemeGridColumn::No, Column::text("No", 100)},
    {SchemeGridColumn::FLD1, Column::text("FLD1", 100)},
    {SchemeGridColumn::FLD2, Column::text("FLD2", 100)},
    {SchemeGridColumn::FLD3, Column::text("FLD3", 100)},
    {SchemeGridColumn::ExtNo, Column::integer("ExtNo")},
});

/// rsUS84Plots
struct US84PlotColumn {
    enum : int {
        No,
        Village,
        Taluka,
        SrNo,
        TotalArea,
        ResrvType,
        ResArea,
        GreenBelt,
        RoadWideing,
        ResrvArea,
        NetDevArea,
        UnDevArea,
        OpenSpace,
        Recreational,
        areaRemained,
        Surplus,
        ExtNo,
        count
    };
};

inline constexpr auto us84PlotTableColumns = inPlace<US84PlotColumn, Column>({
    {US84PlotColumn::No, Column::text("No", 100)},
    {US84PlotColumn::Village, Column::text("Village", 100)},
    {US84PlotColumn::Taluka, Column::text("Taluka", 100)},
    {US84PlotColumn::SrNo, Column::text("SrNo", 100)},
    {US84PlotColumn::TotalArea, Column::text("TotalArea", 100)},
    {US84PlotColumn::ResrvType, Column::text("ResrvType", 100)},
    {US84PlotColumn::ResArea, Column::text("ResArea", 100)},
    {US84PlotColumn::GreenBelt, Column::text("GreenBelt", 100)},
    {US84PlotColumn::RoadWideing, Column::text("RoadWideing", 100)},
    {US84PlotColumn::ResrvArea, Column::text("ResrvArea", 100)},
    {US84PlotColumn::NetDevArea, Column::text("NetDevArea", 100)},
    {US84PlotColumn::UnDevArea, Column::text("UnDevArea", 100)},
    {US84PlotColumn::OpenSpace, Column::text("OpenSpace", 100)},
    {US84PlotColumn::Recreational, Column::text("Recreational", 100)},
    {US84PlotColumn::areaRemained, Column::text("areaRemained", 100)},
    {US84PlotColumn::Surplus, Column::text("Surplus", 100)},
    {US84PlotColumn::ExtNo, Column::integer("ExtNo")},
});

/// rsULCOrderUS84
struct US84OrderColumn {
    enum : int {
        CaseNo,
        ResultDate,
        AppName,
        AppAddress,
        NoOfPlots,
        TotalAreaUnderOwnerShip,
        AreaDeduction,
        GreenBelt,
        Surplus,
        Survey,
        ExtNo,
        count
    };
};

inline constexpr auto us84OrderTableColumns = inPlace<US84OrderColumn, Column>({
    {US84OrderColumn::CaseNo, Column::text("CaseNo", 100)},
    {US84OrderColumn::ResultDate, Column::text("ResultDate", 100)},
    {US84OrderColumn::AppName, Column::text("AppName", 100)},
    {US84OrderColumn::AppAddress, Column::text("AppAddress", 100)},
    {US84OrderColumn::NoOfPlots, Column::text("NoOfPlots", 10)},
    {US84OrderColumn::TotalAreaUnderOwnerShip, Column::text("TotalAreaUnderOwnerShip", 50)},
    {US84OrderColumn::AreaDeduction, Column::text("AreaDeduction", 50)},
    {US84OrderColumn::GreenBelt, Column::text("GreenBelt", 50)},
    {US84OrderColumn::Surplus, Column::text("Surplus", 50)},
    {US84OrderColumn::Survey, Column::text("Survey", 100)},
    {US84OrderColumn::ExtNo, Column::integer("ExtNo")},
});

/// rsULCOrderUS20a1
struct US20a1OrderColumn {
    enum : int {
        TypeOfScheme,
        AMGSubmitted,
        Details,
        i,
        ii,
        iii,
        iv,
        v,
        vi,
        vii,
        viii,
        ix,
        x,
        xi,
        xii,
        Condition,
        SpecDisc,
        ExtNo,
        count
    };
};

inline constexpr auto us20a1OrderTableColumns = inPlace<US20a1OrderColumn, Column>({
    {US20a1OrderColumn::TypeOfScheme, Column::text("TypeOfScheme", 100)},
    {US20a1OrderColumn::AMGSubmitted, Column::text("AMGSubmitted", 100)},
    {US20a1OrderColumn::Details, Column::text("Details", 100)},
    {US20a1OrderColumn::i, Column::text("i", 100)},
    {US20a1OrderColumn::ii, Column::text("ii", 10)},
    {US20a1OrderColumn::iii, Column::text("iii", 50)},
    {US20a1OrderColumn::iv, Column::text("iv", 50)},
    {US20a1OrderColumn::v, Column::text("v", 50)},
    {US20a1OrderColumn::vi, Column::text("vi", 50)},
    {US20a1OrderColumn::vii, Column::text("vii", 100)},
    {US20a1OrderColumn::viii, Column::text("viii", 50)},
    {US20a1OrderColumn::ix, Column::text("ix", 50)},
    {US20a1OrderColumn::x, Column::text("x", 50)},
    {US20a1OrderColumn::xi, Column::text("xi", 50)},
    {US20a1OrderColumn::xii, Column::text("xii", 100)},
    {US20a1OrderColumn::Condition, Column::text("Condition", 100)},
    {US20a1OrderColumn::SpecDisc, Column::text("SpecDisc", 100)},
    {US20a1OrderColumn::ExtNo, Column::integer("ExtNo")},
});

/// rsSchemeBuilt, rsSchemeSold
struct SchemeColumn {
    enum : int { FLD1, FLD2, FLD3, FLD4, FLD5, FLD6, FLD7, ExtNo, count };
};

inline constexpr auto schemeTableColumns = inPlace<SchemeColumn, Column>({
    {SchemeColumn::FLD1, Column::text("FLD1", 100)},
    {SchemeColumn::FLD2, Column::text("FLD2", 100)},
    {SchemeColumn::FLD3, Column::text("FLD3", 100)},
    {SchemeColumn::FLD4, Column::text("FLD4", 100)},
    {SchemeColumn::FLD5, Column::text("FLD5", 100)},
    {SchemeColumn::FLD6, Column::text("FLD6", 100)},
    {SchemeColumn::FLD7, Column::text("FLD7", 100)},
    {SchemeColumn::ExtNo, Column::integer("ExtNo")},
});

/// rsULCOrderUS22
struct US22OrderColumn {
    enum : int { FLD1, FLD2, ExtNo, count };
};

inline constexpr auto us22OrderTableColumns = inPlace<US22OrderColumn, Column>({
    {US22OrderColumn::FLD1, Column::text("FLD1", 100)},
    {US22OrderColumn::FLD2, Column::text("FLD2", 100)},
    {US22OrderColumn::ExtNo, Column::integer("ExtNo")},
});

}  // namespace plandesk
