#pragma once

// The places of the columns of each in-memory table, under the columns' own names without their blanks. What reads,
// writes, shows or reacts to a column names it by these. `count` is the number of columns.

namespace plandesk {

/// rsExtract712, rsExtractPRC
struct ExtractColumn {
    enum : int { ExtNo, SurveyNo, HissaNo, DateOf712, FerFarNo, NoOfOwners, CumulativeArea, NoOfPAHs, count };
};

/// rsOwner712, rsOwnerPRC
struct OwnerColumn {
    enum : int { ExtNo, OwnNo, Name, SingingStatus, Encumbrances, OwnerType, count };
};

/// rsPAH712, rsPAHPRC
struct HolderColumn {
    enum : int { ExtNo, PAHNo, Name, PAHSing, count };
};

/// rsPlot712, rsPlotPRC and their snapshots
struct PlotColumn {
    enum : int { SrNo, PlotDesciption, PlotName, NoOfPRC, count };
};

/// rsOwnership, rsOwnership712, rsOwnershipPRC
struct OwnershipColumn {
    enum : int { ExtNo, Name, Area, DocStatus, count };
};

/// rsULCOrder
struct ULCOrderColumn {
    enum : int { ExtNo, Name, ULCOrderSelection, OrderNo, Details, Remarks, count };
};

/// rsSchemeGrid
struct SchemeGridColumn {
    enum : int { No, FLD1, FLD2, FLD3, ExtNo, count };
};

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

/// rsSchemeBuilt, rsSchemeSold
struct SchemeColumn {
    enum : int { FLD1, FLD2, FLD3, FLD4, FLD5, FLD6, FLD7, ExtNo, count };
};

/// rsULCOrderUS22
struct US22OrderColumn {
    enum : int { FLD1, FLD2, ExtNo, count };
};

/// rsDRCIssue
struct DRCIssueColumn {
    enum : int {
        InwardNo,
        InwardDate,
        FolioNo,
        CSCTSNo,
        Village,
        ApplicantName,
        ApplicantAddress,
        OwnerName,
        IsAchitectorSurveyor,
        Name,
        Address,
        LicenceNumber,
        IssueDate,
        ValidityDate,
        CertificateNo,
        CertificateDate,
        LandAreaNOCObtain,
        ClearanceNo,
        ClearanceDate,
        IsReservationInc,
        ReservationSerialNo,
        LadSituatedAt,
        DrcZone,
        Sector,
        FSIZone,
        TotalAreaOfLand,
        IsLargerReservation,
        OtherReservation,
        ProposedReservation,
        AcquisitionDate,
        IsFSICompensationRec,
        FSICompensationArea,
        CheckedByDE,
        count
    };
};

/// rsDRCTransfer
struct DRCTransferColumn {
    enum : int {
        DRCNumber,
        TotalBalanceAreaFigure,
        TransferorFolioNo,
        TransferorName1,
        TransferorName2,
        TransferorName3,
        TransferorName4,
        TransferorName5,
        AttestationName,
        AttestationAddress,
        TransfareeName1,
        TransfareeName2,
        TransfareeName3,
        TransfareeName4,
        TransfareeName5,
        TransfareeExistingFolioNo,
        TransfareeDate,
        TransfareePlace,
        TransfareeCheckedBy,
        SingTalliedBy,
        RegTransferNo,
        ApprovalDate,
        ApprovalPlace,
        FolioNumber1,
        FolioNumber2,
        FolioNumber3,
        FolioNumber4,
        FolioNumber5,
        LoggedBy,
        FullAddress,
        DRCNameAddress,
        VideReceiptNo,
        ReceiptDate,
        count
    };
};

/// rsDRCUtilisation
struct DRCUtilisationColumn {
    enum : int {
        DRCNumber,
        TransferorFolioNo,
        TransferorName1,
        TransferorName2,
        TransferorName3,
        TransferorName4,
        TransferorName5,
        AttestationName,
        AttestationAddress,
        AttestationSign,
        AreaUtilizeFigure,
        ConsiderationRs,
        BalanceBuiltUpAreaFig,
        BalanceDrcAreaFig,
        TransfareeName1,
        TransfareeName2,
        TransfareeName3,
        TransfareeName4,
        TransfareeName5,
        TransfareeExistingFolioNo,
        TransfareeDate,
        TransfareePlace,
        TransfareeCheckedBy,
        SingTalliedBy,
        RegTransferNo,
        ApprovalDate,
        ApprovalPlace,
        FolioNumber1,
        FolioNumber2,
        FolioNumber3,
        FolioNumber4,
        FolioNumber5,
        LoggedBy,
        FullAddress,
        DRCNameAddress,
        VideReceiptNo,
        ReceiptDate,
        count
    };
};

}  // namespace plandesk
