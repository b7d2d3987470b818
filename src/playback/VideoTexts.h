#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tromelo {

// What the player says about the current file; none where there is nothing to say. Independent of
// the locale.

/// "1920 × 1080"; none unless both are 1 or more.
std::optional<QString> videoSizeText(std::optional<std::int64_t> width,
                                     std::optional<std::int64_t> height);

/// "25 fps": what the container says, else what was measured; none unless that is above 0.
std::optional<QString> frameRateText(std::optional<double> containerFps,
                                     std::optional<double> estimatedFps);

/// The engine's name for it, in upper case.
std::optional<QString> codecText(std::string_view videoFormat);

/// The first of the comma-separated names by which the engine knows the format, in upper case.
std::optional<QString> containerText(std::string_view fileFormat);

/// The name of a title without its last path extension; none for an empty one.
std::optional<QString> mediaTitleText(std::string_view mediaTitle);

}  // namespace tromelo
