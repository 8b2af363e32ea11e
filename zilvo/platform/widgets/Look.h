#pragma once

#include "zilvo/platform/painting/TextLayout.h"

namespace zilvo::platform::look {

/// The pieces that the classic grey 3-D look is made of. Areas in twips.

inline constexpr Rgb White{255, 255, 255};
inline constexpr Rgb Light{223, 223, 223};
inline constexpr Rgb Face{192, 192, 192};
inline constexpr Rgb Shadow{128, 128, 128};
inline constexpr Rgb Black{0, 0, 0};

/// Which side of its caption the square or button of a check box or option button stands on.
enum class MarkSide : std::uint8_t { Left, Right };

/// A bevel of one pixel along the inside of the area.
void raised(Painter& painter, const Rectangle& area);
void sunken(Painter& painter, const Rectangle& area);
/// A groove along the inside of the area, interrupted at the top between the two positions.
void etched(Painter& painter, const Rectangle& area, Single gapFrom, Single gapTo);
/// The dotted frame of the widget that has the keyboard.
void focus(Painter& painter, const Rectangle& area);
/// A raised or pressed push-button face; gives the area inside its bevel.
Rectangle buttonFace(Painter& painter, const Rectangle& area, Rgb face, bool pressed, bool framed);
/// Greys what is drawn in the area: every other column of pixels in the ground's colour.
void dim(Painter& painter, const Rectangle& area, Rgb ground);
/// A small triangle in the middle of the area.
void arrow(Painter& painter, const Rectangle& area, bool up, bool greyed);
/// The tick of a check box or a checked menu item, in a square of 12 or 13 pixels at `corner`.
void tick(Painter& painter, Point corner, Rgb colour);

/// The parts of a check box or option button: its mark and what is left for its caption.
struct MarkedParts {
    Rectangle mark; ///< a square of 13 pixels, or as high as the area
    Rectangle caption;
};
MarkedParts partsOf(const Rectangle& area, MarkSide side) noexcept;

struct MarkedLook {
    StringView caption;
    FontLook font;
    Rgb foreColor;
    MarkSide side;
    bool enabled;
    bool focused;
    bool pressed;
};
/// A round mark, filled with a dot when selected, and its caption.
void option(Painter& painter, const Rectangle& area, const MarkedLook& look, bool selected);

enum class CheckState : std::uint8_t { Clear, Ticked, Greyed };
/// A square mark and its caption.
void check(Painter& painter, const Rectangle& area, const MarkedLook& look, CheckState state);

} // namespace zilvo::platform::look
