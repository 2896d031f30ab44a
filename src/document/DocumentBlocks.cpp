#include "document/DocumentBlocks.h"

#include <algorithm>
#include <array>

#include "base/RuntimeError.h"
#include "document/AnnexureB.h"
#include "document/BlockReaders.h"
#include "document/LandRecordBlocks.h"
#include "document/ULCScrutinyBlock.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

constexpr std::array blocks = std::to_array<DocumentBlock>({
    {.element = "ANNEXUREB",
     .place = BlockPlace::BehindSections,
     .fragment = &Proposal::annexureBXML,
     .builder = "buildAnnexureB",
     .build = buildAnnexureB},
    {.element = "PLOT-REL",
     .place = BlockPlace::BehindLandRecords,
     .fragment = &Proposal::plotRelXML,
     .bare = true,
     .build = buildPlotRelation712,
     .reader = "readPlotRelations",
     .read = readPlotRelations},
    {.element = "PLOT-PRCDETAILS",
     .place = BlockPlace::BehindLandRecords,
     .fragment = &Proposal::plotPrcDetailsXML,
     .bare = true,
     .build = buildPlotRelationPRC},
    {.element = "a712Extract",
     .place = BlockPlace::LandRecords,
     .fragment = &Proposal::extractOwnerXML,
     .builder = "buildExtractBlock",
     .build = buildExtractBlock,
     .reader = "readExtracts712",
     .read = readExtracts712},
    {.element = "PRC",
     .place = BlockPlace::LandRecords,
     .fragment = &Proposal::prcOwnerXML,
     .builder = "buildPRCBlock",
     .build = buildPRCBlock,
     .reader = "readExtractsPRC",
     .read = readExtractsPRC},
    {.element = "NAOrder",
     .place = BlockPlace::LandRecords,
     .fragment = &Proposal::naOrderXML,
     .build = buildNAOrder,
     .reader = "readNAOrder",
     .read = readNAOrder},
    {.element = "ULCORDER-SCRUTINY",
     .place = BlockPlace::LandRecords,
     .fragment = &Proposal::ULCScrutinyXML,
     .builder = "buildULCScrutinyXML",
     .build = buildULCScrutinyXML,
     .reader = "readULCScrutiny",
     .read = readULCScrutiny},
    {.element = "DISC-REV",
     .place = BlockPlace::BehindLandRecords,
     .fragment = &Proposal::discretionRevisedXML,
     .reader = "readDiscretion",
     .read = readDiscretion},
    {.element = "DISC-NEW", .place = BlockPlace::BehindLandRecords, .fragment = &Proposal::discretionNewXML},
    {.element = "ISSUEOFDRC", .place = BlockPlace::BehindLandRecords, .fragment = &Proposal::drcIssueXML},
    {.element = "TRANSFERDRC", .place = BlockPlace::BehindLandRecords, .fragment = &Proposal::drcTransferXML},
    {.element = "UTILIZATIONDRC", .place = BlockPlace::BehindLandRecords, .fragment = &Proposal::drcUtilisationXML},
});

/// The block of that text, which has what `procedure` points to.
template <class Procedure>
const DocumentBlock& blockWith(Procedure DocumentBlock::*procedure, std::string Proposal::*fragment) {
    const auto found = std::ranges::find(blocks, fragment, &DocumentBlock::fragment);
    if (found == blocks.end() || !((*found).*procedure))
        throw RuntimeError(ErrorNumber::ItemNotFound);
    return *found;
}

}  // namespace

std::span<const DocumentBlock> documentBlocks() {
    return blocks;
}

void buildBlock(Proposal& proposal, std::string Proposal::*fragment) {
    blockWith(&DocumentBlock::build, fragment).build(proposal);
}

void readBlock(Proposal& proposal, std::string Proposal::*fragment, const XmlDocument& document) {
    blockWith(&DocumentBlock::read, fragment).read(proposal, document);
}

}  // namespace plandesk
