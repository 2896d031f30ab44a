#pragma once

#include <string>

#include "proposal/Value.h"

namespace plandesk {

// Cell values as the blocks of the document hold them, put straight behind the text that is being joined.

/// The value's text without the blanks around it; nothing for a null.
void appendTrimmed(std::string& xml, const Value& value);

/// The same with "&", "<" and ">" as entities.
void appendEscaped(std::string& xml, const Value& value);

}  // namespace plandesk
