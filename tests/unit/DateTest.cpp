#include "base/Date.h"

#include <string>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"

namespace plandesk {
namespace {

TEST(Date, TextIsDayMonthYearWithLeadingZeros) {
    EXPECT_EQ((Date{2004, 3, 9}.text()), "09/03/2004");
    EXPECT_EQ((Date{987, 12, 31}.text()), "31/12/0987");
}

TEST(Date, ReadsDayMonthYearWithEachSeparator) {
    const Date expected{2004, 3, 9};
    for (const char* text : {"09/03/2004", "9/3/2004", "09-03-2004", "9.3.2004", "  09/03/2004 ", "9/03-2004"})
        EXPECT_EQ(Date::parse(text), expected) << text;
}

TEST(Date, ReadsYearMonthDay) {
    EXPECT_EQ(Date::parse("2004-03-09"), (Date{2004, 3, 9}));
    EXPECT_EQ(Date::parse("0987-12-31"), (Date{987, 12, 31}));
}

TEST(Date, OtherTextsAreNoDates) {
    for (const char* text :
         {"", " ", "9", "09/03", "09/03/04", "09/03/20045", "009/03/2004", "09 03 2004", "09/03/2004x", "x09/03/2004",
          "2004/03/09", "2004-3-9", "2004-03-09x", "/03/2004", "-9/03/2004", "today", "09/03/", "9//2004"})
        EXPECT_EQ(Date::parse(text), std::nullopt) << text;
}

TEST(Date, DaysThatTheCalendarDoesNotHaveAreNoDates) {
    for (const char* text : {"31/04/2004", "30/02/2004", "29/02/2003", "29/02/1900", "00/01/2004", "01/00/2004",
                             "01/13/2004", "32/01/2004", "01/01/0099"})
        EXPECT_EQ(Date::parse(text), std::nullopt) << text;
    EXPECT_EQ(Date::parse("29/02/2000"), (Date{2000, 2, 29}));
}

TEST(Date, ValidityHoldsForAnyNumbers) {
    EXPECT_TRUE((Date{100, 1, 1}.valid()));
    EXPECT_TRUE((Date{9999, 12, 31}.valid()));
    EXPECT_FALSE((Date{99, 1, 1}.valid()));
    EXPECT_FALSE((Date{10000, 1, 1}.valid()));
    EXPECT_FALSE((Date{2004, -1, 1}.valid()));
    EXPECT_FALSE((Date{2004, 257, 1}.valid()));
    EXPECT_FALSE((Date{2004, 1, -1}.valid()));
    EXPECT_FALSE((Date{2004, 1, 257}.valid()));
}

TEST(Date, DatesCompareByTheCalendar) {
    EXPECT_LT((Date{2003, 12, 31}), (Date{2004, 1, 1}));
    EXPECT_LT((Date{2004, 1, 31}), (Date{2004, 2, 1}));
}

TEST(Date, ConversionOfATextThatIsNoDateIsATypeMismatch) {
    EXPECT_EQ(toDate("09/03/2004"), (Date{2004, 3, 9}));
    try {
        toDate("soon");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number, 13);
    }
}

TEST(Date, LongTextsAreRead) {
    const std::string blanks(100'000, ' ');
    EXPECT_EQ(Date::parse(blanks + "1/1/2004"), (Date{2004, 1, 1}));
    EXPECT_EQ(Date::parse(std::string(100'000, '1')), std::nullopt);
}

}  // namespace
}  // namespace plandesk
