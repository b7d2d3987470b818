#pragma once

#include <QRect>

namespace tromelo {

/// `frame` moved, and made smaller where it has to be, so that it lies within `bounds`.
inline QRect keptInside(QRect frame, const QRect& bounds) {
  frame.setSize(frame.size().boundedTo(bounds.size()));
  frame.moveRight(qMin(frame.right(), bounds.right()));
  frame.moveBottom(qMin(frame.bottom(), bounds.bottom()));
  frame.moveLeft(qMax(frame.left(), bounds.left()));
  frame.moveTop(qMax(frame.top(), bounds.top()));
  return frame;
}

}  // namespace tromelo
