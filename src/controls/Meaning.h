#pragma once

#include <string>
#include <utility>

#include "controls/Screen.h"

namespace plandesk {

/// While it lives, messages of the screen mean that control, or what the text tells, which may be nothing; so does that
/// of an error that leaves its scope. Within another one it takes that one's place.
class Meaning {
public:
    Meaning(Screen& screen, const Control& control) : Meaning(screen, Screen::Subject{&control, {}}) {}
    /// Means the control, beside which the message stands, and tells the text instead of its place.
    Meaning(Screen& screen, const Control& control, std::string text)
        : Meaning(screen, Screen::Subject{&control, std::move(text)}) {}
    Meaning(Screen& screen, std::string text) : Meaning(screen, Screen::Subject{nullptr, std::move(text)}) {}
    ~Meaning();
    Meaning(const Meaning&) = delete;
    Meaning& operator=(const Meaning&) = delete;

private:
    Meaning(Screen& screen, Screen::Subject subject);

    Screen& screen;
    Screen::Subject before;
    int exceptions;
};

}  // namespace plandesk
