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
    ~KeptPicture() { forget(); }

    /// Something has changed.
    void forget() noexcept {
        if (std::exchange(isKept_, false)) cache_.kept_.remove(this);
    }
    /// Shows it at the target's origin. `paint` is called unless a picture of this size and density of pixels is there;
    /// it draws all of it, in logical pixels, and what it throws leaves no picture.
    void show(QPainter& target, QSize size, const std::function<void(QPainter&)>& paint);

private:
    PaintCache& cache_;
    QPointF offset_;      ///< of the origin from a whole pixel, when it was painted
    bool isKept_ = false; ///< or was, until others needed the place
};

} // namespace zilvo::qt
