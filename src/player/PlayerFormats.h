#pragma once

#include <QString>

namespace tromelo {

/// "1:02", from an hour on "1:00:00"; what isn't a time is "0:00". Whole seconds, cut off.
QString formatClock(double seconds);

/// "1×", "1.25×": a speed factor with at most two decimals.
QString formatSpeed(double speed);

/// "+50 ms", "-100 ms", "0 ms": a finite delay, rounded to milliseconds, halves away from zero.
QString formatDelay(double seconds);

}  // namespace tromelo
