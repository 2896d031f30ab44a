#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "base/Text.h"
#include "reports/ReportCatalogue.h"
#include "reports/papers/Particulars.h"

// What is fed and what is printed: which columns stand on no paper at all.

namespace plandesk::test {
namespace {

using Names = std::set<std::string, std::less<>>;

void takeFields(const Paper& paper, Names& fields) {
    for (const auto* part : {&paper.header, &paper.body, &paper.footer})
        for (const PaperSection& section : *part)
            for (const PaperRow& row : section.rows)
                for (const PaperCell& cell : row.cells)
                    for (const PaperItem& item : cell)
                        fields.insert(upperCase(item.field));
}

/// The columns of the feed that none of its papers prints.
Names unprinted(const Feed& feed) {
    Names fields;
    for (const Report& report : reportCatalogue())
        if (report.feed == &feed)
            if (const Paper* paper = findLayout(report.name))
                takeFields(*paper, fields);
    Names columns;
    for (const FeedRow& row : feed.rows)
        if (!fields.contains(upperCase(row.column)))
            columns.insert(std::string(row.column));
    return columns;
}

// Of a question that has a column in "NEW" too, the six pages print that one.
TEST(PaperColumns, OfTheParticularsAllStandOnAPageButThoseThatTheWalkSpoils) {
    EXPECT_EQ(feedParticulars.rows.size(), 162U);
    EXPECT_EQ(unprinted(feedParticulars),
              (Names{"ApplicableProvInAppendixN", "IsAffectRoadReservation", "IsComplyWith83Regulation",
                     "IsInAccordanceRegulation", "IsNaturalWaterCoursePass"}));
}

TEST(PaperColumns, OfTheOthersAllArePrintedButOneThatIsNeverFed) {
    std::map<std::string_view, Names> lost;
    for (const Report& report : reportCatalogue())
        if (const Names names = unprinted(*report.feed); report.feed != &feedParticulars && !names.empty())
            lost[report.name] = names;
    EXPECT_EQ(lost, (std::map<std::string_view, Names>{{"rptNoticeforcommencementofwork", {"FLD12"}}}));
}

}  // namespace
}  // namespace plandesk::test
