#pragma once

#include "zilvo/platform/values/StdFont.h"

namespace zilvo::platform {

/// Built-in metrics, so that a layout is the same on every machine whatever fonts it has. All results are
/// twips.

/// The width of one line.
Single textWidth(StringView text, const FontLook& font) noexcept;

/// The height of one line and how far its baseline lies below its top: whole pixels.
Single lineHeight(const FontLook& font) noexcept;
Single ascent(const FontLook& font) noexcept;
/// From the baseline to the top of a capital letter, whole pixels too.
Single capHeight(const FontLook& font) noexcept;

} // namespace zilvo::platform
