#pragma once

#include <filesystem>
#include <optional>

#include "desktop/ReviewLines.h"

namespace plandesk {
class mdiInterface;
}

namespace plandesk::desktop {

/// What the running proposal holds otherwise than a saved one. Empty when the file is no proposal document.
/// RuntimeError 53, 75 or 76 when it cannot be read. Between two events of the user, or within one that changes
/// nothing.
std::optional<ReviewGroups> compareWithFile(const mdiInterface& running, const std::filesystem::path& file);

}  // namespace plandesk::desktop
