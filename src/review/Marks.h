#pragma once

#include <string>
#include <vector>

#include "review/CarriedAnswers.h"

namespace plandesk {

/// Something in an answer that the document gives a meaning of its own. An answer may have several.
struct Marked {
    Answered answered;
    std::string mark;     ///< what it holds: "#"
    std::string effect;   ///< what that does: "ends this value; what follows moves one place on"
    std::string clean;    ///< the answer without any mark
    std::string alone;    ///< the answer with this mark as its only one
    bool breaks = false;  ///< it may make the whole file unreadable
};

/// The marks of all answers, forms in the order of the save, then tables. Options and dates have none.
std::vector<Marked> markedAnswers(const Proposal& proposal);

/// Puts another text in the place of an answer, without a reaction. Nothing happens where there is no such place.
void replaceAnswer(Proposal& proposal, const Answered& answered, const std::string& text);

}  // namespace plandesk
