#include "zilvo-qt/Typeface.h"

#include "zilvo/platform/values/Text.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace zilvo::qt {

using namespace platform;

namespace {

constexpr int Italic = 1;
constexpr int Underlined = 2;
constexpr int StruckThrough = 4;

constexpr int LinesKept = 256;

QString shared(StringView text) {
    const QStringView view(text.data(), static_cast<qsizetype>(text.size()));
    return QString::fromRawData(view.data(), view.size());
}

QString copyOf(const QString& text) {
    return QString(text.constData(), text.size());
}

struct Substitutes {
    const char* family;
    std::array<const char*, 2> others;
};

/// What stands in for the families that the designs state, the most alike first. Debian has Comic Neue in
/// fonts-comic-neue, Liberation Sans in fonts-liberation and Nimbus Sans in fonts-urw-base35.
constexpr std::array Known{
    Substitutes{"Comic Sans MS", {"Comic Neue", "Comic Relief"}},
    Substitutes{"MS Sans Serif", {"Microsoft Sans Serif", "Arial"}},
    Substitutes{"Arial Black", {"Archivo Black", "Arial"}},
    Substitutes{"Arial", {"Liberation Sans", "Arimo"}},
};
/// Behind all of these.
constexpr std::array AnySans{"Arial", "Liberation Sans", "Arimo", "Nimbus Sans"};

/// Those that are installed; for other names, which may stand for a choice of the user, what the toolkit takes for
/// them.
QStringList familiesFor(const QString& name) {
    const auto known = std::find_if(Known.begin(), Known.end(), [&name](const Substitutes& each) {
        return name.compare(QLatin1String(each.family), Qt::CaseInsensitive) == 0;
    });
    if (known == Known.end() || QFontDatabase::hasFamily(name)) return {name};
    QStringList installed;
    const auto add = [&installed](const char* family) {
        if (QFontDatabase::hasFamily(QLatin1String(family))) installed += QLatin1String(family);
    };
    std::for_each(known->others.begin(), known->others.end(), add);
    std::for_each(AnySans.begin(), AnySans.end(), add);
    return installed.isEmpty() ? QStringList{name} : installed;
}

QTextLine layOut(QTextLayout& layout) {
    constexpr qreal unlimited = 1e6;
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(unlimited);
    layout.endLayout();
    return line;
}

} // namespace

FontKey::FontKey(const FontLook& look, qreal pitchNow, int dotsPerInchNow)
    : name(shared(look.name)),
      size(look.size),
      weight(look.weight),
      style((look.italic ? Italic : 0) | (look.underline ? Underlined : 0) | (look.strikethrough ? StruckThrough : 0)),
      pitch(pitchNow),
      dotsPerInch(dotsPerInchNow) {}

FontKey FontKey::kept() const {
    FontKey copy = *this;
    copy.name = copyOf(name);
    return copy;
}

Typeface::Typeface(const FontKey& key, const QPaintDevice& device) : key_(key.kept()), lines_(LinesKept) {
    constexpr qreal pixelsPerPoint = TwipsPerPoint / TwipsPerPixel;
    const qreal em = std::clamp(qreal{key.size}, 0.5, 2160.0) * pixelsPerPoint * key.pitch;
    QFont wanted;
    wanted.setFamilies(familiesFor(key_.name));
    wanted.setStyleHint(QFont::SansSerif);
    wanted.setPointSizeF(em * 72 / key.dotsPerInch); // only points come in fractions
    wanted.setWeight(static_cast<QFont::Weight>(std::clamp(key.weight, 1, 1000)));
    wanted.setItalic((key.style & Italic) != 0);
    wanted.setUnderline((key.style & Underlined) != 0);
    wanted.setStrikeOut((key.style & StruckThrough) != 0);
    font_ = QFont(wanted, &device);

    const FontLook look{StringView(QStringView(key_.name).utf16(), static_cast<std::size_t>(key_.name.size())),
                        key.size,
                        static_cast<Integer>(key.weight),
                        false,
                        false,
                        false};
    if (QFontInfo(font_).family().compare(key_.name, Qt::CaseInsensitive) != 0) {
        metrics_ = platform::lineMetrics(look);
        constexpr StringView sample = u"The quick brown fox jumps over 1234567890 lazy dogs";
        const qreal designed = qreal{textWidth(sample, look)} / TwipsPerPixel * key.pitch;
        const qreal natural = QFontMetricsF(font_).horizontalAdvance(shared(sample));
        constexpr qreal noticeably = 1.02;
        if (natural > designed * noticeably && designed > 0)
            font_.setStretch(std::max(50, qFloor(100 * designed / natural)));
        return;
    }
    const QFontMetricsF metrics(font_);
    const auto twips = [&](qreal pixels) { return static_cast<Single>(std::ceil(pixels) * TwipsPerPixel / key.pitch); };
    metrics_ = {twips(metrics.ascent()) + twips(metrics.descent()), twips(metrics.ascent()),
                twips(metrics.capHeight())};
}

Typeface::Line& Typeface::line(StringView text) {
    const QString wanted = shared(text);
    if (Line* known = lines_.object(wanted)) return *known;
    const QString own = copyOf(wanted);
    auto line = std::make_unique<Line>();
    line->text.setTextFormat(Qt::PlainText);
    line->text.setPerformanceHint(QStaticText::AggressiveCaching);
    line->text.setText(own);
    line->text.prepare({}, font_);
    QTextLayout layout(own, font_);
    line->ascent = layOut(layout).ascent();
    line->width = QFontMetricsF(font_).horizontalAdvance(own);
    lines_.insert(own, line.release());
    return *lines_.object(own);
}

const Typeface::Line::Rule& Typeface::rule(Line& line, std::size_t letter) const {
    if (line.rule && line.rule->letter == letter) return *line.rule;
    QTextLayout layout(line.text.text(), font_);
    const QTextLine laidOut = layOut(layout);
    const auto at = static_cast<int>(letter);
    const qreal one = laidOut.cursorToX(at);
    const qreal other = laidOut.cursorToX(layout.nextCursorPosition(at));
    return line.rule.emplace(Line::Rule{letter, std::min(one, other), std::max(one, other)});
}

} // namespace zilvo::qt
