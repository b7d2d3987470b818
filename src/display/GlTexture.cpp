#include "display/GlTexture.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GLES2/gl2.h>
#include <GLES2/gl2ext.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QSGTexture>
#include <array>
#include <vector>

#include "display/ClientBuffer.h"
#include "display/EglDevice.h"
#include "display/PixelFormat.h"

namespace tromelo {

namespace {

// From desktop OpenGL and OpenGL ES 3, where GLES2's header doesn't have it.
constexpr GLenum kSwizzleAlpha = 0x8E45;

struct PlaneNames {
  EGLint fd, offset, pitch, modifierLow, modifierHigh;
};

constexpr std::array<PlaneNames, 4> kPlaneNames{{
    {EGL_DMA_BUF_PLANE0_FD_EXT, EGL_DMA_BUF_PLANE0_OFFSET_EXT, EGL_DMA_BUF_PLANE0_PITCH_EXT,
     EGL_DMA_BUF_PLANE0_MODIFIER_LO_EXT, EGL_DMA_BUF_PLANE0_MODIFIER_HI_EXT},
    {EGL_DMA_BUF_PLANE1_FD_EXT, EGL_DMA_BUF_PLANE1_OFFSET_EXT, EGL_DMA_BUF_PLANE1_PITCH_EXT,
     EGL_DMA_BUF_PLANE1_MODIFIER_LO_EXT, EGL_DMA_BUF_PLANE1_MODIFIER_HI_EXT},
    {EGL_DMA_BUF_PLANE2_FD_EXT, EGL_DMA_BUF_PLANE2_OFFSET_EXT, EGL_DMA_BUF_PLANE2_PITCH_EXT,
     EGL_DMA_BUF_PLANE2_MODIFIER_LO_EXT, EGL_DMA_BUF_PLANE2_MODIFIER_HI_EXT},
    {EGL_DMA_BUF_PLANE3_FD_EXT, EGL_DMA_BUF_PLANE3_OFFSET_EXT, EGL_DMA_BUF_PLANE3_PITCH_EXT,
     EGL_DMA_BUF_PLANE3_MODIFIER_LO_EXT, EGL_DMA_BUF_PLANE3_MODIFIER_HI_EXT},
}};

std::vector<EGLint> importAttributes(const ClientBuffer& buffer, const DmabufPixels& pixels) {
  std::vector<EGLint> list{
      EGL_WIDTH,
      buffer.size.width(),
      EGL_HEIGHT,
      buffer.size.height(),
      EGL_LINUX_DRM_FOURCC_EXT,
      EGLint(buffer.fourcc),
  };
  for (std::size_t i = 0; i < std::size_t(pixels.planeCount); ++i) {
    const DmabufPixels::Plane& plane = pixels.planes[i];
    const PlaneNames& names = kPlaneNames[i];
    list.insert(list.end(), {names.fd, plane.fd, names.offset, EGLint(plane.offset), names.pitch,
                             EGLint(plane.stride)});
    if (pixels.modifier == kImplicitModifier) continue;
    list.insert(list.end(), {names.modifierLow, EGLint(pixels.modifier & 0xffffffff),
                             names.modifierHigh, EGLint(pixels.modifier >> 32)});
  }
  list.push_back(EGL_NONE);
  return list;
}

/// What somebody else did wrong is no fault of the import's.
void forgetErrors(QOpenGLFunctions& gl) {
  constexpr int kKinds = 8;  // a context that is lost has errors for ever
  for (int i = 0; i < kKinds && gl.glGetError() != GL_NO_ERROR; ++i) {
  }
}

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

bool GlTexture::import(const ClientBuffer& buffer) {
  const auto create = eglFunction<PFNEGLCREATEIMAGEKHRPROC>("eglCreateImageKHR");
  const auto destroy = eglFunction<PFNEGLDESTROYIMAGEKHRPROC>("eglDestroyImageKHR");
  const auto target =
      eglFunction<PFNGLEGLIMAGETARGETTEXTURE2DOESPROC>("glEGLImageTargetTexture2DOES");
  EGLDisplay display = eglGetCurrentDisplay();
  if (!create || !destroy || !target || display == EGL_NO_DISPLAY) return false;
  const auto attributes = importAttributes(buffer, std::get<DmabufPixels>(buffer.pixels));
  EGLImageKHR image =
      create(display, EGL_NO_CONTEXT, EGL_LINUX_DMA_BUF_EXT, nullptr, attributes.data());
  if (image == EGL_NO_IMAGE_KHR) return false;
  QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
  forgetErrors(*gl);
  bind();
  target(GL_TEXTURE_2D, image);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
  const bool isBound = gl->glGetError() == GL_NO_ERROR;
  gl->glBindTexture(GL_TEXTURE_2D, 0);
  destroy(display, image);  // the texture keeps what it needs of it
  return isBound;
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
  gl->glTexParameteri(GL_TEXTURE_2D, kSwizzleAlpha, hasAlpha ? GL_ALPHA : GL_ONE);
  gl->glBindTexture(GL_TEXTURE_2D, 0);
}

}  // namespace tromelo
