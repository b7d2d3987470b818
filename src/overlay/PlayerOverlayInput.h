#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>
#include <chrono>
#include <optional>

namespace tromelo {

/// Counts presses that follow each other quickly in one place.
class ClickCounter {
 public:
  struct Limits {
    std::chrono::milliseconds interval;
    double distance;  // points, in each direction
  };

  /// How many presses there have been by now, this one included. `time` has any beginning.
  int press(std::chrono::milliseconds time, QPointF place, const Limits& limits);

 private:
  struct Press {
    std::chrono::milliseconds time;
    QPointF place;
  };
  std::optional<Press> last_;
  int count_ = 0;
};

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

/// Takes clicks, drags, scrolling and dropped files on the bare video, and moves the window with
/// the hand that drags it. Main thread only.
class PlayerOverlayInput : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit PlayerOverlayInput(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  /// Without waiting for a second one.
  void clicked();
  void doubleClicked();
  /// Whole steps, never 0; up is positive.
  void scrolled(double steps, bool isControlHeld);
  /// A press of the right button, at this place.
  void menuRequested(QPointF place);
  /// Never empty.
  void filesDropped(const QList<QUrl>& files);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseUngrabEvent() override;
  void wheelEvent(QWheelEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void moveWindow(QPoint origin);

  ClickCounter clicks_;
  WindowPress press_;
  ScrollSteps scroll_;
};

}  // namespace tromelo
