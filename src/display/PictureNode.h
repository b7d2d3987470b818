#pragma once

#include <QObject>
#include <QRegion>
#include <QSGImageNode>
#include <QSGNode>
#include <memory>
#include <vector>

#include "display/FrameTexture.h"
#include "display/SceneItemSink.h"

class QQuickWindow;

namespace tromelo {

struct PicturePlacement {
  QRectF rect;           // in the item, in its units
  bool isExact = false;  // a pixel of the picture is a pixel of the screen

  friend bool operator==(const PicturePlacement&, const PicturePlacement&) = default;
};

/// Where a picture of `picture` device pixels goes in an item of `item` units: centred, and as
/// large as fits with its aspect.
PicturePlacement placePicture(QSize picture, QSizeF item, qreal devicePixelRatio);

/// The scene graph's side of an EngineWindowItem: takes pictures from the sink, brings them to the
/// GPU and says when they were swapped to the screen. Render thread.
class PictureNode final : public QObject, public QSGNode {
  Q_OBJECT

 public:
  PictureNode(QQuickWindow* window, std::shared_ptr<SceneItemSink> sink);
  ~PictureNode() override;

  /// While the main thread waits. `size` in units of the item.
  void synchronize(QSizeF size);

 private:
  void takePicture();
  void show(std::shared_ptr<Frame> frame, const QRegion& damage);
  FrameTexture* textureFor(const Frame& frame);
  void place(QSizeF size);
  void upload();
  void swapped();

  QQuickWindow* window_;
  std::shared_ptr<SceneItemSink> sink_;
  std::unique_ptr<FrameTexture> shm_;
  std::unique_ptr<FrameTexture> dmabuf_;
  std::unique_ptr<QSGImageNode> image_;  // a child while there is a picture
  std::shared_ptr<Frame> frame_;         // the scene's present one
  FrameTexture* texture_ = nullptr;      // the one that holds it
  QRegion damage_;                       // not uploaded yet
  bool needsUpload_ = false;
  bool awaitsSwap_ = false;
  std::vector<std::shared_ptr<Frame>> replaced_;  // perhaps still read until the next swap
};

}  // namespace tromelo
