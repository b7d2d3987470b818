#include "display/PictureSurround.h"

#include <QQuickWindow>
#include <QSGRectangleNode>
#include <array>
#include <utility>

namespace tromelo {

namespace {

/// Above, below, left and right of the hole; all of `whole` where there is none.
std::array<QRectF, 4> around(const QRectF& whole, const QRectF& hole) {
  if (!whole.intersects(hole)) return {whole};
  const QRectF inside = hole & whole;
  return {
      QRectF(whole.topLeft(), QPointF(whole.right(), inside.top())),
      QRectF(QPointF(whole.left(), inside.bottom()), whole.bottomRight()),
      QRectF(QPointF(whole.left(), inside.top()), inside.bottomLeft()),
      QRectF(inside.topRight(), QPointF(whole.right(), inside.bottom())),
  };
}

}  // namespace

PictureSurround::PictureSurround(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
}

void PictureSurround::setHole(const QRectF& hole) {
  if (std::exchange(hole_, hole) != hole) update();
}

QSGNode* PictureSurround::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  delete node;
  auto* bars = new QSGNode;  // the scene graph's
  for (const QRectF& rect : around(boundingRect(), hole_)) {
    if (rect.isEmpty()) continue;
    QSGRectangleNode* bar = window()->createRectangleNode();
    bar->setColor(Qt::black);
    bar->setRect(rect);
    bars->appendChildNode(bar);
  }
  return bars;
}

void PictureSurround::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  update();
}

}  // namespace tromelo
