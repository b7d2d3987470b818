#pragma once

#include <functional>

namespace tromelo {

/// What the desktop's media controls ask of the program around the model. All are set.
struct MprisShell {
  std::function<void()> raise;  // shows the program in front of others
  std::function<void()> quit;
  std::function<void()> stop;  // closes what plays
  std::function<void()> toggleFullscreen;
};

}  // namespace tromelo
