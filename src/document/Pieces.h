#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"

namespace plandesk {

// Pieces of a text split at a separator, as views into it. Only as many are looked for as are asked for, so that a
// value full of separators costs nothing. An empty text has no pieces at all.

using Pieces = std::vector<std::string_view>;

/// The pieces from the first on, at most `most` of them.
inline Pieces firstPieces(std::string_view text, std::string_view separator, std::size_t most) {
    Pieces pieces;
    if (text.empty())
        return pieces;
    constexpr std::size_t usual = 24;  // of the longest rows
    pieces.reserve(std::min(most, usual));
    for (;;) {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos || pieces.size() == most)
            return pieces;
        text.remove_prefix(end + separator.size());
    }
}

/// RuntimeError 9 when there is no piece of that number, from 0.
inline std::string_view at(const Pieces& pieces, std::size_t number) {
    if (number >= pieces.size())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return pieces[number];
}

/// The piece of that number, from 0. RuntimeError 9 when there is no such piece.
inline std::string_view piece(std::string_view text, std::string_view separator, std::size_t number) {
    if (text.empty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    for (; number > 0; --number) {
        const std::size_t found = text.find(separator);
        if (found == std::string_view::npos)
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        text.remove_prefix(found + separator.size());
    }
    return text.substr(0, text.find(separator));
}

}  // namespace plandesk
