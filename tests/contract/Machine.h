#pragma once

#include "controls/FileStore.h"
#include "controls/MachineClock.h"
#include "review/SilentSystem.h"
#include "tools/ToolPorts.h"

namespace plandesk::contract {

/// A whole system that shows nothing and writes to memory.
struct Machine {
    tools::OpenDialogs dialogs{""};
    MachineClock clock;
    tools::OwnFolder program;
    FileStore files;
    Ports ports{dialogs, clock, files, program};
    SilentSystem system{ports};
};

}  // namespace plandesk::contract
