#pragma once

#include <string>
#include <string_view>

// Figures in English words, in the Indian grouping of thousands, lakhs and crores. A number is given as a text, or as a
// finite double that stands for its default text form. None of these fails: what a step that cannot be done leaves is
// told beside each. The blanks of the joining stay.

namespace plandesk {

/// The word of the last character when it is a digit from 1 to 9; otherwise empty.
std::string_view DigitWord(std::string_view v);
std::string_view DigitWord(double v);

/// "Twenty" to "Ninety" for exactly 2 to 9; otherwise empty.
std::string_view TensWord(double v);

/// Words of a whole number from 0 (empty) to 99; 21 and more have a blank between tens and units, so "Thirty " has one
/// behind it. Another number is read by its last two characters, and one between 9 and 21 that is not whole is empty.
std::string TwoDigitWords(double v);

/// The whole part in words, rounded and not cut: 12.75 is thirteen. Empty for an empty text, "Non Numeric text" for one
/// that is no number, "More than 999 Crores" from 10,000,000,000 on, and empty for a number beyond the range of a
/// double. Only a "-" in front says "Minus".
std::string NumberToWords(std::string_view x);

/// What stands behind the first point, in words: one blank for a text that is no number, empty without a point.
/// Where the figures behind the point are none by themselves (as in "12." and "1.e5"), what they read as follows
/// " Point ".
std::string DecimalWords(std::string_view v);

/// An area or an amount in words: the whole part trimmed, the decimal part, then the unit text.
std::string figureInWords(std::string_view figure, std::string_view unit);

}  // namespace plandesk
