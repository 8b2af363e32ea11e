#include "zilvo-qt/Scheme.h"

#include <algorithm>
#include <cmath>

namespace zilvo::qt {

using namespace platform;

namespace {

QRgb toQRgb(Rgb colour) {
    return qRgb(colour.red, colour.green, colour.blue);
}

constexpr std::size_t indexOf(Colour colour) {
    return colour.value & 0xFFU;
}

/// What system colours are in a palette, by their index; edges and greyed text are seen to afterwards.
constexpr std::array<QPalette::ColorRole, 25> Roles{
    QPalette::Button,          // scroll bar
    QPalette::Window,          // desktop
    QPalette::Highlight,       // active caption
    QPalette::Mid,             // inactive caption
    QPalette::Window,          // menu
    QPalette::Base,            // window
    QPalette::WindowText,      // window frame: seen on any window
    QPalette::WindowText,      // menu text
    QPalette::Text,            // window text
    QPalette::HighlightedText, // caption text
    QPalette::Mid,             // active border
    QPalette::Mid,             // inactive border
    QPalette::Mid,             // application workspace
    QPalette::Highlight,       // highlight
    QPalette::HighlightedText, // highlight text
    QPalette::Button,          // button face
    QPalette::Dark,            // button shadow
    QPalette::ButtonText,      // grey text
    QPalette::ButtonText,      // button text
    QPalette::WindowText,      // inactive caption text
    QPalette::Light,           // button highlight
    QPalette::Shadow,          // 3-D dark shadow
    QPalette::Midlight,        // 3-D light
    QPalette::ToolTipText,     // info text
    QPalette::ToolTipBase,     // info background
};

/// Relative luminance, 0 to 1.
double luminance(QRgb colour) {
    static const std::array<double, 256> linear = [] {
        std::array<double, 256> table{};
        for (std::size_t part = 0; part < table.size(); ++part) {
            const double share = static_cast<double>(part) / 255;
            table[part] = share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        }
        return table;
    }();
    const auto of = [](int part) { return linear[static_cast<std::size_t>(part)]; };
    return 0.2126 * of(qRed(colour)) + 0.7152 * of(qGreen(colour)) + 0.0722 * of(qBlue(colour));
}

} // namespace

Scheme::Scheme() {
    for (std::uint32_t i = 0; i < system_.size(); ++i)
        system_[i] = toQRgb(rgbOf(Colour{0x80000000U | i}));
}

Scheme::Scheme(const QPalette& palette) {
    for (std::size_t i = 0; i < system_.size(); ++i)
        system_[i] = palette.color(Roles[i]).rgb();
    const auto system = [this](Colour colour) -> QRgb& { return system_[indexOf(colour)]; };
    const QRgb face = system(colours::ButtonFace);
    isDark_ = isDark(face);

    constexpr QRgb white = qRgb(255, 255, 255);
    constexpr QRgb black = qRgb(0, 0, 0);
    if (qGray(system(colours::ButtonHighlight)) <= qGray(face) ||
        contrast(system(colours::ButtonHighlight), face) > 4) {
        system(colours::ButtonHighlight) = mixed(face, white, 0.35);
        system(colours::ButtonLight) = mixed(face, white, 0.12);
    }
    if (qGray(system(colours::ButtonShadow)) >= qGray(face) ||
        qGray(system(colours::ButtonDarkShadow)) >= qGray(system(colours::ButtonShadow))) {
        system(colours::ButtonShadow) = mixed(face, black, 0.4);
        system(colours::ButtonDarkShadow) = mixed(face, black, 0.8);
    }
    QRgb& grey = system(colours::GreyText);
    const QRgb text = system(colours::ButtonText);
    grey = palette.color(QPalette::Disabled, QPalette::ButtonText).rgb();
    if (contrast(grey, text) < 1.5 || contrast(grey, face) < 1.5) grey = mixed(face, text, 0.5);
}

QRgb Scheme::operator[](Colour colour) const {
    if (!colour.isSystem()) return toQRgb(rgbOf(colour));
    const std::size_t index = indexOf(colour);
    return index < system_.size() ? system_[index] : qRgb(0, 0, 0);
}

double Scheme::contrast(QRgb one, QRgb other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QRgb Scheme::mixed(QRgb one, QRgb other, double share) {
    const auto part = [share](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
    return qRgb(part(qRed(one), qRed(other)), part(qGreen(one), qGreen(other)), part(qBlue(one), qBlue(other)));
}

} // namespace zilvo::qt
