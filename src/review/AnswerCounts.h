#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "proposal/Proposal.h"

namespace plandesk {

/// How far one page of a form is filled in.
struct PageCount {
    std::string form;
    int page = 0;        ///< from 0; the only one of a form whose pages stand one below the other
    bool paged = false;  ///< one of several pages that are turned by tabs
    int answered = 0;
    int shown = 0;        ///< questions that can be answered now, and the cells of the tables
    std::string first{};  ///< key of the first of them; empty when there is none
};

/// The pages of the forms that are loaded and go into the document, in the order in which one fills them in.
std::vector<PageCount> countAnswers(const Proposal& proposal);

/// Loads the forms that every proposal needs and that a user can open at any time, so that their questions are counted
/// and found before he does. For copies.
void openNeededForms(Proposal& proposal);

/// Whether the one form is filled in before the other.
bool comesBefore(std::string_view form, std::string_view other);

/// The page of the form that the control stands on; -1 when it stands on none.
int pageOf(const Form& form, std::string_view key);

}  // namespace plandesk
