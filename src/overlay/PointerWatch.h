#pragma once

#include <QObject>
#include <QPointF>
#include <QQuickWindow>
#include <functional>
#include <optional>

namespace tromelo {

/// Follows the real pointer over a window: what the window system reports, and not what the scene
/// makes up when items move under a resting pointer. Main thread only.
class PointerWatch : public QObject {
  Q_OBJECT

 public:
  /// `moved` is called when the pointer comes over the window or moves there with no button held.
  PointerWatch(QQuickWindow& window, std::function<void()> moved);

  /// In the window, in points; none while the pointer is elsewhere.
  std::optional<QPointF> position() const { return position_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void follow(const QSinglePointEvent& event);

  std::function<void()> moved_;
  std::optional<QPointF> position_;
  std::optional<QPointF> lastOnScreen_;
};

}  // namespace tromelo
