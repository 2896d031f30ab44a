#pragma once

#include <span>
#include <string_view>

#include "reports/Report.h"

namespace plandesk {

/// The reports that can be filled.
std::span<const Report* const> reportCatalogue();

/// Names of the reports that are still to come.
std::span<const std::string_view> reportsToCome();

}  // namespace plandesk
