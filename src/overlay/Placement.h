#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace tromelo {

/// Where something of this size goes that belongs to `anchor`: centred above it, as far as that is
/// inside `room`. In whole points.
QPointF placeAbove(const QRectF& anchor, QSizeF size, QSizeF room);

}  // namespace tromelo
