#pragma once

#include <QPoint>
#include <QPointF>
#include <optional>

namespace tromelo {

/// One press of the button on the video: a click, the second of two, or a hand that moves the
/// window. Places are on the screen, in points.
class WindowPress {
 public:
  /// `clickCount` is 1 for a press by itself. False when it is the second of two, which moves
  /// nothing and is no click.
  bool begin(int clickCount, QPointF pointer, QPoint windowOrigin);
  /// Where the window goes, once the pointer is further than a hand's jitter away, and from then on
  /// also where it comes back.
  std::optional<QPoint> drag(QPointF pointer);
  /// True when the press was a click.
  bool end();
  void cancel() { start_.reset(); }

 private:
  struct Start {
    QPointF pointer;
    QPoint windowOrigin;
    int clickCount;
  };
  std::optional<Start> start_;
  bool didDrag_ = false;
};

}  // namespace tromelo
