#include "overlay/PlayerOverlayInput.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QStyleHints>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "player/DraggedFiles.h"
#include "player/EdgeResize.h"

namespace tromelo {

namespace {

constexpr double kJitter = 3.0;  // points
constexpr double kStepsPerPoint = 0.25;
constexpr double kStepsPerLine = 2.0;
constexpr double kUnitsPerLine = QWheelEvent::DefaultDeltasPerStep;

ClickCounter::Limits clickLimits() {
  const QStyleHints& hints = *QGuiApplication::styleHints();
  return {std::chrono::milliseconds(hints.mouseDoubleClickInterval()),
          static_cast<double>(hints.mouseDoubleClickDistance())};
}

}  // namespace

int ClickCounter::press(std::chrono::milliseconds time, QPointF place, const Limits& limits) {
  const bool follows = last_ && time >= last_->time && time - last_->time < limits.interval &&
                       std::abs(place.x() - last_->place.x()) <= limits.distance &&
                       std::abs(place.y() - last_->place.y()) <= limits.distance;
  count_ = follows ? count_ + 1 : 1;
  last_ = {time, place};
  return count_;
}

bool WindowPress::begin(int clickCount, QPointF pointer, QPoint windowOrigin) {
  start_.reset();
  if (clickCount == 2) return false;
  start_ = Start{pointer, windowOrigin, clickCount};
  didDrag_ = false;
  return true;
}

std::optional<QPoint> WindowPress::drag(QPointF pointer) {
  if (!start_) return {};
  const QPointF delta = pointer - start_->pointer;
  if (!didDrag_ && std::hypot(delta.x(), delta.y()) <= kJitter) return {};
  didDrag_ = true;
  return start_->windowOrigin + delta.toPoint();
}

bool WindowPress::end() {
  const auto start = std::exchange(start_, {});
  return start && start->clickCount == 1 && !didDrag_;
}

ScrollMovement scrollMovement(const QWheelEvent& event, bool hostPoints) {
  if (hostPoints && !event.pixelDelta().isNull()) return {event.pixelDelta(), true};
  return {QPointF(event.angleDelta()) / kUnitsPerLine, false};
}

double ScrollSteps::take(const ScrollMovement& movement) {
  if (std::abs(movement.delta.x()) >= std::abs(movement.delta.y())) return 0;
  remainder_ += movement.delta.y() * (movement.isPrecise ? kStepsPerPoint : kStepsPerLine);
  const double whole = std::trunc(remainder_);
  remainder_ -= whole;
  return whole;
}

PlayerOverlayInput::PlayerOverlayInput(QQuickItem* parent) : QQuickItem(parent) {
  setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
  setFlag(ItemAcceptsDrops);
}

void PlayerOverlayInput::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) Q_EMIT menuRequested(event->position());
  // The handler of long touches brings us all buttons.
  if (event->button() != Qt::LeftButton) return event->ignore();
  const int count = clicks_.press(std::chrono::milliseconds(event->timestamp()),
                                  event->globalPosition(), clickLimits());
  if (!press_.begin(count, event->globalPosition(), window()->position())) Q_EMIT doubleClicked();
}

void PlayerOverlayInput::mouseMoveEvent(QMouseEvent* event) {
  if (window()->visibility() == QWindow::FullScreen) return;
  if (const auto origin = press_.drag(event->globalPosition())) moveWindow(*origin);
}

void PlayerOverlayInput::moveWindow(QPoint origin) {
  if (canPlaceWindows()) return window()->setPosition(origin);
  // The host has the pointer from here on, and the release with it.
  if (window()->startSystemMove()) ungrabMouse();
}

void PlayerOverlayInput::mouseReleaseEvent(QMouseEvent*) {
  if (press_.end()) Q_EMIT clicked();
}

/// Comes after the press that it tells of, which has been counted.
void PlayerOverlayInput::mouseDoubleClickEvent(QMouseEvent*) {}

void PlayerOverlayInput::mouseUngrabEvent() { press_.cancel(); }

void PlayerOverlayInput::wheelEvent(QWheelEvent* event) {
  const double steps = scroll_.take(scrollMovement(*event, !canPlaceWindows()));
  if (steps != 0) Q_EMIT scrolled(steps, event->modifiers().testFlag(Qt::ControlModifier));
}

void PlayerOverlayInput::dragEnterEvent(QDragEnterEvent* event) { acceptDraggedFiles(*event); }

void PlayerOverlayInput::dragMoveEvent(QDragMoveEvent* event) { acceptDraggedFiles(*event); }

void PlayerOverlayInput::dropEvent(QDropEvent* event) {
  if (const QList<QUrl> files = acceptDraggedFiles(*event); !files.isEmpty())
    Q_EMIT filesDropped(files);
}

}  // namespace tromelo
