#pragma once

#include <string>
#include <vector>

#include "document/DocumentBlocks.h"
#include "review/CarriedAnswers.h"
#include "review/SilentSystem.h"

namespace plandesk {

/// What the office would read of a proposal that is saved now.
struct OfficeReading {
    /// The save does not come to its end, and no file is written; the document is then the one that it would write.
    bool stopped = false;
    /// The document is one that can be opened at all.
    bool wellFormed = true;
    /// Boxes by which the save refuses something. What they are about lives in the system that was saved.
    std::vector<Message> refusals;
    /// Blocks with a text that this save did not build: the document carries it as it was left earlier.
    std::vector<const DocumentBlock*> earlier;
    /// Blocks without any text: the document does not have them.
    std::vector<const DocumentBlock*> absent;
    std::string bytes;                    ///< the file
    std::vector<Difference> differences;  ///< first: as it stands; second: as it arrives
};

/// Saves the system in memory and reads the bytes into a fresh one. The system, a copy of `typed`, has then been saved.
OfficeReading readAsOffice(SilentSystem& copy, const Proposal& typed);

}  // namespace plandesk
