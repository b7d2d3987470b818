#pragma once

#include <wayland-client.h>

#include <memory>

#include "linux-dmabuf-v1-client-protocol.h"
#include "presentation-time-client-protocol.h"
#include "viewporter-client-protocol.h"
#include "xdg-shell-client-protocol.h"

namespace tromelo::testing {

/// Destroys a Wayland proxy with its destructor request. The requests are static functions of C
/// headers, which no template of external linkage can be made with.
struct ProxyDeleter {
  void operator()(wl_display* p) const { wl_display_disconnect(p); }
  void operator()(wl_registry* p) const { wl_registry_destroy(p); }
  void operator()(wl_compositor* p) const { wl_compositor_destroy(p); }
  void operator()(wl_subcompositor* p) const { wl_subcompositor_destroy(p); }
  void operator()(wl_shm* p) const { wl_shm_destroy(p); }
  void operator()(wl_shm_pool* p) const { wl_shm_pool_destroy(p); }
  void operator()(wl_buffer* p) const { wl_buffer_destroy(p); }
  void operator()(wl_output* p) const { wl_output_destroy(p); }
  void operator()(wl_seat* p) const { wl_seat_destroy(p); }
  void operator()(wl_surface* p) const { wl_surface_destroy(p); }
  void operator()(wl_region* p) const { wl_region_destroy(p); }
  void operator()(wl_callback* p) const { wl_callback_destroy(p); }
  void operator()(xdg_wm_base* p) const { xdg_wm_base_destroy(p); }
  void operator()(xdg_surface* p) const { xdg_surface_destroy(p); }
  void operator()(xdg_toplevel* p) const { xdg_toplevel_destroy(p); }
  void operator()(wp_viewporter* p) const { wp_viewporter_destroy(p); }
  void operator()(wp_viewport* p) const { wp_viewport_destroy(p); }
  void operator()(wp_presentation* p) const { wp_presentation_destroy(p); }
  void operator()(struct wp_presentation_feedback* p) const { wp_presentation_feedback_destroy(p); }
  void operator()(zwp_linux_dmabuf_v1* p) const { zwp_linux_dmabuf_v1_destroy(p); }
  void operator()(zwp_linux_buffer_params_v1* p) const { zwp_linux_buffer_params_v1_destroy(p); }
};

/// Owns a Wayland proxy.
template <typename T>
using Proxy = std::unique_ptr<T, ProxyDeleter>;

}  // namespace tromelo::testing
