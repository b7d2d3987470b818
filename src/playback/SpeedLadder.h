#pragma once

#include <span>

namespace tromelo {

/// The speeds that people are offered, rising.
std::span<const double> speedLadder();

/// The speed that is `steps` rungs away from `speed`; a speed between two rungs counts as the upper
/// one. Stays on the ladder, which goes from 0.25 to 3.0.
double steppedSpeed(double speed, int steps);

/// Close enough to be one speed.
bool isSameSpeed(double one, double other);

}  // namespace tromelo
