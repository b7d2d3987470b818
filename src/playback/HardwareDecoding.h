#pragma once

#include <set>
#include <string>

namespace tromelo {

/// What is known of decoding in hardware. Times are seconds of the clock.
struct HardwareDecoding {
  int errorBursts = 0;   // in the current file
  double lastError = 0;  // in the current file
  double lastPlaybackRestart = 0;
  bool forcedSoftware = false;  // the current file is decoded in software because of its errors
  std::set<std::string, std::less<>> softwarePaths;  // files that always are
};

}  // namespace tromelo
