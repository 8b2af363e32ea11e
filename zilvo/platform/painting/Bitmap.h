#pragma once

#include "zilvo/platform/values/Bytes.h"

#include <cstddef>
#include <span>

namespace zilvo::platform {

/// A 24-bit picture without a palette. Pixels are addressed from the top left corner.
class Bitmap {
public:
    struct Pixel {
        std::uint8_t red = 0;
        std::uint8_t green = 0;
        std::uint8_t blue = 0;

        friend constexpr bool operator==(Pixel, Pixel) noexcept = default;
    };

    /// Fails with InvalidPropertyValue unless both sides are 1 to 4096 pixels. Black without a ground.
    Bitmap(int width, int height) : Bitmap(width, height, Pixel{}) {}
    Bitmap(int width, int height, Pixel ground);

    int width() const noexcept { return width_; }
    int height() const noexcept { return height_; }

    /// Fails with SubscriptOutOfRange outside the picture.
    Pixel at(int x, int y) const { return pixels_[offsetOf(x, y)]; }
    void set(int x, int y, Pixel pixel) { pixels_[offsetOf(x, y)] = pixel; }

    /// All of them, row by row from the top.
    std::span<const Pixel> pixels() const noexcept { return pixels_; }

    /// The device-independent form: a 40-byte header, then the rows from the bottom up in blue, green, red
    /// order, each padded to a multiple of four bytes.
    Bytes deviceIndependent() const;

private:
    std::size_t offsetOf(int x, int y) const;

    int width_;
    int height_;
    std::vector<Pixel> pixels_;
};

} // namespace zilvo::platform
