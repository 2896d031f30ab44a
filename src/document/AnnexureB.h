#pragma once

#include <string_view>

namespace plandesk {

class Proposal;

/// The last element of the block, a list separated by "#", and its parts.
inline constexpr std::string_view streetsAndTrees = "Section9a3536";
struct StreetsAndTrees {
    enum : int { Abutting, StreetWidth, ExistingWidth, Trees, TreesAffected, count };
};

/// Replaces `annexureBXML` by the block of the questions that are stored under their own names. Touches both forms of
/// the Particulars. An element whose control is hidden or disabled is written with what the control holds.
void buildAnnexureB(Proposal& proposal);

}  // namespace plandesk
