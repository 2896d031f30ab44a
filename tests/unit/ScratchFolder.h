#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace plandesk::test {

/// A folder on the disk for the files of one test; it goes with the object.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "plandesk-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no scratch folder");
        folder = name;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string path(std::string_view name) const { return (folder / name).string(); }

    /// Writes the file and gives its path.
    std::string write(std::string_view name, std::string_view bytes) const {
        std::ofstream file(path(name), std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        if (!file)
            throw std::runtime_error("cannot write " + path(name));
        return path(name);
    }

private:
    std::filesystem::path folder;
};

}  // namespace plandesk::test
