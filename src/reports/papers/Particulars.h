#pragma once

#include "reports/Report.h"
#include "reports/papers/Parts.h"

// What the six pages of the Particulars of Development share.

namespace plandesk {

/// What feeds all six.
extern const Feed feedParticulars;

/// The report of that page, with its layout. `procedure` as of Report.
Report particularsReport(std::string_view name, Paper (*layout)(), std::string_view procedure = {});

namespace layouts {

/// A page with these sections, and at each foot the sentence on dimensions.
Paper particularsPage(std::string_view title, std::vector<PaperSection> body);

using Questions = std::vector<PaperRow>;

/// Groups of questions, without a gap between them.
PaperSection questions(const std::vector<Questions>& groups);

/// A question that goes on under the marks of the one before it.
inline PaperRow further(std::string_view words, PaperCell answer = {}) {
    return question("", "", "", words, std::move(answer));
}

/// A sentence across the sheet, between two questions.
inline PaperSection note(std::string_view words) {
    return {SectionKind::Letter, {line({text(words)}, RowStyle::Bold)}};
}

/// The numbers that the last questions bear: they differ between the two pages that end with them.
struct LastNumbers {
    std::string_view materials;
    std::string_view closets;
    std::string_view water;
    std::string_view sewer;
    std::string_view stacking;
};

/// The questions from the materials to the trees.
Questions lastQuestions(const LastNumbers& numbers, std::string_view materials);

PaperSection declaration();
PaperSection signature();

}  // namespace layouts
}  // namespace plandesk
