#pragma once

#include <chrono>
#include <functional>

namespace tromelo::testing {

/// Runs the event loop until `condition` holds. False when `limit` passes first; the limit only
/// bounds a failing test, so it is far above what a slow machine needs.
[[nodiscard]] bool waitFor(const std::function<bool()>& condition,
                           std::chrono::milliseconds limit = std::chrono::seconds(30));

/// Runs the event loop until nothing is waiting in it: posted calls and deferred deletions.
void settle();

}  // namespace tromelo::testing
