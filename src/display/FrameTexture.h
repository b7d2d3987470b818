#pragma once

#include <QRegion>
#include <memory>

#include "display/Frame.h"

class QQuickWindow;
class QSGTexture;

namespace tromelo {

/// Brings frames of one kind into the scene. Render thread, with the scene's OpenGL context current
/// where it has one.
class FrameTexture {
 public:
  virtual ~FrameTexture() = default;

  /// The texture that will hold the frame's picture; good until the next call. None when it can't
  /// be had.
  virtual QSGTexture* prepare(QQuickWindow* window, const Frame& frame) = 0;
  /// Makes the texture hold the picture. Only `damage` differs from the frame before.
  virtual void update(Frame& frame, const QRegion& damage) = 0;
};

/// For buffers in the GPU's memory.
std::unique_ptr<FrameTexture> createDmabufTextures();
/// For shared memory in a scene that is drawn with OpenGL.
std::unique_ptr<FrameTexture> createShmTexture();
/// For shared memory in any other.
std::unique_ptr<FrameTexture> createImageTexture();

}  // namespace tromelo
