#pragma once

#include "controls/Ports.h"

namespace plandesk {

/// The machine's own date, in its own time zone.
class MachineClock : public Clock {
public:
    Date today() const override;
};

}  // namespace plandesk
