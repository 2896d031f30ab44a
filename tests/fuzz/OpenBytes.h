#pragma once

#include <cstdint>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "unit/World.h"

namespace plandesk::test {

/// Opens the bytes as a proposal file in the system, and saves what was read; gives the saved file, empty when a form
/// refuses it.
inline std::string openAndSave(World& world, const void* bytes, std::size_t size) {
    static const int file = memfd_create("proposal", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    if (ftruncate(file, 0) != 0 || pwrite(file, bytes, size, 0) != static_cast<ssize_t>(size))
        return {};
    world.ports.files.contents.erase("/saved.xml");
    world.ports.dialogs.answers = {path, "/saved.xml"};
    world.shell.press("mnuOpen");
    world.shell.press("mnuSaveAs");
    const auto saved = world.ports.files.contents.find("/saved.xml");
    return saved == world.ports.files.contents.end() ? std::string() : saved->second;
}

/// The same in a fresh system.
inline void openBytes(const std::uint8_t* bytes, std::size_t size) {
    World world;
    openAndSave(world, bytes, size);
}

}  // namespace plandesk::test
