#pragma once

struct mpv_handle;

namespace tromelo {

/// Carries a handle that nobody else uses any more to the thread that destroys it.
struct UncheckedHandle {
  mpv_handle* pointer = nullptr;
};

}  // namespace tromelo
