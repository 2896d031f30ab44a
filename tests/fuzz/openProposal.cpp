// Any bytes at all are opened as a proposal file.

#include "OpenBytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    plandesk::test::openBytes(data, size);
    return 0;
}
