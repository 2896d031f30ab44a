#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "desktop/ReviewLines.h"

namespace plandesk {
class mdiInterface;
}

namespace plandesk::desktop {

/// What one look at the proposal found.
struct ReviewResult {
    ReviewGroups groups;
    std::vector<ReviewPage> pages;
    std::string failure{};  ///< why there is nothing else; usually empty
};

/// Looks a copy of the proposal through in a thread of its own. The thread has nothing of the running system but the
/// copy, and the document that was opened last, which nobody changes.
class ReviewLook : public QObject {
public:
    explicit ReviewLook(const mdiInterface& shell);
    /// Waits for a look that is under way; nobody hears of it.
    ~ReviewLook() override;

    /// Copies the proposal as it stands and begins to look; between two events of the user only. While an earlier look
    /// is under way it waits for its end: the next one is begun then by `done`'s listener.
    void begin();
    /// The proposal is about to be another one: what is being looked at now is not to be told.
    void outdate() { ++generation; }
    bool running() const { return worker.joinable(); }

    /// A look has ended, told in the window's thread. Null when it was outdated meanwhile.
    std::function<void(std::unique_ptr<ReviewResult> result)> done = [](std::unique_ptr<ReviewResult>) {};

private:
    void ended(int of, std::unique_ptr<ReviewResult> result);

    const mdiInterface& shell;
    std::thread worker;
    int generation = 0;
};

}  // namespace plandesk::desktop
