#pragma once

#include <QEasingCurve>
#include <QQuickItem>
#include <QVariantAnimation>
#include <chrono>
#include <functional>

#include "platform/ReducedMotion.h"

namespace tromelo {

/// Fades a scene's root item; the window itself needs no help from a compositor. Main thread only.
class WindowFade {
 public:
  /// Both outlive it.
  WindowFade(QQuickItem& root, const ReducedMotion& reducedMotion);

  /// Ends a fade that is under way without its completion.
  void setOpacity(double opacity);
  /// `completed` comes later, never from here. Without motion the opacity is there at once.
  void start(double opacity, std::chrono::milliseconds duration, QEasingCurve::Type curve,
             std::function<void()> completed);
  bool isRunning() const { return animation_.state() == QAbstractAnimation::Running; }

 private:
  QQuickItem& root_;
  const ReducedMotion& reducedMotion_;
  QVariantAnimation animation_;
  std::function<void()> completed_;
};

}  // namespace tromelo
