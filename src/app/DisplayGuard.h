#pragma once

namespace tromelo {

/// Put round the making of the application object: where the display can't be reached, which Qt
/// takes for a reason to abort, the process ends with one sentence and status 1. One at a time.
class DisplayGuard {
 public:
  DisplayGuard();
  /// Passes on what Qt has said meanwhile.
  ~DisplayGuard();
};

}  // namespace tromelo
