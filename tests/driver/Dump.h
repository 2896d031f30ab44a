#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "driver/Reference.h"
#include "driver/Session.h"
#include "proposal/Value.h"

namespace plandesk::driver {

/// The whole state as one JSON object on one line.
void writeDump(const Session& session, std::ostream& out);

/// Value of the project-wide flag, number, colour or fragment, named in any case; nothing when there is none.
std::optional<PropertyValue> projectValue(const Proposal& proposal, std::string_view name);

/// A cell of a table as expectations write it: an empty cell is "null".
std::string cellText(const Value& value);

}  // namespace plandesk::driver
