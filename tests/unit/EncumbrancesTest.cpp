#include "landrecords/Encumbrances.h"

#include <gtest/gtest.h>

namespace plandesk {
namespace {

TEST(Encumbrances, EachHasItsNumberInAnyCaseAndWithBlanksAroundIt) {
    EXPECT_EQ(encumbranceCode("Bank Loan"), 1);
    EXPECT_EQ(encumbranceCode(" kulache nav "), 2);
    EXPECT_EQ(encumbranceCode("For Govt. matter "), 5);
    EXPECT_EQ(encumbranceCode("FOR GOVT. MATTER"), 5);
    EXPECT_EQ(encumbranceCode("fOR Govt EWS"), 6);
    EXPECT_EQ(encumbranceCode("Easement"), 9);
}

TEST(Encumbrances, AnyOtherTextIsNone) {
    EXPECT_EQ(encumbranceCode(""), 0);
    EXPECT_EQ(encumbranceCode(noEncumbrance), 0);
    EXPECT_EQ(encumbranceCode("Bank  Loan"), 0);
}

TEST(Encumbrances, ANumberGivesTheTextInUpperCase) {
    constexpr std::string_view names[] = {
        "BANK LOAN",      "KULACHE NAV", "WAHIWAT", "FAMILY MEMBER MORTGAGE", "FOR GOVT. MATTER", "FOR GOVT EWS",
        "LEASE PENDANCE", "WATAN",       "EASEMENT"};
    std::int16_t number = 1;
    for (const std::string_view name : names) {
        EXPECT_EQ(encumbranceName(number), name);
        EXPECT_EQ(encumbranceCode(name), number);
        ++number;
    }
    for (const std::int16_t other : {-1, 0, 10})
        EXPECT_EQ(encumbranceName(other), "----------- Select----------");
}

}  // namespace
}  // namespace plandesk
