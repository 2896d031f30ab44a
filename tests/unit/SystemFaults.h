#pragma once

#include <string>
#include <vector>

namespace plandesk::test {

/// Stands before the system's calls on files in this test program, and lets some of them fail. One can live at a time;
/// without one the calls go through.
class SystemFaults {
public:
    struct Plan {
        int number = 0;     ///< which call, from 0
        int error = 0;      ///< the error number that it gives; 0: the process ends before the call, as if killed
        std::string call;   ///< counts calls of this name alone; empty: of every name
        bool each = false;  ///< fails at every further one too
    };

    explicit SystemFaults(Plan plan);
    ~SystemFaults();
    SystemFaults(const SystemFaults&) = delete;
    SystemFaults& operator=(const SystemFaults&) = delete;

    /// Notes the call. The error number that it is to give, or 0 to go through.
    int comes(const std::string& call);

    std::vector<std::string> failed;  ///< names of the calls that did

private:
    Plan plan;
    int counted = 0;
};

}  // namespace plandesk::test
