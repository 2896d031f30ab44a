#pragma once

#include <span>
#include <string_view>

#include "proposal/PackedRow.h"

namespace plandesk {

enum class Escape { No, Yes };

/// One element of Sections I to III as it is written.
struct SectionRow {
    PackedRow row;
    Escape escape;
};

struct WrittenSection {
    std::string_view element;
    std::span<const SectionRow> rows;
};

/// Sections I to III, whose values are those of frmAnnexureA.
std::span<const WrittenSection> writtenSections();

}  // namespace plandesk
