#pragma once

#include <string>
#include <utility>

#include "controls/Screen.h"

namespace plandesk {

/// While it lives, messages of the screen mean that control, or what the text tells; so does that of an error that
/// leaves its scope. Within another one it takes that one's place.
class Meaning {
public:
    Meaning(Screen& screen, const Control& control) : Meaning(screen, Screen::Subject{&control, {}}) {}
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
