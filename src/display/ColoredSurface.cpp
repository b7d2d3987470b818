#include "display/ColoredSurface.h"

#include <memory>
#include <new>
#include <utility>

#include "color-management-v1-server-protocol.h"
#include "display/ImageDescription.h"

namespace tromelo {

namespace {

using Color = std::optional<SurfaceColor>;

/// wlroots keeps what belongs to a commit, in memory of its own, until that commit counts.
constexpr wlr_surface_synced_impl kSynced{
    .state_size = sizeof(Color),
    .init_state = [](void* state) { new (state) Color; },
    .finish_state = [](void* state) { static_cast<Color*>(state)->~Color(); },
    .move_state = [](void* to,
                     void* from) { *static_cast<Color*>(to) = *static_cast<Color*>(from); },
};

}  // namespace

ColoredSurface::ColoredSurface(wlr_surface* surface) {
  wlr_surface_synced_init(&synced_, surface, &kSynced, &pending_, &current_);
  wlr_addon_init(&addon_, &surface->addons, &kSynced, &kAddon);
}

/// With its surface.
ColoredSurface::~ColoredSurface() {
  if (resource_) wl_resource_set_user_data(resource_, nullptr);
  wlr_surface_synced_finish(&synced_);
  wlr_addon_finish(&addon_);
}

constexpr wlr_addon_interface ColoredSurface::kAddon{
    .name = "tromelo-colored-surface",
    .destroy = [](wlr_addon* addon) { delete reinterpret_cast<ColoredSurface*>(addon); },
};

ColoredSurface* ColoredSurface::of(wlr_surface* surface) {
  return reinterpret_cast<ColoredSurface*>(wlr_addon_find(&surface->addons, &kSynced, &kAddon));
}

ColoredSurface* ColoredSurface::of(wl_resource* resource) {
  return static_cast<ColoredSurface*>(wl_resource_get_user_data(resource));
}

std::optional<SurfaceColor> ColoredSurface::colorOf(wlr_surface* surface) {
  const ColoredSurface* colored = of(surface);
  return colored ? colored->current_ : std::nullopt;
}

void ColoredSurface::create(wl_client* client, wl_resource* manager, std::uint32_t id,
                            wl_resource* surface) {
  static constexpr struct wp_color_management_surface_v1_interface kSurface{
      .destroy = [](wl_client*, wl_resource* r) { wl_resource_destroy(r); },
      .set_image_description = set,
      .unset_image_description = unset,
  };
  wlr_surface* colored = wlr_surface_from_resource(surface);
  ColoredSurface* self = of(colored);
  if (self && self->resource_)
    return wl_resource_post_error(manager, WP_COLOR_MANAGER_V1_ERROR_SURFACE_EXISTS,
                                  "the surface has its colours told by another object");
  wl_resource* resource = wl_resource_create(client, &wp_color_management_surface_v1_interface,
                                             wl_resource_get_version(manager), id);
  if (!resource) return wl_client_post_no_memory(client);
  if (!self) self = new ColoredSurface(colored);  // the surface's: its addon ends it
  self->resource_ = resource;
  // To let go of it means to say nothing any more, from the next commit on.
  wl_resource_set_implementation(resource, &kSurface, self, [](wl_resource* r) {
    ColoredSurface* of = ColoredSurface::of(r);
    if (!of) return;
    of->resource_ = nullptr;
    of->pending_.reset();
  });
}

void ColoredSurface::set(wl_client*, wl_resource* resource, wl_resource* description,
                         std::uint32_t intent) {
  ColoredSurface* self = of(resource);
  if (!self)
    return wl_resource_post_error(resource, WP_COLOR_MANAGEMENT_SURFACE_V1_ERROR_INERT,
                                  "the surface is gone");
  Color color = ImageDescription::of(description).color();
  if (!color)
    return wl_resource_post_error(resource, WP_COLOR_MANAGEMENT_SURFACE_V1_ERROR_IMAGE_DESCRIPTION,
                                  "the description isn't ready");
  if (!ImageDescription::of(description).allows(intent))
    return wl_resource_post_error(resource, WP_COLOR_MANAGEMENT_SURFACE_V1_ERROR_RENDER_INTENT,
                                  "the host has no such intent");
  color->intent = intent;
  self->pending_ = std::move(color);
}

void ColoredSurface::unset(wl_client*, wl_resource* resource) {
  if (ColoredSurface* self = of(resource)) self->pending_.reset();
}

}  // namespace tromelo
