// Real proposal files with changed, dropped, doubled and swapped elements are opened, saved and opened again: the
// changes keep the file well-formed more often than not, so that they reach the readers of all blocks.

#include "ChangedXml.h"
#include "OpenBytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    plandesk::test::World world;
    const std::string saved = plandesk::test::openAndSave(world, data, size);
    if (!saved.empty())
        plandesk::test::openAndSave(world, saved.data(), saved.size());
    return 0;
}
