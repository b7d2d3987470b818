#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QRectF>

namespace tromelo {

/// Where something opens above a button. All in whole points of one space.
class PopoverFrame : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// Of the `wanted` size at the bottom of `room`, its middle as near to the button's as the room
  /// allows, smaller where it has to be.
  static QRectF within(const QRectF& room, double buttonMiddle, QSizeF wanted);

  /// The top left corner of something that opens above `anchor` in its own size, a little away
  /// from it and from the edges of `room`.
  Q_INVOKABLE static QPointF placeAbove(QRectF anchor, QSizeF size, QSizeF room);

  /// The size of a picture that is `wanted` where there is room, and of the same shape where only
  /// so little `height` is free: it leaves half of that.
  Q_INVOKABLE static QSizeF pictureWithin(double height, QSizeF wanted);
};

}  // namespace tromelo
