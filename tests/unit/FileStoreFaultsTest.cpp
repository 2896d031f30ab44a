// Each of the system's calls of a write fails once, or is where the program is killed.

#include <cerrno>
#include <functional>
#include <iostream>
#include <optional>

#include <sched.h>
#include <sys/mount.h>
#include <sys/xattr.h>

#include "controls/AccessRights.h"
#include "controls/ScratchFile.h"
#include "unit/FileStoreFixture.h"
#include "unit/SystemFaults.h"

namespace plandesk {
namespace {

namespace fs = std::filesystem;
using test::Names;
using test::SystemFaults;

constexpr mode_t bits = 0640;
constexpr const char* listName = "system.posix_acl_access";
const AccessRights::Entry someList[] = {{0x01, 6, 0}, {0x02, 4, 1234}, {0x04, 4, 0}, {0x10, 4, 0}, {0x20, 0, 0}};

bool setList(const fs::path& path, const char* name = listName) {
    AccessRights rights;
    rights.entries.assign(std::begin(someList), std::end(someList));
    const std::string list = rights.list();
    return setxattr(path.c_str(), name, list.data(), list.size(), 0) == 0;
}

std::optional<std::string> listOf(const fs::path& path) {
    char list[200];
    const ssize_t size = getxattr(path.c_str(), listName, list, sizeof list);
    return size < 0 ? std::nullopt : std::optional(std::string(list, static_cast<std::size_t>(size)));
}

/// What was there before a write.
struct Before {
    const char* told;
    bool earlier = true;
    bool list = false;        ///< the earlier file has an access list
    bool folderList = false;  ///< the folder gives one to new files
    bool attribute = false;
};

constexpr Before befores[] = {
    {"no file", false},
    {"a file"},
    {"a file with an access list", true, true},
    {"a file with attributes", true, false, false, true},
    {"a file in a folder with an access list for new files", true, false, true},
};

class FileStoreFaultsTest : public test::FileStoreFixture, public testing::WithParamInterface<Before> {
protected:
    // Not every file system in memory has attributes.
    FileStoreFaultsTest()
        : FileStoreFixture(GetParam().attribute ? fs::temp_directory_path() : test::placeInMemory()) {}

