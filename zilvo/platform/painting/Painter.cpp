#include "zilvo/platform/painting/Painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

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

constexpr Single Pixel = TwipsPerPixel;

void fill(Painter& painter, const Rectangle& area, Colour colour) {
    if (area.width > 0 && area.height > 0) painter.rectangle(area, {.fill = colour, .stroke = std::nullopt});
}

/// The upper left half of a disc round (0, 0) with radius 1, as corners of a polygon.
const std::array<Point, 19>& halfDisc() {
    static const std::array<Point, 19> corners = [] {
        std::array<Point, 19> half{};
        for (std::size_t i = 0; i < half.size(); ++i) {
            const Single angle = std::numbers::pi_v<Single> * (0.75F + static_cast<Single>(i) / (half.size() - 1));
            half[i] = {std::cos(angle), std::sin(angle)};
        }
        return half;
    }();
    return corners;
}

void disc(Painter& painter, const Rectangle& area, const BevelLine& colours) {
    painter.ellipse(area, {.fill = colours.lowerRight, .stroke = std::nullopt});
    std::array<Point, 19> half = halfDisc();
    for (Point& corner : half)
        corner = {area.left + area.width / 2 * (1 + corner.x), area.top + area.height / 2 * (1 + corner.y)};
    painter.polygon(half, {.fill = colours.upperLeft, .stroke = std::nullopt});
}

} // namespace

Rgb rgbOf(Colour colour) noexcept {
    const auto byteAt = [&](unsigned shift) { return static_cast<std::uint8_t>(colour.value >> shift); };
    if (!colour.isSystem()) return {byteAt(0), byteAt(8), byteAt(16)};
    const std::size_t index = byteAt(0);
    return index < ClassicScheme.size() ? ClassicScheme[index] : Rgb{};
}

void Painter::bevel(const Rectangle& area, std::span<const BevelLine> lines, std::optional<Colour> face) {
    if (face) fill(*this, area, *face);
    Rectangle around = area;
    for (const auto& [upperLeft, lowerRight] : lines) {
        fill(*this, {around.left, around.top, around.width - Pixel, Pixel}, upperLeft);
        fill(*this, {around.left, around.top + Pixel, Pixel, around.height - 2 * Pixel}, upperLeft);
        fill(*this, {around.left, around.bottom() - Pixel, around.width, Pixel}, lowerRight);
        fill(*this, {around.right() - Pixel, around.top, Pixel, around.height - Pixel}, lowerRight);
        around = around.inset(Pixel);
    }
}

void Painter::roundBevel(const Rectangle& area, std::span<const BevelLine> lines, Colour face) {
    Rectangle around = area;
    for (const BevelLine& line : lines) {
        disc(*this, around, line);
        around = around.inset(Pixel);
    }
    ellipse(around, {.fill = face, .stroke = std::nullopt});
}

void Painter::groove(const Rectangle& area, Single gapFrom, Single gapTo) {
    // A dark frame and a light one, a pixel apart, each in five strokes so that the caption's gap stays free.
    const auto frame = [&](const Rectangle& at, Colour colour) {
        const Single gapEnd = std::min(std::max(gapFrom, gapTo), at.right());
        fill(*this, {at.left, at.top, gapFrom - at.left, Pixel}, colour);
        fill(*this, {gapEnd, at.top, at.right() - gapEnd, Pixel}, colour);
        fill(*this, {at.left, at.top, Pixel, at.height}, colour);
        fill(*this, {at.right() - Pixel, at.top, Pixel, at.height}, colour);
        fill(*this, {at.left, at.bottom() - Pixel, at.width, Pixel}, colour);
    };
    const Rectangle inner{area.left, area.top, area.width - Pixel, area.height - Pixel};
    frame({inner.left + Pixel, inner.top + Pixel, inner.width, inner.height}, colours::ButtonHighlight);
    frame(inner, colours::ButtonShadow);
}

void Painter::focusFrame(const Rectangle& area) {
    rectangle(area, {.fill = std::nullopt, .stroke = colours::ButtonText, .dotted = true});
}

void Painter::mark(Mark mark, const Rectangle& area, Colour colour) {
    const ShapeStyle style{.fill = colour, .stroke = std::nullopt};
    const auto draw = [&](std::span<const Point> corners) { polygon(corners, style); };
    const Point middle{area.left + area.width / 2, area.top + area.height / 2};
    switch (mark) {
    case Mark::Tick: {
        const auto at = [&](Single x, Single y) { return Point{area.left + x * Pixel, area.top + y * Pixel}; };
        return draw(std::array{at(3, 5), at(5, 7), at(10, 2), at(10, 5), at(5, 10), at(3, 8)});
    }
    case Mark::Dot:
        return ellipse(area, style);
    case Mark::UpArrow:
        return draw(
            std::array<Point, 3>{{{area.left, area.bottom()}, {area.right(), area.bottom()}, {middle.x, area.top}}});
    case Mark::DownArrow:
        return draw(std::array<Point, 3>{{{area.left, area.top}, {area.right(), area.top}, {middle.x, area.bottom()}}});
    case Mark::RightArrow:
        return draw(
            std::array<Point, 3>{{{area.left, area.top}, {area.left, area.bottom()}, {area.right(), middle.y}}});
    }
}

void Painter::dim(const Rectangle& area, Colour ground) {
    constexpr Single Most = 4096; // columns are seen on any screen; in a wider area they are wider
    const Single column = std::max(Pixel, area.width / (2 * Most));
    const auto columns = static_cast<int>(std::min(Most, area.width / (2 * column))); // also when it is no number
    for (int i = 0; i < columns; ++i)
        fill(*this, {area.left + static_cast<Single>(2 * i) * column, area.top, column, area.height}, ground);
}

} // namespace zilvo::platform
