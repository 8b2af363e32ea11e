#pragma once

#include "zilvo/platform/painting/Painter.h"

#include <QCache>
#include <QFont>
#include <QStaticText>

class QPaintDevice;

namespace zilvo::qt {

/// Where the widths and heights of text come from: from the fonts that are installed, or from the metrics that are
/// built in, which give the same layout on every machine; each run is then fitted to its width.
enum class Metrics : std::uint8_t { Real, BuiltIn };

/// What a font is asked for by.
struct FontKey {
    FontKey(const platform::FontLook& look, qreal pitch, int dotsPerInch);
    /// The name is the look's own for as long as it lives; a key that is kept has a copy.
    FontKey kept() const;

    QString name;
    platform::Single size; ///< points
    int weight;
    int style;   ///< italic, underlined, struck through
    qreal pitch; ///< pixels of the device to one of the design
    int dotsPerInch;

    friend bool operator==(const FontKey&, const FontKey&) = default;
    friend std::size_t qHash(const FontKey& key, std::size_t seed) {
        return qHashMulti(seed, key.name, key.size, key.weight, key.style, key.pitch);
    }
};

/// A font in pixels of a device, and the lines laid out in it. Where the family asked for is not installed, others
/// stand in for it that look alike; one keeps to the lines of the family as they are built in, and is condensed to its
/// width when it runs wider.
class Typeface {
public:
    Typeface(const FontKey& key, const QPaintDevice& device);

    /// All in pixels of the device.
    struct Line {
        QStaticText text;
        qreal width = 0;
        qreal ascent = 0; ///< from the top of `text` to its baseline

        /// From where to where the rule goes under that letter.
        struct Rule {
            std::size_t letter;
            qreal from, to;
        };
        std::optional<Rule> rule; ///< the last one asked for
    };

    const FontKey& key() const { return key_; }
    const QFont& font() const { return font_; }
    const platform::LineMetrics& metrics() const { return metrics_; } ///< twips
    /// Stays until the next line is asked for.
    Line& line(platform::StringView text);
    const Line::Rule& rule(Line& line, std::size_t letter) const;

private:
    FontKey key_;
    QFont font_;
    platform::LineMetrics metrics_;
    QCache<QString, Line> lines_;
};

} // namespace zilvo::qt
