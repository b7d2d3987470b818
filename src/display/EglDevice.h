#pragma once

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <QByteArray>

namespace tromelo {

/// The EGL display of Qt's platform, or EGL_NO_DISPLAY. Main thread.
EGLDisplay platformEglDisplay();

bool hasEglExtension(EGLDisplay display, const char* name);

/// The processor draws, not a graphics card. False where the display doesn't say.
bool drawsInSoftware(EGLDisplay display);

/// Path of the device's render node, else of its primary node; empty without a DRM device.
QByteArray drmNodePath(EGLDisplay display);

template <typename Function>
Function eglFunction(const char* name) {
  return reinterpret_cast<Function>(eglGetProcAddress(name));
}

}  // namespace tromelo
