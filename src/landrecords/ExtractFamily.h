#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "proposal/Grid.h"
#include "proposal/Proposal.h"

namespace plandesk {

/// What the form of the 7/12 extracts and that of the PRCs do not share.
struct ExtractFamily {
    std::string_view formName;
    std::string_view caption;
    std::string_view head;
    std::string_view saveCaption;
    std::string_view resetCaption;
    Tables::Member extracts;
    Tables::Member owners;
    Tables::Member holders;
    std::span<const Tables::Member> droppedByReset;
    std::string Proposal::*lastRemark;  ///< as last read from a document
    bool prc;
};

extern const ExtractFamily family712;
extern const ExtractFamily familyPRC;

/// What either form calls the things it shows. The 7/12 form wears the words of the PRCs when it is loaded while they
/// are the subject.
struct ExtractWording {
    std::string_view firstInfo;  ///< over the survey data, until an extract is chosen
    std::string_view info;       ///< the same before the number of the chosen extract
    std::string_view frame;
    std::string_view count;
    std::string_view select;
    std::string_view remark;
    std::string_view entry;  ///< before the number in the list of extracts
    Tables::Member plots;
    std::int16_t Proposal::*total;  ///< number of extracts that the relation form left
    std::span<const GridColumn> infoColumns;
    std::span<const GridColumn> ownerColumns;
};

extern const ExtractWording wording712;
extern const ExtractWording wordingPRC;

extern const std::span<const GridColumn> holderColumns;

// What an owner has whose lists were not touched.
constexpr std::string_view noStatus = " -- Select -- ";  // no item of its list
constexpr std::string_view noOwnerType = "  ------ Select------  ";

}  // namespace plandesk
