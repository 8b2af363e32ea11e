#include "zilvo/platform/painting/FontMetrics.h"

#include "zilvo/platform/values/Text.h"
#include "zilvo/platform/values/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zilvo::platform {

namespace {

/// What sets a family apart from an ordinary proportional sans; the last two are in em.
struct Family {
    StringView name;
    double width;
    double boldWidth;
    double ascent;
    double descent;
};

constexpr Family Ordinary{u"", 1.0, 1.07, 0.905, 0.212};
constexpr std::array Peculiar{
    Family{u"Comic Sans MS", 1.05, 1.05 * 1.07, 1.102, 0.292},
    Family{u"Arial Black", 1.2, 1.2, 1.1, 0.31}, // as heavy as it gets
};

const Family& familyOf(const FontLook& font) noexcept {
    const auto found = std::find_if(Peculiar.begin(), Peculiar.end(),
                                    [&](const Family& family) { return sameName(family.name, font.name); });
    return found != Peculiar.end() ? *found : Ordinary;
}

constexpr bool isBold(const FontLook& font) noexcept {
    return font.weight > 550;
}

/// The size in twips.
double emOf(const FontLook& font) noexcept {
    return std::isfinite(font.size) && font.size > 0 ? double{font.size} * double{TwipsPerPoint} : 0.0;
}

constexpr char32_t FirstPrintable = 0x20;
/// The advances of U+0020 to U+007E in 1/1000 em.
constexpr std::array<std::int16_t, 95> Advances{
    278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278, // blank to /
    556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, // 0 to ?
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778, // @ to O
    667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556, // P to _
    333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556, // ` to o
    556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584,      // p to ~
};

struct Range {
    char32_t first;
    char32_t last;
    std::int16_t advance;
};
constexpr std::int16_t OtherAdvance = 600;
constexpr std::array Others{
    Range{0x0009, 0x0009, 278},    // a tab is drawn as a blank
    Range{0x00A0, 0x00A0, 278},    // no-break space
    Range{0x0300, 0x036F, 0},      // combining marks
    Range{0x1100, 0x115F, 1000},   // Hangul initials
    Range{0x200B, 0x200F, 0},      // zero-width marks
    Range{0x2E80, 0xA4CF, 1000},   // East Asian
    Range{0xAC00, 0xD7A3, 1000},   // Hangul
    Range{0xF900, 0xFAFF, 1000},   // ideographs
    Range{0xFE00, 0xFE0F, 0},      // variation selectors
    Range{0xFE30, 0xFE6F, 1000},   // East Asian forms
    Range{0xFF00, 0xFF60, 1000},   // full width
    Range{0xFFE0, 0xFFE6, 1000},   // full width
    Range{0x1F300, 0x1FAFF, 1000}, // emoji
    Range{0x20000, 0x3FFFF, 1000}, // ideographs
};

std::int16_t advanceOf(char32_t point) noexcept {
    if (point >= FirstPrintable && point < FirstPrintable + Advances.size()) return Advances[point - FirstPrintable];
    for (const Range& range : Others)
        if (point >= range.first && point <= range.last) return range.advance;
    return OtherAdvance;
}

/// Rounded up, so that nothing sticks out of a line.
double upToPixels(double twips) noexcept {
    return std::ceil(twips / double{TwipsPerPixel}) * double{TwipsPerPixel};
}

} // namespace

Single textWidth(StringView text, const FontLook& font) noexcept {
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        const bool paired = (point & 0xFC00U) == 0xD800U && i + 1 < text.size() && (text[i + 1] & 0xFC00U) == 0xDC00U;
        if (paired) point = 0x10000 + ((point - 0xD800) << 10) + (text[++i] - 0xDC00U);
        sum += advanceOf(point);
    }
    const Family& family = familyOf(font);
    const double factor = isBold(font) ? family.boldWidth : family.width;
    return static_cast<Single>(static_cast<double>(sum) / 1000 * emOf(font) * factor);
}

LineMetrics lineMetrics(const FontLook& font) noexcept {
    constexpr double CapitalsOfEm = 0.72;
    const double em = emOf(font);
    const Family& family = familyOf(font);
    const auto ascent = static_cast<Single>(upToPixels(em * family.ascent));
    const auto descent = static_cast<Single>(upToPixels(em * family.descent));
    return {ascent + descent, ascent, static_cast<Single>(upToPixels(em * CapitalsOfEm))};
}

} // namespace zilvo::platform
