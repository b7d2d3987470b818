#pragma once

#include <QMouseEvent>
#include <QRect>
#include <QWindow>
#include <optional>

#include "player/WindowEdges.h"

namespace tromelo {

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
