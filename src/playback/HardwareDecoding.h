#pragma once

#include <QString>
#include <optional>
#include <set>
#include <string>

namespace tromelo {

class UserDefaults;

/// Paths of the files that are always decoded in software, as bytes.
using SoftwareDecodePaths = std::set<std::string, std::less<>>;

/// What can't be read counts as absent.
SoftwareDecodePaths storedSoftwareDecodePaths(const UserDefaults& defaults);

void store(const SoftwareDecodePaths& paths, UserDefaults& defaults);

/// Whether a file is decoded in hardware, and when that is given up. Errors that follow each other
/// closely are one burst; a single burst just after loading or seeking is forgiven. Times are
/// seconds of a monotonic clock.
struct HardwareDecoding {
  int errorBursts = 0;   // in the current file
  double lastError = 0;  // in the current file
  double lastPlaybackRestart = 0;
  bool forcedSoftware = false;   // the current file is decoded in software because of its errors
  bool tookProgramDown = false;  // the hardware, with the current file, before this start
  SoftwareDecodePaths softwarePaths;

  void fileStarted();
  void pathReported(const std::string& path);
  /// The decoder warned about the hardware. True when the file is to go on in software from now on.
  bool givesUpAfterError(double now);
};

/// Whether `reported`, the engine's name for what decodes, is hardware.
bool isHardwareDecoder(const std::optional<std::string>& reported);

/// What decodes, for people: `reported` is the engine's name for it. None where it isn't known yet.
std::optional<QString> decoderText(const std::optional<std::string>& reported, bool forcedSoftware,
                                   bool isLoaded);

}  // namespace tromelo
