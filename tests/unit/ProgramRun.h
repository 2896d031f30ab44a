#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>

#include <sys/wait.h>

namespace plandesk::test {

/// Exit status of a program, -1 when it was not started or crashed, and what it printed, errors included.
using Result = std::pair<int, std::string>;

inline Result runProgram(const std::filesystem::path& program, const std::string& arguments) {
    FILE* pipe = popen(("'" + program.string() + "' " + arguments + " 2>&1").c_str(), "r");
    if (!pipe)
        return {-1, "not started"};
    std::string output;
    std::array<char, 4096> block;
    for (std::size_t count = 0; (count = fread(block.data(), 1, block.size(), pipe)) > 0;)
        output.append(block.data(), count);
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

}  // namespace plandesk::test
