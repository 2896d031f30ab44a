#pragma once

#include <vector>

#include "review/Review.h"
#include "review/SilentSystem.h"
#include "review/Words.h"

namespace plandesk {

using Findings = std::vector<Finding>;

/// What is missing and what is to be considered, on a copy that was not saved yet. The Particulars are loaded in it if
/// they were not.
void findMissing(SilentSystem& copy, Words& words, Findings& findings);
void findDoubtful(const Proposal& copy, Words& words, Findings& findings);

/// Figures that contradict each other within the proposal.
void findFigures(const Proposal& copy, Words& words, Findings& findings);

/// What would not arrive as typed. Also, as missing, what the save refuses and `findings` does not tell yet, and, as
/// doubtful, what the next file carries from earlier. Saves the copy, which so far is as the original.
void findChanged(const mdiInterface& original, SilentSystem& copy, Words& words, Findings& findings);

/// What the forms of development rights hold beyond what their own Save has taken. Presses it in the copy.
void findUnsaved(SilentSystem& copy, Findings& findings);

}  // namespace plandesk
