#pragma once

#include <QRectF>

namespace tromelo {

/// Where something of the `wanted` size opens above a button: at the bottom of `room`, its middle
/// as near to the button's as the room allows, smaller where it has to be. All in whole points of
/// one space.
QRectF popoverFrame(double buttonMiddle, QSizeF wanted, const QRectF& room);

/// The top left corner of something that opens above `anchor` in its own size, a little away from
/// it and from the edges of `room`.
QPointF placeAbove(const QRectF& anchor, QSizeF size, QSizeF room);

}  // namespace tromelo
