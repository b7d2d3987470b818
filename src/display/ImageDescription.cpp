#include "display/ImageDescription.h"

#include <algorithm>
#include <utility>

#include "color-management-v1-server-protocol.h"

namespace tromelo {

namespace {

using Held = std::shared_ptr<ImageDescription>;

Held& heldBy(wl_resource* resource) {
  return *static_cast<Held*>(wl_resource_get_user_data(resource));
}

}  // namespace

Held ImageDescription::create(wl_resource* by, std::uint32_t id, bool hasInformation,
                              const SurfaceColor& named, HostConnection& host,
                              const std::shared_ptr<HostColors>& colors) {
  static constexpr struct wp_image_description_v1_interface kDescription{
      .destroy = [](wl_client*, wl_resource* r) { wl_resource_destroy(r); },
      .get_information = inform,
  };
  wl_client* client = wl_resource_get_client(by);
  const Held made(new ImageDescription(hasInformation, named, host, colors));
  made->resource_ = wl_resource_create(client, &wp_image_description_v1_interface,
                                       wl_resource_get_version(by), id);
  if (!made->resource_) {
    wl_client_post_no_memory(client);
    return nullptr;
  }
  wl_resource_set_implementation(made->resource_, &kDescription,
                                 std::make_unique<Held>(made).release(), [](wl_resource* r) {
                                   const std::unique_ptr<Held> ended(&heldBy(r));
                                   (*ended)->resource_ = nullptr;
                                 });
  return made;
}

ImageDescription& ImageDescription::of(wl_resource* resource) { return *heldBy(resource); }

HostColors::Answered ImageDescription::answeredOf(const Held& description) {
  return [weak = std::weak_ptr(description)](const HostColors::Answer& answer) {
    if (const auto open = weak.lock()) open->take(answer);
  };
}

std::optional<SurfaceColor> ImageDescription::color() const {
  return color_.description ? std::optional(color_) : std::nullopt;
}

bool ImageDescription::allows(std::uint32_t intent) const {
  const auto& intents = host_.colorSupport().intents;
  return std::ranges::find(intents, intent) != intents.end();
}

void ImageDescription::take(const HostColors::Answer& answer) {
  color_.description = answer.made;
  if (!resource_) return;
  if (answer.made)
    wp_image_description_v1_send_ready(resource_, answer.identity);
  else
    wp_image_description_v1_send_failed(resource_, answer.cause, "the host has none such");
}

void ImageDescription::inform(wl_client* client, wl_resource* resource, std::uint32_t id) {
  const ImageDescription& self = of(resource);
  if (!self.color_.description)
    return wl_resource_post_error(resource, WP_IMAGE_DESCRIPTION_V1_ERROR_NOT_READY,
                                  "the description isn't ready");
  if (!self.hasInformation_)
    return wl_resource_post_error(resource, WP_IMAGE_DESCRIPTION_V1_ERROR_NO_INFORMATION,
                                  "the description was made of what could be told");
  wl_resource* info = wl_resource_create(client, &wp_image_description_info_v1_interface,
                                         wl_resource_get_version(resource), id);
  if (!info) return wl_client_post_no_memory(client);
  // Nobody knows when the client goes, but the resource.
  auto alive = std::make_shared<wl_resource*>(info);
  wl_resource_set_implementation(
      info, nullptr, std::make_unique<std::shared_ptr<wl_resource*>>(alive).release(),
      [](wl_resource* r) {
        const std::unique_ptr<std::shared_ptr<wl_resource*>> ended(
            static_cast<std::shared_ptr<wl_resource*>*>(wl_resource_get_user_data(r)));
        **ended = nullptr;
      });
  self.host_.post([colors = self.colors_, description = self.color_.description, alive] {
    colors->inform(description, [alive](const HostColors::InfoEvent& event) {
      if (*alive) event(*alive);
    });
  });
}

}  // namespace tromelo
