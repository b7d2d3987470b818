#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <Qt>

namespace tromelo {

/// The edges of a borderless window of `window` points that a pointer at `place` in it can take
/// hold of: one within 6 points, two near a corner.
Qt::Edges edgesAt(QPointF place, QSize window);

/// How the pointer looks there. `edges` isn't empty.
Qt::CursorShape cursorFor(Qt::Edges edges);

/// What a window may look like.
struct WindowShape {
  QSize minimum;  // points
  QSize aspect;   // in any unit; empty when any will do
};

/// `size` with its aspect put right and no smaller than it may be. A dragged horizontal edge alone
/// decides by the height, a vertical one by the width, a corner by what asks for more.
QSize fitted(QSize size, Qt::Edges edges, const WindowShape& shape);

/// A window that began as `start` when the pointer has dragged `edges` by `delta`. The opposite
/// edges stay where they are.
QRect draggedFrame(const QRect& start, Qt::Edges edges, QPoint delta, const WindowShape& shape);

}  // namespace tromelo
