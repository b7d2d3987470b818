#include "player/EdgeResize.h"

#include <gtest/gtest.h>

#include "support/Table.h"

namespace tromelo::testing {
namespace {

TEST(EdgeResizeTest, CanBeTakenHoldOfInANarrowFrame) {
  struct Row {
    QPointF place;
    Qt::Edges edges;
    Qt::CursorShape cursor = Qt::ArrowCursor;
  };
  for (const Row& row : {
           Row{{300, 6}, {}},
           Row{{17, 17}, {}},
           Row{{300, 5.9}, Qt::TopEdge, Qt::SizeVerCursor},
           Row{{594, 200}, Qt::RightEdge, Qt::SizeHorCursor},
           Row{{17, 2}, Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor},
           Row{{599, 0}, Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor},
           Row{{3, 385}, Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor},
       }) {
    EXPECT_EQ(edgesAt(row.place, {600, 400}), row.edges) << row.place.x() << ' ' << row.place.y();
    EXPECT_EQ(row.edges ? cursorFor(row.edges) : Qt::ArrowCursor, row.cursor);
  }
}

TEST(EdgeResizeTest, DraggedKeepTheAspectAndTheOppositeEdges) {
  const QRect start(100, 100, 1024, 576);
  const WindowShape film{{520, 300}, {1920, 1080}};
  const WindowShape any{{520, 300}, {}};
  for (const auto& [name, edges, delta, frame, shape] :
       Table<const char*, Qt::Edges, QPoint, QRect, const WindowShape*>{
           {"right", Qt::RightEdge, {64, 500}, {100, 100, 1088, 612}, &film},
           {"left", Qt::LeftEdge, {64, 500}, {164, 100, 960, 540}, &film},
           {"top", Qt::TopEdge, {500, -36}, {100, 64, 1088, 612}, &film},
           {"corner, by what asks for more",
            Qt::TopEdge | Qt::LeftEdge,
            {-64, -9},
            {36, 64, 1088, 612},
            &film},
           {"smallest", Qt::LeftEdge, {2000, 0}, {591, 100, 533, 300}, &film},
           {"without a picture",
            Qt::LeftEdge | Qt::BottomEdge,
            {24, -400},
            {124, 100, 1000, 300},
            &any},
       })
    EXPECT_EQ(draggedFrame(start, edges, delta, *shape), frame) << name;
}

}  // namespace
}  // namespace tromelo::testing
