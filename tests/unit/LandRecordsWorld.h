#pragma once

#include "document/LandRecordBlocks.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "unit/World.h"

namespace plandesk::test {

/// The whole system with the forms and blocks of the land records.
struct LandRecordsWorld : World {
    LandRecordsWorld() {
        proposal.forms.declare<frmPlotExtractRelation>();
        proposal.forms.declare<frmMain712>();
        proposal.forms.declare<frmPRCEXT>();
        proposal.forms.declare<frmNaOrder>();
        proposal.commands.buildExtractBlock = [this] { buildExtractBlock(proposal); };
        proposal.commands.buildPRCBlock = [this] { buildPRCBlock(proposal); };
    }
};

}  // namespace plandesk::test
