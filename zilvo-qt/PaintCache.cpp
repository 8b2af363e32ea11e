#include "zilvo-qt/PaintCache.h"

#include "zilvo/platform/values/Status.h"

#include <QCoreApplication>
#include <cmath>

namespace zilvo::qt {

namespace {

constexpr int TypefacesKept = 48;
constexpr int MarksAndBitmaps = 8 * 1024; ///< KiB
constexpr int ShownPictures = 32 * 1024;  ///< KiB

int kibibytes(const QImage& picture) {
    return static_cast<int>(1 + picture.sizeInBytes() / 1024);
}

} // namespace

qreal uprightScale(const QTransform& toDevice) {
    const bool isUpright = toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0 &&
                           std::abs(toDevice.m11() - toDevice.m22()) < 1e-6;
    return isUpright ? toDevice.m11() : 0;
}

PaintCache::PaintCache(QObject* parent)
    : QObject(parent), typefaces_(TypefacesKept), pictures_(MarksAndBitmaps), kept_(ShownPictures) {}

PaintCache& PaintCache::ofApplication() {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        throw platform::Failure(platform::Status::UnexpectedCall,
                                "there is no QApplication yet, or no longer, that could keep what is painted");
    if (auto* cache = application->findChild<PaintCache*>({}, Qt::FindDirectChildrenOnly)) return *cache;
    return *new PaintCache(application);
}

std::shared_ptr<Typeface> PaintCache::typeface(const FontKey& key, const QPaintDevice& device) {
    if (const auto* known = typefaces_.object(key)) return *known;
    auto made = std::make_shared<Typeface>(key, device);
    typefaces_.insert(made->key(), std::make_unique<std::shared_ptr<Typeface>>(made).release());
    return made;
}

QImage PaintCache::keep(const PictureKey& key, const QImage& picture) {
    pictures_.insert(key, std::make_unique<QImage>(picture).release(), kibibytes(picture));
    return picture;
}

QImage* PaintCache::keep(const KeptPicture& owner, QSize pixels) {
    auto picture = std::make_unique<QImage>(pixels, QImage::Format_RGB32);
    const auto cost = kibibytes(*picture);
    QImage* kept = picture.release(); // the cache's own, which deletes at once what is too large
    return kept_.insert(&owner, kept, cost) ? kept : nullptr;
}

const Scheme& PaintCache::scheme(const QPalette& palette) {
    if (palette.cacheKey() != schemeOf_ || palette.currentColorGroup() != groupOf_) {
        scheme_ = Scheme(palette);
        schemeOf_ = palette.cacheKey();
        groupOf_ = palette.currentColorGroup();
    }
    return scheme_;
}

} // namespace zilvo::qt
