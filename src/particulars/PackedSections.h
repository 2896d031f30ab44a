#pragma once

#include "proposal/PackedRow.h"

namespace plandesk {

/// The values of AnnexureACont in the order in which they are packed, written and read.
extern const std::span<const PackedRow> sectionFourRows;
extern const std::span<const PackedRow> sectionFiveRows;

}  // namespace plandesk
