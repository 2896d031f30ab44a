#pragma once

#include "controls/Paper.h"

namespace plandesk::layouts {

/// The fees and how they were paid. `subdivision`: with the scrutiny fees of subdivision and amalgamation as a section
/// of their own, which moves the letters of the later ones on.
Paper chalan(std::string_view name, bool subdivision);

}  // namespace plandesk::layouts
