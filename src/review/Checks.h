#pragma once

#include <vector>

#include "review/Review.h"
#include "review/SilentSystem.h"

namespace plandesk {

/// What is missing and what is to be considered, on a copy that was not saved yet. The Particulars are loaded in it if
/// they were not.
void findMissing(SilentSystem& copy, std::vector<Finding>& findings);
void findDoubtful(const Proposal& proposal, std::vector<Finding>& findings);

/// What would not arrive as typed. Also, as missing, what stops the save and `findings` does not tell yet.
void findChanged(const mdiInterface& original, std::vector<Finding>& findings);

}  // namespace plandesk
