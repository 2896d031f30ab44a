#include "proposal/RowFilter.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"

namespace plandesk {
namespace {

constexpr std::array columns = std::to_array<Column>({
    {"ExtNo", ColumnKind::Integer},
    {"SrNo", ColumnKind::Integer},
    {"NoOfOwners ", ColumnKind::Integer},
    {"No of PRC", ColumnKind::Double},
    {"Name", ColumnKind::Text, 100},
    {"Signed", ColumnKind::Boolean},
});

/// The whole numbers 0 to 9 that the filter on ExtNo lets through, as digits.
std::string passed(std::string_view expression) {
    const RowFilter filter = parseFilter(expression, columns);
    std::string digits;
    for (int number = 0; number <= 9; ++number) {
        bool holds = true;
        for (const ColumnCondition& condition : filter) {
            EXPECT_EQ(condition.column, 0);
            holds = holds && condition.holds(number);
        }
        if (holds)
            digits += std::to_string(number);
    }
    return digits;
}

template <class Parser>
int errorOf(Parser parser, std::string_view expression) {
    try {
        parser(expression, columns);
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return 0;
}

int filterError(std::string_view expression) {
    return errorOf(parseFilter, expression);
}

int sortError(std::string_view expression) {
    return errorOf(parseSort, expression);
}

TEST(RowFilter, KnowsEveryComparison) {
    EXPECT_EQ(passed("ExtNo = 4"), "4");
    EXPECT_EQ(passed("ExtNo < 4"), "0123");
    EXPECT_EQ(passed("ExtNo <= 4"), "01234");
    EXPECT_EQ(passed("ExtNo > 4"), "56789");
    EXPECT_EQ(passed("ExtNo >= 4"), "456789");
    EXPECT_EQ(passed("ExtNo <> 4"), "012356789");
}

TEST(RowFilter, TakesEveryPrefixThatTheFormsJoinToANumber) {
    EXPECT_EQ(passed("ExtNo = 4"), "4");
    EXPECT_EQ(passed(" ExtNo = 4"), "4");
    EXPECT_EQ(passed(" ExtNo  = 4"), "4");
    EXPECT_EQ(passed(" ExtNo > 4"), "56789");
    EXPECT_EQ(passed(" ExtNo >= 4"), "456789");
    for (const char* prefix : {"SrNo = ", " SrNo = ", " SrNo > ", "SrNo <", "SrNo <=", " SrNo <> ", " SrNo <>"}) {
        const RowFilter filter = parseFilter(prefix + std::string("4"), columns);
        ASSERT_EQ(filter.size(), 1u) << prefix;
        EXPECT_EQ(filter.front().column, 1) << prefix;
    }
}

TEST(RowFilter, PassesOverBlanks) {
    EXPECT_EQ(passed("ExtNo=4"), "4");
    EXPECT_EQ(passed("   ExtNo   >=   4   "), "456789");
    EXPECT_EQ(passed("ExtNo>2AND ExtNo<5"), "34");
}

TEST(RowFilter, OfBlanksAloneLetsEverythingThrough) {
    EXPECT_TRUE(parseFilter("", columns).empty());
    EXPECT_TRUE(parseFilter("   ", columns).empty());
}

TEST(RowFilter, JoinsComparisonsByAnd) {
    EXPECT_EQ(passed(" ExtNo <>1 AND  ExtNo <>2 and ExtNo <> 9"), "0345678");
    EXPECT_EQ(passed("ExtNo > 2 And ExtNo <= 6 AND ExtNo <> 4"), "356");
    EXPECT_EQ(passed("ExtNo = 3 AND ExtNo = 4"), "");
    EXPECT_EQ(passed("ExtNo >= 3 AND ExtNo > 5 AND ExtNo < 8 AND ExtNo <= 8"), "67");
    EXPECT_EQ(parseFilter("ExtNo = 3 AND SrNo = 4", columns).size(), 2u);
}

TEST(RowFilter, NamesColumnsInAnyCaseAndInBrackets) {
    EXPECT_EQ(passed("extno = 4"), "4");
    EXPECT_EQ(passed("[EXTNO] = 4"), "4");
    EXPECT_EQ(passed("[ExtNo]=4"), "4");
    EXPECT_EQ(parseFilter("[No of PRC] > 2.5", columns).front().column, 3);
    EXPECT_EQ(parseFilter("[NoOfOwners ] > 2", columns).front().column, 2);
}

TEST(RowFilter, TakesSignedAndBrokenNumbers) {
    EXPECT_EQ(passed("ExtNo > -1"), "0123456789");
    EXPECT_EQ(passed("ExtNo = +4"), "4");
    EXPECT_EQ(passed("ExtNo > 3.5"), "456789");
    EXPECT_EQ(passed("ExtNo = 3.5"), "");
    EXPECT_EQ(passed("ExtNo < 99999999999"), "0123456789");
    const RowFilter filter = parseFilter("[No of PRC] >= 2.5 AND [No of PRC] < 3", columns);
    EXPECT_FALSE(filter.front().holds(2.4));
    EXPECT_TRUE(filter.front().holds(2.5));
    EXPECT_TRUE(filter.front().holds(2.999999));
    EXPECT_FALSE(filter.front().holds(3.0));
}

TEST(RowFilter, LetsNoNullThrough) {
    for (const char* expression : {"ExtNo = 0", "ExtNo <> 4", "ExtNo < 4", "ExtNo >= -5"})
        EXPECT_FALSE(parseFilter(expression, columns).front().holds(Value())) << expression;
}

TEST(RowFilter, ThatCannotBeReadIsAnError) {
    for (const char* expression : {"ExtNo",
                                   "ExtNo =",
                                   "= 4",
                                   "4",
                                   "ExtNo 4",
                                   "ExtNo == 4",
                                   "ExtNo = four",
                                   "ExtNo = 4 5",
                                   "ExtNo = 4 AND",
                                   "AND ExtNo = 4",
                                   "ExtNo = 4 OR ExtNo = 5",
                                   "ExtNo = 4 AND AND ExtNo = 5",
                                   "ExtNo = 4 ExtNo = 5",
                                   "[ExtNo = 4",
                                   "[] = 4",
                                   "ExtNo = 4-",
                                   "ExtNo = 1.2.3",
                                   "ExtNo => 4",
                                   "ExtNo = '4'",
                                   "ExtNo < > 4",
                                   "(ExtNo = 4)"})
        EXPECT_TRUE(filterError(expression) == 3001 || filterError(expression) == 3265) << expression;
    EXPECT_EQ(filterError("ExtNo = four"), 3001);
    EXPECT_EQ(filterError("ExtNo = 4 AND"), 3001);
    EXPECT_EQ(filterError("ExtNo => 4"), 3001);
}

TEST(RowFilter, OnATextOrBooleanColumnIsAnError) {
    EXPECT_EQ(filterError("Name = 4"), 3001);
    EXPECT_EQ(filterError("Signed = 1"), 3001);
}

TEST(RowFilter, OnAnUnknownColumnDoesNotFindIt) {
    EXPECT_EQ(filterError("ExtraNo = 4"), 3265);
    EXPECT_EQ(filterError("[NoOfOwners] = 4"), 3265);
    EXPECT_EQ(sortError("ExtraNo"), 3265);
}

TEST(RowSort, TakesTheExpressionsThatTheFormsUse) {
    EXPECT_TRUE(parseSort(" ExtNo DESC ", columns)->descending);
    EXPECT_FALSE(parseSort(" ExtNo ", columns)->descending);
    EXPECT_EQ(parseSort("srno asc", columns)->column, 1);
    EXPECT_FALSE(parseSort("srno asc", columns)->descending);
    EXPECT_EQ(parseSort("[No of PRC] desc", columns)->column, 3);
    EXPECT_EQ(parseSort("Name", columns)->column, 4);
}

TEST(RowSort, OfBlanksAloneIsNone) {
    EXPECT_FALSE(parseSort("", columns));
    EXPECT_FALSE(parseSort("  ", columns));
}

TEST(RowSort, ThatCannotBeReadIsAnError) {
    EXPECT_EQ(sortError("ExtNo DOWN"), 3001);
    EXPECT_EQ(sortError("ExtNo DESC SrNo"), 3001);
    EXPECT_EQ(sortError("ExtNo = 4"), 3001);
    EXPECT_EQ(sortError("[ExtNo"), 3001);
}

TEST(ColumnIndex, IgnoresCaseButNotBlanks) {
    EXPECT_EQ(columnIndex(columns, "name"), 4);
    EXPECT_EQ(columnIndex(columns, "NOOFOWNERS "), 2);
    EXPECT_THROW(columnIndex(columns, "NoOfOwners"), RuntimeError);
}

}  // namespace
}  // namespace plandesk
