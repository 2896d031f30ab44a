#include "base/Numbers.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"

namespace plandesk {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

/// Number of the run-time error that the action raises, or nothing.
template <typename Action>
std::optional<int> errorOf(Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return std::nullopt;
}

TEST(Numbers, LeadingNumberStopsAtTheFirstCharacterOutsideANumber) {
    EXPECT_EQ(leadingNumber("12.5 sq.m"), 12.5);
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(leadingNumber("1,000"), 1);
    EXPECT_EQ(leadingNumber("7/12"), 7);
    EXPECT_EQ(leadingNumber("5-3"), 5);
}

TEST(Numbers, LeadingNumberTakesSignPointAndExponent) {
    EXPECT_EQ(leadingNumber("-.5"), -0.5);
    EXPECT_EQ(leadingNumber("+5."), 5);
    EXPECT_EQ(leadingNumber("1.5e3x"), 1500);
    EXPECT_EQ(leadingNumber("25E-1"), 2.5);
}

TEST(Numbers, LeadingNumberLeavesAnExponentWithoutDigits) {
    EXPECT_EQ(leadingNumber("3e"), 3);
    EXPECT_EQ(leadingNumber("3e+"), 3);
    EXPECT_EQ(leadingNumber("3 east"), 3);
}

TEST(Numbers, LeadingNumberPassesOverBlanks) {
    EXPECT_EQ(leadingNumber("   16 15 198th street"), 1615198);
    EXPECT_EQ(leadingNumber("- 4 . 5"), -4.5);
}

TEST(Numbers, LeadingNumberOfATextWithoutOneIsZero) {
    for (const char* text : {"", " ", "-", ".", "+.", "e5", "abc 5", "--5", ",5"})
        EXPECT_EQ(leadingNumber(text), 0) << text;
}

TEST(Numbers, LeadingNumberBeyondTheRangeIsTheLargestDouble) {
    EXPECT_EQ(leadingNumber("1e400"), largest);
    EXPECT_EQ(leadingNumber("-1e400"), -largest);
    EXPECT_EQ(leadingNumber("1e99999999999999999999"), largest);
    EXPECT_EQ(leadingNumber("1e-400"), 0);
    EXPECT_EQ(leadingNumber("1e-99999999999999999999"), 0);
    EXPECT_EQ(leadingNumber("0e99999999999999999999"), 0);
}

TEST(Numbers, NumericTextsMayHaveBlanksAroundSignCommasPointAndExponent) {
    for (const char* text : {"0", " 5 ", "-5", "+5", "1,000", "1,00,000.50", "5.", ".5", "-.5", "1e5", "1.5E-3", "5-",
                             "5+ ", "1,000.5-", "1e5-"})
        EXPECT_TRUE(isNumeric(text)) << text;
}

TEST(Numbers, OtherTextsAreNotNumeric) {
    for (const char* text : {"",    "  ", "abc",   "5a",    "a5", "1 2", "- 5", "--5", ".",   "-",   "1.2.3", "1e",
                             "1e+", ",5", "1.5,0", "1e5.0", "5%", "\t5", "-5-", "+5-", "5--", "5 -", "5-e1",  "1e-"})
        EXPECT_FALSE(isNumeric(text)) << text;
}

TEST(Numbers, TextsConvertToTheNumbersThatTheyAre) {
    EXPECT_EQ(toDouble(" 1,00,000.5 "), 100000.5);
    EXPECT_EQ(toDouble("-2.5e-1"), -0.25);
    EXPECT_EQ(toDouble("1e-400"), 0);
    EXPECT_EQ(toDouble("1,000.5-"), -1000.5);
    EXPECT_EQ(toDouble("25+"), 25);
}

TEST(Numbers, ATextThatIsNoNumberIsATypeMismatch) {
    EXPECT_EQ(errorOf([] { toDouble(""); }), 13);
    EXPECT_EQ(errorOf([] { toDouble("12 sq.m"); }), 13);
    EXPECT_EQ(errorOf([] { toInteger16("x"); }), 13);
    EXPECT_EQ(errorOf([] { toInteger32("x"); }), 13);
}

TEST(Numbers, ANumberBeyondTheRangeOfADoubleOverflows) {
    EXPECT_EQ(errorOf([] { toDouble("1e400"); }), 6);
    EXPECT_EQ(errorOf([] { toDouble("-1e400"); }), 6);
    EXPECT_EQ(errorOf([] { toDouble("0.1e310"); }), 6);
    EXPECT_EQ(errorOf([] { toDouble(std::string(400, '9') + ".5"); }), 6);
}

TEST(Numbers, IntegersRoundHalvesToEven) {
    EXPECT_EQ(toInteger16(0.5), 0);
    EXPECT_EQ(toInteger16(1.5), 2);
    EXPECT_EQ(toInteger16(2.5), 2);
    EXPECT_EQ(toInteger16(-2.5), -2);
    EXPECT_EQ(toInteger16("2.51"), 3);
    EXPECT_EQ(toInteger32(3.5), 4);
}

TEST(Numbers, SixteenBitIntegersOverflowBeyondTheirRange) {
    EXPECT_EQ(toInteger16("32767.4"), 32767);
    EXPECT_EQ(toInteger16("-32768.5"), -32768);
    EXPECT_EQ(errorOf([] { toInteger16("32767.5"); }), 6);
    EXPECT_EQ(errorOf([] { toInteger16(-32769.0); }), 6);
    EXPECT_EQ(errorOf([] { toInteger16(std::nan("")); }), 6);
}

TEST(Numbers, ThirtyTwoBitIntegersOverflowBeyondTheirRange) {
    EXPECT_EQ(toInteger32("2147483647"), 2147483647);
    EXPECT_EQ(toInteger32("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(errorOf([] { toInteger32("2147483648"); }), 6);
    EXPECT_EQ(errorOf([] { toInteger32(-1e300); }), 6);
}

TEST(Numbers, NumberTextHasNoTrailingZeros) {
    EXPECT_EQ(numberText(1.50), "1.5");
    EXPECT_EQ(numberText(100), "100");
    EXPECT_EQ(numberText(0), "0");
    EXPECT_EQ(numberText(-0.0), "0");
    EXPECT_EQ(numberText(-0.25), "-0.25");
    EXPECT_EQ(numberText(1234.5678), "1234.5678");
}

TEST(Numbers, NumberTextShowsFifteenSignificantDigits) {
    EXPECT_EQ(numberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(numberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(numberText(123456789012345), "123456789012345");
    EXPECT_EQ(numberText(0.000000000000001), "0.000000000000001");
}

TEST(Numbers, NumberTextHasAnExponentWhereFifteenDigitsDoNotShowIt) {
    EXPECT_EQ(numberText(1e15), "1E+15");
    EXPECT_EQ(numberText(999999999999999.9), "1E+15");
    EXPECT_EQ(numberText(-1234567890123456789.0), "-1.23456789012346E+18");
    EXPECT_EQ(numberText(1e-16), "1E-16");
    EXPECT_EQ(numberText(1.5e-15), "1.5E-15");
    EXPECT_EQ(numberText(1e-5 / 3), "3.33333333333333E-06");
    EXPECT_EQ(numberText(largest), "1.79769313486232E+308");
}

TEST(Numbers, AmountsHaveTwoDecimalsAndNoGrouping) {
    EXPECT_EQ(formatAmount(0.0), "0.00");
    EXPECT_EQ(formatAmount(5.0), "5.00");
    EXPECT_EQ(formatAmount(0.5), "0.50");
    EXPECT_EQ(formatAmount(-12.3), "-12.30");
    EXPECT_EQ(formatAmount(1234567.891), "1234567.89");
    EXPECT_EQ(formatAmount(1e20), "100000000000000000000.00");
}

TEST(Numbers, AmountsRoundHalvesAwayFromZeroAsTheDecimalTextReads) {
    EXPECT_EQ(formatAmount(0.125), "0.13");
    EXPECT_EQ(formatAmount(2.675), "2.68");
    EXPECT_EQ(formatAmount(1.005), "1.01");
    EXPECT_EQ(formatAmount(-2.675), "-2.68");
    EXPECT_EQ(formatAmount(0.005), "0.01");
    EXPECT_EQ(formatAmount(0.0049), "0.00");
    EXPECT_EQ(formatAmount(0.995), "1.00");
    EXPECT_EQ(formatAmount(99.999), "100.00");
}

TEST(Numbers, AnAmountThatRoundsToZeroHasNoSign) {
    EXPECT_EQ(formatAmount(-0.001), "0.00");
    EXPECT_EQ(formatAmount(-0.0), "0.00");
    EXPECT_EQ(formatAmount(1e-300), "0.00");
}

TEST(Numbers, ValuesThatAreNotFiniteHaveNoText) {
    EXPECT_EQ(errorOf([] { numberText(std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorOf([] { formatAmount(std::nan("")); }), 6);
}

TEST(Numbers, ATextThatIsANumberIsFormattedAsAnAmount) {
    EXPECT_EQ(formatAmount("12"), "12.00");
    EXPECT_EQ(formatAmount(" 1,000.5 "), "1000.50");
    EXPECT_EQ(formatAmount("2.675"), "2.68");
}

TEST(Numbers, ATextThatIsNoNumberStaysAsItIs) {
    for (const char* text : {"", " ", "abc", "12 sq.m", "1.2.3", "1e400"})
        EXPECT_EQ(formatAmount(text), text);
}

TEST(Numbers, ATextThatIsANumberIsGroupedByThousands) {
    EXPECT_EQ(formatGrouped("1234.5"), "1,234.50");
    EXPECT_EQ(formatGrouped("123456"), "123,456.00");
    EXPECT_EQ(formatGrouped("1,00,000"), "100,000.00");
    EXPECT_EQ(formatGrouped("999.995"), "1,000.00");
    EXPECT_EQ(formatGrouped("-123"), "-123.00");
    EXPECT_EQ(formatGrouped("1234-"), "-1,234.00");
    EXPECT_EQ(formatGrouped(".5"), "0.50");
    for (const char* text : {"", " ", "abc", "1.2.3", "1e400"})
        EXPECT_EQ(formatGrouped(text), text);
}

TEST(Numbers, AGroupedNumberShowsTheDigitsThatADoubleHolds) {
    EXPECT_EQ(formatGrouped("12345678901234567890"), "12,345,678,901,234,600,000.00");
    EXPECT_EQ(formatGrouped("0.1234567890123456789"), "0.12");
}

TEST(Numbers, WholeNumbersAreRoundedAwayFromZeroWithoutAnExponent) {
    EXPECT_EQ(formatWhole(0), "0");
    EXPECT_EQ(formatWhole(12.5), "13");
    EXPECT_EQ(formatWhole(-12.5), "-13");
    EXPECT_EQ(formatWhole(0.5), "1");
    EXPECT_EQ(formatWhole(-0.4), "0");
    EXPECT_EQ(formatWhole(99999.5), "100000");
    EXPECT_EQ(formatWhole(1e20), "100000000000000000000");
    EXPECT_EQ(errorOf([] { formatWhole(std::nan("")); }), 6);
}

TEST(Numbers, LongTextsAreRead) {
    const std::string nines(100'000, '9');
    EXPECT_EQ(leadingNumber(nines), largest);
    EXPECT_EQ(formatAmount(nines), nines);
    EXPECT_EQ(leadingNumber(std::string(100'000, ' ') + "5"), 5);
    EXPECT_EQ(leadingNumber("1" + std::string(100'000, '0') + "e-99999"), 10);
    EXPECT_EQ(formatAmount("0." + std::string(100'000, '0') + "1"), "0.00");
    EXPECT_TRUE(isNumeric(nines + "." + nines));
}

}  // namespace
}  // namespace plandesk
