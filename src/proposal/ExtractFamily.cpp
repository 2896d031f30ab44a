#include "proposal/ExtractFamily.h"

#include "proposal/Proposal.h"

namespace plandesk {

constexpr ExtractFamily family712 = {
    .is712 = true,
    .entry = " EXTRACT ",
    .plots = &Tables::rsPlot712,
    .savedPlots = &Tables::rsPlot712Saved,
    .extracts = &Tables::rsExtract712,
    .owners = &Tables::rsOwner712,
    .holders = &Tables::rsPAH712,
    .total = &Proposal::noOfExtract712,
    .plotList = &Proposal::plotRelXML,
    .extractList = &Proposal::extractOwnerXML,
    .remark = &Proposal::remark712,
};

constexpr ExtractFamily familyPRC = {
    .is712 = false,
    .entry = " PRC ",
    .plots = &Tables::rsPlotPRC,
    .savedPlots = &Tables::rsPlotPRCSaved,
    .extracts = &Tables::rsExtractPRC,
    .owners = &Tables::rsOwnerPRC,
    .holders = &Tables::rsPAHPRC,
    .total = &Proposal::noOfPRC,
    .plotList = &Proposal::plotPrcDetailsXML,
    .extractList = &Proposal::prcOwnerXML,
    .remark = &Proposal::remarkPRC,
};

}  // namespace plandesk
