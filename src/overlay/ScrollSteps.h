#pragma once

#include <QPointF>

class QWheelEvent;

namespace tromelo {

/// A turn of a wheel (in lines) or a stroke on a touchpad (precise, in points).
struct ScrollMovement {
  QPointF delta;
  bool isPrecise = false;
};

/// `hostPoints` says that the host's points can be trusted: those of X11 are each driver's own.
ScrollMovement scrollMovement(const QWheelEvent& event, bool hostPoints);

/// Turns vertical scrolling into whole steps and keeps the rest for the next movement.
class ScrollSteps {
 public:
  /// Down is negative. 0 when there is no whole step yet, or the movement is more to the side.
  double take(const ScrollMovement& movement);

 private:
  double remainder_ = 0;
};

}  // namespace tromelo
