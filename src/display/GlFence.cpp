#include "display/GlFence.h"

#include <EGL/eglext.h>
#include <poll.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include "display/EglDevice.h"

namespace tromelo {

namespace {

constexpr int kLongestWait = 100;  // milliseconds, where the GPU can't be asked to

class Sync {
 public:
  explicit Sync(int fd) : display_(eglGetCurrentDisplay()) {
    const EGLint attributes[] = {EGL_SYNC_NATIVE_FENCE_FD_ANDROID, fd, EGL_NONE};
    const auto create = eglFunction<PFNEGLCREATESYNCKHRPROC>("eglCreateSyncKHR");
    if (create) sync_ = create(display_, EGL_SYNC_NATIVE_FENCE_ANDROID, attributes);
  }
  ~Sync() {
    const auto destroy = eglFunction<PFNEGLDESTROYSYNCKHRPROC>("eglDestroySyncKHR");
    if (*this) destroy(display_, sync_);
  }
  Sync(const Sync&) = delete;
  Sync& operator=(const Sync&) = delete;

  explicit operator bool() const { return sync_ != EGL_NO_SYNC_KHR; }
  bool wait() const {
    const auto wait = eglFunction<PFNEGLWAITSYNCKHRPROC>("eglWaitSyncKHR");
    return *this && wait && wait(display_, sync_, 0) == EGL_TRUE;
  }
  UniqueFd fence() const {
    const auto get = eglFunction<PFNEGLDUPNATIVEFENCEFDANDROIDPROC>("eglDupNativeFenceFDANDROID");
    return UniqueFd(*this && get ? get(display_, sync_) : EGL_NO_NATIVE_FENCE_FD_ANDROID);
  }

 private:
  EGLDisplay display_;
  EGLSyncKHR sync_ = EGL_NO_SYNC_KHR;
};

}  // namespace

bool hasGlFences(EGLDisplay display) {
  return display != EGL_NO_DISPLAY && hasEglExtension(display, "EGL_KHR_wait_sync") &&
         hasEglExtension(display, "EGL_ANDROID_native_fence_sync");
}

void drawAfter(UniqueFd fence) {
  if (!fence) return;
  const Sync sync(fence.get());
  if (sync) fence.release();  // EGL's now
  if (sync.wait()) return;
  pollfd signalled{fence.get(), POLLIN, 0};
  if (fence) poll(&signalled, 1, kLongestWait);
}

UniqueFd drawingFence() {
  QOpenGLContext* context = QOpenGLContext::currentContext();
  if (!context) return {};
  const Sync sync(EGL_NO_NATIVE_FENCE_FD_ANDROID);
  context->functions()->glFlush();  // before that it has none
  UniqueFd fence = sync.fence();
  if (!fence) context->functions()->glFinish();
  return fence;
}

}  // namespace tromelo
