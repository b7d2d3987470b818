#pragma once

#include <functional>

namespace tromelo {

/// Runs `task` on the main thread later, from any thread. Dropped when the application object is
/// gone: the process is ending and nobody listens any more.
void postToMainThread(std::function<void()> task);

}  // namespace tromelo
