#include "base/Text.h"

#include <algorithm>
#include <cstdint>

namespace plandesk {

namespace {

constexpr char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char32_t escapedByteBase = 0xDC00;
constexpr char32_t replacementCharacter = 0xFFFD;

/// A lead byte of UTF-8: `bits` under `mask`, with `continuation` bytes to follow for code points from `least` on.
struct LeadByte {
    std::uint8_t mask;
    std::uint8_t bits;
    int continuation;
    char32_t least;
};

constexpr LeadByte leadBytes[] = {
    {0x80, 0x00, 0, 0},
    {0xE0, 0xC0, 1, 0x80},
    {0xF0, 0xE0, 2, 0x800},
    {0xF8, 0xF0, 3, 0x10000},
};

bool isSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

/// Takes one code point off the front of a text that is not empty.
char32_t takeCodePoint(std::string_view& text) {
    const auto first = static_cast<std::uint8_t>(text.front());
    const auto* lead = std::ranges::find_if(leadBytes, [&](const LeadByte& l) { return (first & l.mask) == l.bits; });
    if (lead != std::end(leadBytes) && text.size() > static_cast<std::size_t>(lead->continuation)) {
        const std::string_view following = text.substr(1, static_cast<std::size_t>(lead->continuation));
        char32_t codePoint = static_cast<std::uint8_t>(first & ~lead->mask);
        bool whole = true;
        for (const char c : following) {
            const auto byte = static_cast<std::uint8_t>(c);
            whole = whole && (byte & 0xC0) == 0x80;
            codePoint = codePoint << 6 | (byte & 0x3F);
        }
        if (whole && codePoint >= lead->least && codePoint <= 0x10FFFF && !isSurrogate(codePoint)) {
            text.remove_prefix(1 + following.size());
            return codePoint;
        }
    }
    text.remove_prefix(1);
    return escapedByteBase + first;
}

}  // namespace

std::string_view trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), upper);
    return result;
}

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lower, lower);
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty())
        return pieces;
    std::size_t begin = 0;
    if (!separator.empty()) {
        for (std::size_t end; (end = text.find(separator, begin)) != std::string_view::npos;) {
            pieces.emplace_back(text.substr(begin, end - begin));
            begin = end + separator.size();
        }
    }
    pieces.emplace_back(text.substr(begin));
    return pieces;
}

std::string join(std::span<const std::string> pieces, std::string_view separator) {
    std::string result;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            result += separator;
        result += pieces[i];
    }
    return result;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    return join(split(text, from), to);
}

std::u32string codePoints(std::string_view text) {
    std::u32string result;
    result.reserve(text.size());
    while (!text.empty())
        result += takeCodePoint(text);
    return result;
}

std::size_t codePointCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        takeCodePoint(text);
    return count;
}

std::size_t sizeOfFirst(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count)
        takeCodePoint(rest);
    return text.size() - rest.size();
}

void appendUtf8(std::string& text, char32_t codePoint) {
    if (codePoint >= escapedByteBase + 0x80 && codePoint <= escapedByteBase + 0xFF) {
        text += static_cast<char>(codePoint - escapedByteBase);
        return;
    }
    if (isSurrogate(codePoint) || codePoint > 0x10FFFF)
        codePoint = replacementCharacter;
    const auto* lead = std::end(leadBytes) - 1;
    while (codePoint < lead->least)
        --lead;
    int shift = 6 * lead->continuation;
    text += static_cast<char>(lead->bits | codePoint >> shift);
    while (shift > 0) {
        shift -= 6;
        text += static_cast<char>(0x80 | (codePoint >> shift & 0x3F));
    }
}

}  // namespace plandesk
