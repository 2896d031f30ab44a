#pragma once

#include <span>

#include "proposal/Forms.h"

namespace plandesk {

/// Every form of the system, those to come included. The forms that New and Open drop stand in the order in which they
/// are unloaded.
std::span<const FormRow> formCatalogue();

}  // namespace plandesk
