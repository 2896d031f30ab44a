#pragma once

#include "reports/Report.h"

namespace plandesk {

/// What feeds both reports of the payment.
extern const Feed feedPayment;

namespace layouts {

/// The fees and how they were paid. `subdivision`: with the scrutiny fees of subdivision and amalgamation as a section
/// of their own, which moves the letters of the later ones on.
Paper chalan(bool subdivision);

}  // namespace layouts
}  // namespace plandesk
