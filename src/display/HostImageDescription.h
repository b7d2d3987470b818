#pragma once

#include <cstdint>
#include <memory>

struct wp_image_description_v1;

namespace tromelo {

/// A description of colours that the host has made for the engine. Ends on the host thread, where
/// its last holder brings it.
class HostImageDescription {
 public:
  explicit HostImageDescription(wp_image_description_v1* proxy);
  ~HostImageDescription();
  HostImageDescription(const HostImageDescription&) = delete;
  HostImageDescription& operator=(const HostImageDescription&) = delete;

  wp_image_description_v1* proxy() const { return proxy_; }

 private:
  wp_image_description_v1* proxy_;
};

/// What the engine has said of the colours of one of its surfaces.
struct SurfaceColor {
  std::shared_ptr<const HostImageDescription> description = nullptr;
  std::uint32_t intent = 0;     // wp_color_manager_v1.render_intent
  std::uint32_t transfer = 0;   // wp_color_manager_v1.transfer_function; 0: not named
  std::uint32_t primaries = 0;  // wp_color_manager_v1.primaries; 0: not named
  friend bool operator==(const SurfaceColor&, const SurfaceColor&) = default;
};

}  // namespace tromelo
