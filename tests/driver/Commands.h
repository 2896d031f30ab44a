#pragma once

#include <span>
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

}  // namespace plandesk::driver
