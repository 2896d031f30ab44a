#pragma once

#include <cstdint>
#include <string_view>

#include "proposal/ExtractGaps.h"
#include "proposal/Recordset.h"

namespace plandesk {

class ComboBox;

/// Extract count of the current plot row; a null counts as 0. RuntimeError 6 beyond 16 bits.
std::int16_t extractCount(Recordset& plots);

/// Sum of the extract counts of the visible plots. Leaves the table behind its last row. RuntimeError 6 beyond 16 bits.
std::int16_t sumOfExtracts(Recordset& plots);

/// Adds an entry for each extract of the visible plots from the current one on: the plot's name, the word, and the
/// number of the extract among them. Leaves the table behind its last row. RuntimeErrors as extractCount.
void addExtracts(ComboBox& list, Recordset& plots, std::string_view word);

/// Works out which extract numbers came and went between the snapshot of the plots and the plots now. Plots are matched
/// by `SrNo`. The numbers to delete are told in the old numbering. Leaves `plots` without a filter; when plots were
/// removed, `saved` stays filtered to them, and the next comparison sees only those.
NumberChanges comparePlots(Recordset& saved, Recordset& plots);

}  // namespace plandesk
