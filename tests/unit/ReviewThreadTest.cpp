// A review runs in another thread while the system that it was copied from goes on.

#include <future>
#include <random>

#include <gtest/gtest.h>

#include "review/AnswerCounts.h"
#include "review/Review.h"
#include "review/ReviewCopy.h"
#include "unit/FormEvents.h"

namespace plandesk::test {
namespace {

std::string linesOf(const std::vector<Finding>& findings) {
    std::string lines;
    for (const Finding& finding : findings)
        lines += lineOf(finding) + '\n';
    return lines;
}

std::string lookAt(ReviewCopy& copy) {
    std::string found = linesOf(review(copy.shell()));
    openNeededForms(copy.proposal());
    for (const PageCount& count : countAnswers(copy.proposal()))
        found += count.form + ' ' + std::to_string(count.page) + ' ' + std::to_string(count.answered) + '/' +
                 std::to_string(count.shown) + '\n';
    return found;
}

TEST(ReviewThread, FindsWhatStoodWhenTheCopyWasMadeWhateverTheUserDoesMeanwhile) {
    std::mt19937 engine(7);
    for (int round = 0; round < 12; ++round) {
        FormEvents world;
        world.ports.files.contents["/plans/proposal.xml"] = "<INWARDINFO></INWARDINFO>";
        std::vector<std::uint8_t> random(600);
        for (std::uint8_t& byte : random)
            byte = static_cast<std::uint8_t>(engine() >> 8);
        random.front() = static_cast<std::uint8_t>(round);
        Bytes bytes(random);
        world.start(bytes);
        while (!bytes.empty() && !world.proposal.screen.ended()) {
            for (int event = 0; event < 5 && !bytes.empty(); ++event)
                world.act(bytes);
            ReviewCopy first(world.shell);
            const std::string expected = lookAt(first);
            ReviewCopy copy(world.shell);
            std::future<std::string> found = std::async(std::launch::async, [&copy] { return lookAt(copy); });
            while (!bytes.empty() && found.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
                world.act(bytes);
            ASSERT_EQ(found.get(), expected);
        }
    }
}

}  // namespace
}  // namespace plandesk::test
