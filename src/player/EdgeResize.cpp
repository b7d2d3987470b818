#include "player/EdgeResize.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tromelo {

namespace {

constexpr double kFrame = 6;    // points
constexpr double kCorner = 18;  // along each edge

Qt::Edges edgesWithin(double reach, QPointF place, QSize window) {
  Qt::Edges edges;
  if (place.x() < reach) edges |= Qt::LeftEdge;
  if (place.x() >= window.width() - reach) edges |= Qt::RightEdge;
  if (place.y() < reach) edges |= Qt::TopEdge;
  if (place.y() >= window.height() - reach) edges |= Qt::BottomEdge;
  return edges;
}

}  // namespace

Qt::Edges edgesAt(QPointF place, QSize window) {
  if (!edgesWithin(kFrame, place, window)) return {};
  return edgesWithin(kCorner, place, window);
}

Qt::CursorShape cursorFor(Qt::Edges edges) {
  const bool isHorizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
  const bool isVertical = edges & (Qt::TopEdge | Qt::BottomEdge);
  if (!isVertical) return Qt::SizeHorCursor;
  if (!isHorizontal) return Qt::SizeVerCursor;
  const bool risesToTheRight = edges.testFlag(Qt::TopEdge) == edges.testFlag(Qt::RightEdge);
  return risesToTheRight ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
}

QSize fitted(QSize size, Qt::Edges edges, const WindowShape& shape) {
  if (shape.aspect.isEmpty()) return size.expandedTo(shape.minimum);
  const double aspect = double(shape.aspect.width()) / shape.aspect.height();
  const bool byWidth = edges & (Qt::LeftEdge | Qt::RightEdge);
  const bool byHeight = edges & (Qt::TopEdge | Qt::BottomEdge);
  double width = 0;
  if (byWidth || !byHeight) width = size.width();
  if (byHeight) width = std::max(width, size.height() * aspect);
  width = std::max({width, double(shape.minimum.width()), shape.minimum.height() * aspect});
  return {int(std::lround(width)), int(std::lround(width / aspect))};
}

QRect draggedFrame(const QRect& start, Qt::Edges edges, QPoint delta, const WindowShape& shape) {
  QSize wanted = start.size();
  if (edges & Qt::RightEdge) wanted.rwidth() += delta.x();
  if (edges & Qt::LeftEdge) wanted.rwidth() -= delta.x();
  if (edges & Qt::BottomEdge) wanted.rheight() += delta.y();
  if (edges & Qt::TopEdge) wanted.rheight() -= delta.y();
  QRect frame(start.topLeft(), fitted(wanted, edges, shape));
  if (edges & Qt::LeftEdge) frame.moveRight(start.right());
  if (edges & Qt::TopEdge) frame.moveBottom(start.bottom());
  return frame;
}

Qt::Edges EdgeResize::edgesAt(QPointF place) const {
  if (window_.windowStates() & (Qt::WindowFullScreen | Qt::WindowMaximized)) return {};
  return tromelo::edgesAt(place, window_.size());
}

bool EdgeResize::take(const QMouseEvent& event) {
  // A release that went to somebody else ends it as well.
  if (hold_ && !event.buttons().testFlag(Qt::LeftButton)) {
    hold_.reset();
    return event.type() == QEvent::MouseButtonRelease;
  }
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      return hold_ || (event.button() == Qt::LeftButton && begin(event));
    case QEvent::MouseButtonDblClick:
      return hold_ || edgesAt(event.position());
    case QEvent::MouseMove:
      if (hold_) follow(event.globalPosition());
      return hold_.has_value();
    default:
      return hold_.has_value();
  }
}

bool EdgeResize::begin(const QMouseEvent& press) {
  const Qt::Edges edges = edgesAt(press.position());
  if (!edges) return false;
  if (canPlaceWindows())
    hold_ = Hold{edges, press.globalPosition(), window_.geometry()};
  else if (window_.startSystemResize(edges))
    hostResizes_ = edges;
  return true;
}

void EdgeResize::follow(QPointF pointer) {
  const QPoint delta = (pointer - hold_->pointer).toPoint();
  window_.setGeometry(draggedFrame(hold_->frame, hold_->edges, delta, shape()));
}

void EdgeResize::finishHostResize() {
  // While the host resizes it keeps the pointer, and doesn't say when it is done.
  if (const Qt::Edges edges = std::exchange(hostResizes_, {}))
    window_.resize(fitted(window_.size(), edges, shape()));
}

}  // namespace tromelo
