#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "proposal/Proposal.h"

namespace plandesk {

struct FoundQuestion {
    std::string form;
    std::string control;
    std::string words;
    std::string answer;
};

/// The questions of the loaded forms whose words, number or answer hold every word of `wanted`, in any case: "11 b",
/// "station road". None for blanks.
std::vector<FoundQuestion> findQuestions(const Proposal& proposal, std::string_view wanted);

}  // namespace plandesk
