#include "desktop/ReviewLook.h"

#include <utility>

#include "base/RuntimeError.h"
#include "review/AnswerCounts.h"
#include "review/ReviewCopy.h"

namespace plandesk::desktop {

namespace {

ReviewResult lookAt(ReviewCopy& copy) {
    try {
        const std::vector<Finding> findings = review(copy.shell());
        // Also the forms that nobody has opened yet are called by their names.
        openNeededForms(copy.proposal());
        for (const Finding& finding : findings)
            copy.proposal().forms.touch(finding.form);
        return {linesOf(findings, copy.proposal()), pagesOf(findings, copy.proposal())};
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
