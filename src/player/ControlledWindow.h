#pragma once

#include <QEasingCurve>
#include <QObject>
#include <chrono>
#include <functional>

namespace tromelo {

/// A top-level window of ours as the player window's controller sees it. Main thread only.
class ControlledWindow : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual bool isVisible() const = 0;
  /// 0 to 1. Ends a fade that is under way; its completion is not called.
  virtual void setOpacity(double opacity) = 0;
  /// A new fade takes over from one under way, whose completion is not called.
  virtual void fadeTo(double opacity, std::chrono::milliseconds duration, QEasingCurve::Type curve,
                      std::function<void()> completed) = 0;
  /// On the screen, in front, with the keyboard.
  virtual void makeKeyAndOrderFront() = 0;
  virtual void orderOut() = 0;
};

}  // namespace tromelo
