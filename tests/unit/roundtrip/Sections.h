#pragma once

#include "unit/roundtrip/Forms.h"

namespace plandesk::test {

/// What an opening makes of the sections: values and boxes of the forms.
void readSections(Forms& forms, const std::optional<Element>& root);
/// The document up to the land records, joined from the forms; nothing when a form refuses.
std::optional<std::string> writeSections(Forms& forms);

}  // namespace plandesk::test
