#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "driver/Script.h"

namespace plandesk::driver {

class Session;

using Words = std::vector<Word>;

struct Command {
    std::string_view name;
    int least;  ///< number of words behind the name
    int most;
    std::string_view takes;  ///< what these words are, to tell of a wrong number of them
    void (*run)(Session& session, const Words& words);
};

std::span<const Command> userCommands();     ///< what the user does
std::span<const Command> machineCommands();  ///< what the machine does
std::span<const Command> lookCommands();     ///< what is looked at
std::span<const Command> reportCommands();   ///< what is looked at of the reports
std::span<const Command> reviewCommands();   ///< what the review finds

/// Tells of a failure when the two differ; of long texts, what stands around the first difference.
void compare(Session& session, const std::string& what, std::string_view expected, std::string_view found);

}  // namespace plandesk::driver
