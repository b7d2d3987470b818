#include "display/PicturePlacement.h"

#include <cmath>

namespace tromelo {

PicturePlacement placePicture(QSize picture, QSizeF item, qreal devicePixelRatio) {
  const QSizeF available(std::round(item.width() * devicePixelRatio),
                         std::round(item.height() * devicePixelRatio));
  if (picture.isEmpty() || available.isEmpty()) return {};
  const QSizeF fitted = QSizeF(picture).scaled(available, Qt::KeepAspectRatio);
  const bool isExact = std::abs(fitted.width() - picture.width()) < 0.5 &&
                       std::abs(fitted.height() - picture.height()) < 0.5;
  const QSizeF size = isExact ? QSizeF(picture) : fitted;
  QPointF corner((available.width() - size.width()) / 2, (available.height() - size.height()) / 2);
  if (isExact) corner = QPointF(std::floor(corner.x()), std::floor(corner.y()));
  return {QRectF(corner / devicePixelRatio, size / devicePixelRatio), isExact};
}

QRect placeInPoints(QSize picture, QSizeF item, qreal devicePixelRatio) {
  const QRectF rect = placePicture(picture, item, devicePixelRatio).rect;
  const QSize size(qRound(rect.width()), qRound(rect.height()));
  return {rect.topLeft().toPoint(), size.expandedTo(QSize(1, 1))};
}

}  // namespace tromelo
