#pragma once

#include <string>
#include <vector>

namespace tromelo {

struct MpvOption {
  std::string name;
  std::string value;
  bool mayBeUnknown = false;  // a libmpv built without it is as good
  bool mayBeRefused = false;  // as is one that doesn't take the value
};

/// What the engine is told before it is initialised, in order. `logFile` is a path's bytes.
std::vector<MpvOption> engineOptions(const std::string& logFile);

/// What this platform adds, set after the others. `vulkanDevice` is a UUID; empty: any.
std::vector<MpvOption> platformOptions(const std::string& vulkanDevice);

/// What keeps an engine from everything but films.
std::vector<MpvOption> plainOptions();

/// The socket for watching a running engine from outside, where the variable TROMELO_IPC names one.
std::vector<MpvOption> diagnosticOptions();

}  // namespace tromelo
