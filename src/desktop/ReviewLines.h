#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <vector>

#include "review/AnswerCounts.h"
#include "review/CarriedAnswers.h"
#include "review/FindQuestion.h"
#include "review/Review.h"

// What the review's panel shows, as texts. Made of a copy of the proposal, in whatever thread has it.

namespace plandesk::desktop {

/// Where a line leads.
struct ReviewTarget {
    std::string form;  ///< empty: nowhere
    std::string control;
    int row = -1;
    int column = -1;
    int extract = 0;  ///< that the form has to show for it; 0 for none

    bool operator==(const ReviewTarget&) const = default;
};

struct ReviewLine {
    QString question;
    QString text;
    QString place;  ///< form and page
    ReviewTarget target;
    int page = -1;  ///< the one that it is on, of a form that is turned by tabs

    bool operator==(const ReviewLine&) const = default;
};

struct ReviewGroup {
    QString title;
    QColor colour;
    std::vector<ReviewLine> lines;

    bool operator==(const ReviewGroup&) const = default;
};

using ReviewGroups = std::vector<ReviewGroup>;

/// One page of the map.
struct ReviewPage {
    QString form;
    QString page;  ///< empty for a form that is not turned by tabs
    PageCount count;
    int missing = 0;  ///< findings on it that have to be filled in
};

/// The three groups, also those without a line.
ReviewGroups linesOf(const std::vector<Finding>& findings, const Proposal& proposal);
/// The pages that can be filled in, with what is missing on them.
std::vector<ReviewPage> pagesOf(const std::vector<Finding>& findings, const Proposal& proposal);
ReviewGroup linesOf(const std::vector<FoundQuestion>& found, const Proposal& proposal);
/// What stands otherwise in `other`, an earlier or later state of the proposal, in three groups.
ReviewGroups linesOf(const std::vector<Difference>& differences, const Proposal& proposal, const Proposal& other);

/// "3 missing, 1 not as typed, 2 to consider" of the three groups.
QString countsOf(const ReviewGroups& findings);

}  // namespace plandesk::desktop
