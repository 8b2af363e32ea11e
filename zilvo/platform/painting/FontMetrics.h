#pragma once

#include "zilvo/platform/values/StdFont.h"

namespace zilvo::platform {

/// Built-in metrics, so that a layout is the same on every machine whatever fonts it has. All results are
/// twips.

/// The width of one line.
Single textWidth(StringView text, const FontLook& font) noexcept;

/// One line of text, from top to bottom.
struct LineMetrics {
    Single height;
    Single ascent;    ///< from its top to the baseline
    Single capHeight; ///< from the baseline to the top of a capital letter
};

/// Whole pixels.
LineMetrics lineMetrics(const FontLook& font) noexcept;

} // namespace zilvo::platform
