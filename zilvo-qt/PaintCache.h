#pragma once

#include "zilvo-qt/Scheme.h"
#include "zilvo-qt/Typeface.h"

#include <QImage>
#include <QObject>
#include <QTransform>
#include <memory>

namespace zilvo::qt {

class KeptPicture;

/// How many pixels of the device a unit is wide and high; 0 when it is turned or stretched.
qreal uprightScale(const QTransform& toDevice);

/// What is costly to find out and the same for all controls: fonts, lines of text, marks, pictures, schemes; and what
/// widgets show. Of each kind what has not been used for longest goes first. One is shared by all that paint in one
/// thread.
class PaintCache final : public QObject {
    Q_OBJECT

public:
    explicit PaintCache(QObject* parent = nullptr);

    /// One for all widgets, kept by the QCoreApplication and gone with it. Fails with UnexpectedCall while there is no
    /// application.
    static PaintCache& ofApplication();

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
    friend class KeptPicture;

    /// An empty picture; null for one larger than all that is kept.
    QImage* keep(const KeptPicture& owner, QSize pixels);
    QImage keep(const PictureKey& key, const QImage& picture);

    QCache<FontKey, std::shared_ptr<Typeface>> typefaces_;
    // By KiB.
    QCache<PictureKey, QImage> pictures_;
    QCache<const KeptPicture*, QImage> kept_;
    Scheme classic_;
    Scheme scheme_;
    qint64 schemeOf_ = 0; ///< a palette's key
    QPalette::ColorGroup groupOf_ = QPalette::NColorGroups;
};

} // namespace zilvo::qt
