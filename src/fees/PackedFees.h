#pragma once

#include "proposal/PackedRow.h"

namespace plandesk {

/// The values of frmPayDetail that txtPayDetail carries: fees, the mode of payment, the bank details.
extern const std::span<const PackedRow> paymentRows;
/// Which of them is the mode of payment, from 0.
extern const std::size_t paymentMode;
/// The second group of scrutiny fees, which `secondScrutinyFees` gathers.
extern const std::span<const PackedRow> secondScrutinyRows;

}  // namespace plandesk
