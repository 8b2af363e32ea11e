#include "zilvo/platform/painting/TextLayout.h"

#include "zilvo/platform/values/Text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace zilvo::platform {

namespace {

/// A line as a part of the caption's text.
struct Piece {
    std::size_t begin;
    std::size_t end;
};

constexpr bool isBlank(char16_t unit) noexcept {
    return unit == u' ' || unit == u'\t';
}

std::vector<Piece> wordsOf(StringView text, Piece paragraph) {
    const auto skip = [&](std::size_t at, bool blanks) {
        while (at < paragraph.end && isBlank(text[at]) == blanks)
            ++at;
        return at;
    };
    std::vector<Piece> words;
    for (std::size_t word = skip(paragraph.begin, true); word < paragraph.end; word = skip(words.back().end, true))
        words.push_back({word, skip(word, false)});
    return words;
}

/// Breaks one paragraph. Blanks in front of its first word stay; those at a break go. Blanks at its end stay
/// as long as they fit, because an unbroken caption is as wide as it was typed.
template <class Fits>
void breakAtBlanks(StringView text, Piece paragraph, const Fits& fits, std::vector<Piece>& lines) {
    Piece line{paragraph.begin, paragraph.begin};
    const std::vector<Piece> words = wordsOf(text, paragraph);
    for (auto word = words.begin(); word != words.end();) {
        if (word != words.begin()) {
            lines.push_back(line);
            line.begin = word->begin;
        }
        // The more words the wider: those that fit are looked for in steps that double, then between the last two.
        const auto fitUpTo = [&](const Piece& last) { return fits(Piece{line.begin, last.end}); };
        std::ptrdiff_t step = 1;
        while (step < words.end() - word && fitUpTo(word[step]))
            step *= 2;
        word = std::partition_point(word + 1, word + std::min(step, words.end() - word), fitUpTo);
        line.end = std::prev(word)->end;
    }
    if (fits(Piece{line.begin, paragraph.end})) line.end = paragraph.end;
    lines.push_back(line);
}

template <class Fits>
std::vector<Piece> linesOf(StringView text, bool wraps, const Fits& fits) {
    std::vector<Piece> lines;
    for (std::size_t begin = 0;;) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", begin), text.size());
        if (wraps)
            breakAtBlanks(text, {begin, end}, fits, lines);
        else
            lines.push_back({begin, end});
        if (end == text.size()) return lines;
        begin = end + (text.substr(end, 2) == u"\r\n" ? 2 : 1);
    }
}

/// How far from the near edge something lies; centred things lie on whole pixels, to be sharp.
Single offsetOf(Alignment alignment, Single room, Single taken) noexcept {
    switch (alignment) {
    case Alignment::Near:
        return 0;
    case Alignment::Centre:
        return std::floor((room - taken) / 2 / TwipsPerPixel) * TwipsPerPixel;
    case Alignment::Far:
        return room - taken;
    }
    return 0;
}

/// Where the lines begin. Of one that is higher than the room and centred, the capitals and the rule under an access
/// key are what is seen.
Single topOf(Alignment down, const LineMetrics& metrics, Single room, Single taken) noexcept {
    if (down != Alignment::Centre || taken <= room || taken > metrics.height) return offsetOf(down, room, taken);
    constexpr Single rule = 2 * TwipsPerPixel;
    return offsetOf(Alignment::Centre, room, metrics.capHeight + rule) + metrics.capHeight - metrics.ascent;
}

struct Line {
    Piece piece;
    Point corner;
    Single width;
};

struct Layout {
    std::vector<Line> lines;
    Single ascent = 0;
    Rectangle bounds;
};

Layout layOut(const Painter& painter, const Rectangle& area, const CaptionLook& look, StringView text) {
    // What was measured to fit exactly still fits after the arithmetic that made an area of it.
    constexpr Single tolerance = 0.5F;
    const auto widthOf = [&](Piece piece) {
        return painter.measure(text.substr(piece.begin, piece.end - piece.begin), look.font);
    };
    const auto fits = [&](Piece piece) { return widthOf(piece) <= area.width + tolerance; };
    const std::vector<Piece> pieces = linesOf(text, look.wraps, fits);

    const LineMetrics metrics = painter.lineMetrics(look.font);
    const Single height = metrics.height * static_cast<Single>(pieces.size());
    const Single top = area.top + topOf(look.down, metrics, area.height, height);
    Layout layout;
    layout.ascent = metrics.ascent;
    layout.lines.reserve(pieces.size());
    Single left = 0;
    Single right = 0;
    for (const Piece piece : pieces) {
        const Single width = widthOf(piece);
        const Point corner{area.left + offsetOf(look.across, area.width, width),
                           top + metrics.height * static_cast<Single>(layout.lines.size())};
        left = layout.lines.empty() ? corner.x : std::min(left, corner.x);
        right = layout.lines.empty() ? corner.x + width : std::max(right, corner.x + width);
        layout.lines.push_back({piece, corner, width});
    }
    layout.bounds = {left, top, right - left, height};
    return layout;
}

void paintLines(Painter& painter, const Layout& layout, const Caption& caption, const CaptionLook& look, Colour colour,
                Single shift) {
    const StringView text = caption.text;
    for (const Line& line : layout.lines) {
        const auto [begin, end] = line.piece;
        if (begin == end) continue;
        const bool marked = caption.underlined >= begin && caption.underlined < end;
        painter.text({.text = text.substr(begin, end - begin),
                      .origin = {line.corner.x + shift, line.corner.y + layout.ascent + shift},
                      .width = line.width,
                      .align = look.across,
                      .font = look.font,
                      .colour = colour,
                      .underlined = marked ? caption.underlined - begin : String::npos});
    }
}

} // namespace

Rectangle paintCaption(Painter& painter, const Rectangle& area, const CaptionLook& look) {
    const Caption caption = captionOf(look.designed);
    const Layout layout = layOut(painter, area, look, caption.text);
    if (look.greyed) paintLines(painter, layout, caption, look, colours::ButtonHighlight, painter.lineWidth());
    paintLines(painter, layout, caption, look, look.greyed ? colours::GreyText : look.colour, 0);
    return layout.bounds;
}

Rectangle measureCaption(const Painter& painter, const Rectangle& area, const CaptionLook& look) {
    const Caption caption = captionOf(look.designed);
    return layOut(painter, area, look, caption.text).bounds;
}

} // namespace zilvo::platform
