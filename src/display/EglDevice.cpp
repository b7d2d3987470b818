#include "display/EglDevice.h"

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformintegration.h>
#include <qpa/qplatformnativeinterface.h>
#include <QGuiApplication>
#include <QList>

namespace tromelo {

namespace {

bool listHas(const char* list, const char* name) {
  return list && QByteArray::fromRawData(list, qstrlen(list)).split(' ').contains(name);
}

}  // namespace

EGLDisplay platformEglDisplay() {
  if (!qGuiApp) return EGL_NO_DISPLAY;
  // Asking makes the X11 platform load its OpenGL integration, which alone knows the display.
  if (!QGuiApplicationPrivate::platformIntegration()->hasCapability(QPlatformIntegration::OpenGL))
    return EGL_NO_DISPLAY;
  QPlatformNativeInterface* platform = QGuiApplication::platformNativeInterface();
  if (!platform) return EGL_NO_DISPLAY;
  return platform->nativeResourceForIntegration("egldisplay");
}

bool hasEglExtension(EGLDisplay display, const char* name) {
  return listHas(eglQueryString(display, EGL_EXTENSIONS), name);
}

QByteArray drmNodePath(EGLDisplay display) {
  const auto queryDisplay =
      eglFunction<PFNEGLQUERYDISPLAYATTRIBEXTPROC>("eglQueryDisplayAttribEXT");
  const auto queryDevice = eglFunction<PFNEGLQUERYDEVICESTRINGEXTPROC>("eglQueryDeviceStringEXT");
  EGLAttrib attribute = 0;
  if (!queryDisplay || !queryDevice || !queryDisplay(display, EGL_DEVICE_EXT, &attribute))
    return {};
  const auto device = reinterpret_cast<EGLDeviceEXT>(attribute);
  const char* extensions = queryDevice(device, EGL_EXTENSIONS);
  if (listHas(extensions, "EGL_EXT_device_drm_render_node"))
    if (const char* path = queryDevice(device, EGL_DRM_RENDER_NODE_FILE_EXT)) return path;
  if (listHas(extensions, "EGL_EXT_device_drm"))
    if (const char* path = queryDevice(device, EGL_DRM_DEVICE_FILE_EXT)) return path;
  return {};
}

}  // namespace tromelo
