#pragma once

#include "zilvo-qt/Scheme.h"
#include "zilvo-qt/Typeface.h"

#include <QImage>
#include <memory>

namespace zilvo::qt {

/// What is costly to find out and the same for all controls: fonts, lines of text, marks, pictures, schemes. One is
/// shared by all widgets that paint in one thread. What has not been used for longest goes first.
class PaintCache {
public:
    PaintCache();
    PaintCache(const PaintCache&) = delete;
    PaintCache& operator=(const PaintCache&) = delete;

    /// A picture by what it is made of: its kind, its size in pixels of the device, colours and contents.
    struct PictureKey {
        int kind;
        QSize size;
        std::array<std::size_t, 5> parts;

        friend bool operator==(const PictureKey&, const PictureKey&) = default;
        friend std::size_t qHash(const PictureKey& key, std::size_t seed) {
            return qHashRange(key.parts.begin(), key.parts.end(),
                              qHashMulti(seed, key.kind, key.size.width(), key.size.height()));
        }
    };

    std::shared_ptr<Typeface> typeface(const FontKey& key, const QPaintDevice& device);
    /// Made by `draw` when it is not there.
    template <class Draw>
    QImage picture(const PictureKey& key, const Draw& draw) {
        if (const QImage* known = pictures_.object(key)) return *known;
        return keep(key, draw());
    }
    const Scheme& scheme(const QPalette& palette);
    const Scheme& classicScheme() const { return classic_; }

private:
    QImage keep(const PictureKey& key, const QImage& picture);

    QCache<FontKey, std::shared_ptr<Typeface>> typefaces_;
    QCache<PictureKey, QImage> pictures_; ///< by KiB
    Scheme classic_;
    Scheme scheme_;
    qint64 schemeOf_ = 0; ///< a palette's key
    QPalette::ColorGroup groupOf_ = QPalette::NColorGroups;
};

} // namespace zilvo::qt
