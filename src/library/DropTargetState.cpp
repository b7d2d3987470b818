#include "library/DropTargetState.h"

#include <QDropEvent>

#include "player/DraggedFiles.h"

namespace tromelo {

DropTargetState::DropTargetState(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemAcceptsDrops);
}

void DropTargetState::dragEnterEvent(QDragEnterEvent* event) {
  setTargeted(!acceptDraggedFiles(*event).isEmpty());
}

void DropTargetState::dragMoveEvent(QDragMoveEvent* event) { acceptDraggedFiles(*event); }

void DropTargetState::dragLeaveEvent(QDragLeaveEvent*) { setTargeted(false); }

void DropTargetState::dropEvent(QDropEvent* event) {
  const QList<QUrl> files = acceptDraggedFiles(*event);
  setTargeted(false);
  if (!files.isEmpty()) Q_EMIT filesDropped(files);
}

void DropTargetState::setTargeted(bool targeted) {
  if (targeted == isTargeted_) return;
  isTargeted_ = targeted;
  Q_EMIT isTargetedChanged();
}

}  // namespace tromelo
