#include <QImage>
#include <QQuickWindow>
#include <QSGTexture>
#include <utility>

#include "display/FrameTexture.h"

namespace tromelo {

namespace {

QImage::Format imageFormat(const PixelFormat& format) {
  if (format.blueFirst)
    return format.hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
  return format.hasAlpha ? QImage::Format_RGBA8888_Premultiplied : QImage::Format_RGBX8888;
}

/// For a scene that the processor draws: every frame is an image of its own.
class ImageTexture final : public FrameTexture {
 public:
  QSGTexture* prepare(QQuickWindow* window, const Frame& frame) override;
  void update(Frame& frame, const QRegion&) override { frame.releaseBuffer(); }

 private:
  std::unique_ptr<QSGTexture> present_;
  std::unique_ptr<QSGTexture> before_;  // the scene's until it has the present one
};

QSGTexture* ImageTexture::prepare(QQuickWindow* window, const Frame& frame) {
  const ClientBuffer& buffer = *frame.content().buffer;
  const auto* pixels = std::get_if<std::shared_ptr<const ShmPixels>>(&buffer.pixels);
  if (!pixels || !(*pixels)->data()) return nullptr;
  const QImage shared(reinterpret_cast<const uchar*>((*pixels)->data()), buffer.size.width(),
                      buffer.size.height(), (*pixels)->stride(), imageFormat(buffer.format));
  before_ = std::exchange(
      present_, std::unique_ptr<QSGTexture>(window->createTextureFromImage(shared.copy())));
  return present_.get();
}

}  // namespace

std::unique_ptr<FrameTexture> createImageTexture() { return std::make_unique<ImageTexture>(); }

}  // namespace tromelo
