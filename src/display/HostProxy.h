#pragma once

#include <memory>

// The objects of a Wayland host's that are used here.
#define TROMELO_HOST_PROXIES(X)              \
  X(wl_buffer)                               \
  X(wl_callback)                             \
  X(wl_compositor)                           \
  X(wl_region)                               \
  X(wl_registry)                             \
  X(wl_shm)                                  \
  X(wl_shm_pool)                             \
  X(wl_subcompositor)                        \
  X(wl_subsurface)                           \
  X(wl_surface)                              \
  X(wp_alpha_modifier_surface_v1)            \
  X(wp_alpha_modifier_v1)                    \
  X(wp_color_management_surface_feedback_v1) \
  X(wp_color_management_surface_v1)          \
  X(wp_color_manager_v1)                     \
  X(wp_image_description_info_v1)            \
  X(wp_image_description_v1)                 \
  X(wp_linux_drm_syncobj_manager_v1)         \
  X(wp_linux_drm_syncobj_surface_v1)         \
  X(wp_linux_drm_syncobj_timeline_v1)        \
  X(wp_presentation)                         \
  X(wp_presentation_feedback)                \
  X(wp_viewport)                             \
  X(wp_viewporter)                           \
  X(zwp_linux_buffer_params_v1)              \
  X(zwp_linux_dmabuf_v1)

#define TROMELO_DECLARE(T) struct T;
TROMELO_HOST_PROXIES(TROMELO_DECLARE)
#undef TROMELO_DECLARE

namespace tromelo {

#define TROMELO_END(T) void endProxy(struct T* proxy);
TROMELO_HOST_PROXIES(TROMELO_END)
#undef TROMELO_END

template <typename T>
struct ProxyEnd {
  void operator()(T* proxy) const { endProxy(proxy); }
};

/// Ends the object with its own request.
template <typename T>
using HostProxy = std::unique_ptr<T, ProxyEnd<T>>;

/// For events that don't matter to a listener.
template <typename... Arguments>
void ignore(void*, Arguments...) {}

}  // namespace tromelo
