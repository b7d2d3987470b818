#include <QOpenGLContext>
#include <QQuickWindow>
#include <map>

#include "display/EglImage.h"
#include "display/FrameTexture.h"
#include "display/GlTexture.h"

namespace tromelo {

namespace {

/// One import for each of the engine's buffers, kept until the engine destroys the buffer.
class DmabufTextures final : public FrameTexture {
 public:
  QSGTexture* prepare(QQuickWindow* window, const Frame& frame) override;
  /// The GPU reads what the engine has written: nothing to do, and nothing to give back yet.
  void update(Frame&, const QRegion&) override {}

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
                                buffer->format.hasAlpha && !frame.content().opaque);
}

DmabufTextures::Import& DmabufTextures::importOf(
    const std::shared_ptr<const ClientBuffer>& buffer) {
  const auto [entry, isNew] = imports_.try_emplace(buffer.get());
  if (isNew) {
    entry->second.buffer = buffer;
    if (!QOpenGLContext::currentContext()) return entry->second;  // the processor draws
    auto texture = std::make_unique<GlTexture>();
    if (importEglImage(*buffer, *texture)) entry->second.texture = std::move(texture);
  }
  return entry->second;
}

}  // namespace

std::unique_ptr<FrameTexture> createDmabufTextures() { return std::make_unique<DmabufTextures>(); }

}  // namespace tromelo
