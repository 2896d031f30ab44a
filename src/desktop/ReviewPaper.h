#pragma once

#include <string>

#include "controls/Paper.h"
#include "desktop/ReviewLines.h"

namespace plandesk::desktop {

/// What a list is called, of which proposal it is, and of which day.
struct ReviewHeading {
    std::string title;
    std::string proposal;
    Date date;
};

/// The list on paper: a table with a band for each group.
Paper paperOf(const ReviewHeading& heading, const ReviewGroups& groups);

/// The same as plain text in UTF-8.
std::string textOf(const ReviewHeading& heading, const ReviewGroups& groups);

}  // namespace plandesk::desktop
