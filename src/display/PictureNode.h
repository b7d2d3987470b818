#pragma once

#include <QObject>
#include <QRegion>
#include <QSGImageNode>
#include <QSGNode>
#include <memory>
#include <optional>
#include <vector>

#include "display/FrameTexture.h"
#include "display/HdrImageNode.h"
#include "display/SceneItemSink.h"

class QQuickWindow;

namespace tromelo {

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
  void drawWith(QSGTexture* handle, const std::optional<HdrImageNode::Signal>& signal);
  void place(QSizeF size);
  void clear();
  void upload();
  void swapped();

  QQuickWindow* window_;
  std::shared_ptr<SceneItemSink> sink_;
  std::unique_ptr<FrameTexture> shm_;
  std::unique_ptr<FrameTexture> dmabuf_;
  // A child while there is a picture: one or the other.
  std::unique_ptr<QSGImageNode> image_;
  std::unique_ptr<HdrImageNode> hdr_;
  std::shared_ptr<Frame> frame_;     // the scene's present one
  FrameTexture* texture_ = nullptr;  // the one that holds it
  QSGTexture* handle_ = nullptr;     // of it
  QRegion damage_;                   // not uploaded yet
  bool needsUpload_ = false;
  bool awaitsSwap_ = false;
  std::vector<std::shared_ptr<Frame>> replaced_;  // perhaps still read until the next swap
};

}  // namespace tromelo
