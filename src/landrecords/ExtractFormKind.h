#pragma once

#include <span>
#include <string_view>

#include "proposal/Commands.h"
#include "proposal/ExtractFamily.h"
#include "proposal/Grid.h"

namespace plandesk {

/// What the form of the 7/12 extracts and that of the PRCs do not share.
struct ExtractFormKind {
    const ExtractFamily& family;
    std::string_view formName;
    std::string_view caption;
    std::string_view head;
    std::string_view saveCaption;
    std::string_view resetCaption;
    std::span<const Tables::Member> droppedByReset;
    bool savesWithCountOnly;       ///< without a count of extracts a save does nothing
    bool saveUnbindsOwners;        ///< the owners' grid is empty after a save until an extract is chosen
    bool saveMakesPRCsTheSubject;  ///< `is712Current` is cleared before the block is built
};

extern const ExtractFormKind form712;
extern const ExtractFormKind formPRC;

/// What either form calls the things it shows. The 7/12 form wears the words of the PRCs, and lists their plots, when
/// it is loaded while they are the subject.
struct ExtractWording {
    const ExtractFamily& family;
    std::string_view firstInfo;  ///< over the survey data, until an extract is chosen
    std::string_view info;       ///< the same before the number of the chosen extract
    std::string_view frame;
    std::string_view count;
    std::string_view select;
    std::string_view remark;
    std::span<const GridColumn> infoColumns;
    std::span<const GridColumn> ownerColumns;
};

extern const ExtractWording wording712;
extern const ExtractWording wordingPRC;

extern const std::span<const GridColumn> holderColumns;

}  // namespace plandesk
