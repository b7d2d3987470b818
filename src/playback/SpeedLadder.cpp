#include "playback/SpeedLadder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace tromelo {

namespace {

constexpr std::array kLadder{0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 1.75, 2.0, 3.0};
constexpr double kTolerance = 0.001;

}  // namespace

std::span<const double> speedLadder() { return kLadder; }

double steppedSpeed(double speed, int steps) {
  constexpr std::int64_t kLast = kLadder.size() - 1;
  // What is above all rungs counts as the last.
  const auto current = std::find_if(kLadder.begin(), kLadder.begin() + kLast,
                                    [speed](double rung) { return rung >= speed - kTolerance; });
  const std::int64_t index = (current - kLadder.begin()) + std::int64_t{steps};
  return kLadder[static_cast<std::size_t>(std::clamp<std::int64_t>(index, 0, kLast))];
}

bool isSameSpeed(double one, double other) { return std::abs(one - other) < kTolerance; }

}  // namespace tromelo
