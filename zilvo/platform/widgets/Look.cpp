#include "zilvo/platform/widgets/Look.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zilvo::platform::look {

namespace {

constexpr Single Pixel = TwipsPerPixel;
constexpr Single MarkSize = 13 * Pixel;

void fill(Painter& painter, const Rectangle& area, Rgb colour) {
    if (area.width > 0 && area.height > 0) painter.rectangle(area, {.fill = colour, .stroke = std::nullopt});
}

/// The upper and left edges in one colour, the lower and right ones in another, one pixel wide.
void edges(Painter& painter, const Rectangle& area, Rgb upperLeft, Rgb lowerRight) {
    fill(painter, {area.left, area.top, area.width - Pixel, Pixel}, upperLeft);
    fill(painter, {area.left, area.top + Pixel, Pixel, area.height - 2 * Pixel}, upperLeft);
    fill(painter, {area.left, area.bottom() - Pixel, area.width, Pixel}, lowerRight);
    fill(painter, {area.right() - Pixel, area.top, Pixel, area.height - Pixel}, lowerRight);
}

/// A disc whose upper left half has one colour and whose lower right half another.
void disc(Painter& painter, const Rectangle& area, Rgb upperLeft, Rgb lowerRight) {
    painter.ellipse(area, {.fill = lowerRight, .stroke = std::nullopt});
    std::array<Point, 19> half{};
    for (std::size_t i = 0; i < half.size(); ++i) {
        const Single angle = std::numbers::pi_v<Single> * (0.75F + static_cast<Single>(i) / (half.size() - 1));
        half[i] = {area.left + area.width / 2 * (1 + std::cos(angle)),
                   area.top + area.height / 2 * (1 + std::sin(angle))};
    }
    painter.polygon(half, {.fill = upperLeft, .stroke = std::nullopt});
}

void captionBeside(Painter& painter, const Rectangle& area, const MarkedLook& look) {
    const MarkedParts parts = partsOf(area, look.side);
    if (look.caption.empty()) {
        if (look.focused) focus(painter, parts.mark.inset(3 * Pixel));
        return;
    }
    const CaptionLook caption{.designed = look.caption,
                              .font = look.font,
                              .colour = look.foreColor,
                              .across = look.side == MarkSide::Left ? Alignment::Near : Alignment::Far,
                              .greyed = !look.enabled};
    Rectangle room = parts.caption;
    if (look.side == MarkSide::Left && measureCaption(painter, room, caption).width > room.width)
        room = {room.left - 3 * Pixel, room.top, room.width + 3 * Pixel, room.height};
    const Rectangle text = paintCaption(painter, room, caption);
    if (!look.focused) return;
    const Rectangle around = text.inset(-Pixel);
    const Single left = std::max(around.left, area.left);
    const Single top = std::max(around.top, area.top);
    focus(painter,
          {left, top, std::min(around.right(), area.right()) - left, std::min(around.bottom(), area.bottom()) - top});
}

} // namespace

void raised(Painter& painter, const Rectangle& area) {
    edges(painter, area, White, Shadow);
}

void sunken(Painter& painter, const Rectangle& area) {
    edges(painter, area, Shadow, White);
}

void etched(Painter& painter, const Rectangle& area, Single gapFrom, Single gapTo) {
    // A dark frame and a light one, a pixel apart, each in five strokes so that the caption's gap stays free.
    const auto frame = [&](const Rectangle& at, Rgb colour) {
        const Single gapEnd = std::min(std::max(gapFrom, gapTo), at.right());
        fill(painter, {at.left, at.top, gapFrom - at.left, Pixel}, colour);
        fill(painter, {gapEnd, at.top, at.right() - gapEnd, Pixel}, colour);
        fill(painter, {at.left, at.top, Pixel, at.height}, colour);
        fill(painter, {at.right() - Pixel, at.top, Pixel, at.height}, colour);
        fill(painter, {at.left, at.bottom() - Pixel, at.width, Pixel}, colour);
    };
    const Rectangle inner{area.left, area.top, area.width - Pixel, area.height - Pixel};
    frame({inner.left + Pixel, inner.top + Pixel, inner.width, inner.height}, White);
    frame(inner, Shadow);
}

