#include "overlay/PointerWatch.h"

#include <QEnterEvent>
#include <QMouseEvent>
#include <utility>

namespace tromelo {

PointerWatch::PointerWatch(QQuickWindow& window, std::function<void()> moved)
    : moved_(std::move(moved)) {
  window.installEventFilter(this);
}

bool PointerWatch::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
      follow(*static_cast<QSinglePointEvent*>(event));
      break;
    case QEvent::Leave:
    case QEvent::Hide:
      position_.reset();
      break;
    default:
      break;
  }
  return false;
}

void PointerWatch::follow(const QSinglePointEvent& event) {
  position_ = event.position();
  // A click can make the pointer leave and come back at once without having moved.
  const bool hasMoved =
      std::exchange(lastOnScreen_, event.globalPosition()) != event.globalPosition();
  const bool isMove = event.type() == QEvent::Enter || event.type() == QEvent::MouseMove;
  if (hasMoved && isMove && event.buttons() == Qt::NoButton) moved_();
}

}  // namespace tromelo
