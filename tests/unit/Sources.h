#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>

namespace plandesk::test {

/// What the pattern's first group finds in the sources of the program, each with the file that says it last. For tests
/// that are compiled with the folder of the project as PLANDESK_SOURCES.
inline std::map<std::string, std::string> inSources(const std::filesystem::path& project, const std::string& pattern) {
    std::map<std::string, std::string> found;
    const std::regex wanted(pattern);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(project / "src")) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp")
            continue;
        std::ifstream file(entry.path());
        const std::string text(std::istreambuf_iterator<char>(file), {});
        for (std::sregex_iterator each(text.begin(), text.end(), wanted), end; each != end; ++each)
            found[(*each)[1]] = entry.path().filename();
    }
    return found;
}

}  // namespace plandesk::test
