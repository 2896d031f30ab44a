#include "controls/Meaning.h"

#include <exception>
#include <utility>

namespace plandesk {

Meaning::Meaning(Screen& screen, Screen::Subject subject)
    : screen(screen),
      before(std::exchange(screen.subject, std::move(subject))),
      exceptions(std::uncaught_exceptions()) {
    screen.failed = {};
}

Meaning::~Meaning() {
    // The innermost one that an error leaves knows best.
    if (std::uncaught_exceptions() > exceptions && screen.failed.empty())
        screen.failed = std::move(screen.subject);
    screen.subject = std::move(before);
}

}  // namespace plandesk
