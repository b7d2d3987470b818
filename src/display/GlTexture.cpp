#include "display/GlTexture.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QSGTexture>

namespace tromelo {

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
  }
  return handle_.get();
}

}  // namespace tromelo
