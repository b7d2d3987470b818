#include "platform/HostHeadroom.h"

#include <qpa/qplatformnativeinterface.h>
#include <QGuiApplication>
#include <QScreen>

#include "platform/WaylandHeadroom.h"

namespace tromelo {

namespace {

wl_output* outputOf(QScreen* screen) {
  QPlatformNativeInterface* host = QGuiApplication::platformNativeInterface();
  return static_cast<wl_output*>(host->nativeResourceForScreen("output", screen));
}

}  // namespace

HostHeadroom::HostHeadroom() {
  QPlatformNativeInterface* host = QGuiApplication::platformNativeInterface();
  if (!host || !QGuiApplication::platformName().startsWith(u"wayland")) return;
  // Qt dispatches the connection's default queue on this thread.
  if (auto* display = static_cast<wl_display*>(host->nativeResourceForIntegration("wl_display")))
    wayland_ = std::make_unique<WaylandHeadroom>(display, [this] { Q_EMIT changed(); });
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](QScreen* screen) {
    if (wayland_) wayland_->forget(outputOf(screen));
  });
}

HostHeadroom::~HostHeadroom() = default;

ScreenHeadroom HostHeadroom::of(QScreen* screen) {
  wl_output* output = wayland_ && screen ? outputOf(screen) : nullptr;
  return output ? wayland_->of(output) : ScreenHeadroom();
}

}  // namespace tromelo
