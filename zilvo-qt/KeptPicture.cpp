#include "zilvo-qt/KeptPicture.h"

#include <QPainter>

namespace zilvo::qt {

void KeptPicture::show(QPainter& target, QSize size, const std::function<void(QPainter&)>& paint) {
    const QTransform toDevice = target.deviceTransform();
    const qreal pitch = uprightScale(toDevice);
    // From one whole pixel to another, as a widget lies there; its edges are where they would be without a picture.
    const QPoint corner(qRound(toDevice.dx()), qRound(toDevice.dy()));
    const QPointF offset = QPointF(toDevice.dx(), toDevice.dy()) - corner;
    const QSize pixels(qRound(offset.x() + size.width() * pitch), qRound(offset.y() + size.height() * pitch));
    if (size.isEmpty() || (pitch != 0 && pixels.isEmpty())) return;

    QImage* kept = pitch == 0 ? nullptr : cache_.kept_.object(this);
    if (pitch != 0 && (!kept || kept->size() != pixels)) {
        kept = cache_.keep(*this, pixels);
        isStale_ = true;
    }
    if (!kept) { // turned, stretched or larger than all that is kept
        paint(target);
        isStale_ = false;
        return;
    }
    if (isStale_ || pitch != pitch_ || offset != offset_) {
        isStale_ = true; // unless it can be painted
        QPainter painter(kept);
        painter.translate(offset);
        painter.scale(pitch, pitch);
        paint(painter);
        pitch_ = pitch;
        offset_ = offset;
        isStale_ = false;
    }
    const QTransform before = target.worldTransform();
    target.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * toDevice.inverted() * before);
    target.drawImage(QPoint(), *kept);
    target.setWorldTransform(before);
}

} // namespace zilvo::qt
