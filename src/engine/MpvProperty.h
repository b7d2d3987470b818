#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace tromelo {

/// The engine properties that we observe. The value is also the number under which a change is
/// reported.
enum class MpvProperty : std::uint64_t {
  mediaTitle = 1,
  timePos,
  duration,
  pause,
  volume,
  fullscreen,
  voConfigured,
  pausedForCache,
  width,
  height,
  containerFps,
  estimatedFps,
  videoFormat,
  hwdecCurrent,
  fileFormat,
  decoderDrops,
  outputDrops,
  gamma,
  primaries,
  colormatrix,
  sigPeak,
  dolbyVisionProfile,
  targetGamma,
  targetPrimaries,
  path,
  trackList,
  chapterList,
  chapter,
  playlist,
  playlistPos,
  speed,
  mute,
  subDelay,
  audioDelay,
  loopFile,
};

/// How the engine is asked to report a property; the numbers are libmpv's.
enum class MpvFormat { string = 1, flag = 3, int64 = 4, number = 5, node = 6 };

/// All of them, in order.
std::span<const MpvProperty> allMpvProperties();

const char* mpvPropertyName(MpvProperty property);
MpvFormat mpvPropertyFormat(MpvProperty property);

/// None for a number that is no property's.
std::optional<MpvProperty> mpvProperty(std::uint64_t rawValue);

}  // namespace tromelo
