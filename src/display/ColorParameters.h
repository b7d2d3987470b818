#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "display/HostConnection.h"

struct wp_image_description_creator_params_v1;

namespace tromelo {

/// A description of colours by its parameters, in the units of color-management-v1.
struct ColorParameters {
  using Primaries = std::array<std::int32_t, 8>;  // x and y of red, green, blue, white

  /// A fault of the client's: an error of wp_image_description_creator_params_v1.
  using Fault = std::optional<std::uint32_t>;

  std::optional<std::uint32_t> transfer, power;
  std::optional<std::uint32_t> namedPrimaries;
  std::optional<Primaries> primaries;
  std::optional<std::array<std::uint32_t, 3>> luminances;  // least, most, reference
  std::optional<Primaries> masteringPrimaries;
  std::optional<std::array<std::uint32_t, 2>> masteringLuminance;  // least, most
  // Drivers say 0 where the film says nothing, which a strict host takes for a fault.
  std::optional<std::uint32_t> maxCll, maxFall;

  /// What a host that has `support` would end the connection for. To be asked with each request...
  Fault faultOf(const HostColorSupport& support) const;
  /// ...and when the description is to be made.
  Fault faultOfWhole() const;

  /// Tells the host's creator all of it. Host thread.
  void tell(wp_image_description_creator_params_v1* creator) const;
};

}  // namespace tromelo
