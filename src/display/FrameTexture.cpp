#include "display/FrameTexture.h"

#include <QImage>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSGTexture>
#include <map>
#include <utility>

#include "display/GlFence.h"
#include "display/GlTexture.h"
#include "display/PixelFormat.h"

namespace tromelo {

namespace {

/// One import for each of the engine's buffers, kept until the engine destroys the buffer.
class DmabufTextures final : public FrameTexture {
 public:
  QSGTexture* prepare(QQuickWindow* window, const Frame& frame) override;
  /// The GPU reads what the engine has written, when it has: nothing is given back yet.
  void update(Frame& frame, const QRegion&) override {
    if (const auto sync = frame.sync())
      drawAfter(sync->acquire().timeline->fence(sync->acquire().value));
  }

 private:
  struct Import {
    std::weak_ptr<const ClientBuffer> buffer;
    std::unique_ptr<GlTexture> texture;  // none: it was refused
  };

  Import& importOf(const std::shared_ptr<const ClientBuffer>& buffer);

  std::map<const ClientBuffer*, Import> imports_;
};

QSGTexture* DmabufTextures::prepare(QQuickWindow* window, const Frame& frame) {
  std::erase_if(imports_, [](const auto& entry) { return entry.second.buffer.expired(); });
  const auto& buffer = frame.content().buffer;
  const Import& import = importOf(buffer);
  if (!import.texture) return nullptr;
  return import.texture->handle(window, buffer->size,
                                pixelFormat(buffer->fourcc)->hasAlpha && !frame.content().opaque);
}

DmabufTextures::Import& DmabufTextures::importOf(
    const std::shared_ptr<const ClientBuffer>& buffer) {
  const auto [entry, isNew] = imports_.try_emplace(buffer.get());
  if (isNew) {
    entry->second.buffer = buffer;
    if (!QOpenGLContext::currentContext()) return entry->second;  // the processor draws
    auto texture = std::make_unique<GlTexture>();
    if (texture->import(*buffer)) entry->second.texture = std::move(texture);
  }
  return entry->second;
}

QImage::Format imageFormat(const PixelFormat& format) {
  if (format.depth == PixelFormat::Depth::half)
    return format.hasAlpha ? QImage::Format_RGBA16FPx4_Premultiplied : QImage::Format_RGBX16FPx4;
  if (format.depth == PixelFormat::Depth::bits10) {
    if (format.blueFirst)
      return format.hasAlpha ? QImage::Format_A2RGB30_Premultiplied : QImage::Format_RGB30;
    return format.hasAlpha ? QImage::Format_A2BGR30_Premultiplied : QImage::Format_BGR30;
  }
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
                      buffer.size.height(), (*pixels)->stride(),
                      imageFormat(*pixelFormat(buffer.fourcc)));
  before_ = std::exchange(
      present_, std::unique_ptr<QSGTexture>(window->createTextureFromImage(shared.copy())));
  return present_.get();
}

}  // namespace

std::unique_ptr<FrameTexture> createDmabufTextures() { return std::make_unique<DmabufTextures>(); }

std::unique_ptr<FrameTexture> createImageTexture() { return std::make_unique<ImageTexture>(); }

}  // namespace tromelo
