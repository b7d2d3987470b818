#include "display/EglDevice.h"

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformintegration.h>
#include <qpa/qplatformnativeinterface.h>
#include <QGuiApplication>
#include <QList>
#include <optional>

namespace tromelo {

namespace {

bool listHas(const char* list, const char* name) {
  return list && QByteArray::fromRawData(list, qstrlen(list)).split(' ').contains(name);
}

class Device {
 public:
  static std::optional<Device> of(EGLDisplay display) {
    const auto queryDisplay =
        eglFunction<PFNEGLQUERYDISPLAYATTRIBEXTPROC>("eglQueryDisplayAttribEXT");
    Device device;
    EGLAttrib attribute = 0;
    if (!queryDisplay || !device.query_ || !queryDisplay(display, EGL_DEVICE_EXT, &attribute))
      return {};
    device.device_ = reinterpret_cast<EGLDeviceEXT>(attribute);
    return device;
  }

  const char* text(EGLint name) const { return query_(device_, name); }

 private:
  EGLDeviceEXT device_ = nullptr;
  PFNEGLQUERYDEVICESTRINGEXTPROC query_ =
      eglFunction<PFNEGLQUERYDEVICESTRINGEXTPROC>("eglQueryDeviceStringEXT");
};

}  // namespace

EGLDisplay platformEglDisplay() {
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return EGL_NO_DISPLAY;
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

bool drawsInSoftware(EGLDisplay display) {
  const auto device = Device::of(display);
  return device && listHas(device->text(EGL_EXTENSIONS), "EGL_MESA_device_software");
}

QByteArray drmNodePath(EGLDisplay display) {
  const auto device = Device::of(display);
  if (!device) return {};
  const char* extensions = device->text(EGL_EXTENSIONS);
  if (listHas(extensions, "EGL_EXT_device_drm_render_node"))
    if (const char* path = device->text(EGL_DRM_RENDER_NODE_FILE_EXT)) return path;
  if (listHas(extensions, "EGL_EXT_device_drm"))
    if (const char* path = device->text(EGL_DRM_DEVICE_FILE_EXT)) return path;
  return {};
}

}  // namespace tromelo
