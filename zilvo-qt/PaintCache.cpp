#include "zilvo-qt/PaintCache.h"

namespace zilvo::qt {

namespace {

constexpr int TypefacesKept = 48;
constexpr int PictureKibibytes = 8192;

} // namespace

PaintCache::PaintCache() : typefaces_(TypefacesKept), pictures_(PictureKibibytes) {}

std::shared_ptr<Typeface> PaintCache::typeface(const FontKey& key, const QPaintDevice& device) {
    if (const auto* known = typefaces_.object(key)) return *known;
    auto made = std::make_shared<Typeface>(key, device);
    typefaces_.insert(made->key(), std::make_unique<std::shared_ptr<Typeface>>(made).release());
    return made;
}

QImage PaintCache::keep(const PictureKey& key, const QImage& picture) {
    const auto cost = static_cast<int>(1 + picture.sizeInBytes() / 1024);
    pictures_.insert(key, std::make_unique<QImage>(picture).release(), cost);
    return picture;
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
