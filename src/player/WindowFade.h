#pragma once

#include <QEasingCurve>
#include <QQuickItem>
#include <QVariantAnimation>
#include <chrono>
#include <functional>

namespace tromelo {

/// Fades a scene's root item; the window itself needs no help from a compositor. Main thread only.
class WindowFade {
 public:
  /// `root` outlives it.
  explicit WindowFade(QQuickItem& root);

  /// Ends a fade that is under way without its completion.
  void setOpacity(double opacity);
  void start(double opacity, std::chrono::milliseconds duration, QEasingCurve::Type curve,
             std::function<void()> completed);
  bool isRunning() const { return animation_.state() == QAbstractAnimation::Running; }

 private:
  QQuickItem& root_;
  QVariantAnimation animation_;
  std::function<void()> completed_;
};

}  // namespace tromelo
