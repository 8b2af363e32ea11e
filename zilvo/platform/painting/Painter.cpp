#include "zilvo/platform/painting/Painter.h"

#include <array>

namespace zilvo::platform {

namespace {

/// The classic grey scheme in the order of the system colours' indexes.
constexpr std::array<Rgb, 25> ClassicScheme{{
    {0xC0, 0xC0, 0xC0}, // scroll bar
    {0x00, 0x80, 0x80}, // desktop
    {0x00, 0x00, 0x80}, // active caption
    {0x80, 0x80, 0x80}, // inactive caption
    {0xC0, 0xC0, 0xC0}, // menu
    {0xFF, 0xFF, 0xFF}, // window
    {0x00, 0x00, 0x00}, // window frame
    {0x00, 0x00, 0x00}, // menu text
    {0x00, 0x00, 0x00}, // window text
    {0xFF, 0xFF, 0xFF}, // caption text
    {0xC0, 0xC0, 0xC0}, // active border
    {0xC0, 0xC0, 0xC0}, // inactive border
    {0x80, 0x80, 0x80}, // application workspace
    {0x00, 0x00, 0x80}, // highlight
    {0xFF, 0xFF, 0xFF}, // highlight text
    {0xC0, 0xC0, 0xC0}, // button face
    {0x80, 0x80, 0x80}, // button shadow
    {0x80, 0x80, 0x80}, // grey text
    {0x00, 0x00, 0x00}, // button text
    {0xC0, 0xC0, 0xC0}, // inactive caption text
    {0xFF, 0xFF, 0xFF}, // button highlight
    {0x00, 0x00, 0x00}, // 3-D dark shadow
    {0xDF, 0xDF, 0xDF}, // 3-D light
    {0x00, 0x00, 0x00}, // info text
    {0xFF, 0xFF, 0xE1}, // info background
}};

} // namespace

Rgb rgbOf(Colour colour) noexcept {
    const auto byteAt = [&](unsigned shift) { return static_cast<std::uint8_t>(colour.value >> shift); };
    if (!colour.isSystem()) return {byteAt(0), byteAt(8), byteAt(16)};
    const std::size_t index = byteAt(0);
    return index < ClassicScheme.size() ? ClassicScheme[index] : Rgb{};
}

} // namespace zilvo::platform
