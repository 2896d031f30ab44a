#include "drc/mdlConvertNumberToWord.h"

#include <array>
#include <random>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "WordsModel.h"
#include "base/Text.h"

namespace plandesk {
namespace {

using Row = std::pair<int, const char*>;

constexpr Row digitRows[] = {{1, "One"}, {2, "Two"},   {3, "Three"}, {4, "Four"}, {5, "Five"},
                             {6, "Six"}, {7, "Seven"}, {8, "Eight"}, {9, "Nine"}};
constexpr Row teenRows[] = {{10, "Ten"},     {11, "Elevan"},  {12, "Twelve"},    {13, "Thirteen"}, {14, "Fourteen"},
                            {15, "fifteen"}, {16, "Sixteen"}, {17, "Seventeen"}, {18, "Eighteen"}, {19, "Ninteen"}};
constexpr Row tensRows[] = {{20, "Twenty"}, {30, "Thirty"},  {40, "Forty"},  {50, "Fifty"},
                            {60, "Sixty"},  {70, "Seventy"}, {80, "Eighty"}, {90, "Ninety"}};

/// What a user reads of the words: without the blanks around them and in between but one.
std::string read(std::string_view words) {
    std::string text;
    for (const char c : trim(words))
        if (c != ' ' || text.back() != ' ')
            text += c;
    return text;
}

TEST(NumberToWords, EachDigitHasItsWord) {
    for (const auto& [value, word] : digitRows) {
        EXPECT_EQ(DigitWord(value), word);
        EXPECT_EQ(TwoDigitWords(value), word);
        EXPECT_EQ(NumberToWords(std::to_string(value)), std::string("   ") + word);
    }
}

TEST(NumberToWords, EachTeenHasItsWordAndAnEmptyPlaceForTheTens) {
    for (const auto& [value, word] : teenRows) {
        EXPECT_EQ(TwoDigitWords(value), word);
        EXPECT_EQ(NumberToWords(std::to_string(value)), std::string("   ") + word);
    }
}

TEST(NumberToWords, EachTenHasItsWordWithABlankBehind) {
    for (const auto& [value, word] : tensRows) {
        EXPECT_EQ(TensWord(value / 10.0), word);
        EXPECT_EQ(TwoDigitWords(value), value == 20 ? std::string(word) : std::string(word) + " ");
        EXPECT_EQ(NumberToWords(std::to_string(value)), "  " + std::string(word) + " ");
    }
}

TEST(NumberToWords, ADigitIsTheLastCharacter) {
    EXPECT_EQ(DigitWord(0.0), "");
    EXPECT_EQ(DigitWord(120.0), "");
    EXPECT_EQ(DigitWord(127.0), "Seven");
    EXPECT_EQ(DigitWord(-0.5), "Five");
    EXPECT_EQ(DigitWord("12 flats, 3"), "Three");
    EXPECT_EQ(DigitWord("abc"), "");
    EXPECT_EQ(DigitWord(""), "");
}

TEST(NumberToWords, TensAreWholeNumbersFromTwoToNine) {
    for (const double other : {-2.0, 0.0, 1.0, 2.5, 9.5, 10.0, 1e300})
        EXPECT_EQ(TensWord(other), "") << other;
}

TEST(NumberToWords, TwoDigitsOfOtherNumbersAreReadByTheirLastCharacters) {
    EXPECT_EQ(TwoDigitWords(0), "");
    EXPECT_EQ(TwoDigitWords(99), "Ninety Nine");
    EXPECT_EQ(TwoDigitWords(15.5), "");
    EXPECT_EQ(TwoDigitWords(9.5), "");
    EXPECT_EQ(TwoDigitWords(21.5), " Five");
    EXPECT_EQ(TwoDigitWords(100), "");
    EXPECT_EQ(TwoDigitWords(123), "Twenty Three");
    EXPECT_EQ(TwoDigitWords(-1), " One");
}

TEST(NumberToWords, ATextThatIsNoNumberIsToldAndAnEmptyOneIsEmpty) {
    EXPECT_EQ(NumberToWords(""), "");
    for (const char* text : {"abc", " ", "12a", "1.2.3", "-", "--5", "-5-", "\u0967\u0968", "12\u0968"})
        EXPECT_EQ(NumberToWords(text), "Non Numeric text") << text;
}

TEST(NumberToWords, BlanksOfTheJoiningStay) {
    EXPECT_EQ(NumberToWords("0"), "   ");
    EXPECT_EQ(NumberToWords("120"), " One Hundred Twenty ");
    EXPECT_EQ(NumberToWords("115"), " One Hundred  fifteen");
    EXPECT_EQ(NumberToWords("20000"), "Twenty Thousand   ");
    EXPECT_EQ(NumberToWords("30000"), "Thirty  Thousand   ");
    EXPECT_EQ(NumberToWords("100000"), "One Lakhs     ");
    EXPECT_EQ(NumberToWords("10000000"), "One Crores      ");
    EXPECT_EQ(NumberToWords("10100000"), "One Crores  One Lakhs     ");
    EXPECT_EQ(NumberToWords("1000000000"), "One hundred  Crores      ");
    EXPECT_EQ(NumberToWords("12345"), "Twelve Thousand Three Hundred Forty Five");
}

TEST(NumberToWords, NumbersAreReadInLakhsAndCrores) {
    EXPECT_EQ(read(NumberToWords("19")), "Ninteen");
    EXPECT_EQ(read(NumberToWords("1234567")), "Twelve Lakhs Thirty Four Thousand Five Hundred Sixty Seven");
    EXPECT_EQ(read(NumberToWords("9999999999")),
              "Nine hundred Ninety Nine Crores Ninety Nine Lakhs Ninety Nine Thousand Nine Hundred Ninety Nine");
    EXPECT_EQ(read(NumberToWords("1,00,000")), "One Lakhs");
    EXPECT_EQ(read(NumberToWords("1e5")), "One Lakhs");
}

TEST(NumberToWords, NumbersFromAThousandCroresAreMoreThanTheWordsReach) {
    EXPECT_EQ(NumberToWords("10000000000"), "More than 999 Crores");
    EXPECT_EQ(NumberToWords("9999999999.5"), "More than 999 Crores");
    EXPECT_EQ(NumberToWords("12345678901234567890"), "More than 999 Crores");
    EXPECT_EQ(NumberToWords("-1e300"), " Minus More than 999 Crores");
    EXPECT_EQ(NumberToWords("1.7976931348623157e308"), "More than 999 Crores");
}

TEST(NumberToWords, TheWholePartIsRounded) {
    EXPECT_EQ(read(NumberToWords("12.75")), "Thirteen");
    EXPECT_EQ(read(NumberToWords("12.5")), "Thirteen");
    EXPECT_EQ(read(NumberToWords("12.4999")), "Twelve");
    EXPECT_EQ(read(NumberToWords("99999.5")), "One Lakhs");
    EXPECT_EQ(NumberToWords("0.4"), "   ");
}

TEST(NumberToWords, OnlyASignInFrontSaysMinus) {
    EXPECT_EQ(NumberToWords("-25"), " Minus   Twenty Five");
    EXPECT_EQ(NumberToWords("25-"), "  Twenty Five");
    EXPECT_EQ(NumberToWords("+25"), "  Twenty Five");
    EXPECT_EQ(NumberToWords("25+"), "  Twenty Five");
    EXPECT_EQ(NumberToWords("-0"), " Minus    ");
}

TEST(NumberToWords, ASignBehindABlankIsReadAsAPartOfTheNumber) {
    EXPECT_EQ(NumberToWords(" -25"), " Five Hundred Twenty Five");
    EXPECT_EQ(NumberToWords(" -5"), "   Five");
    EXPECT_EQ(NumberToWords("25- "), " Five Hundred Twenty Five");
}

TEST(NumberToWords, ANumberBeyondTheRangeOfADoubleLeavesNoWords) {
    EXPECT_EQ(NumberToWords("1e400"), "");
    EXPECT_EQ(NumberToWords("-1e400"), "");
}

TEST(DecimalWords, TheFiguresBehindThePointAreANumberWithItsLeadingZeros) {
    EXPECT_EQ(DecimalWords("12"), "");
    EXPECT_EQ(DecimalWords("12.00"), " Point Zero ");
    EXPECT_EQ(DecimalWords("12.05"), " Point Zero Five");
    EXPECT_EQ(DecimalWords("12.50"), " Point Fifty");
    EXPECT_EQ(DecimalWords("12.005"), " Point Zero Zero Five");
    EXPECT_EQ(DecimalWords("12.500"), " Point Five Hundred");
    EXPECT_EQ(DecimalWords(".75"), " Point Seventy Five");
    EXPECT_EQ(DecimalWords("-1.25-"), " ");
    EXPECT_EQ(DecimalWords("1.25-"), " Point Twenty Five");
}

TEST(DecimalWords, ATextThatIsNoNumberGivesOneBlank) {
    for (const char* text : {"", "abc", "1.2.3", "1.5,0"})
        EXPECT_EQ(DecimalWords(text), " ") << text;
}

TEST(DecimalWords, FiguresThatAreNoNumberByThemselvesAreReadAsTheyAre) {
    EXPECT_EQ(DecimalWords("12."), " Point ");
    EXPECT_EQ(DecimalWords("1.e5"), " Point Non Numeric text");
    EXPECT_EQ(DecimalWords("1.0" + std::string(400, '9')), " Point Zero ");
}

TEST(FigureInWords, WholePartDecimalPartAndUnitAreJoined) {
    EXPECT_EQ(figureInWords("12.75", " sq. mtrs."), "Thirteen Point Seventy Five sq. mtrs.");
    EXPECT_EQ(figureInWords("12.00", " sq. mtrs."), "Twelve Point Zero  sq. mtrs.");
    EXPECT_EQ(figureInWords("1,234.50", " sq. mtrs."), "One Thousand Two Hundred Thirty Five Point Fifty sq. mtrs.");
    EXPECT_EQ(figureInWords("1,500.00", " Rupees"), "One Thousand Five Hundred Point Zero  Rupees");
    EXPECT_EQ(figureInWords("abc", " Rupees"), "Non Numeric text  Rupees");
    EXPECT_EQ(figureInWords("-25", " Rupees"), "Minus   Twenty Five Rupees");
}

// The same once more, by a second writing of the steps.

void expectAsModel(const std::string& text) {
    ASSERT_EQ(NumberToWords(text), model::numberToWords(text)) << '"' << text << '"';
    ASSERT_EQ(DecimalWords(text), model::decimalWords(text)) << '"' << text << '"';
}

TEST(WordsAndModel, AgreeOnEveryNumberBelowOneLakh) {
    for (int number = 0; number <= 99'999; ++number) {
        expectAsModel(std::to_string(number));
        expectAsModel("1." + std::to_string(number));
    }
}

TEST(WordsAndModel, AgreeAroundEveryPowerOfTen) {
    long long power = 1;
    for (int exponent = 0; exponent <= 11; ++exponent, power *= 10)
        for (long long number = power - 2; number <= power + 2; ++number)
            for (const char* sign : {"", "-", "+", " -"})
                expectAsModel(sign + std::to_string(number));
}

TEST(WordsAndModel, AgreeOnTwoDigitNumbersOfEveryKind) {
    for (int tenths = -2'000; tenths <= 2'000; ++tenths) {
        const double value = tenths / 10.0;
        ASSERT_EQ(TwoDigitWords(value), model::twoDigitWords(value)) << value;
        ASSERT_EQ(TensWord(value), model::tensWord(value)) << value;
    }
}

/// A text that is nearly a number, of every kind of nearness.
std::string randomText(std::mt19937& random) {
    const auto any = [&](auto... choices) {
        const std::array<std::string, sizeof...(choices)> all = {choices...};
        return all.at(std::uniform_int_distribution<std::size_t>(0, all.size() - 1)(random));
    };
    const bool foreign = std::uniform_int_distribution<int>(0, 19)(random) == 0;
    const auto digits = [&](int most) {
        std::string text;
        for (int count = std::uniform_int_distribution<int>(0, most)(random); count > 0; --count)
            text +=
                foreign ? any("1", "5", "\u0966", "\u096B") : any("0", "0", "1", "2", "3", "4", "5", "7", "9", "00");
        return text;
    };
    std::string text = any("", "", "", " ", "  ") + any("", "", "", "-", "+", "--");
    text += digits(12) + any("", "", ",", ",,") + digits(3);
    text += any("", "", ".", ".", "..", ". ") + digits(6);
    text += any("", "", "", "", ".", ".5");
    text += any("", "", "", "", "e", "E+", "e-") + any("", "", "", "0", "1", "2", "7", "12", "400");
    text += any("", "", "", "-", "+", "+-") + any("", "", "", " ", "  ");
    return text;
}

TEST(WordsAndModel, AgreeOnRandomTexts) {
    std::mt19937 random(20080915);
    int numbers = 0;
    int foreign = 0;
    for (int text = 0; text < 100'000; ++text) {
        const std::string figure = randomText(random);
        numbers += model::isNumber(figure) ? 1 : 0;
        foreign += figure.find("\xE0") != std::string::npos ? 1 : 0;
        expectAsModel(figure);
    }
    // Both kinds come often, so that neither side is compared in its refusals alone.
    EXPECT_GT(numbers, 20'000);
    EXPECT_LT(numbers, 80'000);
    EXPECT_GT(foreign, 1'000);
}

}  // namespace
}  // namespace plandesk
