#pragma once

#include <QObject>
#include <QPointF>
#include <QQuickWindow>
#include <functional>
#include <memory>
#include <optional>

#include "platform/Clock.h"

namespace tromelo {

/// Follows the real pointer over a window: what the window system reports, and not what the scene
/// makes up when items move under a resting pointer. Main thread only.
class PointerWatch : public QObject {
  Q_OBJECT

 public:
  /// Tells where the pointer is on the screen, in points.
  using Place = std::function<QPointF()>;

  /// `moved` is called when the pointer comes over the window or moves there with no button held.
  /// `window` and `clock` outlive it.
  PointerWatch(QQuickWindow& window, Clock& clock, Place place, std::function<void()> moved);

  /// In the window as that is now, in points; none while the pointer is elsewhere.
  std::optional<QPointF> position() const;

  /// As the host tells it.
  static QPointF onScreen();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void follow(const QSinglePointEvent& event);
  void leave();

  QQuickWindow& window_;
  Clock& clock_;
  const Place place_;
  const std::function<void()> moved_;
  bool isOver_ = false;
  std::optional<QPointF> lastOnScreen_;
  // Runs from an entry of a pointer that rests: the window came to it, or a press did.
  std::unique_ptr<Clock::Timer> entered_;
};

}  // namespace tromelo
