#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string>

#include "review/OfficeReading.h"

namespace plandesk {

/// Why an answer does not come back as it is, though it holds no mark: what stands elsewhere in the proposal, or what
/// the document and its reader make of every such answer.
class Losses {
public:
    /// The proposal and the reading outlive it.
    Losses(const Proposal& proposal, const OfficeReading& reading);

    /// One sentence, or several; empty when nothing is known.
    std::string causeOf(const Difference& difference) const;

private:
    std::string causeOfBlock(const Answered& answered) const;
    std::string causeOfEnd(const Difference& difference) const;
    std::string causeOfCounts(const Difference& difference) const;

    const Proposal& proposal;
    const OfficeReading& reading;
    static constexpr std::int32_t never = std::numeric_limits<std::int32_t>::max();
    /// The extract at which the reading of a block ends: of the 7/12 extracts, the property cards, the orders.
    std::array<std::int32_t, 3> ends{never, never, never};
};

}  // namespace plandesk
