// docs/driver.md and the driver tell of the same commands.

#include <fstream>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "base/Text.h"
#include "driver/Commands.h"

namespace plandesk::driver {
namespace {

/// Each command with the words it takes.
std::set<std::string> ofTheDriver() {
    std::set<std::string> commands;
    for (const std::span<const Command> table :
         {userCommands(), machineCommands(), lookCommands(), reportCommands(), reviewCommands()})
        for (const Command& command : table)
            commands.insert(std::string(command.name) + (command.takes.empty() ? "" : " ") +
                            std::string(command.takes));
    return commands;
}

/// What stands in code at the head of a row of a table.
std::set<std::string> ofTheDocument() {
    std::set<std::string> commands;
    std::ifstream file(PLANDESK_SOURCES "/docs/driver.md");
    const std::regex row(R"(^\| `(.*?)` \| .+ \|$)");
    std::smatch match;
    for (std::string line; std::getline(file, line);)
        if (std::regex_match(line, match, row))
            commands.insert(replaceAll(match[1].str(), R"(\|)", "|"));
    return commands;
}

TEST(DriverDocument, EachCommandOfTheDriverIsInTheDocumentAndEachOfTheDocumentInTheDriver) {
    EXPECT_GE(ofTheDriver().size(), 40U);
    EXPECT_EQ(ofTheDocument(), ofTheDriver());
}

}  // namespace
}  // namespace plandesk::driver
