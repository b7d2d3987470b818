#include "player/WindowFade.h"

#include <utility>

namespace tromelo {

WindowFade::WindowFade(QQuickItem& root, const ReducedMotion& reducedMotion)
    : root_(root), reducedMotion_(reducedMotion) {
  QObject::connect(&animation_, &QVariantAnimation::valueChanged, &animation_,
                   [this](const QVariant& value) { root_.setOpacity(value.toDouble()); });
  QObject::connect(&animation_, &QVariantAnimation::finished, &animation_, [this] {
    if (const auto completed = std::exchange(completed_, {})) completed();
  });
}

void WindowFade::setOpacity(double opacity) {
  completed_ = {};
  animation_.stop();
  root_.setOpacity(opacity);
}

void WindowFade::start(double opacity, std::chrono::milliseconds duration, QEasingCurve::Type curve,
                       std::function<void()> completed) {
  completed_ = {};
  animation_.stop();
  completed_ = std::move(completed);
  if (reducedMotion_.isWanted()) {
    root_.setOpacity(opacity);
    duration = std::chrono::milliseconds(1);
  }
  animation_.setStartValue(root_.opacity());
  animation_.setEndValue(opacity);
  animation_.setDuration(static_cast<int>(duration.count()));
  animation_.setEasingCurve(curve);
  animation_.start();
}

}  // namespace tromelo
