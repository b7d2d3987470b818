#pragma once

#include <QPointer>
#include <QQuickItem>
#include <functional>
#include <memory>

#include "display/EngineWindow.h"

namespace tromelo {

/// Shows an engine window's picture in a Qt Quick scene: one to one where item and picture have the
/// same size in device pixels, else fitted with the aspect kept. Repaints when the engine commits a
/// frame and never otherwise. While it can't be seen, the engine is told "suspended".
class EngineWindowItem : public QQuickItem {
  Q_OBJECT
  /// Where the host shows the picture below the scene, in the window; empty while the scene does.
  Q_PROPERTY(QRectF hole READ hole NOTIFY holeChanged)
  /// Of everything that is drawn in the window, 0 to 1.
  Q_PROPERTY(qreal sceneOpacity MEMBER sceneOpacity_ WRITE setSceneOpacity)
  /// Something else in the scene is drawn with the picture, glass for example.
  Q_PROPERTY(bool isRead MEMBER isRead_ WRITE setIsRead)

 public:
  explicit EngineWindowItem(QQuickItem* parent = nullptr);
  ~EngineWindowItem() override;

  EngineWindow* engineWindow() const;
  /// Takes the pictures of `window` from any other item. The last picture of a window that was
  /// taken down stays until another is set.
  void setEngineWindow(EngineWindow* window);

  QRectF hole() const { return hole_; }
  void setSceneOpacity(qreal opacity);
  void setIsRead(bool isRead);

 Q_SIGNALS:
  /// The first picture of the present engine window is on its way to the screen.
  void firstFrameShown();
  /// A picture can't be shown in this scene, and no other of its kind of memory.
  void pictureRefused();
  /// Another picture is in the next frame of the scene, or none is any more.
  void pictureCommitted();
  void holeChanged();
  /// The host can't show what the engine draws; the scene does from here on.
  void refusedByHost();

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void detach();
  void watch(QQuickWindow* window);
  void updateExposure();
  void followHostSurface();
  void updatePlace();
  void afterDrawing(std::function<void()> then);
  void adoptHole();

  QPointer<EngineWindow> engineWindow_;
  std::shared_ptr<VideoSink> sink_;
  bool nodeIsOfAnotherSink_ = false;
  QPointer<QQuickWindow> watched_;
  bool wasExposed_ = false;       // with the present engine window
  QPointer<QObject> hostWindow_;  // the host's side of the watched one
  QRectF hole_;
  qreal sceneOpacity_ = 1;
  bool isRead_ = false;
};

}  // namespace tromelo
