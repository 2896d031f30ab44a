#pragma once

#include "controls/Paper.h"

// The few words that the layouts are written in.

namespace plandesk::layouts {

inline PaperItem text(std::string_view fixed) {
    return {.text = fixed};
}

inline PaperItem field(std::string_view column) {
    return {.field = column};
}

/// The same on a new line of its cell.
inline PaperItem below(PaperItem item) {
    item.onNewLine = true;
    return item;
}

/// A question of the particulars; marks that it lacks are "".
inline PaperRow question(std::string_view number, std::string_view letter, std::string_view smallNumber,
                         std::string_view words, PaperCell answer) {
    const auto cell = [](std::string_view mark) { return mark.empty() ? PaperCell{} : PaperCell{text(mark)}; };
    return {{cell(number), cell(letter), cell(smallNumber), cell(words), std::move(answer)}};
}

/// A row of one cell: a paragraph, a heading's line, a band of a table.
inline PaperRow line(PaperCell items, RowStyle style = RowStyle::Plain) {
    return {{std::move(items)}, style};
}

/// A label with its answer; without one, with an empty rule for the pen.
inline PaperRow pair(std::string_view label, PaperCell answer = {}, RowStyle style = RowStyle::Plain) {
    return {{{text(label)}, std::move(answer)}, style};
}

}  // namespace plandesk::layouts
