#pragma once

#include <QPointer>
#include <QQuickItem>
#include <memory>

#include "display/EngineWindow.h"

namespace tromelo {

/// Shows an engine window's picture in a Qt Quick scene: one to one where item and picture have the
/// same size in device pixels, else fitted with the aspect kept. Repaints when the engine commits a
/// frame and never otherwise. While it can't be seen, the engine is told "suspended".
class EngineWindowItem : public QQuickItem {
  Q_OBJECT

 public:
  explicit EngineWindowItem(QQuickItem* parent = nullptr);
  ~EngineWindowItem() override;

  EngineWindow* engineWindow() const;
  /// Takes the pictures of `window` from any other item. The last picture of a window that was
  /// taken down stays until another is set.
  void setEngineWindow(EngineWindow* window);

 Q_SIGNALS:
  /// The first picture of the present engine window is on its way to the screen.
  void firstFrameShown();
  /// A picture can't be shown in this scene, and no other of its kind of memory.
  void pictureRefused();
  /// Another picture is in the next frame of the scene, or none is any more.
  void pictureCommitted();

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void detach();
  void watch(QQuickWindow* window);
  void updateExposure();

  QPointer<EngineWindow> engineWindow_;
  std::shared_ptr<VideoSink> sink_;
  bool nodeIsOfAnotherSink_ = false;
  QPointer<QQuickWindow> watched_;
  bool wasExposed_ = false;  // with the present engine window
};

}  // namespace tromelo
