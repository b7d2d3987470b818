#include "overlay/WindowPress.h"

#include <cmath>
#include <utility>

namespace tromelo {

namespace {

constexpr double kJitter = 3.0;  // points

}  // namespace

bool WindowPress::begin(int clickCount, QPointF pointer, QPoint windowOrigin) {
  start_.reset();
  if (clickCount == 2) return false;
  start_ = Start{pointer, windowOrigin, clickCount};
  didDrag_ = false;
  return true;
}

std::optional<QPoint> WindowPress::drag(QPointF pointer) {
  if (!start_) return {};
  const QPointF delta = pointer - start_->pointer;
  if (!didDrag_ && std::hypot(delta.x(), delta.y()) <= kJitter) return {};
  didDrag_ = true;
  return start_->windowOrigin + delta.toPoint();
}

bool WindowPress::end() {
  const auto start = std::exchange(start_, {});
  return start && start->clickCount == 1 && !didDrag_;
}

}  // namespace tromelo
