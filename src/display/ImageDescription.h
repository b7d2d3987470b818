#pragma once

#include <memory>

#include "display/HostColors.h"
#include "display/Wlroots.h"

namespace tromelo {

/// A wp_image_description_v1 of the engine's, which stands for one of the host's. Display's thread.
class ImageDescription {
 public:
  /// Of a request to `by`. `named` is what its parameters say of it. None where the system gave too
  /// little.
  static std::shared_ptr<ImageDescription> create(wl_resource* by, std::uint32_t id,
                                                  bool hasInformation, const SurfaceColor& named,
                                                  HostConnection& host,
                                                  const std::shared_ptr<HostColors>& colors);
  static ImageDescription& of(wl_resource* resource);

  /// Takes the host's answer, if it is still there by then.
  static HostColors::Answered answeredOf(const std::shared_ptr<ImageDescription>& description);

  /// None before the host has made it.
  std::optional<SurfaceColor> color() const;
  /// The host renders that way.
  bool allows(std::uint32_t intent) const;

 private:
  ImageDescription(bool hasInformation, const SurfaceColor& named, HostConnection& host,
                   const std::shared_ptr<HostColors>& colors)
      : hasInformation_(hasInformation), color_(named), host_(host), colors_(colors) {}

  void take(const HostColors::Answer& answer);
  static void inform(wl_client*, wl_resource* resource, std::uint32_t id);

  wl_resource* resource_ = nullptr;  // until the engine destroys it
  const bool hasInformation_;
  SurfaceColor color_;
  HostConnection& host_;
  const std::shared_ptr<HostColors> colors_;
};

}  // namespace tromelo
