// The village file as it lies on the disk, beside the program.

#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "driver/Session.h"
#include "unit/RandomRounds.h"
#include "unit/ScratchFolder.h"

namespace plandesk {
namespace {

class VillageFileTest : public testing::Test {
protected:
    void put(std::string_view bytes) const {
        std::ofstream(folder.path("VILLAGENAMES.txt"), std::ios::binary) << bytes;
    }
    void expectHeld(const std::string& script) {
        std::ostringstream out;
        std::ostringstream err;
        driver::Session session(folder.path(""), "script", out, err);
        std::istringstream lines(script);
        EXPECT_EQ(session.run(lines), driver::Session::Held) << err.str();
    }

    test::ScratchFolder folder;
};

TEST_F(VillageFileTest, AByteOrderMarkIsNoPartOfTheFirstVillage) {
    put("\xEF\xBB\xBFTervale#1#TRV\r\nBalundi#2#BLN\r\n");
    expectHeld(
        "expect frmAnnexureA.cboSector.item(0) Tervale\n"
        "expect frmAnnexureA.cboSector.item(1) Balundi\n"
        "expect-no-message\n");
}

/// Kilobytes of a line of the process's status, as "VmHWM": the most memory that it had.
long statusOf(std::string_view name) {
    std::ifstream in("/proc/self/status");
    for (std::string line; std::getline(in, line);)
        if (line.starts_with(name))
            return std::stol(line.substr(name.size() + 1));
    return 0;
}

TEST_F(VillageFileTest, AHugeFileIsReadWithinThreeTimesItsSize) {
    if (test::sanitized)
        GTEST_SKIP() << "the sanitizers' own memory cannot be told apart";
    constexpr int villages = 1000000;
    const std::string line = "Tervale#1#TRV\n";
    std::string bytes;
    bytes.reserve(villages * line.size());
    for (int village = 0; village < villages; ++village)
        bytes += line;
    put(bytes);
    std::string().swap(bytes);

    // In a process of its own, whose most is counted from here on.
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::ofstream("/proc/self/clear_refs") << "5";
        const long before = statusOf("VmHWM");
        expectHeld("expect frmAnnexureA.cboSector.listcount " + std::to_string(villages) + "\nexpect-no-message\n");
        const long grown = (statusOf("VmHWM") - before) * 1024;
        const long size = villages * static_cast<long>(line.size());
        std::cout << "the memory grew by " << grown << " for " << size << " bytes\n";
        _exit(HasFailure() ? 2 : grown > size / 2 && grown < 3 * size ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << "1: too much or hardly any memory was used, 2: the list is wrong";
}

}  // namespace
}  // namespace plandesk
