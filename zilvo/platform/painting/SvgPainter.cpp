#include "zilvo/platform/painting/SvgPainter.h"

#include "zilvo/platform/values/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <map>

namespace zilvo::platform {

namespace {

void appendInteger(std::string& out, std::int64_t value) {
    std::array<char, 24> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    out.append(digits.data(), result.ptr);
}

/// At most two decimals. What no viewer could draw is kept within bounds; what is no number is 0.
void appendNumber(std::string& out, double value) {
    constexpr double farthest = 1e7;
    const double kept = std::isfinite(value) ? std::clamp(value, -farthest, farthest) : 0.0;
    const std::int64_t hundredths = std::llround(kept * 100);
    const std::int64_t magnitude = std::abs(hundredths);
    const std::int64_t decimals = magnitude % 100;
    if (hundredths < 0) out += '-';
    appendInteger(out, magnitude / 100);
    if (decimals == 0) return;
    out += '.';
    out += static_cast<char>('0' + decimals / 10);
    if (decimals % 10 != 0) out += static_cast<char>('0' + decimals % 10);
}

void appendPixels(std::string& out, Single twips) {
    appendNumber(out, double{twips} / double{TwipsPerPixel});
}

void appendAttribute(std::string& out, std::string_view name, Single twips) {
    out.append(" ").append(name).append("=\"");
    appendPixels(out, twips);
    out += '"';
}

void appendPlace(std::string& out, const Rectangle& area) {
    appendAttribute(out, "x", area.left);
    appendAttribute(out, "y", area.top);
    appendAttribute(out, "width", std::max(area.width, Single{0}));
    appendAttribute(out, "height", std::max(area.height, Single{0}));
}

void appendRgb(std::string& out, std::string_view name, Rgb colour) {
    constexpr std::string_view digits = "0123456789abcdef";
    out.append(" ").append(name).append("=\"#");
    for (const unsigned part : {colour.red, colour.green, colour.blue}) {
        out += digits[part >> 4U];
        out += digits[part & 15U];
    }
    out += '"';
}

void appendColour(std::string& out, std::string_view name, Colour colour) {
    appendRgb(out, name, rgbOf(colour));
}

/// A stroke thinner than a pixel could fall between the pixels.
Single strokeWidthOf(Single width) noexcept {
    return std::isfinite(width) ? std::max(width, TwipsPerPixel) : TwipsPerPixel;
}

/// Twips; 0 without a stroke.
Single strokeWidthOf(const ShapeStyle& style) noexcept {
    return style.stroke ? strokeWidthOf(style.strokeWidth) : Single{0};
}

bool drawsSomething(const Rectangle& area, const ShapeStyle& style) noexcept {
    return area.width > 0 && area.height > 0 && (style.fill || style.stroke);
}

/// Nothing is left inside the stroke: the stroke is all there is. An outline without extent would not be
/// drawn.
bool isAllStroke(const Rectangle& area, const ShapeStyle& style) noexcept {
    return style.stroke && std::min(area.width, area.height) <= strokeWidthOf(style);
}

void appendStyle(std::string& out, const ShapeStyle& style) {
    if (style.fill)
        appendColour(out, "fill", *style.fill);
    else
        out += " fill=\"none\"";
    if (!style.stroke) return;
    const Single width = strokeWidthOf(style);
    appendColour(out, "stroke", *style.stroke);
    if (width != TwipsPerPixel) appendAttribute(out, "stroke-width", width);
    if (!style.dotted) return;
    // Outlines start in the middle of a corner's pixel. That one is a gap: a dot there would be drawn in two
    // parts.
    out += " stroke-dasharray=\"";
    appendPixels(out, width);
    out += ',';
    appendPixels(out, width);
    out += '"';
    appendAttribute(out, "stroke-dashoffset", width * 1.5F);
}

/// Overrides the document's crisp edges where they would make steps of a slope or a curve.
constexpr std::string_view Smooth = " shape-rendering=\"geometricPrecision\"";

constexpr bool isAxisParallel(Point from, Point to) noexcept {
    return from.x == to.x || from.y == to.y;
}

void appendPoint(std::string& out, Point point, Single shift) {
    appendPixels(out, point.x + shift);
    out += ' ';
    appendPixels(out, point.y + shift);
}

/// Escaped for text and for attributes, as UTF-8. White space becomes a blank; what a document must or should
/// not hold becomes U+FFFD (lone surrogates on the way to UTF-8).
std::string escaped(StringView text) {
    String clean(text);
    for (char16_t& unit : clean) {
        if (unit == u'\t' || unit == u'\n' || unit == u'\r')
            unit = u' ';
        else if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit >= 0xFFFE)
            unit = 0xFFFD;
    }
    std::string out;
    for (const char unit : toUtf8(clean)) {
        switch (unit) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += unit;
        }
    }
    return out;
}

