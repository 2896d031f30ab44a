#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "controls/FileStore.h"
#include "driver/RecordingPorts.h"
#include "driver/Script.h"
#include "proposal/Proposal.h"
#include "shell/mdiInterface.h"

namespace plandesk::driver {

/// One run of the whole system under a script.
class Session {
public:
    /// `folder`: the program's own. `scriptName`: what failure lines call the script.
    Session(std::string folder, std::string scriptName, std::ostream& out, std::ostream& err);

    enum Status { Held = 0, Failed = 1, WrongScript = 2 };

    /// Runs the script to its end, or to the line that is wrong; gives the exit status.
    Status run(std::istream& script);

    // What commands use.

    /// Runs the lines of that file, told from the folder of the running script, in its place. ScriptError when it
    /// cannot be read or includes too deeply.
    void include(const std::string& path);
    /// Tells of an expectation that did not hold; the run goes on.
    void failed(std::string_view expected, std::string_view found);
    /// Tells of something that was not there for the user.
    void unavailable(const Word& what);
    /// The form of that name, touched. ScriptError when there is none.
    Form& form(const std::string& name);

    std::ostream& out;
    RecordingDialogs dialogs;
    SetClock clock;
    FileStore files;
    ScriptedProgram program;
    ScriptedPrinter printer{files};
    RecordingReports reports;
    Proposal proposal;
    mdiInterface shell;

private:
    void runLines(std::istream& script);
    void runLine(std::string_view content);
    std::ostream& tell();

    std::ostream& err;
    std::string scriptName;
    int line = 0;
    int depth = 0;  ///< files included in each other
    Status status = Held;
};

}  // namespace plandesk::driver
