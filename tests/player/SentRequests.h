#pragma once

#include <string>
#include <vector>

#include "engine/MpvClientApi.h"

namespace tromelo::testing {

/// A client API that accepts everything, does nothing, and remembers what the engine was sent:
/// "stop", "pause=yes".
class SentRequests {
 public:
  MpvClientApi api();

  /// What was sent since the last call.
  std::vector<std::string> take();

 private:
  std::vector<std::string> sent_;
  mpv_event none_ = {};
  char handle_ = 0;
};

}  // namespace tromelo::testing
