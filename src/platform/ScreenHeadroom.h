#pragma once

namespace tromelo {

/// How much brighter than plain white a screen can show things, as ratios; 1 is not at all.
struct ScreenHeadroom {
  double potential = 1.0;  // at best
  double current = 1.0;    // as the screen is set now

  friend bool operator==(const ScreenHeadroom&, const ScreenHeadroom&) = default;
};

}  // namespace tromelo
