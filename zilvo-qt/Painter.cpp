#include "zilvo-qt/Painter.h"

#include "zilvo/platform/values/Status.h"

#include <QPaintDevice>
#include <algorithm>
#include <cmath>

namespace zilvo::qt {

using namespace platform;

namespace {

constexpr QRect Endless{-(1 << 22), -(1 << 22), 1 << 23, 1 << 23};

/// The nearest edge between two pixels; what is no number is none.
int edge(qreal pixels) {
    return std::isfinite(pixels) ? static_cast<int>(std::floor(std::clamp(pixels, -4e6, 4e6) + 0.5)) : 0;
}

/// Kinds of picture that a cache has: these, and above them the marks.
constexpr int BitmapPicture = 0;
constexpr int RoundBevelPicture = 1;
constexpr int FirstMarkPicture = 2;

QImage transparent(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// Drawn with its corner at 0, 0 in a square or area of that size.
QPolygonF outlineOf(Mark mark, QSizeF size) {
    const qreal right = size.width();
    const qreal bottom = size.height();
    switch (mark) {
    case Mark::Tick: {
        const qreal pixel = right / 13;
        QPolygonF tick{{3, 5}, {5, 7}, {10, 2}, {10, 5}, {5, 10}, {3, 8}};
        for (QPointF& corner : tick)
            corner *= pixel;
        return tick;
    }
    case Mark::UpArrow:
        return {{{0, bottom}, {right, bottom}, {right / 2, 0}}};
    case Mark::DownArrow:
        return {{{0, 0}, {right, 0}, {right / 2, bottom}}};
    case Mark::RightArrow:
        return {{{0, 0}, {0, bottom}, {right, bottom / 2}}};
    case Mark::Dot:
        break;
    }
    return {};
}

QImage markPicture(Mark mark, QSize size, bool crisp, QRgb colour) {
    QImage image = transparent(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, mark == Mark::Dot || !crisp);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(colour));
    if (mark == Mark::Dot)
        painter.drawEllipse(image.rect());
    else
        painter.drawPolygon(outlineOf(mark, size));
    return image;
}

} // namespace

Painter::Painter(QPainter& target, PaintCache& cache, const QPalette& palette, Metrics metrics)
    : target_(target), cache_(cache), scheme_(cache.scheme(palette)), metrics_(metrics) {
    if (!target.isActive()) throw Failure(Status::UnexpectedCall, "the painter is not drawing on anything");
    target.save();
    const QTransform toDevice = target.deviceTransform();
    const qreal scale = uprightScale(toDevice);
    pitch_ = scale > 0 ? scale : target.device()->devicePixelRatioF();
    line_ = std::max(1, qFloor(pitch_ + 1e-6));
    // From here on the target's unit is a pixel of the device; unless it is turned, counted from the device's corner.
    target.setWorldTransform((scale > 0 ? toDevice.inverted() : QTransform::fromScale(1 / pitch_, 1 / pitch_)) *
                             target.worldTransform());
    areas_.push_back({scale > 0 ? QPointF(toDevice.dx(), toDevice.dy()) : QPointF(), Endless});
    if (target.hasClipping()) outerClip_ = target.clipRegion();
    target.setPen(Qt::NoPen);
    target.setBrush(Qt::NoBrush);
}

Painter::~Painter() {
    target_.restore();
}

// ---- Places

qreal Painter::pixels(Single twips) const {
    return qreal{twips} / TwipsPerPixel * pitch_;
}

QPointF Painter::place(Point point) const {
    return areas_.back().origin + QPointF(pixels(point.x), pixels(point.y));
}

QRect Painter::onGrid(const Rectangle& area) const {
    const QPointF from = place({area.left, area.top});
    const QPointF to = place({area.right(), area.bottom()});
    const int left = edge(from.x());
    const int top = edge(from.y());
    return {left, top, edge(to.x()) - left, edge(to.y()) - top};
}

QRect Painter::markOnGrid(const Rectangle& area) const {
    const QPointF corner = place({area.left, area.top});
    const QSize most(256, 256); // a mark is small; a larger one is not worth a picture
    const QSize size(edge(pixels(area.width)), edge(pixels(area.height)));
    return {QPoint(edge(corner.x()), edge(corner.y())), size.boundedTo(most)};
}

int Painter::strokeWidth(Single twips) const {
    return twips > TwipsPerPixel ? std::max(line_, edge(pixels(twips))) : line_;
}

void Painter::enter(const Rectangle& area) {
    const QRect entered = onGrid(area);
    areas_.push_back({place({area.left, area.top}), areas_.back().clip & entered});
}

void Painter::leave() {
    if (areas_.size() > 1) areas_.pop_back();
}

// ---- Colours

const Painter::Ground* Painter::groundAt(QPoint at) const {
    const auto found =
        std::find_if(grounds_.rbegin(), grounds_.rend(), [at](const Ground& each) { return each.area.contains(at); });
    return found != grounds_.rend() ? &*found : nullptr;
}

const Scheme& Painter::schemeOn(QRgb ground) const {
    return scheme_.isDark() && !Scheme::isDark(ground) ? cache_.classicScheme() : scheme_;
}

const Scheme& Painter::schemeAt(QPoint at) const {
    const Ground* ground = scheme_.isDark() ? groundAt(at) : nullptr;
    return ground ? schemeOn(ground->painted) : scheme_;
}

QRgb Painter::fillColour(Colour colour, QPoint at) const {
    const Scheme& scheme = schemeAt(at);
    return scheme[colour == colours::LightGrey && scheme.isDark() ? colours::ButtonFace : colour];
}

QRgb Painter::textColour(Colour colour, QPoint at) const {
    const Ground* ground = groundAt(at);
    if (!ground) return scheme_[colour];
    const Scheme& classic = cache_.classicScheme();
    const auto contrast = [ground](QRgb text) { return Scheme::contrast(text, ground->painted); };
    constexpr double readable = 4.5;
    const double enough = std::min(readable, Scheme::contrast(classic[colour], classic[ground->stated]));
    QRgb painted = schemeOn(ground->painted)[colour];
    // The light edge of greyed text is not there to be read.
    if (colour == colours::ButtonHighlight || contrast(painted) >= enough) return painted;
    if (colour.isSystem()) return contrast(classic[colour]) > contrast(painted) ? classic[colour] : painted;
    const int away = Scheme::isDark(ground->painted) ? 255 : 0;
    for (int tries = 0; tries < 16 && contrast(painted) < enough; ++tries)
        painted = Scheme::mixed(painted, qRgb(away, away, away), 0.15);
    return painted;
}

// ---- Shapes

void Painter::clipFor(const QRect& drawn) {
    const QRect& clip = areas_.back().clip;
    if (!clip_ && clip.contains(drawn)) return;
    if (clip_ && clip_->contains(drawn & clip) && clip.contains(drawn & *clip_)) return;
    clip_ = clip;
    if (outerClip_.isEmpty())
        target_.setClipRect(clip);
    else
        target_.setClipRegion(outerClip_ & clip);
}

void Painter::fill(const QRect& area, QRgb colour) {
    const QRect seen = area & areas_.back().clip;
    if (seen.isEmpty()) return;
    clipFor(seen);
    target_.fillRect(seen, QColor::fromRgb(colour));
}

void Painter::frame(const QRect& area, int width, QRgb upperLeft, QRgb lowerRight) {
    if (area.isEmpty()) return;
    const int across = std::min(width, area.width());
    const int down = std::min(width, area.height());
    fill({area.left(), area.top(), area.width() - across, down}, upperLeft);
    fill({area.left(), area.top() + down, across, area.height() - 2 * down}, upperLeft);
    fill({area.left(), area.bottom() + 1 - down, area.width(), down}, lowerRight);
    fill({area.right() + 1 - across, area.top(), across, area.height() - down}, lowerRight);
}

void Painter::image(const QImage& picture, const QRect& area) {
    const QRect seen = area & areas_.back().clip;
    if (seen.isEmpty()) return;
    clipFor(seen);
    target_.drawImage(seen.topLeft(), picture, seen.translated(-area.topLeft()));
}

template <class Draw>
void Painter::shape(const ShapeStyle& style, const QRect& bounds, const Draw& draw) {
    if ((bounds & areas_.back().clip).isEmpty() || (!style.fill && !style.stroke)) return;
    clipFor(bounds);
    const QPoint middle = bounds.center();
    const auto brush = [&](Colour colour) { return QColor::fromRgb(fillColour(colour, middle)); };
    target_.setRenderHint(QPainter::Antialiasing);
    if (style.fill) target_.setBrush(brush(*style.fill));
    if (style.stroke)
        target_.setPen(
            QPen(brush(*style.stroke), strokeWidth(style.strokeWidth), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    draw();
    target_.setPen(Qt::NoPen);
    target_.setBrush(Qt::NoBrush);
    target_.setRenderHint(QPainter::Antialiasing, false);
    if (style.fill) grounds_.push_back({bounds, *style.fill, fillColour(*style.fill, middle)});
}

void Painter::rectangle(const Rectangle& area, const ShapeStyle& style, Single cornerRadius) {
    if (style.dotted) return focusFrame(area);
    const QRect drawn = onGrid(area);
    if (!(area.width > 0) || !(area.height > 0) || drawn.isEmpty()) return;
    if (cornerRadius > 0)
        return shape(style, drawn, [&] {
            const qreal half = style.stroke ? strokeWidth(style.strokeWidth) / 2.0 : 0;
            const qreal radius = std::max(0.0, pixels(cornerRadius) - half);
            target_.drawRoundedRect(QRectF(drawn).adjusted(half, half, -half, -half), radius, radius);
        });
    const QPoint middle = drawn.center();
    const QRgb outline = style.stroke ? fillColour(*style.stroke, middle) : 0;
    if (style.fill) {
        const QRgb colour = fillColour(*style.fill, middle);
        fill(drawn, colour);
        grounds_.push_back({drawn & areas_.back().clip, *style.fill, colour});
    }
    if (style.stroke) frame(drawn, strokeWidth(style.strokeWidth), outline, outline);
}

void Painter::ellipse(const Rectangle& area, const ShapeStyle& style) {
    if (!(area.width > 0) || !(area.height > 0)) return;
    const QRect drawn = onGrid(area);
    shape(style, drawn, [&] {
        const qreal half = style.stroke ? strokeWidth(style.strokeWidth) / 2.0 : 0;
        target_.drawEllipse(QRectF(drawn).adjusted(half, half, -half, -half));
    });
}

void Painter::polygon(std::span<const Point> corners, const ShapeStyle& style) {
    const qreal shift = style.stroke ? strokeWidth(style.strokeWidth) / 2.0 : 0;
    QPolygonF outline;
    for (const Point& corner : corners)
        outline += place(corner) + QPointF(shift, shift);
    const int margin = edge(2 * shift) + 1;
    shape(style, outline.boundingRect().toAlignedRect().adjusted(-margin, -margin, margin, margin),
          [&] { target_.drawPolygon(outline); });
}

void Painter::line(Point from, Point to, Colour colour, Single width) {
    const int thickness = strokeWidth(width);
    const QPointF start = place(from);
    const QPointF end = place(to);
    if (from.x == to.x || from.y == to.y) {
        if (from.x == to.x && from.y == to.y) return;
        const QRect along(QPoint(edge(std::min(start.x(), end.x())), edge(std::min(start.y(), end.y()))),
                          QSize(edge(std::abs(end.x() - start.x())), edge(std::abs(end.y() - start.y()))));
        return fill({along.topLeft(),
                     along.size().expandedTo({from.x == to.x ? thickness : 0, from.y == to.y ? thickness : 0})},
                    fillColour(colour, along.topLeft()));
    }
    const QPointF middle(thickness / 2.0, thickness / 2.0);
    const QRect bounds = QRectF(start, end).normalized().toAlignedRect().adjusted(0, 0, thickness, thickness);
    shape({.fill = {}, .stroke = colour, .strokeWidth = width}, bounds,
          [&] { target_.drawLine(start + middle, end + middle); });
}

void Painter::bitmap(const Bitmap& picture, const Rectangle& area) {
    const QRect drawn = onGrid(area);
    if ((drawn & areas_.back().clip).isEmpty()) return;
    const auto pixels = std::as_bytes(picture.pixels());
    const QSize own(picture.width(), picture.height());
    // By its contents: what is at an address may be another picture the next time.
    const auto contents = qHashBits(pixels.data(), pixels.size());
    const QImage shown =
        cache_.picture({BitmapPicture,
                        drawn.size(),
                        {contents, static_cast<std::size_t>(own.width()), static_cast<std::size_t>(own.height())}},
                       [&] {
                           QImage image(own, QImage::Format_RGB32);
                           for (int y = 0; y < own.height(); ++y)
                               for (int x = 0; x < own.width(); ++x) {
                                   const Bitmap::Pixel pixel = picture.at(x, y);
                                   image.setPixel(x, y, qRgb(pixel.red, pixel.green, pixel.blue));
                               }
                           const bool wholeTimes =
                               drawn.width() % own.width() == 0 && drawn.height() % own.height() == 0;
                           return image.scaled(drawn.size(), Qt::IgnoreAspectRatio,
                                               wholeTimes ? Qt::FastTransformation : Qt::SmoothTransformation);
                       });
    image(shown, drawn);
}

// ---- The classic look

void Painter::bevel(const Rectangle& area, std::span<const BevelLine> lines, std::optional<Colour> face) {
    QRect around = onGrid(area);
    if (around.isEmpty()) return;
    const Scheme* scheme = &schemeAt(around.topLeft());
    if (face) {
        const QRgb colour = fillColour(*face, around.center());
        const int inside = static_cast<int>(lines.size()) * line_;
        fill(around.adjusted(inside, inside, -inside, -inside), colour);
        grounds_.push_back({around & areas_.back().clip, *face, colour});
        scheme = &schemeOn(colour);
    }
    for (const auto& [upperLeft, lowerRight] : lines) {
        frame(around, line_, (*scheme)[upperLeft], (*scheme)[lowerRight]);
        around.adjust(line_, line_, -line_, -line_);
    }
}

void Painter::roundBevel(const Rectangle& area, std::span<const BevelLine> lines, Colour face) {
    const QRect drawn = markOnGrid(area);
    if (drawn.isEmpty()) return;
    const Scheme& scheme = schemeAt(drawn.center());
    PaintCache::PictureKey key{RoundBevelPicture, drawn.size(), {}};
    std::size_t part = 0;
    key.parts[part++] = scheme[face];
    for (const auto& [upperLeft, lowerRight] : lines)
        if (part < key.parts.size()) key.parts[part++] = std::size_t{scheme[upperLeft]} << 32U | scheme[lowerRight];
    const QImage disc = cache_.picture(key, [&] {
        QImage image = transparent(drawn.size());
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        QRectF around = image.rect();
        for (const auto& [upperLeft, lowerRight] : lines) {
            constexpr int degree = 16;
            painter.setBrush(QColor::fromRgb(scheme[lowerRight]));
            painter.drawEllipse(around);
            painter.setBrush(QColor::fromRgb(scheme[upperLeft]));
            painter.drawChord(around, 45 * degree, 180 * degree);
            around.adjust(pitch_, pitch_, -pitch_, -pitch_);
        }
        painter.setBrush(QColor::fromRgb(scheme[face]));
        painter.drawEllipse(around);
        return image;
    });
    image(disc, drawn);
    grounds_.push_back({drawn & areas_.back().clip, face, scheme[face]});
}

void Painter::groove(const Rectangle& area, Single gapFrom, Single gapTo) {
    const QRect whole = onGrid(area);
    const int from = edge(place({gapFrom, 0}).x());
    const int to = edge(place({std::max(gapFrom, gapTo), 0}).x());
    const Scheme& scheme = schemeAt(whole.center());
    const auto line = [&](const QRect& at, QRgb colour) {
        const int right = at.right() + 1;
        fill({at.left(), at.top(), from - at.left(), line_}, colour);
        fill({to, at.top(), right - to, line_}, colour);
        fill({at.left(), at.top(), line_, at.height()}, colour);
        fill({right - line_, at.top(), line_, at.height()}, colour);
        fill({at.left(), at.bottom() + 1 - line_, at.width(), line_}, colour);
    };
    line(whole.adjusted(line_, line_, 0, 0), scheme[colours::ButtonHighlight]);
    line(whole.adjusted(0, 0, -line_, -line_), scheme[colours::ButtonShadow]);
}

void Painter::focusFrame(const Rectangle& area) {
    const QRect around = onGrid(area);
    const QRect seen = around & areas_.back().clip;
    if (seen.isEmpty()) return;
    const QRgb colour = schemeAt(around.center())[colours::ButtonText];
    const auto dot = [&](int x, int y) { fill({x, y, line_, line_}, colour); };
    // Counted from the corner, so that dots and gaps go on round the corners.
    const int right = around.right() + 1 - line_;
    const int bottom = around.bottom() + 1 - line_;
    const int step = 2 * line_;
    for (int x = around.left() + line_; x <= right; x += step) {
        dot(x, around.top());
        dot(x, bottom);
    }
    for (int y = around.top() + line_; y <= bottom; y += step) {
        dot(around.left(), y);
        dot(right, y);
    }
}

void Painter::mark(Mark mark, const Rectangle& area, Colour colour) {
    const QRect drawn = markOnGrid(area);
    if (drawn.isEmpty()) return;
    const QRgb painted = schemeAt(drawn.center())[colour];
    const bool crisp = pitch_ == line_;
    image(cache_.picture({FirstMarkPicture + static_cast<int>(mark), drawn.size(), {painted, crisp}},
                         [&] { return markPicture(mark, drawn.size(), crisp, painted); }),
          drawn);
}

void Painter::dim(const Rectangle& area, Colour ground) {
    const QRect whole = onGrid(area);
    const QRect seen = whole & areas_.back().clip;
    if (seen.isEmpty()) return;
    const QRgb colour = fillColour(ground, whole.topLeft());
    const int step = 2 * line_;
    const int first = whole.left() + (seen.left() - whole.left()) / step * step;
    for (int x = first; x <= seen.right(); x += step)
        fill({x, whole.top(), line_, whole.height()}, colour);
}

Single Painter::lineWidth() const {
    return static_cast<Single>(line_ / pitch_ * TwipsPerPixel);
}

// ---- Text

Typeface& Painter::typeface(const FontLook& font) const {
    const FontKey key(font, pitch_, target_.device()->logicalDpiY());
    if (!typeface_ || typeface_->key() != key) typeface_ = cache_.typeface(key, *target_.device());
    return *typeface_;
}

Single Painter::measure(StringView text, const FontLook& font) const {
    if (metrics_ == Metrics::BuiltIn) return platform::Painter::measure(text, font);
    if (text.empty()) return 0;
    return static_cast<Single>(typeface(font).line(text).width / pitch_ * TwipsPerPixel);
}

LineMetrics Painter::lineMetrics(const FontLook& font) const {
    return metrics_ == Metrics::BuiltIn ? platform::Painter::lineMetrics(font) : typeface(font).metrics();
}

void Painter::text(const TextRun& run) {
    if (run.text.empty()) return;
    Typeface& face = typeface(run.font);
    Typeface::Line& line = face.line(run.text);
    const qreal wanted = std::isfinite(run.width) && run.width > 0 ? pixels(run.width) : line.width;
    const qreal fitted = metrics_ == Metrics::BuiltIn && line.width > 0 ? wanted / line.width : 1;
    const qreal rest = wanted - line.width * fitted;
    const qreal shift = run.align == Alignment::Near ? 0 : run.align == Alignment::Centre ? rest / 2 : rest;
    const QPointF origin = place(run.origin);
    const QPoint baseline(edge(origin.x() + shift), edge(origin.y()));

    const int ascent = qCeil(line.ascent);
    const QRect room(baseline.x() - ascent / 2, baseline.y() - ascent, qCeil(line.width * fitted) + ascent, 2 * ascent);
    if ((room & areas_.back().clip).isEmpty()) return;
    clipFor(room);
    const QPoint middle(baseline.x() + qFloor(wanted / 2), baseline.y() - ascent / 3);
    const QRgb colour = textColour(run.colour, middle);
    if (inUse_ != &face) target_.setFont(face.font());
    inUse_ = &face;
    target_.setPen(QColor::fromRgb(colour));
    const QPointF corner(baseline.x(), baseline.y() - line.ascent);
    if (fitted == 1) {
        target_.drawStaticText(corner, line.text);
    } else {
        const QTransform before = target_.worldTransform();
        target_.setWorldTransform(QTransform(fitted, 0, 0, 1, corner.x(), corner.y()) * before);
        target_.drawStaticText(QPointF(), line.text);
        target_.setWorldTransform(before);
    }
    target_.setPen(Qt::NoPen);
    if (run.underlined >= run.text.size()) return;
    const auto& rule = face.rule(line, run.underlined);
    const int from = baseline.x() + edge(rule.from * fitted);
    fill({from, baseline.y() + line_, std::max(line_, baseline.x() + edge(rule.to * fitted) - from), line_}, colour);
}

} // namespace zilvo::qt
