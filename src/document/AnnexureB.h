#pragma once

#include <span>
#include <string_view>

namespace plandesk {

class Proposal;

/// One element of the block: a text box is named txt and the element, a yes/no question as the element.
struct AnnexureRow {
    enum class Sheet { First, Second };  ///< frmAnnexureA, AnnexureACont
    enum class ValueForm { YesNo, Text, EscapedText };

    std::string_view element;
    Sheet sheet;
    ValueForm form;
};
/// All but the last element of the block.
std::span<const AnnexureRow> annexureRows();

/// The last element of the block, a list separated by "#", and its parts.
inline constexpr std::string_view streetsAndTrees = "Section9a3536";
struct StreetsAndTrees {
    enum : int { Abutting, StreetWidth, ExistingWidth, Trees, TreesAffected, count };

    struct Part {
        AnnexureRow::Sheet sheet;
        std::string_view control;
    };
    static std::span<const Part> parts();
};

/// Replaces `annexureBXML` by the block of the questions that are stored under their own names. Touches both forms of
/// the Particulars. An element whose control is hidden or disabled is written with what the control holds.
void buildAnnexureB(Proposal& proposal);

}  // namespace plandesk
