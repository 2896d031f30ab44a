#pragma once

#include <string>
#include <string_view>

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

void appendNumber(std::string& xml, int number);

/// The tags of the element of that name, which ends in a number.
void openNumbered(std::string& xml, std::string_view element, int number);
void closeNumbered(std::string& xml, std::string_view element, int number);

}  // namespace plandesk
