#include "overlay/ControlBarRow.h"

#include <algorithm>

namespace tromelo {

namespace {

constexpr double kIcon = 28;
constexpr double kPlay = 44;
constexpr double kMute = 18;
constexpr double kSideSpacing = 8;  // between the mute button and the slider, and round the middle
constexpr double kVolume = 92;
constexpr double kLeastVolume = 32;

struct Widths {
  double transport;
  double options;
};

Widths widths(const ControlBarContent& content, const ControlBarRow& row) {
  const int icons = content.hasQueue ? 4 : 2;
  const int options = content.hasChapters ? 5 : 4;
  return {.transport = kPlay + icons * (kIcon + row.transportSpacing),
          .options = content.speedWidth + options * (kIcon + row.optionsSpacing)};
}

/// With these gaps; a negative width of the slider says by how much they are too wide.
ControlBarRow fit(double room, const ControlBarContent& content, ControlBarRow gaps) {
  const auto [transport, options] = widths(content, gaps);
  const double right = room - options - kSideSpacing - transport;
  gaps.volumeWidth = std::min(right - kMute - 2 * kSideSpacing, kVolume);
  gaps.transportX = std::min((room - transport) / 2, right);
  return gaps;
}

}  // namespace

ControlBarRow controlBarRow(double room, const ControlBarContent& content) {
  ControlBarRow row = fit(room, content, {.transportSpacing = 14, .optionsSpacing = 8});
  if (row.volumeWidth < kVolume)
    row = fit(room, content, {.transportSpacing = 4, .optionsSpacing = 2});
  if (row.volumeWidth < kLeastVolume) row.volumeWidth = 0;
  row.transportX = std::max(row.transportX, kMute);
  return row;
}

}  // namespace tromelo
