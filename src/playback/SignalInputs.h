#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tromelo {

/// What the engine last said about the current video, of which the texts for people are made. None
/// until it says so.
struct SignalInputs {
  std::optional<std::int64_t> width;   // pixels
  std::optional<std::int64_t> height;  // pixels
  std::optional<double> containerFps;
  std::optional<double> estimatedFps;
  std::optional<std::string> gamma;
  std::optional<std::string> colormatrix;
  std::optional<std::int64_t> dolbyVisionProfile;
  std::optional<std::string> targetGamma;
  std::optional<std::string> targetPrimaries;
};

}  // namespace tromelo
