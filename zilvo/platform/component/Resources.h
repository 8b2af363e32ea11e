#pragma once

#include "zilvo/platform/component/TypeInformation.h"
#include "zilvo/platform/painting/Bitmap.h"

namespace zilvo::platform {

/// What a component carries besides its code: the type library, toolbox bitmaps, interface ids, the version record.
/// Made from its description, byte for byte as a host finds it in the file.

/// A toolbox bitmap as it is drawn in the source, one letter a pixel:
///
///     .  button face   W  white        R  red      Y  yellow   G  green   C  cyan   B  blue   M  magenta
///     #  black         -  dark grey    r, y, g, c, b, m  the same, dark
struct ToolboxPicture {
    static constexpr int Width = 16;
    static constexpr int Height = 15;

    StringView className;
    std::array<std::string_view, Height> rows;

    /// Whether it has a known letter for every pixel; for static_assert.
    constexpr bool isWhole() const noexcept;
    /// Null for a letter that stands for no colour.
    static constexpr const Bitmap::Pixel* colourOf(char letter) noexcept;
};

/// The picture in pixels.
Bitmap bitmapOf(const ToolboxPicture& picture);

struct Resource {
    String type; ///< "TYPELIB", "BITMAP", "RCDATA" or "VERSION"
    String name; ///< "30015", "_IID_SSOKCANCEL", "1"
    Bytes bytes;

    friend bool operator==(const Resource&, const Resource&) = default;
};

/// All of a component's resources: the type library, bitmaps by id, interface ids in the order of the classes, the
/// version record.
std::vector<Resource> resourcesOf(const ComponentDescription& component);

namespace detail {

struct PaletteColour {
    char letter;
    Bitmap::Pixel pixel;
};
inline constexpr std::array<PaletteColour, 16> palette = {{
    {'.', {192, 192, 192}},
    {'W', {255, 255, 255}},
    {'#', {0, 0, 0}},
    {'-', {128, 128, 128}},
    {'R', {255, 0, 0}},
    {'Y', {255, 255, 0}},
    {'G', {0, 255, 0}},
    {'C', {0, 255, 255}},
    {'B', {0, 0, 255}},
    {'M', {255, 0, 255}},
    {'r', {128, 0, 0}},
    {'y', {128, 128, 0}},
    {'g', {0, 128, 0}},
    {'c', {0, 128, 128}},
    {'b', {0, 0, 128}},
    {'m', {128, 0, 128}},
}};

} // namespace detail

constexpr const Bitmap::Pixel* ToolboxPicture::colourOf(char letter) noexcept {
    for (const detail::PaletteColour& colour : detail::palette)
        if (colour.letter == letter) return &colour.pixel;
    return nullptr;
}

constexpr bool ToolboxPicture::isWhole() const noexcept {
    for (const std::string_view row : rows) {
        if (row.size() != Width) return false;
        for (const char letter : row)
            if (!colourOf(letter)) return false;
    }
    return true;
}

} // namespace zilvo::platform
