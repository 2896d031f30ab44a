#pragma once

#include <QString>
#include <cstddef>
#include <string_view>

// A text may be of any length and hold words without an end; the toolkit lays out each text that it gets as a whole. So
// it gets no more of a long one than can be laid out within a frame. The text itself stays whole, in its control.

namespace plandesk::desktop {

/// Whether an editor can lay the text out at every key. `breaksWords`: it breaks lines, within a word too where that is
/// longer than the line, which takes a time that grows with the square of the word.
bool fitsEditor(std::string_view text, bool breaksWords);

/// The text as it is; of one with more than `most` bytes the beginning, and how long it is.
QString beginning(std::string_view text, std::size_t most = 1000);

}  // namespace plandesk::desktop
