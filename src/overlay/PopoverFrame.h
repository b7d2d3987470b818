#pragma once

#include <QRectF>

namespace tromelo {

/// Where something of the `wanted` size opens above a button: at the bottom of `room`, its middle
/// as near to the button's as the room allows, smaller where it has to be. All in whole points of
/// one space.
QRectF popoverFrame(double buttonMiddle, QSizeF wanted, const QRectF& room);

}  // namespace tromelo
