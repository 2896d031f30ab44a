#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plandesk {

/// Texts one behind the other in one piece of memory, for lists that may be very long.
class TextList {
public:
    std::size_t size() const { return ends.size(); }
    /// Valid until the list changes. `place` is less than `size`.
    std::string_view operator[](std::size_t place) const;
    /// RuntimeError 7 beyond four gigabytes.
    void add(std::string_view text);
    void clear();

private:
    std::string bytes;
    std::vector<std::uint32_t> ends;  ///< where in `bytes` each text ends
};

}  // namespace plandesk
