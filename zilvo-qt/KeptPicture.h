#pragma once

#include "zilvo-qt/PaintCache.h"

#include <functional>

namespace zilvo::qt {

/// What a widget shows, kept to be shown again until something has changed. It is kept in the cache, where the pictures
/// of all widgets have a bounded place together: one that had to go is painted anew.
class KeptPicture {
public:
    /// The cache outlives it.
    explicit KeptPicture(PaintCache& cache) : cache_(cache) {}
    KeptPicture(const KeptPicture&) = delete;
    KeptPicture& operator=(const KeptPicture&) = delete;
    ~KeptPicture() { cache_.kept_.remove(this); }

    /// Something has changed since it was painted, or it never was.
    bool isStale() const noexcept { return isStale_; }
    void makeStale() noexcept { isStale_ = true; }
    /// Shows it at the target's origin. `paint` is called unless a picture of this size and density of pixels is there;
    /// it draws all of it, in logical pixels, and what it throws leaves no picture.
    void show(QPainter& target, QSize size, const std::function<void(QPainter&)>& paint);

private:
    PaintCache& cache_;
    qreal pitch_ = 0; ///< pixels of the device to a logical one, when it was painted
    QPointF offset_;  ///< of the origin from a whole pixel
    bool isStale_ = true;
};

} // namespace zilvo::qt
