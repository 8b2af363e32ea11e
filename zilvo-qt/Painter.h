#pragma once

#include "zilvo-qt/PaintCache.h"

#include <QPainter>
#include <vector>

namespace zilvo::qt {

/// Draws through a painter of the toolkit, from its present origin, a twip being a fifteenth of a logical pixel. As
/// long as the painter is neither turned nor stretched, all edges lie on whole pixels of the device; lines that are a
/// pixel wide in the design are equally wide everywhere, and as many whole pixels as there is room for: one up to a
/// scale of 199 %, then two. Text is laid out in those pixels too.
///
/// Colours. Those of the system come from the palette. Stated colours stay what was stated, but for one: the light grey
/// 0x00C0C0C0 was the face of the scheme when the looks were designed, and is the face in a dark palette. What is drawn
/// on a stated ground that is light although the palette is dark has the system colours of the classic scheme, which
/// was made for such grounds: a light island, with its own edges and texts. A text that stands out from its ground less
/// than in the design, and less than 4.5 to 1, is drawn in the classic colour if the system's and if that is better,
/// else mixed with white or black until it stands out.
///
/// The target's state is as before once the painter is gone; meanwhile nobody else draws with it.
class Painter final : public platform::Painter {
public:
    /// Fails with UnexpectedCall unless the target is drawing on something.
    Painter(QPainter& target, PaintCache& cache, const QPalette& palette, Metrics metrics = Metrics::Real);
    ~Painter() override;

    void rectangle(const platform::Rectangle& area, const platform::ShapeStyle& style,
                   platform::Single cornerRadius) override;
    void ellipse(const platform::Rectangle& area, const platform::ShapeStyle& style) override;
    void polygon(std::span<const platform::Point> corners, const platform::ShapeStyle& style) override;
    void line(platform::Point from, platform::Point to, platform::Colour colour, platform::Single width) override;
    void text(const platform::TextRun& run) override;
    void bitmap(const platform::Bitmap& picture, const platform::Rectangle& area) override;
    void bevel(const platform::Rectangle& area, std::span<const platform::BevelLine> lines,
               std::optional<platform::Colour> face) override;
    void roundBevel(const platform::Rectangle& area, std::span<const platform::BevelLine> lines,
                    platform::Colour face) override;
    void groove(const platform::Rectangle& area, platform::Single gapFrom, platform::Single gapTo) override;
    void focusFrame(const platform::Rectangle& area) override;
    void mark(platform::Mark mark, const platform::Rectangle& area, platform::Colour colour) override;
    void dim(const platform::Rectangle& area, platform::Colour ground) override;
    platform::Single lineWidth() const override;
    void enter(const platform::Rectangle& area) override;
    void leave() override;
    platform::Single measure(platform::StringView text, const platform::FontLook& font) const override;
    platform::LineMetrics lineMetrics(const platform::FontLook& font) const override;

private:
    /// Pixels of the device.
    struct Area {
        QPointF origin;
        QRect clip;
    };
    /// What has been painted there, and what it was stated as.
    struct Ground {
        QRect area;
        platform::Colour stated;
        QRgb painted;
    };

    qreal pixels(platform::Single twips) const;
    QPointF place(platform::Point point) const;
    /// The nearest area whose edges lie between pixels.
    QRect onGrid(const platform::Rectangle& area) const;
    /// Of that size wherever it lies, so that like marks look alike.
    QRect markOnGrid(const platform::Rectangle& area) const;
    int strokeWidth(platform::Single twips) const;

    const Ground* groundAt(QPoint at) const;
    const Scheme& schemeOn(QRgb ground) const;
    const Scheme& schemeAt(QPoint at) const;
    QRgb fillColour(platform::Colour colour, QPoint at) const;
    QRgb textColour(platform::Colour colour, QPoint at) const;

    Typeface& typeface(const platform::FontLook& font) const;
    /// The target clips to the area last entered, as far as what is drawn next needs it.
    void clipFor(const QRect& drawn);
    void fill(const QRect& area, QRgb colour);
    void frame(const QRect& area, int width, QRgb upperLeft, QRgb lowerRight);
    void image(const QImage& picture, const QRect& area);
    /// Draws with smooth edges where they are no rows and columns of pixels.
    template <class Draw>
    void shape(const platform::ShapeStyle& style, const QRect& bounds, const Draw& draw);

    QPainter& target_;
    PaintCache& cache_;
    const Scheme& scheme_;
    Metrics metrics_;
    qreal pitch_; ///< pixels of the device to one of the design
    int line_;    ///< how wide a line of one pixel is
    std::vector<Area> areas_;
    std::vector<Ground> grounds_;
    QRegion outerClip_;                          ///< what the target had been clipped to; empty for nothing
    std::optional<QRect> clip_;                  ///< what the target is clipped to now
    mutable std::shared_ptr<Typeface> typeface_; ///< the last one asked for
    const Typeface* inUse_ = nullptr;            ///< the target's font
};

} // namespace zilvo::qt
