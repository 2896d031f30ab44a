#include "drc/mdlConvertNumberToWord.h"

#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

namespace plandesk {

namespace {

// The misspelled and the lower-case words belong to the forms that the approval system knows.
constexpr std::array digits =
    std::to_array<std::string_view>({"", "One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine"});
constexpr std::array fromTen =
    std::to_array<std::string_view>({"Ten", "Elevan", "Twelve", "Thirteen", "Fourteen", "fifteen", "Sixteen",
                                     "Seventeen", "Eighteen", "Ninteen", "Twenty"});
constexpr std::array tens = std::to_array<std::string_view>(
    {"", "", "Twenty", "Thirty", "Forty", "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"});

std::string_view last(std::string_view text, std::size_t count) {
    return text.size() > count ? text.substr(text.size() - count) : text;
}

/// The last `count` characters of a whole number's text as a number; a shorter text is taken whole, its sign too.
double right(std::string_view text, std::size_t count) {
    return toDouble(last(text, count));
}

template <typename... Parts>
std::string joined(const Parts&... parts) {
    std::string text;
    text.reserve((std::string_view(parts).size() + ...));
    (text.append(parts), ...);
    return text;
}

/// A text that is not empty with its group's name behind it.
std::string named(std::string_view words, std::string_view group) {
    return words.empty() ? std::string() : joined(words, group);
}

std::string_view withoutSign(std::string_view x) {
    if (x.front() == '-' || x.front() == '+')
        return x.substr(1);
    if (x.back() == '-' || x.back() == '+')
        return x.substr(0, x.size() - 1);
    return x;
}

/// The words of x, which is a number. RuntimeError 6 when it is beyond the range of a double.
std::string wordsOf(std::string_view x) {
    // A sign with a blank outside it stays, and is read as a character of the number.
    const std::string number = formatWhole(toDouble(withoutSign(x)));
    const auto hasMoreDigitsThan = [&](std::size_t count) { return number.front() != '-' && number.size() > count; };

    const double two = right(number, 2);
    std::string_view tensPart;
    std::string_view units;
    if (two >= 10 && two < 20) {
        units = fromTen[static_cast<std::size_t>(two) - 10];
    } else {
        const double one = right(number, 1);
        units = DigitWord(one);
        tensPart = TensWord((two - one) / 10);
    }
    const double three = right(number, 3);
    const std::string hundreds = named(DigitWord((three - two) / 100), " Hundred");
    const double five = right(number, 5);
    const std::string thousands = named(TwoDigitWords((five - three) / 1000), " Thousand");
    std::string belowLakh = joined(thousands, " ", hundreds, " ", tensPart, " ", units);
    if (!hasMoreDigitsThan(5))
        return belowLakh;

    const double seven = right(number, 7);
    const std::string lakhs = named(TwoDigitWords((seven - five) / 1e5), " Lakhs ");
    if (!hasMoreDigitsThan(7))
        return joined(lakhs, " ", belowLakh);

    const double nine = right(number, 9);
    // Also without a crore: 1000000000 has " Crores " behind its hundred.
    const std::string crores = joined(TwoDigitWords((nine - seven) / 1e7), " Crores ");
    if (!hasMoreDigitsThan(9))
        return joined(crores, " ", lakhs, " ", belowLakh);
    if (hasMoreDigitsThan(10))
        return "More than 999 Crores";
    const std::string_view hundredCrores = DigitWord((right(number, 10) - nine) / 1e9);
    return joined(hundredCrores, " hundred", " ", crores, " ", lakhs, " ", belowLakh);
}

}  // namespace

std::string_view DigitWord(std::string_view v) {
    const bool digit = !v.empty() && v.back() >= '1' && v.back() <= '9';
    return digit ? digits[static_cast<std::size_t>(v.back() - '0')] : "";
}

std::string_view DigitWord(double v) {
    return DigitWord(std::string_view(numberText(v)));  // the words outlive the text
}

std::string_view TensWord(double v) {
    const bool whole = v >= 2 && v <= 9 && v == std::trunc(v);
    return whole ? tens[static_cast<std::size_t>(v)] : "";
}

std::string TwoDigitWords(double v) {
    if (v > 9 && v < 21)
        return v == std::trunc(v) ? std::string(fromTen[static_cast<std::size_t>(v) - 10]) : "";
    if (v == 0)
        return "";
    const std::string text = numberText(v);
    const std::string_view units = DigitWord(std::string_view(text));
    const double t = right(text, 2) - right(text, 1);
    return t == 0 ? std::string(units) : joined(TensWord(t / 10), " ", units);
}

std::string NumberToWords(std::string_view x) {
    if (x.empty())
        return "";
    if (!isNumeric(x))
        return "Non Numeric text";
    try {
        return x.front() == '-' ? " Minus " + wordsOf(x) : wordsOf(x);
    } catch (const RuntimeError&) {
        return "";  // beyond the range of a double, which is found before any word is joined
    }
}

std::string DecimalWords(std::string_view v) {
    if (!isNumeric(v))
        return " ";
    const std::size_t point = v.find('.');
    if (point == std::string_view::npos)
        return "";
    const std::string_view f = v.substr(point + 1);
    try {
        if (toDouble(f) == 0)
            return " Point Zero ";
    } catch (const RuntimeError&) {
        // No number by itself, or one beyond the range of a double: not zero then, and the words are joined.
    }
    std::string words = " Point ";
    for (std::size_t place = 0; place < f.size() && f[place] == '0'; ++place)
        words += "Zero ";
    return words.append(trim(NumberToWords(f)));
}

std::string figureInWords(std::string_view figure, std::string_view unit) {
    return joined(trim(NumberToWords(figure)), DecimalWords(figure), unit);
}

}  // namespace plandesk
