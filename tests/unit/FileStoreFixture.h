#pragma once

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/RuntimeError.h"
#include "controls/FileStore.h"

namespace plandesk::test {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

/// A place for tests of many writes, where no disk has to be waited for.
inline fs::path placeInMemory() {
    return fs::exists("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
}

/// A folder of its own with the path of a proposal in it.
class FileStoreFixture : public testing::Test {
protected:
    explicit FileStoreFixture(const fs::path& place = fs::temp_directory_path()) {
        std::string name = (place / "plandesk-files-XXXXXX").string();
        folder = mkdtemp(name.data());
        path = folder / "proposal.xml";
    }
    ~FileStoreFixture() override { fs::remove_all(folder); }

    static std::string contents(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static void put(const fs::path& file, std::string_view bytes) { std::ofstream(file, std::ios::binary) << bytes; }
    static struct stat looked(const fs::path& file) {
        struct stat found = {};
        EXPECT_EQ(stat(file.c_str(), &found), 0) << file;
        return found;
    }
    static mode_t mode(const fs::path& file) { return looked(file).st_mode & 07777; }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder))
            found.push_back(entry.path().filename());
        std::ranges::sort(found);
        return found;
    }
    int failureOf(const fs::path& file, std::string_view bytes = "new") {
        try {
            files.writeWhole(file, bytes);
        } catch (const RuntimeError& error) {
            return error.number;
        }
        return 0;
    }

    /// Result of `action` in a process of its own; 128 and the signal's number when it was killed.
    template <class Action>
    static int inChild(Action action) {
        const pid_t child = fork();
        if (child == 0)
            _exit(action());
        int status = -1;
        waitpid(child, &status, 0);
        return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }

    struct User {
        uid_t id;
        std::vector<gid_t> groups;  ///< the first is his own
    };

    /// The same as another user, which root alone can try.
    template <class Action>
    static int as(const User& user, Action action) {
        return inChild([&] {
            const bool become = setgroups(user.groups.size(), user.groups.data()) == 0 &&
                                setgid(user.groups.front()) == 0 && setuid(user.id) == 0;
            return become ? action() : 255;
        });
    }

    fs::path folder;
    fs::path path;
    FileStore files;
};

}  // namespace plandesk::test
