#pragma once

#include <QGuiApplication>
#include <QMouseEvent>
#include <QRect>
#include <QSize>
#include <QWindow>
#include <optional>

namespace tromelo {

/// Whether the host lets a program put its windows where it likes, and tells where the pointer is
/// on the screen. Wayland does neither: there the host itself moves and resizes.
inline bool canPlaceWindows() {
  return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

/// The edges of a borderless window of `window` points that a pointer at `place` in it can take
/// hold of: one within 6 points, two near a corner.
Qt::Edges edgesAt(QPointF place, QSize window);

/// How the pointer looks there. `edges` isn't empty.
Qt::CursorShape cursorFor(Qt::Edges edges);

/// What a window may look like.
struct WindowShape {
  QSize minimum;  // points
  QSize aspect;   // in any unit; empty when any will do
};

/// `size` with its aspect put right and no smaller than it may be. A dragged horizontal edge alone
/// decides by the height, a vertical one by the width, a corner by what asks for more.
QSize fitted(QSize size, Qt::Edges edges, const WindowShape& shape);

/// A window that began as `start` when the pointer has dragged `edges` by `delta`. The opposite
/// edges stay where they are.
QRect draggedFrame(const QRect& start, Qt::Edges edges, QPoint delta, const WindowShape& shape);

/// Resizes a borderless window by its edges with its picture's aspect kept: by itself where windows
/// may be placed, else with the host, and then puts the aspect right. Main thread only.
class EdgeResize {
 public:
  /// `window` outlives it.
  explicit EdgeResize(QWindow& window) : window_(window) {}

  void setAspect(QSize picture) { aspect_ = picture; }
  /// Whether the event is its own; then nobody else may have it.
  bool take(const QMouseEvent& event);
  /// The pointer is over the window, with no button held.
  void finishHostResize();
  /// The edges that a press at this place takes hold of.
  Qt::Edges edgesAt(QPointF place) const;

 private:
  struct Hold {
    Qt::Edges edges;
    QPointF pointer;  // on the screen
    QRect frame;
  };

  bool begin(const QMouseEvent& press);
  void follow(QPointF pointer);
  WindowShape shape() const { return {window_.minimumSize(), aspect_}; }

  QWindow& window_;
  QSize aspect_;
  std::optional<Hold> hold_;
  Qt::Edges hostResizes_;
};

}  // namespace tromelo
