#pragma once

#include "zilvo/platform/values/Kinds.h"

#include <cmath>

namespace zilvo::platform {

/// The designed resolution: 1440 twips and 96 pixels to the inch.
inline constexpr Single TwipsPerPixel = 15;
inline constexpr Single TwipsPerPoint = 20;

/// The unit in which a container's children are placed from code.
enum class ScaleMode : std::uint8_t { Twips, Pixels };

constexpr Single twipsPerUnit(ScaleMode mode) noexcept {
    return mode == ScaleMode::Pixels ? TwipsPerPixel : Single{1};
}

/// Rounded to whole pixels of the designed resolution.
inline Single wholePixels(Single twips) noexcept {
    return std::round(twips / TwipsPerPixel) * TwipsPerPixel;
}

/// A point and an area in twips, measured from the top left corner of the surface or container they lie in.
struct Point {
    Single x = 0;
    Single y = 0;
};

struct Rectangle {
    Single left = 0;
    Single top = 0;
    Single width = 0;
    Single height = 0;

    constexpr Single right() const noexcept { return left + width; }
    constexpr Single bottom() const noexcept { return top + height; }
    constexpr bool contains(Point point) const noexcept {
        return point.x >= left && point.x < right() && point.y >= top && point.y < bottom();
    }
    /// The area smaller by `margin` on every side, never below nothing.
    constexpr Rectangle inset(Single margin) const noexcept {
        const Single across = width - 2 * margin;
        const Single down = height - 2 * margin;
        return {left + margin, top + margin, across > 0 ? across : 0, down > 0 ? down : 0};
    }
    /// The nearest area whose edges lie between pixels of the designed resolution.
    Rectangle onWholePixels() const noexcept {
        const Single from = wholePixels(left);
        const Single down = wholePixels(top);
        return {from, down, wholePixels(right()) - from, wholePixels(bottom()) - down};
    }
};

} // namespace zilvo::platform
