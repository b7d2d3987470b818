#include "display/EglImage.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GLES2/gl2.h>
#include <GLES2/gl2ext.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <array>
#include <vector>

#include "display/EglDevice.h"
#include "display/GlTexture.h"

namespace tromelo {

namespace {

struct PlaneNames {
  EGLint fd, offset, pitch, modifierLow, modifierHigh;
};

constexpr std::array<PlaneNames, 4> planeNames{{
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
      EGLint(buffer.format.fourcc),
  };
  for (std::size_t i = 0; i < std::size_t(pixels.planeCount); ++i) {
    const DmabufPixels::Plane& plane = pixels.planes[i];
    const PlaneNames& names = planeNames[i];
    list.insert(list.end(), {names.fd, plane.fd, names.offset, EGLint(plane.offset), names.pitch,
                             EGLint(plane.stride)});
    if (pixels.modifier == implicitModifier) continue;
    list.insert(list.end(), {names.modifierLow, EGLint(pixels.modifier & 0xffffffff),
                             names.modifierHigh, EGLint(pixels.modifier >> 32)});
  }
  list.push_back(EGL_NONE);
  return list;
}

/// What somebody else did wrong is no fault of the import's.
void forgetErrors(QOpenGLFunctions& gl) {
  constexpr int kinds = 8;  // a context that is lost has errors for ever
  for (int i = 0; i < kinds && gl.glGetError() != GL_NO_ERROR; ++i) {
  }
}

}  // namespace

bool importEglImage(const ClientBuffer& buffer, const GlTexture& texture) {
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
  texture.bind();
  target(GL_TEXTURE_2D, image);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
  const bool isBound = gl->glGetError() == GL_NO_ERROR;
  gl->glBindTexture(GL_TEXTURE_2D, 0);
  destroy(display, image);  // the texture keeps what it needs of it
  return isBound;
}

}  // namespace tromelo