    /// Makes what is there before the write; false when this file system has no access lists or attributes.
    bool prepare() {
        fs::remove_all(folder);
        fs::create_directory(folder);
        const Before& before = GetParam();
        if (before.earlier) {
            put(path, "old");
            EXPECT_EQ(chmod(path.c_str(), bits), 0);
        }
        return (!before.list || setList(path)) && (!before.folderList || setList(folder, "system.posix_acl_default")) &&
               (!before.attribute || setxattr(path.c_str(), "user.note", "x", 1, 0) == 0);
    }
    void expectNotWider(const fs::path& file, const std::string& when) const {
        if (!GetParam().earlier)
            return;
        EXPECT_EQ(mode(file) & ~bits, 0U) << file << ' ' << when;
        const auto list = listOf(file);
        // A list without rights for anybody is one that the folder gave.
        EXPECT_TRUE(!list || mode(file) == 0600 || (GetParam().list && list == listOf(path))) << file << ' ' << when;
    }
    void expectWhole(int failure, const std::string& when) {
        const bool isNew = fs::exists(path) && contents(path) == "new";
        EXPECT_EQ(isNew, failure == 0) << when;
        EXPECT_TRUE(isNew || (GetParam().earlier ? contents(path) == "old" : !fs::exists(path))) << when;
    }
};

TEST_P(FileStoreFaultsTest, AFaultAtAnyCallLeavesTheWholeEarlierOrTheWholeNewFile) {
    int faults = 0;
    for (const int error : {EIO, EPERM, EOPNOTSUPP, EINTR}) {
        bool reached = true;
        for (int number = 0; reached; ++number) {
            if (!prepare())
                GTEST_SKIP() << "this file system cannot hold " << GetParam().told;
            int failure = 0;
            std::string call;
            {
                SystemFaults fault({number, error, "", false});
                failure = failureOf(path);
                reached = !fault.failed.empty();
                call = reached ? fault.failed.front() : "none";
            }
            const std::string when = call + ", call " + std::to_string(number) + ", error " + std::to_string(error);
            faults += reached ? 1 : 0;
            expectWhole(failure, when);
            if (fs::exists(path))
                expectNotWider(path, when);
            if (call != "unlink") {
                EXPECT_LE(names().size(), 1U) << when;
            }
            EXPECT_EQ(failureOf(path), 0) << "after " << when;
            EXPECT_EQ(contents(path), "new") << "after " << when;
            EXPECT_EQ(names(), Names{"proposal.xml"}) << "after " << when;
        }
    }
    std::cout << faults << " faults with " << GetParam().told << '\n';
    EXPECT_GT(faults, 50);
}

TEST_P(FileStoreFaultsTest, AKillAtAnyCallLeavesTheWholeEarlierOrTheWholeNewFile) {
    constexpr int killed = 128 + SIGKILL;
    int kills = 0;
    for (int status = killed; status == killed; ++kills) {
        if (!prepare())
            GTEST_SKIP() << "this file system cannot hold " << GetParam().told;
        status = inChild([&] {
            SystemFaults death({kills, 0, "", false});
            return failureOf(path);
        });
        const std::string when = "killed before call " + std::to_string(kills);
        const std::string found = contents(path);
        EXPECT_TRUE(found == "new" || (GetParam().earlier ? found == "old" : !fs::exists(path))) << when;
        for (const std::string& name : names())
            expectNotWider(folder / name, when);
        EXPECT_EQ(failureOf(path), 0) << when;
        EXPECT_EQ(names(), Names{"proposal.xml"}) << when;
    }
    EXPECT_GT(kills, 10);
}

INSTANTIATE_TEST_SUITE_P(Earlier, FileStoreFaultsTest, testing::ValuesIn(befores),
                         [](const auto& tried) { return std::to_string(tried.index); });

class FileStoreLacksTest : public test::FileStoreFixture {
protected:
    FileStoreLacksTest() {
        put(path, "old");
        EXPECT_EQ(chmod(path.c_str(), bits), 0);
    }
    /// Failure of a write while every call of that name gives the error.
    int failureWithout(const char* call, int error) {
        SystemFaults fault({0, error, call, true});
        const int failure = failureOf(path);
        EXPECT_FALSE(fault.failed.empty()) << call;
        return failure;
    }
};

TEST_F(FileStoreLacksTest, AFileSystemWithoutSecondNamesBitsOwnersLocksOrFlushingTakesTheSave) {
    for (const char* call : {"link", "fchmod", "fchown", "fsync", "flock"}) {
        for (const int error : {EOPNOTSUPP, ENOSYS, EPERM, EINVAL}) {
            put(path, "old");
            ASSERT_EQ(chmod(path.c_str(), bits), 0);
            EXPECT_EQ(failureWithout(call, error), 0) << call << ' ' << error;
            EXPECT_EQ(contents(path), "new") << call << ' ' << error;
            EXPECT_EQ(mode(path) & ~bits, 0U) << call << ' ' << error;
            EXPECT_EQ(names(), Names{"proposal.xml"}) << call << ' ' << error;
        }
    }
}

TEST_F(FileStoreLacksTest, BitsAreSetOnlyWhenTheyDiffer) {
    ASSERT_EQ(chmod(path.c_str(), 0600), 0);
    SystemFaults fault({0, EIO, "fchmod", true});
    EXPECT_EQ(failureOf(path), 0);
    EXPECT_EQ(fault.failed, Names{});
}

TEST_F(FileStoreLacksTest, AFlushThatFailsIsAFailure) {
    EXPECT_EQ(failureWithout("fsync", EIO), 57);
    EXPECT_EQ(failureWithout("fsync", ENOSPC), 61);
    EXPECT_EQ(failureWithout("fsync", EDQUOT), 61);
    EXPECT_EQ(contents(path), "old");
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(FileStoreLacksTest, AnErrorAtCloseIsAFailureBeforeTheFileIsReplaced) {
    // Closings of folders and of the second name come later.
    for (const auto& [error, number] : {std::pair{EIO, 57}, {ENOSPC, 61}, {EDQUOT, 61}}) {
        EXPECT_EQ(failureWithout("close", error), number);
        EXPECT_EQ(contents(path), "old");
    }
}

TEST_F(FileStoreLacksTest, ATemporaryFileThatAnotherProgramHoldsGetsAnotherName) {
    SystemFaults fault({0, EWOULDBLOCK, "flock", false});
    EXPECT_EQ(failureOf(path), 0);
    EXPECT_EQ(fault.failed, Names{"flock"});
    EXPECT_EQ(contents(path), "new");
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(FileStoreLacksTest, AFullDiskLeavesTheEarlierFile) {
    constexpr int noNamespace = 200;
    constexpr std::size_t room = 64 * 1024;
    const int result = inChild([&] {
        if ((geteuid() != 0 && unshare(CLONE_NEWUSER) != 0) || unshare(CLONE_NEWNS) != 0 ||
            mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("", folder.c_str(), "tmpfs", 0, "size=64k") != 0)
            return noNamespace;
        put(path, "old");
        const int failure = failureOf(path, std::string(2 * room, 'n'));
        return contents(path) == "old" && names() == Names{"proposal.xml"} ? failure : 201;
    });
    if (result == noNamespace)
        GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(result, 61);
}

class TwoProgramsTest : public test::FileStoreFixture {
protected:
    TwoProgramsTest() : FileStoreFixture(test::placeInMemory()) {}

    /// A program that calls `action` until it is killed.
    template <class Action>
    static pid_t program(Action action) {
        const pid_t child = fork();
        while (child == 0)
            action();
        return child;
    }
    static void end(pid_t program) {
        kill(program, SIGKILL);
        waitpid(program, nullptr, 0);
    }
};

TEST_F(TwoProgramsTest, TwoProgramsSaveThousandsOfTimesInOneFolder) {
    constexpr int saves = 8000;
    pid_t programs[2] = {};
    for (pid_t& program : programs) {
        program = fork();
        ASSERT_GE(program, 0);
        if (program != 0)
            continue;
        const fs::path own = folder / std::to_string(getpid());
        int failures = 0;
        for (int save = 0; save < saves; ++save)
            failures += failureOf(save % 2 == 0 ? own : path, "whole") != 0 ? 1 : 0;
        fs::remove(own);
        _exit(std::min(failures, 255));
    }
    for (const pid_t program : programs) {
        int status = -1;
        waitpid(program, &status, 0);
        EXPECT_EQ(status, 0) << "failed saves: " << WEXITSTATUS(status);
    }
    EXPECT_EQ(contents(path), "whole");
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(TwoProgramsTest, ASaveSucceedsWhileOthersLookForLeftoversAllTheTime) {
    constexpr int saves = 20000;
    const auto look = [this] { removeLeftovers(folder); };
    const pid_t others[] = {program(look), program(look)};
    int failures = 0;
    for (int save = 0; save < saves; ++save)
        failures += failureOf(path, "whole") != 0 ? 1 : 0;
    for (const pid_t other : others)
        end(other);
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

}  // namespace
}  // namespace plandesk
