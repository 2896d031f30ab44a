#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace plandesk {

// Texts are UTF-8 throughout. Case conversion covers the letters A to Z; every other character stays as it is.

/// Without leading and trailing blanks. Only the blank (code 32) counts; tabs and line ends stay.
std::string_view trim(std::string_view text);

std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);
bool equalsIgnoringCase(std::string_view a, std::string_view b);

/// The pieces between separators. An empty text has no pieces at all, not one empty piece, as the platform splits it.
/// An empty separator separates nothing.
std::vector<std::string> split(std::string_view text, std::string_view separator);

std::string join(std::span<const std::string> pieces, std::string_view separator);
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// Decodes UTF-8 into code points; a byte that is not part of a valid sequence gives U+DC80 plus its low seven bits,
/// so that appendUtf8 gives the same byte back.
std::u32string codePoints(std::string_view text);

/// Number of code points, as codePoints decodes them.
std::size_t codePointCount(std::string_view text);
/// Number of bytes of the first `count` code points; of the whole text when it has fewer.
std::size_t sizeOfFirst(std::string_view text, std::size_t count);

/// Other surrogates, and what is no code point, are appended as U+FFFD.
void appendUtf8(std::string& text, char32_t codePoint);

}  // namespace plandesk
