#include "overlay/PointerWatch.h"

#include <QCursor>
#include <QEnterEvent>
#include <QMouseEvent>
#include <utility>

namespace tromelo {

namespace {

using namespace std::chrono_literals;

// A window manager that looks at each press takes the pointer away and gives it back together with
// the press.
constexpr auto kPressFollows = 50ms;

}  // namespace

PointerWatch::PointerWatch(QQuickWindow& window, Clock& clock, Place place,
                           std::function<void()> moved)
    : window_(window), clock_(clock), place_(std::move(place)), moved_(std::move(moved)) {
  window.installEventFilter(this);
}

QPointF PointerWatch::onScreen() { return QCursor::pos(); }

std::optional<QPointF> PointerWatch::position() const {
  if (!isOver_) return {};
  return window_.mapFromGlobal(place_());
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
      leave();
      break;
    default:
      break;
  }
  return false;
}

void PointerWatch::follow(const QSinglePointEvent& event) {
  isOver_ = true;
  const bool hasMoved =
      std::exchange(lastOnScreen_, event.globalPosition()) != event.globalPosition();
  if (event.isBeginEvent() || event.isEndEvent()) return entered_.reset();
  if (hasMoved && event.buttons() == Qt::NoButton) return moved_();
  if (event.type() == QEvent::Enter) entered_ = clock_.after(kPressFollows, moved_);
}

void PointerWatch::leave() {
  isOver_ = false;
  entered_.reset();
}

}  // namespace tromelo
