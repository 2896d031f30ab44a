#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "proposal/Tables.h"

namespace plandesk {

class Proposal;

/// One of the two families of land records, the 7/12 extracts and the property register cards (PRC): where the open
/// proposal keeps what is alike in both. Each numbers its extracts from 1 in tables of its own; in the tables that they
/// share, the PRCs come behind the 7/12 extracts.
struct ExtractFamily {
    bool is712;
    std::string_view entry;  ///< before the number in a list of extracts
    Tables::Member plots;
    Tables::Member savedPlots;  ///< snapshot that a save of the plots is compared with
    Tables::Member extracts;
    Tables::Member owners;
    Tables::Member holders;
    std::int16_t Proposal::*total;       ///< number of extracts that the relation form left
    std::string Proposal::*plotList;     ///< fragment of the document: the plots with their counts
    std::string Proposal::*extractList;  ///< fragment of the document: the block of the extracts
    std::string Proposal::*remark;       ///< as last read from a document
};

extern const ExtractFamily family712;
extern const ExtractFamily familyPRC;

}  // namespace plandesk