void focus(Painter& painter, const Rectangle& area) {
    painter.rectangle(area, {.fill = std::nullopt, .stroke = Black, .dotted = true});
}

Rectangle buttonFace(Painter& painter, const Rectangle& area, Rgb face, bool pressed, bool framed) {
    fill(painter, area, face);
    const Rectangle inner = framed ? area.inset(Pixel) : area;
    if (framed) edges(painter, area, Black, Black);
    if (pressed) {
        edges(painter, inner, Shadow, White);
        edges(painter, inner.inset(Pixel), Black, Light);
    } else {
        edges(painter, inner, White, Black);
        edges(painter, inner.inset(Pixel), Light, Shadow);
    }
    return inner.inset(2 * Pixel);
}

void dim(Painter& painter, const Rectangle& area, Rgb ground) {
    constexpr Single Most = 4096; // columns are seen on any screen; in a wider area they are wider
    const Single column = std::max(Pixel, area.width / (2 * Most));
    const auto columns = static_cast<int>(std::min(Most, area.width / (2 * column))); // also when it is no number
    for (int i = 0; i < columns; ++i)
        fill(painter, {area.left + static_cast<Single>(2 * i) * column, area.top, column, area.height}, ground);
}

void arrow(Painter& painter, const Rectangle& area, bool up, bool greyed) {
    const Single reach = std::max(Pixel, std::min({4 * Pixel, area.width / 4, area.height / 3}));
    const Point middle{area.left + area.width / 2, area.top + area.height / 2};
    const Single tip = up ? -reach / 2 : reach / 2;
    const std::array<Point, 3> corners = {
        Point{middle.x - reach, middle.y - tip}, {middle.x + reach, middle.y - tip}, {middle.x, middle.y + tip}};
    painter.polygon(corners, {.fill = greyed ? Shadow : Black, .stroke = std::nullopt});
}

void tick(Painter& painter, Point corner, Rgb colour) {
    const auto at = [&](Single x, Single y) { return Point{corner.x + x * Pixel, corner.y + y * Pixel}; };
    const std::array<Point, 6> corners = {at(3, 5), at(5, 7), at(10, 2), at(10, 5), at(5, 10), at(3, 8)};
    painter.polygon(corners, {.fill = colour, .stroke = std::nullopt});
}

MarkedParts partsOf(const Rectangle& area, MarkSide side) noexcept {
    const Single size = std::min(MarkSize, std::floor(area.height / Pixel) * Pixel);
    const Single top = area.top + std::floor((area.height - size) / 2 / Pixel) * Pixel;
    // A caption in front of its mark is close to it, and far from what stands in front of the caption.
    const Single gap = side == MarkSide::Left ? 4 * Pixel : Pixel;
    const Single rest = std::max(Single{0}, area.width - size - gap);
    if (side == MarkSide::Left)
        return {{area.left, top, size, size}, {area.left + size + gap, area.top, rest, area.height}};
    return {{area.right() - size, top, size, size}, {area.left, area.top, rest, area.height}};
}

void option(Painter& painter, const Rectangle& area, const MarkedLook& look, bool selected) {
    const Rectangle mark = partsOf(area, look.side).mark;
    const Rgb ground = look.pressed || !look.enabled ? Face : White;
    disc(painter, mark, Shadow, White);
    disc(painter, mark.inset(Pixel), Black, Light);
    painter.ellipse(mark.inset(2 * Pixel), {.fill = ground, .stroke = std::nullopt});
    if (selected)
        painter.ellipse(mark.inset(4 * Pixel), {.fill = look.enabled ? Black : Shadow, .stroke = std::nullopt});
    captionBeside(painter, area, look);
}

void check(Painter& painter, const Rectangle& area, const MarkedLook& look, CheckState state) {
    const Rectangle square = partsOf(area, look.side).mark;
    const bool greyed = look.pressed || !look.enabled || state == CheckState::Greyed;
    fill(painter, square, greyed ? Face : White);
    edges(painter, square, Shadow, White);
    edges(painter, square.inset(Pixel), Black, Light);
    if (state != CheckState::Clear)
        tick(painter, {square.left, square.top}, look.enabled && state == CheckState::Ticked ? Black : Shadow);
    captionBeside(painter, area, look);
}

} // namespace zilvo::platform::look
