#include "overlay/Placement.h"

#include <algorithm>
#include <cmath>

namespace tromelo {

namespace {

constexpr double kGap = 8;  // to the anchor and to the room's edges

/// At the lower end where there isn't room enough.
double inside(double place, double length, double room) {
  return std::round(std::max(std::min(place, room - kGap - length), kGap));
}

}  // namespace

QPointF placeAbove(const QRectF& anchor, QSizeF size, QSizeF room) {
  return {inside(anchor.center().x() - size.width() / 2, size.width(), room.width()),
          inside(anchor.top() - kGap - size.height(), size.height(), room.height())};
}

}  // namespace tromelo
