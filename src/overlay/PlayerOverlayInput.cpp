#include "overlay/PlayerOverlayInput.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QStyleHints>

#include "player/DraggedFiles.h"
#include "player/EdgeResize.h"

namespace tromelo {

namespace {

ClickCounter::Limits clickLimits() {
  const QStyleHints& hints = *QGuiApplication::styleHints();
  return {std::chrono::milliseconds(hints.mouseDoubleClickInterval()),
          static_cast<double>(hints.mouseDoubleClickDistance())};
}

}  // namespace

PlayerOverlayInput::PlayerOverlayInput(QQuickItem* parent) : QQuickItem(parent) {
  setAcceptedMouseButtons(Qt::LeftButton);
  setFlag(ItemAcceptsDrops);
}

void PlayerOverlayInput::mousePressEvent(QMouseEvent* event) {
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
  if (steps != 0) Q_EMIT scrolled(steps);
}

void PlayerOverlayInput::dragEnterEvent(QDragEnterEvent* event) { acceptDraggedFiles(*event); }

void PlayerOverlayInput::dragMoveEvent(QDragMoveEvent* event) { acceptDraggedFiles(*event); }

void PlayerOverlayInput::dropEvent(QDropEvent* event) {
  if (const QList<QUrl> files = acceptDraggedFiles(*event); !files.isEmpty())
    Q_EMIT filesDropped(files);
}

}  // namespace tromelo
