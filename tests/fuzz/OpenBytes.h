#pragma once

#include <cstdint>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "unit/World.h"

namespace plandesk::test {

/// Opens the bytes as a proposal file in a fresh system, and saves what was read.
inline void openBytes(const std::uint8_t* bytes, std::size_t size) {
    static const int file = memfd_create("proposal", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    if (ftruncate(file, 0) != 0 || pwrite(file, bytes, size, 0) != static_cast<ssize_t>(size))
        return;
    World world;
    world.ports.dialogs.answers = {path, "/saved.xml"};
    world.shell.press("mnuOpen");
    world.shell.press("mnuSaveAs");
}

}  // namespace plandesk::test
