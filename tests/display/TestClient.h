#pragma once

#include <wayland-client.h>

#include <QByteArray>
#include <memory>
#include <string>

#include "color-management-v1-client-protocol.h"
#include "display/HostProxy.h"
#include "linux-dmabuf-v1-client-protocol.h"
#include "linux-drm-syncobj-v1-client-protocol.h"
#include "presentation-time-client-protocol.h"
#include "viewporter-client-protocol.h"
#include "xdg-shell-client-protocol.h"

namespace tromelo::testing {

/// Destroys a Wayland proxy with its destructor request. The requests are static functions of C
/// headers, which no template of external linkage can be made with.
struct ProxyDeleter {
  template <typename T>
  void operator()(T* p) const {
    endProxy(p);
  }
  void operator()(wl_display* p) const { wl_display_disconnect(p); }
  void operator()(xdg_wm_base* p) const { xdg_wm_base_destroy(p); }
  void operator()(xdg_surface* p) const { xdg_surface_destroy(p); }
  void operator()(xdg_toplevel* p) const { xdg_toplevel_destroy(p); }
};

/// Owns a Wayland proxy.
template <typename T>
using Proxy = std::unique_ptr<T, ProxyDeleter>;

/// A connection to a display in this process, with what it is used for. The display has a thread of
/// its own, so waiting for it blocks nothing that it needs.
class TestClient {
 public:
  explicit TestClient(const QByteArray& socketPath);

  /// False when the connection is broken.
  bool roundtrip() { return wl_display_roundtrip(display.get()) >= 0; }
  /// Reads what has come, without waiting.
  void dispatch();
  /// The interface whose object the display found fault with; empty without a fault.
  std::string faultyInterface() const;

  // None where the display doesn't announce it.
  Proxy<wl_display> display;
  Proxy<wl_registry> registry;
  Proxy<wl_compositor> compositor;
  Proxy<wl_shm> shm;
  Proxy<xdg_wm_base> shell;
  Proxy<wp_viewporter> viewporter;
  Proxy<wp_presentation> presentation;
  Proxy<zwp_linux_dmabuf_v1> dmabuf;
  Proxy<wp_color_manager_v1> colorManager;
  Proxy<wp_linux_drm_syncobj_manager_v1> syncManager;

 private:
  void bind(std::uint32_t name, const std::string& interface);
};

}  // namespace tromelo::testing
