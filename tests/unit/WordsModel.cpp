#include "WordsModel.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace plandesk::model {

namespace {

struct Failure {};

const std::map<int, std::string> units = {{1, "One"}, {2, "Two"},   {3, "Three"}, {4, "Four"}, {5, "Five"},
                                          {6, "Six"}, {7, "Seven"}, {8, "Eight"}, {9, "Nine"}};
const std::map<int, std::string> teens = {{10, "Ten"},      {11, "Elevan"},  {12, "Twelve"},  {13, "Thirteen"},
                                          {14, "Fourteen"}, {15, "fifteen"}, {16, "Sixteen"}, {17, "Seventeen"},
                                          {18, "Eighteen"}, {19, "Ninteen"}, {20, "Twenty"}};
const std::map<int, std::string> tens = {{2, "Twenty"}, {3, "Thirty"},  {4, "Forty"},  {5, "Fifty"},
                                         {6, "Sixty"},  {7, "Seventy"}, {8, "Eighty"}, {9, "Ninety"}};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isSign(char c) {
    return c == '+' || c == '-';
}

std::string bare(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string behind(const std::string& text, std::size_t count) {
    return text.size() < count ? text : text.substr(text.size() - count);
}

/// The number that a text is; a Failure for one that is none or that a double cannot hold.
double number(const std::string& text) {
    if (!isNumber(text))
        throw Failure();
    std::string plain;
    for (const char c : bare(text))
        if (c != ',')
            plain += c;
    const bool minusBehind = plain.back() == '-';
    if (isSign(plain.back()))
        plain.pop_back();
    const double value = std::strtod(plain.c_str(), nullptr);
    if (std::isinf(value))
        throw Failure();
    return minusBehind ? -value : value;
}

std::string general(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.15g", value);
    return text;
}

/// "#################0" of a value, from its fifteen significant digits.
std::string rounded(double value) {
    const std::string sign = value < 0 ? "-" : "";
    std::string text = general(std::fabs(value));
    const auto e = text.find('e');
    const auto point = text.find('.');
    if (e != std::string::npos && text[e + 1] == '-')
        return "0";
    if (e != std::string::npos) {
        std::string digits;
        for (const char c : text.substr(0, e))
            if (c != '.')
                digits += c;
        digits.resize(static_cast<std::size_t>(std::atoi(text.c_str() + e + 1)) + 1, '0');
        return sign + digits;
    }
    if (point == std::string::npos)
        return text == "0" ? text : sign + text;
    const long long whole = std::atoll(text.c_str()) + (text[point + 1] >= '5' ? 1 : 0);
    return (whole == 0 ? "" : sign) + std::to_string(whole);
}

double right(const std::string& text, std::size_t count) {
    return number(behind(text, count));
}

std::string withoutOneSign(const std::string& x) {
    if (x[0] == '-' || x[0] == '+')
        return x.substr(1);
    if (x[x.size() - 1] == '+' || x[x.size() - 1] == '-')
        return x.substr(0, x.size() - 1);
    return x;
}

}  // namespace

bool isNumber(const std::string& text) {
    std::string rest = bare(text);
    if (rest.empty())
        return false;
    if (isSign(rest.front()))
        rest.erase(0, 1);
    else if (isSign(rest.back()))
        rest.pop_back();
    std::size_t at = 0;
    std::size_t digitsSeen = 0;
    while (at < rest.size() && (isDigit(rest[at]) || (rest[at] == ',' && digitsSeen > 0)))
        digitsSeen += isDigit(rest[at++]) ? 1 : 0;
    if (at < rest.size() && rest[at] == '.')
        for (++at; at < rest.size() && isDigit(rest[at]); ++at)
            ++digitsSeen;
    if (digitsSeen == 0)
        return false;
    if (at < rest.size() && (rest[at] == 'e' || rest[at] == 'E')) {
        ++at;
        if (at < rest.size() && isSign(rest[at]))
            ++at;
        const std::size_t start = at;
        while (at < rest.size() && isDigit(rest[at]))
            ++at;
        if (at == start)
            return false;
    }
    return at == rest.size();
}

std::string digitWord(const std::string& v) {
    const int digit = v.empty() ? 0 : v.back() - '0';
    return units.contains(digit) ? units.at(digit) : "";
}

std::string tensWord(double v) {
    for (const auto& [value, word] : tens)
        if (v == value)
            return word;
    return "";
}

std::string twoDigitWords(double v) {
    if (v > 9 && v < 21) {
        for (const auto& [value, word] : teens)
            if (v == value)
                return word;
        return "";
    }
    if (v == 0)
        return "";
    const std::string text = general(v);
    const std::string unitsWord = digitWord(text);
    const double t = right(text, 2) - right(text, 1);
    if (t == 0)
        return unitsWord;
    return tensWord(t / 10) + " " + unitsWord;
}

std::string numberToWords(const std::string& x) {
    std::string text;
    try {
        if (x.empty())
            return "";
        if (!isNumber(x))
            return "Non Numeric text";
        const std::string plain = rounded(number(withoutOneSign(x)));
        const double n = std::strtod(plain.c_str(), nullptr);

        const double d = right(plain, 2);
        std::string unitsWord;
        std::string tensPart;
        if (d >= 10 && d <= 19) {
            unitsWord = teens.at(static_cast<int>(d));
            text = unitsWord;
        } else {
            const double u = right(plain, 1);
            unitsWord = digitWord(general(u));
            tensPart = tensWord((d - u) / 10);
            text = tensPart + " " + unitsWord;
        }
        std::string hundreds = digitWord(general((right(plain, 3) - right(plain, 2)) / 100));
        if (!hundreds.empty())
            hundreds += " Hundred";
        text = hundreds + " " + tensPart + " " + unitsWord;
        std::string thousands = twoDigitWords((right(plain, 5) - right(plain, 3)) / 1000);
        if (!thousands.empty())
            thousands += " Thousand";
        const std::string stepSeven = thousands + " " + hundreds + " " + tensPart + " " + unitsWord;
        text = stepSeven;
        std::string lakhs;
        if (n > 99999) {
            lakhs = twoDigitWords((right(plain, 7) - right(plain, 5)) / 100000);
            if (!lakhs.empty())
                lakhs += " Lakhs ";
            text = lakhs + " " + stepSeven;
        }
        std::string crores;
        if (n > 9999999) {
            crores = twoDigitWords((right(plain, 9) - right(plain, 7)) / 10000000) + " Crores ";
            text = crores + " " + lakhs + " " + stepSeven;
        }
        if (n > 999999999) {
            const std::string h = digitWord(general((right(plain, 10) - right(plain, 9)) / 1000000000));
            if (!h.empty())
                text = h + " hundred" + " " + crores + " " + lakhs + " " + thousands + " " + hundreds + " " + tensPart +
                       " " + unitsWord;
        }
        if (n > 9999999999)
            text = "More than 999 Crores";
        if (x[0] == '-')
            text = " Minus " + text;
    } catch (const Failure&) {
        // what was built so far
    }
    return text;
}

std::string decimalWords(const std::string& v) {
    if (!isNumber(v))
        return " ";
    const auto point = v.find('.');
    if (point == std::string::npos)
        return "";
    const std::string f = v.substr(point + 1);
    try {
        if (number(f) == 0)
            return " Point Zero ";
    } catch (const Failure&) {
        // the result is the empty text, and the walk goes on
    }
    std::string prefix;
    bool adding = true;
    for (const char c : f) {
        adding = adding && c == '0';
        if (adding)
            prefix += "Zero ";
    }
    return " Point " + prefix + bare(numberToWords(f));
}

}  // namespace plandesk::model
