#pragma once

#include "zilvo/platform/painting/Painter.h"

namespace zilvo::platform {

/// Draws into an SVG document, one user unit to the pixel. Needs nothing but memory.
class SvgPainter final : public Painter {
public:
    /// The size of the picture in twips; what lies outside is clipped.
    SvgPainter(Single width, Single height);

    void rectangle(const Rectangle& area, const ShapeStyle& style, Single cornerRadius) override;
    void ellipse(const Rectangle& area, const ShapeStyle& style) override;
    void polygon(std::span<const Point> corners, const ShapeStyle& style) override;
    void line(Point from, Point to, Colour colour, Single width) override;
    void text(const TextRun& run) override;
    void bitmap(const Bitmap& picture, const Rectangle& area) override;
    void enter(const Rectangle& area) override;
    void leave() override;

    /// The whole document, UTF-8; areas that have not been left are closed in it.
    std::string document() const;

private:
    std::string out_;
    std::size_t depth_ = 0; ///< areas entered and not left
};

} // namespace zilvo::platform
