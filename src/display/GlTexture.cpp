#include "display/GlTexture.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QSGTexture>

namespace tromelo {

namespace {

// From desktop OpenGL and OpenGL ES 3, where GLES2's header doesn't have it.
constexpr GLenum swizzleAlpha = 0x8E45;

}  // namespace

GlTexture::GlTexture() { QOpenGLContext::currentContext()->functions()->glGenTextures(1, &id_); }

GlTexture::~GlTexture() {
  // Without a context the scene is gone, and the texture with it.
  if (QOpenGLContext* context = QOpenGLContext::currentContext())
    context->functions()->glDeleteTextures(1, &id_);
}

void GlTexture::bind() const {
  QOpenGLContext::currentContext()->functions()->glBindTexture(GL_TEXTURE_2D, id_);
}

QSGTexture* GlTexture::handle(QQuickWindow* window, QSize size, bool hasAlpha) {
  if (!handle_ || size_ != size || hasAlpha_ != hasAlpha) {
    const auto options =
        hasAlpha ? QQuickWindow::TextureHasAlphaChannel : QQuickWindow::CreateTextureOption{};
    handle_.reset(QNativeInterface::QSGOpenGLTexture::fromNative(id_, window, size, options));
    size_ = size;
    hasAlpha_ = hasAlpha;
    setAlpha(hasAlpha);
  }
  return handle_.get();
}

/// Where alpha means nothing it must read as one: a fading item multiplies with it, and a
/// translucent window would take it over.
void GlTexture::setAlpha(bool hasAlpha) const {
  QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
  gl->glBindTexture(GL_TEXTURE_2D, id_);
  gl->glTexParameteri(GL_TEXTURE_2D, swizzleAlpha, hasAlpha ? GL_ALPHA : GL_ONE);
  gl->glBindTexture(GL_TEXTURE_2D, 0);
}

}  // namespace tromelo
