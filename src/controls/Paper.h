#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"

// What goes on paper, as data: fixed texts and fields, set out in sections. The same structure is the layout, whose
// fields have no values yet, and the filled report. Fonts and sizes are the printing side's.

namespace plandesk {

/// A fixed text, or a field that shows the value of the column of its name.
struct PaperItem {
    std::string_view text{};   ///< of a fixed text, exactly as it is printed; "%D" stands for the date of the report
    std::string_view field{};  ///< name of the column, in any case; empty for a fixed text
    std::string value{};       ///< what the field shows; empty in a layout
    bool onNewLine = false;    ///< begins a line of its own among the items of its cell

    bool isField() const { return !field.empty(); }
};

/// Items that stand together, in reading order.
using PaperCell = std::vector<PaperItem>;

enum class RowStyle {
    Plain,
    Bold,
    Centred,
    Right,     ///< in the right half of the sheet, each item a line: the closing of a letter; two of them have room to
               ///< sign between them
    Indented,  ///< one of a numbered list: the first item is the number
    Head,      ///< head of a table's columns, printed again on each sheet that the table goes on to
    Band,      ///< one cell over the whole width of a table, in bold
};

/// Cells from left to right; those of a question are number, letter, small number, question and answer.
struct PaperRow {
    std::vector<PaperCell> cells;
    RowStyle style = RowStyle::Plain;
};

enum class SectionKind {
    Heading,    ///< centred lines, the first in large type
    Questions,  ///< marks, question and answer in aligned columns, ruled between
    Table,      ///< ruled, with columns of the given widths
    Letter,     ///< running text, a paragraph a row; a field is a ruled blank within it
    Pairs,      ///< rows of two cells: a label, and its answer or an empty rule for the pen
};

struct PaperSection {
    SectionKind kind = SectionKind::Letter;
    std::vector<PaperRow> rows;
    std::vector<int> widths{};  ///< of a table's columns, in hundredths of the sheet
    int figures = 0;            ///< how many of a table's last columns hold figures, which stand at the right
    bool repeats = false;       ///< the last row stands once for each row of the report's data
};

/// One report: what is printed at the head of each sheet, what follows once, and what is printed at each foot.
struct Paper {
    std::string_view name{};  ///< of the report
    std::string_view title;   ///< of the preview's window and of the file
    std::vector<PaperSection> header{};
    std::vector<PaperSection> body{};
    std::vector<PaperSection> footer{};
    Date date{};           ///< of the filled report
    std::string person{};  ///< whose paper it is, for the file's author; may be empty
};

/// Where a preview's window stands, in twips: 15 to a pixel of the layout.
struct PaperPlace {
    int left = 0;
    int top = 0;
    int width = 15000;
    int height = 9500;
};

}  // namespace plandesk
