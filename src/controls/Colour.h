#pragma once

#include <cstdint>
#include <string>

namespace plandesk {

/// A colour as red, green, blue.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour&) const = default;

    /// "RRGGBB", red first.
    std::string text() const;
};

/// The platform writes colours as blue-green-red numbers: 0x669DC6 is blue 66, green 9D, red C6.
constexpr Colour fromBlueGreenRed(std::uint32_t number) {
    return {static_cast<std::uint8_t>(number & 0xFFU), static_cast<std::uint8_t>((number >> 8U) & 0xFFU),
            static_cast<std::uint8_t>((number >> 16U) & 0xFFU)};
}

inline constexpr Colour white{0xFF, 0xFF, 0xFF};
inline constexpr Colour disabledGrey{0xE0, 0xE0, 0xE0};
inline constexpr Colour red = fromBlueGreenRed(0x0000FF);
inline constexpr Colour blue = fromBlueGreenRed(0xFF0000);
inline constexpr Colour black{};

}  // namespace plandesk
