#include "player/SubtitleLift.h"

#include <algorithm>

namespace tromelo {

namespace {

constexpr double kGap = 10;   // points between the controls and the text
constexpr double kMost = 45;  // percent

}  // namespace

double subtitleLift(double controlsTop, double height) {
  return std::min((controlsTop + kGap) / height * 100, kMost);
}

}  // namespace tromelo
