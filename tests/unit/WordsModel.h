#pragma once

#include <string>

// Figures in words once more, step by step and with texts alone, to compare the real ones with.

namespace plandesk::model {

/// Digits grouped by commas, one point, an exponent, a sign at one end, blanks around.
bool isNumber(const std::string& text);

std::string digitWord(const std::string& v);
std::string tensWord(double v);
std::string twoDigitWords(double v);
std::string numberToWords(const std::string& x);
std::string decimalWords(const std::string& v);

}  // namespace plandesk::model
