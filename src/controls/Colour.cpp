#include "controls/Colour.h"

#include <string_view>

namespace plandesk {

std::string Colour::text() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string hex;
    for (const std::uint8_t part : {red, green, blue}) {
        hex += digits[part >> 4U];
        hex += digits[part & 0xFU];
    }
    return hex;
}

}  // namespace plandesk
