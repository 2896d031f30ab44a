#include "proposal/Proposal.h"

namespace plandesk {

Proposal::Proposal(const Ports& ports) : screen(ports) {}

const std::array<Proposal::FlagName, 9> Proposal::flags = {{
    {"isNewProposal", &Proposal::isNewProposal},
    {"isProposalOpen", &Proposal::isProposalOpen},
    {"isSaveRequested", &Proposal::isSaveRequested},
    {"isSaveAsRequested", &Proposal::isSaveAsRequested},
    {"is712Current", &Proposal::is712Current},
    {"isSavingLandRecord", &Proposal::isSavingLandRecord},
    {"ownershipRelationSaved", &Proposal::ownershipRelationSaved},
    {"noReportReturn", &Proposal::noReportReturn},
    {"isDirectPrint", &Proposal::isDirectPrint},
}};

const std::array<Proposal::NumberName, 4> Proposal::numbers = {{
    {"currentFormNo", &Proposal::currentFormNo},
    {"feeArea", &Proposal::feeArea},
    {"noOfExtract712", &Proposal::noOfExtract712},
    {"noOfPRC", &Proposal::noOfPRC},
}};

const std::array<Proposal::FragmentName, 15> Proposal::fragments = {{
    {"annexureBXML", &Proposal::annexureBXML},
    {"extractOwnerXML", &Proposal::extractOwnerXML},
    {"prcOwnerXML", &Proposal::prcOwnerXML},
    {"naOrderXML", &Proposal::naOrderXML},
    {"ULCScrutinyXML", &Proposal::ULCScrutinyXML},
    {"plotRelXML", &Proposal::plotRelXML},
    {"plotPrcDetailsXML", &Proposal::plotPrcDetailsXML},
    {"discretionRevisedXML", &Proposal::discretionRevisedXML},
    {"discretionNewXML", &Proposal::discretionNewXML},
    {"drcIssueXML", &Proposal::drcIssueXML},
    {"drcTransferXML", &Proposal::drcTransferXML},
    {"drcUtilisationXML", &Proposal::drcUtilisationXML},
    {"secondScrutinyFees", &Proposal::secondScrutinyFees},
    {"mandatoryDocList", &Proposal::mandatoryDocList},
    {"conditionalDocList", &Proposal::conditionalDocList},
}};

}  // namespace plandesk
