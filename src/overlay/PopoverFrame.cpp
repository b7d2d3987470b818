#include "overlay/PopoverFrame.h"

#include <algorithm>
#include <cmath>

namespace tromelo {

namespace {

constexpr double kGap = 8;

}  // namespace

QRectF PopoverFrame::within(const QRectF& room, double buttonMiddle, QSizeF wanted) {
  const QSizeF size = wanted.boundedTo(room.size()).expandedTo({0, 0});
  const double last = std::max(room.left(), room.right() - size.width());
  const double left = std::clamp(buttonMiddle - size.width() / 2, room.left(), last);
  return {std::round(left), std::round(room.bottom() - size.height()), std::floor(size.width()),
          std::floor(size.height())};
}

QPointF PopoverFrame::placeAbove(QRectF anchor, QSizeF size, QSizeF room) {
  const QRectF above(kGap, kGap, room.width() - 2 * kGap, anchor.top() - 2 * kGap);
  return within(above, anchor.center().x(), size).topLeft();
}

QSizeF PopoverFrame::pictureWithin(double height, QSizeF wanted) {
  const double most = std::clamp(height / 2, 0.0, wanted.height());
  return {std::round(wanted.width() * most / wanted.height()), std::round(most)};
}

}  // namespace tromelo
