#include "player/EdgeResize.h"

#include <gtest/gtest.h>

#include "support/Table.h"

namespace tromelo::testing {

TEST(EdgeResizeTest, CanBeTakenHoldOfInANarrowFrame) {
  for (const auto& [place, edges, cursor] : Table<QPointF, Qt::Edges, Qt::CursorShape>{
           {{300, 6}, {}, Qt::ArrowCursor},
           {{17, 17}, {}, Qt::ArrowCursor},
           {{300, 5.9}, Qt::TopEdge, Qt::SizeVerCursor},
           {{594, 200}, Qt::RightEdge, Qt::SizeHorCursor},
           {{17, 2}, Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor},
           {{599, 0}, Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor},
           {{3, 385}, Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor}}) {
    EXPECT_EQ(edgesAt(place, {600, 400}), edges) << place.x() << ' ' << place.y();
    EXPECT_EQ(edges ? cursorFor(edges) : Qt::ArrowCursor, cursor);
  }
}

TEST(EdgeResizeTest, DraggedKeepTheAspectAndTheOppositeEdges) {
  const QRect start(100, 100, 1024, 576);
  const WindowShape film{{520, 300}, {1920, 1080}};
  const WindowShape any{{520, 300}, {}};
  const Table<const char*, Qt::Edges, QPoint, QRect, const WindowShape*> rows{
      {"right", Qt::RightEdge, {64, 500}, {100, 100, 1088, 612}, &film},
      {"left", Qt::LeftEdge, {64, 500}, {164, 100, 960, 540}, &film},
      {"top", Qt::TopEdge, {500, -36}, {100, 64, 1088, 612}, &film},
      {"corner, by what asks for more",
       Qt::TopEdge | Qt::LeftEdge,
       {-64, -9},
       {36, 64, 1088, 612},
       &film},
      {"smallest", Qt::LeftEdge, {2000, 0}, {591, 100, 533, 300}, &film},
      {"without a picture", Qt::LeftEdge | Qt::BottomEdge, {24, -400}, {124, 100, 1000, 300}, &any},
  };
  for (const auto& [name, edges, delta, frame, shape] : rows)
    EXPECT_EQ(draggedFrame(start, edges, delta, *shape), frame) << name;
}

}  // namespace tromelo::testing
