#pragma once

#include <optional>

#include "display/HostImageDescription.h"
#include "display/WaylandEvents.h"
#include "display/Wlroots.h"

namespace tromelo {

/// A surface of the engine's that has colours, which change with its commits. Display's thread.
class ColoredSurface {
 public:
  /// The request wp_color_manager_v1.get_surface.
  static void create(wl_client* client, wl_resource* manager, std::uint32_t id,
                     wl_resource* surface);
  /// None where the engine has said nothing.
  static std::optional<SurfaceColor> colorOf(wlr_surface* surface);

  ColoredSurface(const ColoredSurface&) = delete;
  ColoredSurface& operator=(const ColoredSurface&) = delete;

 private:
  using Color = std::optional<SurfaceColor>;

  explicit ColoredSurface(wlr_surface* surface);
  ~ColoredSurface();

  static const wlr_addon_interface kAddon;

  static ColoredSurface* of(wlr_surface* surface);
  /// None once the surface is gone.
  static ColoredSurface* of(wl_resource* resource);
  static void set(wl_client*, wl_resource* resource, wl_resource* description,
                  std::uint32_t intent);
  static void unset(wl_client*, wl_resource* resource);

  wlr_addon addon_{};                // first, so that a pointer to it is a pointer to the object
  wl_resource* resource_ = nullptr;  // none: the engine has let go of it
  wlr_surface_synced synced_{};
  Color pending_, current_;
};

}  // namespace tromelo
