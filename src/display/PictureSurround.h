#pragma once

#include <QQuickItem>
#include <QRectF>

namespace tromelo {

/// Black, but for a hole that the host shows the picture through, if there is one.
class PictureSurround : public QQuickItem {
  Q_OBJECT
  Q_PROPERTY(QRectF hole MEMBER hole_ WRITE setHole)

 public:
  explicit PictureSurround(QQuickItem* parent = nullptr);

  /// In units of the item; empty: none.
  void setHole(const QRectF& hole);

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

 private:
  QRectF hole_;
};

}  // namespace tromelo
