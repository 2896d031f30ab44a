#pragma once

#include <string>

#include "controls/FileStore.h"
#include "review/SilentSystem.h"

namespace plandesk {

/// A copy of the running system that another thread can have: it asks nothing of the machine that the window works on.
class ReviewCopy {
public:
    /// Between two events of the user only.
    explicit ReviewCopy(const mdiInterface& original) : machine(original.opened().screen.ports) {
        system.shell.copyFrom(original);
    }

    SilentSystem& silent() { return system; }
    mdiInterface& shell() { return system.shell; }
    Proposal& proposal() { return system.proposal; }

private:
    /// The day and the program as they are when the copy is made.
    struct Machine : Clock, Program {
        explicit Machine(const Ports& real)
            : dialogs(real.dialogs),
              day(real.clock.today()),
              ownFolder(real.program.folder()),
              ownTitle(real.program.title()),
              ownVersion(real.program.version()) {}

        Date today() const override { return day; }
        std::string folder() const override { return ownFolder; }
        std::string title() const override { return ownTitle; }
        std::string version() const override { return ownVersion; }
        bool startSystemInformation() override { return false; }
        void end() override {}
        Ports ports() { return {dialogs, *this, files, *this}; }

        Dialogs& dialogs;  ///< nobody asks them: the copy is silent
        FileStore files;
        Date day;
        std::string ownFolder;
        std::string ownTitle;
        std::string ownVersion;
    };

    Machine machine;
    SilentSystem system{machine.ports()};
};

}  // namespace plandesk
