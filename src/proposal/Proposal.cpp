#include "proposal/Proposal.h"

#include <array>

#include "proposal/Grid.h"

namespace plandesk {

namespace {

constexpr std::array flagNames = std::to_array<Proposal::FlagName>({
    {"isNewProposal", &Proposal::isNewProposal},
    {"isProposalOpen", &Proposal::isProposalOpen},
    {"isSaveRequested", &Proposal::isSaveRequested},
    {"isSaveAsRequested", &Proposal::isSaveAsRequested},
    {"is712Current", &Proposal::is712Current},
    {"isSavingLandRecord", &Proposal::isSavingLandRecord},
    {"ownershipRelationSaved", &Proposal::ownershipRelationSaved},
    {"noReportReturn", &Proposal::noReportReturn},
    {"isDirectPrint", &Proposal::isDirectPrint},
});

constexpr std::array numberNames = std::to_array<Proposal::NumberName>({
    {"currentFormNo", &Proposal::currentFormNo},
    {"feeArea", &Proposal::feeArea},
    {"noOfExtract712", &Proposal::noOfExtract712},
    {"noOfPRC", &Proposal::noOfPRC},
});

constexpr std::array fragmentNames = std::to_array<Proposal::FragmentName>({
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
});

}  // namespace

Proposal::Proposal(const Ports& ports) : screen(ports) {}

void Proposal::copyFrom(const Proposal& original) {
    forms.copyFrom(original.forms);
    Tables::Copies copies;
    tables.copyFrom(original.tables, copies);
    // A grid may still show a table that no variable refers to any more.
    for (const auto& [name, form] : forms.all())
        form->forEach<Grid>([&](Grid& grid) { grid.settleIn(Tables::copyOf(grid.tableReference(), copies)); });
    screen.copyFrom(original.screen, [this](const Form& form) { return forms.loaded(form.name()); });
    ProposalValues::operator=(original);
}

const std::span<const Proposal::FlagName> Proposal::flags = flagNames;
const std::span<const Proposal::NumberName> Proposal::numbers = numberNames;
const std::span<const Proposal::FragmentName> Proposal::fragments = fragmentNames;

}  // namespace plandesk
