#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "proposal/Tables.h"
#include "proposal/Value.h"

namespace plandesk {

// Cell values as the blocks of the document hold them, put straight behind the text that is being joined.

/// The value's text without the blanks around it; nothing for a null.
void appendTrimmed(std::string& xml, const Value& value);

/// The same with "&", "<" and ">" as entities.
void appendEscaped(std::string& xml, const Value& value);

/// A text without the blanks around it, with entities.
void appendEscapedText(std::string& xml, std::string_view text);

/// What a cell of a text column holds, without the blanks around it; empty for a null.
std::string_view trimmedText(const Value& cell);

/// A cell in the text of an element.
struct JoinedPiece {
    int column;
    void (*append)(std::string& xml, const Value& cell);
    bool glued = false;  ///< no "#" stands before it
};

/// A row of a table as the text of one element: its pieces with "#" between.
struct JoinedRow {
    std::string_view element;  ///< numbered where there can be several
    Tables::Member table;
    std::span<const JoinedPiece> pieces;
};

/// Columns that are all written alike.
template <std::size_t count>
constexpr std::array<JoinedPiece, count> piecesOf(decltype(JoinedPiece::append) append, const int (&columns)[count]) {
    std::array<JoinedPiece, count> pieces{};
    for (std::size_t i = 0; i < count; ++i)
        pieces[i] = {columns[i], append};
    return pieces;
}

/// An empty row leaves its values out, and the "#" stay.
void appendJoined(std::string& xml, std::span<const JoinedPiece> pieces, std::span<const Value> row);

void appendNumber(std::string& xml, int number);

/// The tags of the element of that name, which ends in a number.
void openNumbered(std::string& xml, std::string_view element, int number);
void closeNumbered(std::string& xml, std::string_view element, int number);

}  // namespace plandesk
