#include "player/EdgeResize.h"

#include <utility>

#include "player/WindowPlacement.h"

namespace tromelo {

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
