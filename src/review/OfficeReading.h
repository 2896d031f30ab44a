#pragma once

#include <string>
#include <vector>

#include "review/CarriedAnswers.h"
#include "review/SilentSystem.h"

namespace plandesk {

/// What the office would read of a proposal that is saved now.
struct OfficeReading {
    /// The save does not come to its end, and no file is written; the document is then the one that it would write.
    bool stopped = false;
    /// The document is one that can be opened at all.
    bool wellFormed = true;
    /// Boxes that the save told before it stopped. What they are about lives in the system that was saved.
    std::vector<Message> told;
    std::string bytes;                    ///< the file
    std::vector<Difference> differences;  ///< first: as it stands; second: as it arrives
};

/// Saves the system in memory and reads the bytes into a fresh one. The system has then been saved: use a copy.
OfficeReading readAsOffice(SilentSystem& system);

}  // namespace plandesk
