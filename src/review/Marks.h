#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "review/CarriedAnswers.h"

namespace plandesk {

/// An answer that holds something which the document gives a meaning of its own.
struct Marked {
    Answered answered;
    std::string mark;    ///< what it holds: "#"
    std::string effect;  ///< what that does: "ends this value; what follows moves one place on"
    std::string clean;   ///< the answer without any mark
};

/// The answers with a mark, in their order. Those of lists, options and dates have none.
std::vector<Marked> markedAnswers(const std::vector<Answered>& answers);

/// Puts another text in the place of an answer, without a reaction. Nothing happens where there is no such place.
void replaceAnswer(Proposal& proposal, const Answered& answered, const std::string& text);

}  // namespace plandesk
