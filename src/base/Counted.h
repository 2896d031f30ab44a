#pragma once

namespace plandesk {

/// Counts one more for as long as it lives, however its scope is left.
class Counted {
public:
    explicit Counted(int& count) : count(count) { ++count; }
    ~Counted() { --count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& count;
};

}  // namespace plandesk
