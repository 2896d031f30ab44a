#include "desktop/ReviewLook.h"

#include <utility>

#include "base/RuntimeError.h"
#include "desktop/ReviewCopy.h"
#include "review/AnswerCounts.h"

namespace plandesk::desktop {

namespace {

ReviewResult lookAt(ReviewCopy& copy) {
    try {
        const std::vector<Finding> findings = review(copy.shell());
        ReviewResult result{linesOf(findings, copy.proposal()), {}};
        openNeededForms(copy.proposal());
        result.pages = pagesOf(findings, copy.proposal());
        return result;
    } catch (...) {
        return {{}, {}, failureText()};
    }
}

}  // namespace

ReviewLook::ReviewLook(const mdiInterface& shell) : shell(shell) {}

ReviewLook::~ReviewLook() {
    if (worker.joinable())
        worker.join();
}

void ReviewLook::begin() {
    if (running())
        return;
    worker = std::thread([this, of = generation, copy = std::make_unique<ReviewCopy>(shell)]() mutable {
        auto result = std::make_shared<std::unique_ptr<ReviewResult>>(std::make_unique<ReviewResult>(lookAt(*copy)));
        copy.reset();  // before the window's thread waits for the end of this one
        QMetaObject::invokeMethod(
            this, [this, of, result] { ended(of, std::move(*result)); }, Qt::QueuedConnection);
    });
}

void ReviewLook::ended(int of, std::unique_ptr<ReviewResult> result) {
    worker.join();
    done(of == generation ? std::move(result) : nullptr);
}

}  // namespace plandesk::desktop
