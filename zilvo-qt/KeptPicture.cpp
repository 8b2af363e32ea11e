#include "zilvo-qt/KeptPicture.h"

#include <QPainter>

namespace zilvo::qt {

void KeptPicture::show(QPainter& target, QSize size, const std::function<void(QPainter&)>& paint) {
    const QTransform toDevice = target.deviceTransform();
    const qreal pitch = uprightScale(toDevice);
    if (size.isEmpty()) return;
    if (pitch == 0) return paint(target);
    // From one whole pixel to another, as a widget lies there; its edges are where they would be without a picture.
    const QPoint corner(qRound(toDevice.dx()), qRound(toDevice.dy()));
    const QPointF offset = QPointF(toDevice.dx(), toDevice.dy()) - corner;
    const QSize pixels(qRound(offset.x() + size.width() * pitch), qRound(offset.y() + size.height() * pitch));
    if (pixels.isEmpty()) return;
    const QImage* kept = cache_.kept_.object(this);
    QImage made;
    if (!kept || kept->size() != pixels || kept->devicePixelRatio() != pitch || offset != offset_) {
        made = QImage(pixels, QImage::Format_RGB32);
        QPainter painter(&made);
        painter.translate(offset);
        painter.scale(pitch, pitch);
        paint(painter);
        painter.end();
        made.setDevicePixelRatio(pitch);
        cache_.keep(*this, made);
        isKept_ = true;
        offset_ = offset;
        kept = &made;
    }
    const QTransform before = target.worldTransform();
    target.setWorldTransform(QTransform::fromScale(pitch, pitch) * QTransform::fromTranslate(corner.x(), corner.y()) *
                             toDevice.inverted() * before);
    target.drawImage(QPoint(), *kept);
    target.setWorldTransform(before);
}

} // namespace zilvo::qt
