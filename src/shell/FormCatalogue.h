#pragma once

#include <span>

#include "proposal/Forms.h"

namespace plandesk {

/// Every form of the system. The forms that New and Open drop stand in the order in which they
/// are unloaded.
std::span<const FormRow> formCatalogue();

}  // namespace plandesk
