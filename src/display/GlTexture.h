#pragma once

#include <QSize>
#include <memory>

class QQuickWindow;
class QSGTexture;

namespace tromelo {

struct ClientBuffer;

/// An OpenGL texture of our own with the scene's handle for it. Render thread, with the scene's
/// context current.
class GlTexture {
 public:
  GlTexture();
  ~GlTexture();
  GlTexture(const GlTexture&) = delete;
  GlTexture& operator=(const GlTexture&) = delete;

  void bind() const;
  /// Shows the pixels of a buffer in the GPU's memory from here on, without a copy. False when EGL
  /// refuses.
  bool import(const ClientBuffer& buffer);
  /// The scene's handle; made anew when size or kind differ from the last.
  QSGTexture* handle(QQuickWindow* window, QSize size, bool hasAlpha);

 private:
  void setAlpha(bool hasAlpha) const;

  unsigned id_ = 0;
  QSize size_;
  bool hasAlpha_ = false;
  std::unique_ptr<QSGTexture> handle_;
};

}  // namespace tromelo
