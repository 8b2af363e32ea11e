#pragma once

#include "zilvo/platform/painting/TextLayout.h"

namespace zilvo::platform::look {

/// The pieces that the classic grey 3-D look is made of. Areas in twips.

/// Which side of its caption the square or button of a check box or option button stands on.
enum class MarkSide : std::uint8_t { Left, Right };

/// A bevel of one pixel along the inside of the area.
void raised(Painter& painter, const Rectangle& area);
void sunken(Painter& painter, const Rectangle& area);
/// A raised or pressed push-button face; gives the area inside its bevel.
Rectangle buttonFace(Painter& painter, const Rectangle& area, Colour face, bool pressed, bool framed);
/// A small triangle in the middle of the area.
void arrow(Painter& painter, const Rectangle& area, bool up, bool greyed);

/// The parts of a check box or option button: its mark and what is left for its caption.
struct MarkedParts {
    Rectangle mark; ///< a square of 13 pixels, or as high as the area
    Rectangle caption;
};
MarkedParts partsOf(const Rectangle& area, MarkSide side) noexcept;

struct MarkedLook {
    StringView caption;
    FontLook font;
    Colour foreColor;
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
