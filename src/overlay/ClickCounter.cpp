#include "overlay/ClickCounter.h"

#include <cmath>

namespace tromelo {

int ClickCounter::press(std::chrono::milliseconds time, QPointF place, const Limits& limits) {
  const bool follows = last_ && time >= last_->time && time - last_->time < limits.interval &&
                       std::abs(place.x() - last_->place.x()) <= limits.distance &&
                       std::abs(place.y() - last_->place.y()) <= limits.distance;
  count_ = follows ? count_ + 1 : 1;
  last_ = {time, place};
  return count_;
}

}  // namespace tromelo
