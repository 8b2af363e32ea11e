#pragma once

#include "zilvo/platform/painting/Painter.h"

#include <QPalette>
#include <array>

namespace zilvo::qt {

/// The colours of the system as a palette has them. Highlights and shadows that do not lie on either side of its face,
/// as in palettes of which an application has set but a few colours, are made from the face.
class Scheme {
public:
    /// That of the designs.
    Scheme();
    explicit Scheme(const QPalette& palette);

    QRgb operator[](platform::Colour colour) const;
    bool isDark() const { return isDark_; }

    static bool isDark(QRgb ground) { return qGray(ground) < 128; }
    /// From 1, none, to 21, black on white.
    static double contrast(QRgb one, QRgb other);
    /// `share` of the other, 0 to 1.
    static QRgb mixed(QRgb one, QRgb other, double share);

private:
    std::array<QRgb, 25> system_{}; ///< by the index of a system colour
    bool isDark_ = false;
};

} // namespace zilvo::qt
