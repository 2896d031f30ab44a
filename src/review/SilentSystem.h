#pragma once

#include "proposal/Proposal.h"
#include "review/SilentMachine.h"
#include "shell/mdiInterface.h"

namespace plandesk {

/// A whole system of its own on a silent machine: just started, or a copy of another one in exactly its state.
struct SilentSystem {
    explicit SilentSystem(const Ports& real) : machine(real) {}
    explicit SilentSystem(const mdiInterface& original) : SilentSystem(original.opened().screen.ports) {
        shell.copyFrom(original);
    }
    SilentSystem(const SilentSystem&) = delete;
    SilentSystem& operator=(const SilentSystem&) = delete;
    ~SilentSystem() = default;

    SilentMachine machine;
    Proposal proposal{machine.ports()};
    mdiInterface shell{proposal};
};

}  // namespace plandesk
