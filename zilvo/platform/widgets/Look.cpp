#include "zilvo/platform/widgets/Look.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zilvo::platform::look {

namespace {

constexpr Single Pixel = TwipsPerPixel;
constexpr Single MarkSize = 13 * Pixel;

constexpr BevelLine Raised{colours::ButtonHighlight, colours::ButtonShadow};
constexpr BevelLine Sunken{colours::ButtonShadow, colours::ButtonHighlight};
constexpr std::array SunkenMark{Sunken, BevelLine{colours::ButtonDarkShadow, colours::ButtonLight}};

void captionBeside(Painter& painter, const Rectangle& area, const MarkedLook& look) {
    const MarkedParts parts = partsOf(area, look.side);
    if (look.caption.empty()) {
        if (look.focused) painter.focusFrame(parts.mark.inset(3 * Pixel));
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
    painter.focusFrame(
        {left, top, std::min(around.right(), area.right()) - left, std::min(around.bottom(), area.bottom()) - top});
}

} // namespace

void raised(Painter& painter, const Rectangle& area) {
    painter.bevel(area, {&Raised, 1});
}

void sunken(Painter& painter, const Rectangle& area) {
    painter.bevel(area, {&Sunken, 1});
}

Rectangle buttonFace(Painter& painter, const Rectangle& area, Colour face, bool pressed, bool framed) {
    constexpr BevelLine Frame{colours::WindowFrame, colours::WindowFrame};
    static constexpr std::array Up{Frame, BevelLine{colours::ButtonHighlight, colours::ButtonDarkShadow},
                                   BevelLine{colours::ButtonLight, colours::ButtonShadow}};
    static constexpr std::array Down{Frame, SunkenMark[0], SunkenMark[1]};
    const std::span<const BevelLine> lines = std::span(pressed ? Down : Up).subspan(framed ? 0 : 1);
    painter.bevel(area, lines, face);
    return area.inset(static_cast<Single>(lines.size()) * Pixel);
}

void arrow(Painter& painter, const Rectangle& area, bool up, bool greyed) {
    const Single reach = std::max(Pixel, std::min({4 * Pixel, area.width / 4, area.height / 3}));
    const Point middle{area.left + area.width / 2, area.top + area.height / 2};
    painter.mark(up ? Mark::UpArrow : Mark::DownArrow, {middle.x - reach, middle.y - reach / 2, 2 * reach, reach},
                 greyed ? colours::GreyText : colours::ButtonText);
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
    const bool greyed = look.pressed || !look.enabled;
    painter.roundBevel(mark, SunkenMark, greyed ? colours::ButtonFace : colours::WindowBackground);
    if (selected)
        painter.mark(Mark::Dot, mark.inset(4 * Pixel), look.enabled ? colours::WindowText : colours::GreyText);
    captionBeside(painter, area, look);
}

void check(Painter& painter, const Rectangle& area, const MarkedLook& look, CheckState state) {
    const Rectangle square = partsOf(area, look.side).mark;
    const bool greyed = look.pressed || !look.enabled || state == CheckState::Greyed;
    painter.bevel(square, SunkenMark, greyed ? colours::ButtonFace : colours::WindowBackground);
    if (state != CheckState::Clear) {
        const bool isPlain = look.enabled && state == CheckState::Ticked;
        painter.mark(Mark::Tick, square, isPlain ? colours::WindowText : colours::GreyText);
    }
    captionBeside(painter, area, look);
}

} // namespace zilvo::platform::look
