#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "driver/Session.h"

// plandesk-driver [--folder DIR] [SCRIPT]

namespace {

struct Options {
    std::string folder;
    std::string script;  ///< empty: standard input
    bool understood = true;
};

Options parse(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& argument = arguments[at];
        if (argument == "--folder" && at + 1 < arguments.size())
            options.folder = arguments[++at];
        else if ((argument == "-" || !argument.starts_with('-')) && options.script.empty())
            options.script = argument;
        else
            options.understood = false;
    }
    if (options.script == "-")
        options.script.clear();
    if (options.folder.empty())
        options.folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    return options;
}

}  // namespace

int main(int count, char** values) {
    using plandesk::driver::Session;
    std::ios::sync_with_stdio(false);
    const Options options = parse({values + 1, values + count});
    if (!options.understood) {
        std::cerr << "plandesk-driver [--folder DIR] [SCRIPT]\n";
        return Session::WrongScript;
    }
    if (options.script.empty())
        return Session(options.folder, "-", std::cout, std::cerr).run(std::cin);
    std::ifstream script(options.script, std::ios::binary);
    if (!script || std::filesystem::is_directory(options.script)) {
        std::cerr << options.script << ": cannot be read\n";
        return Session::WrongScript;
    }
    return Session(options.folder, options.script, std::cout, std::cerr).run(script);
}
