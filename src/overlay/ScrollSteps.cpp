#include "overlay/ScrollSteps.h"

#include <QWheelEvent>
#include <cmath>

namespace tromelo {

namespace {

constexpr double kStepsPerPoint = 0.25;
constexpr double kStepsPerLine = 2.0;
constexpr double kUnitsPerLine = QWheelEvent::DefaultDeltasPerStep;

}  // namespace

ScrollMovement scrollMovement(const QWheelEvent& event, bool hostPoints) {
  if (hostPoints && !event.pixelDelta().isNull()) return {event.pixelDelta(), true};
  return {QPointF(event.angleDelta()) / kUnitsPerLine, false};
}

double ScrollSteps::take(const ScrollMovement& movement) {
  if (std::abs(movement.delta.x()) >= std::abs(movement.delta.y())) return 0;
  remainder_ += movement.delta.y() * (movement.isPrecise ? kStepsPerPoint : kStepsPerLine);
  const double whole = std::trunc(remainder_);
  remainder_ -= whole;
  return whole;
}

}  // namespace tromelo
