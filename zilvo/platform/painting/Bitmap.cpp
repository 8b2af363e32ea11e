#include "zilvo/platform/painting/Bitmap.h"

#include "zilvo/platform/values/Status.h"

#include <string>

namespace zilvo::platform {

namespace {

constexpr int LongestSide = 4096;

/// Checks before the pixels are allocated.
int checkedSide(int pixels, const char* which) {
    if (pixels < 1 || pixels > LongestSide)
        throw Failure(Status::InvalidPropertyValue, std::string("the bitmap's ") + which + " of " +
                                                        std::to_string(pixels) + " pixels is not 1 to " +
                                                        std::to_string(LongestSide));
    return pixels;
}

} // namespace

Bitmap::Bitmap(int width, int height, Pixel ground)
    : width_(checkedSide(width, "width")),
      height_(checkedSide(height, "height")),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), ground) {}

std::size_t Bitmap::offsetOf(int x, int y) const {
    if (x < 0 || x >= width_ || y < 0 || y >= height_)
        throw Failure(Status::SubscriptOutOfRange, "the pixel " + std::to_string(x) + ", " + std::to_string(y) +
                                                       " is outside a bitmap of " + std::to_string(width_) + " by " +
                                                       std::to_string(height_));
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
}

Bytes Bitmap::deviceIndependent() const {
    constexpr std::uint32_t headerBytes = 40;
    constexpr std::uint32_t planes = 1;
    constexpr std::uint32_t bitsPerPixel = 24;
    const auto across = static_cast<std::uint32_t>(width_);
    const auto down = static_cast<std::uint32_t>(height_);
    const std::uint32_t padding = (4 - across * 3 % 4) % 4;
    const std::uint32_t imageBytes = (across * 3 + padding) * down;

    Bytes out;
    out.reserve(headerBytes + imageBytes);
    appendLittleEndian(out, headerBytes, 4);
    appendLittleEndian(out, across, 4);
    appendLittleEndian(out, down, 4); // positive: bottom-up
    appendLittleEndian(out, planes, 2);
    appendLittleEndian(out, bitsPerPixel, 2);
    appendLittleEndian(out, 0, 4); // not compressed
    appendLittleEndian(out, imageBytes, 4);
    out.resize(headerBytes); // no resolution and no palette
    for (int y = height_ - 1; y >= 0; --y) {
        for (int x = 0; x < width_; ++x) {
            const Pixel pixel = at(x, y);
            out.insert(out.end(), {pixel.blue, pixel.green, pixel.red});
        }
        out.insert(out.end(), padding, 0);
    }
    return out;
}

} // namespace zilvo::platform
