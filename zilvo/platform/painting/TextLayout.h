#pragma once

#include "zilvo/platform/painting/Painter.h"

namespace zilvo::platform {

/// A caption to be laid out: `designed` may hold an access-key mark ("&OK").
struct CaptionLook {
    StringView designed;
    FontLook font;
    Colour colour;
    Alignment across = Alignment::Centre;
    Alignment down = Alignment::Centre;
    /// Greyed text is embossed: light one pixel to the right and below, grey on top; `colour` is not used.
    bool greyed = false;
    /// Broken at blanks into lines no wider than the area; a word that is wider stays whole. A line feed or
    /// carriage return breaks a line in any case.
    bool wraps = true;
};

/// Draws the caption in the area and gives the area that its lines take up, which may be larger.
Rectangle paintCaption(Painter& painter, const Rectangle& area, const CaptionLook& look);

/// The area that paintCaption would take up.
Rectangle measureCaption(const Painter& painter, const Rectangle& area, const CaptionLook& look);

} // namespace zilvo::platform
