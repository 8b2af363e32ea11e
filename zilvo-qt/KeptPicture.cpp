#include "zilvo-qt/KeptPicture.h"

#include <QPainter>

namespace zilvo::qt {

void KeptPicture::show(QPainter& target, QSize size, const std::function<void(QPainter&)>& paint) {
    const QTransform toDevice = target.deviceTransform();
    const qreal pitch = uprightScale(toDevice);
    if (size.isEmpty()) return;
    if (pitch == 0) return paint(target);
    const QSize pixels(qCeil(size.width() * pitch), qCeil(size.height() * pitch));
    const QImage* kept = cache_.kept_.object(this);
    QImage made;
    if (!kept || kept->size() != pixels || kept->devicePixelRatio() != pitch) {
        made = QImage(pixels, QImage::Format_RGB32);
        QPainter painter(&made);
        painter.scale(pitch, pitch);
        paint(painter);
        painter.end();
        made.setDevicePixelRatio(pitch);
        cache_.keep(*this, made);
        isKept_ = true;
        kept = &made;
    }
    // From one whole pixel to another, wherever the widget lies.
    const QPoint corner(qRound(toDevice.dx()), qRound(toDevice.dy()));
    const QTransform before = target.worldTransform();
    target.setWorldTransform(QTransform::fromScale(pitch, pitch) * QTransform::fromTranslate(corner.x(), corner.y()) *
                             toDevice.inverted() * before);
    target.drawImage(QPoint(), *kept);
    target.setWorldTransform(before);
}

} // namespace zilvo::qt
