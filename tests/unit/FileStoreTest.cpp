#include "controls/FileStore.h"

#include <chrono>
#include <random>
#include <thread>

#include <sys/file.h>
#include <sys/resource.h>

#include "unit/FileStoreFixture.h"

namespace plandesk {
namespace {

using test::Names;
namespace fs = std::filesystem;

constexpr int lastStep = static_cast<int>(FileStore::Step::FlushFolder);

class FileStoreTest : public test::FileStoreFixture {
protected:
    Names linesOf(const fs::path& file) {
        Names lines;
        files.readLines(file, [&](std::string_view line) { lines.emplace_back(line); });
        return lines;
    }
    /// Result of `action` without the rights of root, from whom nothing is protected.
    template <class Action>
    int asOrdinaryUser(Action action) {
        if (geteuid() != 0)
            return inChild(action);
        constexpr uid_t nobody = 65534;
        EXPECT_EQ(chown(folder.c_str(), nobody, nobody), 0);
        EXPECT_EQ(chown(path.c_str(), nobody, nobody), 0);
        return as({nobody, {nobody}}, action);
    }
};

TEST_F(FileStoreTest, WritesAFileThatWasNotThere) {
    files.writeWhole(path, "<A/>\r\n");
    EXPECT_EQ(contents(path), "<A/>\r\n");
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(FileStoreTest, ANewFileHasTheBitsThatTheProcessGivesToFiles) {
    const mode_t earlier = umask(027);
    files.writeWhole(path, "new");
    umask(earlier);
    EXPECT_EQ(mode(path), 0640U);
}

TEST_F(FileStoreTest, ReplacesALongerFileWholly) {
    put(path, std::string(100000, 'x'));
    files.writeWhole(path, "short");
    EXPECT_EQ(contents(path), "short");
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(FileStoreTest, WritesBytesAsTheyAreAndAnEmptyFile) {
    const std::string bytes("\0\xFF\r\n\n", 5);
    files.writeWhole(path, bytes);
    EXPECT_EQ(contents(path), bytes);
    files.writeWhole(path, "");
    EXPECT_TRUE(fs::exists(path));
    EXPECT_EQ(contents(path), "");
}

TEST_F(FileStoreTest, KeepsThePermissionBitsOfTheEarlierFile) {
    for (const mode_t bits : {0600U, 0664U, 0755U}) {
        put(path, "old");
        ASSERT_EQ(chmod(path.c_str(), bits), 0);
        files.writeWhole(path, "new");
        EXPECT_EQ(mode(path), bits);
    }
}

TEST_F(FileStoreTest, AFailureAtEachStepLeavesTheEarlierFileAndNothingElse) {
    for (int step = 1; step <= lastStep; ++step) {
        put(path, "old");
        ASSERT_EQ(chmod(path.c_str(), 0640), 0);
        files.failAtStep(step);
        EXPECT_EQ(failureOf(path), 61) << "step " << step;
        EXPECT_EQ(contents(path), "old") << "step " << step;
        EXPECT_EQ(mode(path), 0640U) << "step " << step;
        EXPECT_EQ(names(), Names{"proposal.xml"}) << "step " << step;
        EXPECT_EQ(failureOf(path), 0) << "only the next write fails, step " << step;
        EXPECT_EQ(contents(path), "new") << "step " << step;
    }
}

TEST_F(FileStoreTest, AFailureAtEachStepOfAFirstWriteLeavesNoFile) {
    for (int step = 1; step <= lastStep; ++step) {
        files.failAtStep(step);
        EXPECT_EQ(failureOf(path), 61) << "step " << step;
        EXPECT_EQ(names(), Names{}) << "step " << step;
    }
}

TEST_F(FileStoreTest, AStepBehindTheLastLetsTheWriteSucceed) {
    files.failAtStep(lastStep + 1);
    EXPECT_EQ(failureOf(path), 0);
    EXPECT_EQ(failureOf(path), 0);
    EXPECT_EQ(contents(path), "new");
}

TEST_F(FileStoreTest, AFolderThatIsGoneIsPathNotFound) {
    EXPECT_EQ(failureOf(folder / "gone" / "proposal.xml"), 76);
    EXPECT_EQ(failureOf(""), 76);
    put(path, "a file, not a folder");
    EXPECT_EQ(failureOf(path / "proposal.xml"), 76);
    EXPECT_EQ(contents(path), "a file, not a folder");
}

TEST_F(FileStoreTest, AFolderOrADeviceAsTargetIsRefusedAndNothingIsWritten) {
    EXPECT_EQ(failureOf(folder), 75);
    EXPECT_EQ(failureOf("/dev/null"), 75);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(names(), Names{});
}

TEST_F(FileStoreTest, ANameThatIsTooLongIsRefused) {
    EXPECT_EQ(failureOf(folder / std::string(300, 'n')), 75);
    const fs::path longest = folder / std::string(255, 'n');
    EXPECT_EQ(failureOf(longest), 0);
    EXPECT_EQ(contents(longest), "new");
}

TEST_F(FileStoreTest, AProtectedFileStaysAsItIsAndAProtectedFolderTakesNone) {
    put(path, "old");
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    EXPECT_EQ(asOrdinaryUser([this] { return failureOf(path); }), 70);
    EXPECT_EQ(contents(path), "old");
    ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
    EXPECT_EQ(asOrdinaryUser([this] { return failureOf(folder / "other.xml"); }), 70);
    ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(FileStoreTest, ALinkIsFollowedAndStaysALink) {
    fs::create_directory(folder / "far");
    const fs::path real = folder / "far" / "real.xml";
    put(real, "old");
    fs::create_symlink("far/real.xml", folder / "middle.xml");
    fs::create_symlink("middle.xml", path);
    files.writeWhole(path, "new");
    EXPECT_EQ(contents(real), "new");
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_TRUE(fs::is_symlink(folder / "middle.xml"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "far"), {}), 1);
}

TEST_F(FileStoreTest, ALinkToAFileThatIsNotThereYetMakesThatFile) {
    fs::create_symlink("real.xml", path);
    files.writeWhole(path, "new");
    EXPECT_EQ(contents(folder / "real.xml"), "new");
    EXPECT_TRUE(fs::is_symlink(path));
}

TEST_F(FileStoreTest, ACircleOfLinksIsRefused) {
    fs::create_symlink("other.xml", path);
    fs::create_symlink("proposal.xml", folder / "other.xml");
    EXPECT_EQ(failureOf(path), 75);
    EXPECT_TRUE(fs::is_symlink(path));
}

TEST_F(FileStoreTest, ADiskThatTakesOnlyAPartLeavesTheEarlierFile) {
    put(path, "old");
    const int failure = inChild([this] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{5000, 5000};
        setrlimit(RLIMIT_FSIZE, &limit);
        return failureOf(path, std::string(20000, 'n'));
    });
    EXPECT_EQ(failure, 57);
    EXPECT_EQ(contents(path), "old");
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(FileStoreTest, AKilledWriteLeavesTheWholeOldOrTheWholeNewFile) {
    std::minstd_rand chance(20240315);
    const auto whole = [](char letter) { return std::string(letter == 'a' ? 300000 : 900000, letter); };
    std::string last = whole('a');
    put(path, last);
    int leftovers = 0;
    for (int round = 0; round < 40; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int write = 0;; ++write)
                files.writeWhole(path, whole(write % 2 == 0 ? 'b' : 'a'));
        }
        std::this_thread::sleep_for(std::chrono::microseconds(chance() % 12000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string found = contents(path);
        ASSERT_TRUE(found == whole('a') || found == whole('b'))
            << "round " << round << ", " << found.size() << " bytes";
        leftovers += static_cast<int>(names().size()) - 1;
    }
    EXPECT_GT(leftovers, 0) << "no write was killed under way";
    files.writeWhole(path, "new");
    EXPECT_EQ(names(), Names{"proposal.xml"});
}

TEST_F(FileStoreTest, OnlyLeftoversThatNobodyIsWritingAreRemoved) {
    const fs::path left = folder / ".plandesk-write-1-0";
    const fs::path busy = folder / ".plandesk-write-2-0";
    const fs::path others = folder / ".plandesk-write-notes";
    for (const fs::path& file : {left, busy, others})
        put(file, "half");
    const int lock = open(busy.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    files.writeWhole(path, "new");
    close(lock);
    EXPECT_EQ(names(), (Names{".plandesk-write-2-0", ".plandesk-write-notes", "proposal.xml"}));
}

TEST_F(FileStoreTest, ReadsLinesWithEitherEnd) {
    put(path, "one\r\ntwo\n\n four \r\nlast");
    EXPECT_EQ(linesOf(path), (Names{"one", "two", "", " four ", "last"}));
    put(path, "one\ntwo\n");
    EXPECT_EQ(linesOf(path), (Names{"one", "two"}));
    put(path, "");
    EXPECT_EQ(linesOf(path), Names{});
    put(path, "a\rb\n\r\n");
    EXPECT_EQ(linesOf(path), (Names{"a\rb", ""}));
    put(path, std::string(100000, 'x') + "\ny");
    EXPECT_EQ(linesOf(path), (Names{std::string(100000, 'x'), "y"}));
}

TEST_F(FileStoreTest, LinesThatDoNotFitIntoOneReadingAreWhole) {
    Names lines;
    std::string bytes;
    for (const std::size_t length : {65535U, 1U, 65536U, 0U, 70000U, 131072U, 3U}) {
        lines.push_back(std::string(length, static_cast<char>('a' + lines.size())));
        bytes += lines.back() + "\r\n";
    }
    put(path, bytes);
    EXPECT_EQ(linesOf(path), lines);
}

TEST_F(FileStoreTest, AByteOrderMarkIsNoPartOfTheFirstLineAndStaysElsewhere) {
    const std::string mark = "\xEF\xBB\xBF";
    put(path, mark + "one\n" + mark + "two\n");
    EXPECT_EQ(linesOf(path), (Names{"one", mark + "two"}));
    put(path, mark);
    EXPECT_EQ(linesOf(path), Names{""});
    put(path, mark + "\r\none");
    EXPECT_EQ(linesOf(path), (Names{"", "one"}));
    put(path, "\xEF\xBBone");
    EXPECT_EQ(linesOf(path), Names{"\xEF\xBBone"});
}

TEST_F(FileStoreTest, AMissingFileIsNotFoundAndAFolderCannotBeRead) {
    const auto failureOfReading = [this](const fs::path& file) {
        try {
            linesOf(file);
        } catch (const RuntimeError& error) {
            return error.number;
        }
        return 0;
    };
    EXPECT_EQ(failureOfReading(path), 53);
    EXPECT_EQ(failureOfReading(folder), 75);
}

}  // namespace
}  // namespace plandesk
