#pragma once

#include "zilvo/platform/painting/Bitmap.h"
#include "zilvo/platform/painting/FontMetrics.h"
#include "zilvo/platform/values/Units.h"

#include <exception>
#include <optional>
#include <span>

namespace zilvo::platform {

/// A colour as it is drawn; system colours have been looked up.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend constexpr bool operator==(Rgb, Rgb) noexcept = default;
};

/// Looks a colour up in the classic scheme; an unknown system colour is black.
Rgb rgbOf(Colour colour) noexcept;

/// How an outline and its inside are drawn. Without a fill the inside is left as it is; without a stroke
/// there is no outline. A stroke is at least one pixel wide. That of a rectangle or an ellipse lies inside
/// its area, so that a frame is exactly as large as its area.
struct ShapeStyle {
    std::optional<Colour> fill;
    std::optional<Colour> stroke;
    Single strokeWidth = TwipsPerPixel;
    bool dotted = false;
};

/// Where something lies in what has room for it.
enum class Alignment : std::uint8_t { Near, Centre, Far };

/// One line of text. `origin` is the left end of the baseline; `width` is what measure() gave for it, and the
/// painter keeps to it whatever font it ends up with, or else at least to the edge or the middle that is aligned.
struct TextRun {
    StringView text;
    Point origin;
    Single width = 0;
    Alignment align = Alignment::Near;
    FontLook font;
    Colour colour;
    /// The letter to underline as an access key; npos for none.
    std::size_t underlined = String::npos;
};

/// One line of a bevel, a pixel wide all round: the light comes from the upper left.
struct BevelLine {
    Colour upperLeft;
    Colour lowerRight;
};

/// What stands in the marks of widgets and menus. Arrows point where they are named after and fill their area, as a
/// dot does; a tick stands in a square of 12 or 13 pixels.
enum class Mark : std::uint8_t { Tick, Dot, UpArrow, DownArrow, RightArrow };

/// The only way to draw. Positions and sizes are twips from the top left corner of the area last entered. Colours come
/// as they are stated: the painter looks up those of the system in its own scheme. A painter throws a Failure when its
/// target fails.
class Painter {
public:
    Painter() = default;
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;
    virtual ~Painter() = default;

    /// An area without width or height is not drawn.
    virtual void rectangle(const Rectangle& area, const ShapeStyle& style, Single cornerRadius = 0) = 0;
    virtual void ellipse(const Rectangle& area, const ShapeStyle& style) = 0;
    /// Without a stroke exactly what lies between the corners; a stroke runs as line() would from each corner
    /// to the next, to the right of and below them, and the fill reaches up to it.
    virtual void polygon(std::span<const Point> corners, const ShapeStyle& style) = 0;
    /// Covers the pixels to the right of and below its points, without the one at its far end: from (0, 0) to
    /// (150, 0) is the first ten pixels of the top row; the last row of an area is at bottom() - width.
    virtual void line(Point from, Point to, Colour colour, Single width = TwipsPerPixel) = 0;
    virtual void text(const TextRun& run) = 0;
    /// Draws the bitmap stretched over `area`.
    virtual void bitmap(const Bitmap& picture, const Rectangle& area) = 0;

    // What the classic look is made of. The defaults draw it with the shapes above; a painter on a grid of pixels other
    // than the designed one has its own, so that all lines are equally wide and none falls between two pixels.

    /// Lines along the inside of the area, from the outside in and next to each other, round the face.
    virtual void bevel(const Rectangle& area, std::span<const BevelLine> lines, std::optional<Colour> face = {});
    /// The same as rings round a disc.
    virtual void roundBevel(const Rectangle& area, std::span<const BevelLine> lines, Colour face);
    /// A groove along the inside of the area, interrupted at the top between the two positions.
    virtual void groove(const Rectangle& area, Single gapFrom, Single gapTo);
    /// The dotted frame of the widget that has the keyboard.
    virtual void focusFrame(const Rectangle& area);
    virtual void mark(Mark mark, const Rectangle& area, Colour colour);
    /// Greys what is drawn in the area: every other column of pixels in the ground's colour.
    virtual void dim(const Rectangle& area, Colour ground);

    /// How wide the lines of the look are, and how far the two colours of greyed text lie apart.
    virtual Single lineWidth() const { return TwipsPerPixel; }

    /// Until the matching leave(), positions count from the area's corner and nothing is drawn outside it.
    virtual void enter(const Rectangle& area) = 0;
    virtual void leave() = 0;

    // How large text is, in twips: by the built-in metrics unless the painter has fonts of its own.

    /// The width of one line.
    virtual Single measure(StringView text, const FontLook& font) const { return textWidth(text, font); }
    virtual LineMetrics lineMetrics(const FontLook& font) const { return platform::lineMetrics(font); }
};

/// Enters an area for the length of a scope. A painter that fails to leave it fails the scope; when the scope has
/// failed already, that first failure goes on.
class PaintedArea {
public:
    PaintedArea(Painter& painter, const Rectangle& area) : painter_(painter) { painter_.enter(area); }
    ~PaintedArea() noexcept(false) {
        if (std::uncaught_exceptions() == failures_) {
            painter_.leave();
            return;
        }
        try {
            painter_.leave();
        } catch (...) {
        }
    }
    PaintedArea(const PaintedArea&) = delete;
    PaintedArea& operator=(const PaintedArea&) = delete;

private:
    Painter& painter_;
    int failures_ = std::uncaught_exceptions();
};

} // namespace zilvo::platform
