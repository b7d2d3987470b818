#include "overlay/RowKeys.h"

#include <QKeyEvent>

namespace tromelo {

void RowKeys::setActive(bool active) {
  if (isActive_ == active) return;
  isActive_ = active;
  if (watched_) watched_->removeEventFilter(this);
  watched_ = active ? window() : nullptr;
  if (watched_) watched_->installEventFilter(this);
  Q_EMIT activeChanged();
}

bool RowKeys::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& press = static_cast<const QKeyEvent&>(*event);
  const auto modifiers = press.modifiers() & ~Qt::KeypadModifier;
  const bool isDelete = press.key() == Qt::Key_Delete || press.key() == Qt::Key_Backspace;
  if (modifiers == Qt::NoModifier && isDelete && !press.isAutoRepeat()) {
    Q_EMIT removed();
    return true;
  }
  const bool isArrow = press.key() == Qt::Key_Up || press.key() == Qt::Key_Down;
  if (modifiers != Qt::AltModifier || !isArrow) return false;
  Q_EMIT moved(press.key() == Qt::Key_Up ? -1 : 1);
  return true;
}

}  // namespace tromelo