struct Stack {
    StringView name;
    std::string_view families;
    int weight; ///< 0: as asked for
};
constexpr std::array Stacks{
    Stack{u"MS Sans Serif", "'MS Sans Serif','Microsoft Sans Serif',Arial,Helvetica,sans-serif", 0},
    Stack{u"Comic Sans MS", "'Comic Sans MS','Comic Neue','Comic Relief',sans-serif", 0},
    // Weight 900 keeps the families behind it heavy too.
    Stack{u"Arial Black", "'Arial Black','Archivo Black',Arial,Helvetica,sans-serif", 900},
    Stack{u"Arial", "Arial,Helvetica,sans-serif", 0},
};

/// A name as a quoted string of a style sheet.
std::string quotedFamily(StringView name) {
    String out = u"'";
    for (const char16_t unit : name) {
        if (unit == u'\'' || unit == u'\\') out += u'\\';
        out += unit;
    }
    out += u'\'';
    return escaped(out);
}

void appendFont(std::string& out, const FontLook& font) {
    const auto known =
        std::find_if(Stacks.begin(), Stacks.end(), [&](const Stack& stack) { return sameName(stack.name, font.name); });
    int weight = std::clamp((font.weight + 50) / 100, 1, 9) * 100;
    out += " font-family=\"";
    if (known != Stacks.end()) {
        out += known->families;
        if (known->weight != 0) weight = known->weight;
    } else {
        if (!font.name.empty()) out.append(quotedFamily(font.name)).append(",");
        out += "sans-serif";
    }
    out += '"';
    appendAttribute(out, "font-size", font.size * TwipsPerPoint);
    if (weight != 400) {
        out += " font-weight=\"";
        appendInteger(out, weight);
        out += '"';
    }
    if (font.italic) out += " font-style=\"italic\"";
    if (font.underline || font.strikethrough) {
        out += " text-decoration=\"";
        if (font.underline) out += "underline";
        if (font.underline && font.strikethrough) out += ' ';
        if (font.strikethrough) out += "line-through";
        out += '"';
    }
}

/// The access key with a rule under it that goes where the letter goes; a pair of surrogates is one letter.
std::string markedText(const TextRun& run) {
    if (run.underlined >= run.text.size()) return escaped(run.text);
    const auto isSurrogate = [&](std::size_t at, unsigned mark) {
        return at < run.text.size() && (run.text[at] & 0xFC00U) == mark;
    };
    const std::size_t at = run.underlined;
    const std::size_t units = isSurrogate(at, 0xD800U) && isSurrogate(at + 1, 0xDC00U) ? 2 : 1;
    return escaped(run.text.substr(0, at)) + "<tspan text-decoration=\"underline\">" +
           escaped(run.text.substr(at, units)) + "</tspan>" + escaped(run.text.substr(at + units));
}

/// The aligned end or middle of the run: it stays where it is in a viewer that does not keep to the run's width.
void appendAnchor(std::string& out, const TextRun& run) {
    const bool isMeasured = std::isfinite(run.width) && run.width > 0;
    const Single reach = run.align == Alignment::Near || !isMeasured ? 0
                         : run.align == Alignment::Centre            ? run.width / 2
                                                                     : run.width;
    appendAttribute(out, "x", run.origin.x + reach);
    appendAttribute(out, "y", run.origin.y);
    if (reach > 0) out += run.align == Alignment::Centre ? " text-anchor=\"middle\"" : " text-anchor=\"end\"";
    if (!isMeasured) return;
    appendAttribute(out, "textLength", run.width);
    out += " lengthAdjust=\"spacingAndGlyphs\"";
}

/// Each colour's pixels as horizontal runs, one user unit to the pixel; every pixel belongs to exactly one
/// run.
std::map<std::uint32_t, std::string> runsOf(const Bitmap& picture) {
    std::map<std::uint32_t, std::string> runs;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width();) {
            const Bitmap::Pixel pixel = picture.at(x, y);
            int end = x + 1;
            while (end < picture.width() && picture.at(end, y) == pixel)
                ++end;
            std::string& out = runs[std::uint32_t{pixel.red} << 16U | std::uint32_t{pixel.green} << 8U | pixel.blue];
            out += 'M';
            appendInteger(out, x);
            out += ' ';
            appendInteger(out, y);
            out += 'h';
            appendInteger(out, end - x);
            out += "v1h";
            appendInteger(out, x - end);
            out += 'z';
            x = end;
        }
    }
    return runs;
}

} // namespace

SvgPainter::SvgPainter(Single width, Single height) {
    out_ = "<svg xmlns=\"http://www.w3.org/2000/svg\"";
    appendAttribute(out_, "width", std::max(width, Single{0}));
    appendAttribute(out_, "height", std::max(height, Single{0}));
    out_ += " viewBox=\"0 0 ";
    appendPoint(out_, {std::max(width, Single{0}), std::max(height, Single{0})}, 0);
    out_ += "\" shape-rendering=\"crispEdges\">";
}

