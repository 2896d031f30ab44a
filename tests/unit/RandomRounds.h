#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>

namespace plandesk::test {

/// Under sanitizers everything takes several times as long, and memory beside the program's own.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool sanitized = true;
#elif defined(__has_feature)
constexpr bool sanitized = __has_feature(address_sanitizer);
#else
constexpr bool sanitized = false;
#endif

/// How often a test does its random work, and from which seed on. PLANDESK_SEED of the environment repeats the one
/// round that was begun with that seed; PLANDESK_ROUNDS asks for another number.
struct RandomRounds {
    RandomRounds(int plain, int underSanitizers) : count(sanitized ? underSanitizers : plain) {
        if (const char* one = std::getenv("PLANDESK_SEED")) {
            seed = std::strtoull(one, nullptr, 10);
            count = 1;
        }
        if (const char* many = std::getenv("PLANDESK_ROUNDS"))
            count = std::atoi(many);
        std::cout << "seeds from " << seed << std::endl;
    }

    int count;
    std::uint64_t seed = std::random_device{}();
};

}  // namespace plandesk::test