void SvgPainter::rectangle(const Rectangle& area, const ShapeStyle& style, Single cornerRadius) {
    if (!drawsSomething(area, style)) return;
    if (isAllStroke(area, style)) return rectangle(area, {.fill = style.stroke, .stroke = {}}, cornerRadius);
    const Single half = strokeWidthOf(style) / 2;
    out_ += "<rect";
    appendPlace(out_, area.inset(half));
    if (cornerRadius > half) {
        appendAttribute(out_, "rx", cornerRadius - half);
        out_ += Smooth;
    }
    appendStyle(out_, style);
    out_ += "/>";
}

void SvgPainter::ellipse(const Rectangle& area, const ShapeStyle& style) {
    if (!drawsSomething(area, style)) return;
    if (isAllStroke(area, style)) return ellipse(area, {.fill = style.stroke, .stroke = {}});
    const Rectangle outline = area.inset(strokeWidthOf(style) / 2);
    out_ += "<ellipse";
    appendAttribute(out_, "cx", area.left + area.width / 2);
    appendAttribute(out_, "cy", area.top + area.height / 2);
    appendAttribute(out_, "rx", outline.width / 2);
    appendAttribute(out_, "ry", outline.height / 2);
    out_ += Smooth;
    appendStyle(out_, style);
    out_ += "/>";
}

void SvgPainter::polygon(std::span<const Point> corners, const ShapeStyle& style) {
    if (corners.empty() || (!style.fill && !style.stroke)) return;
    const Single shift = strokeWidthOf(style) / 2;
    bool crisp = true;
    Point before = corners.back();
    out_ += "<polygon points=\"";
    for (const Point& corner : corners) {
        crisp = crisp && isAxisParallel(before, corner);
        before = corner;
        if (&corner != &corners.front()) out_ += ' ';
        appendPoint(out_, corner, shift);
    }
    out_ += '"';
    if (!crisp) out_ += Smooth;
    appendStyle(out_, style);
    out_ += "/>";
}

void SvgPainter::line(Point from, Point to, Colour colour, Single width) {
    const Single thickness = strokeWidthOf(width);
    if (isAxisParallel(from, to)) {
        const Single across = std::abs(to.x - from.x);
        const Single down = std::abs(to.y - from.y);
        if (!(across > 0) && !(down > 0)) return;
        const Rectangle covered{std::min(from.x, to.x), std::min(from.y, to.y), across > 0 ? across : thickness,
                                down > 0 ? down : thickness};
        return rectangle(covered, {.fill = colour, .stroke = {}}, 0);
    }
    out_ += "<path d=\"M";
    appendPoint(out_, from, thickness / 2);
    out_ += 'L';
    appendPoint(out_, to, thickness / 2);
    out_ += '"';
    out_ += Smooth;
    appendStyle(out_, {.fill = {}, .stroke = colour, .strokeWidth = thickness});
    out_ += "/>";
}

void SvgPainter::text(const TextRun& run) {
    if (run.text.empty()) return;
    out_ += "<text xml:space=\"preserve\"";
    appendAnchor(out_, run);
    appendFont(out_, run.font);
    appendColour(out_, "fill", run.colour);
    out_.append(">").append(markedText(run)).append("</text>");
}

void SvgPainter::bitmap(const Bitmap& picture, const Rectangle& area) {
    if (!(area.width > 0) || !(area.height > 0)) return;
    out_ += "<svg";
    appendPlace(out_, area);
    out_ += " viewBox=\"0 0 ";
    appendInteger(out_, picture.width());
    out_ += ' ';
    appendInteger(out_, picture.height());
    out_ += "\" preserveAspectRatio=\"none\">";
    for (const auto& [colour, runs] : runsOf(picture)) {
        const auto part = [value = colour](unsigned shift) { return static_cast<std::uint8_t>(value >> shift); };
        out_ += "<path";
        appendRgb(out_, "fill", {part(16), part(8), part(0)});
        out_.append(" d=\"").append(runs).append("\"/>");
    }
    out_ += "</svg>";
}

void SvgPainter::enter(const Rectangle& area) {
    out_ += "<svg";
    appendPlace(out_, area);
    out_ += '>';
    ++depth_;
}

void SvgPainter::leave() {
    if (depth_ == 0) return; // the document itself is closed by document()
    --depth_;
    out_ += "</svg>";
}

std::string SvgPainter::document() const {
    std::string whole = out_;
    for (std::size_t open = 0; open <= depth_; ++open)
        whole += "</svg>";
    whole += '\n';
    return whole;
}

} // namespace zilvo::platform
