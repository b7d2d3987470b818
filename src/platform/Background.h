#pragma once

#include <functional>
#include <memory>
#include <thread>
#include <utility>

#include "platform/MainThread.h"

namespace tromelo {

/// Work that may take its time, or never come to an end, as a share that isn't connected makes it:
/// each on a thread of its own, which nothing waits for, not even the end of the program. Main
/// thread only.
class Background {
 public:
  /// `work` is called on another thread, and may still run when this object is gone; `use` takes
  /// what it has found, from the event loop, unless it was dropped meanwhile.
  template <typename Work, typename Use>
  void run(Work work, Use use) {
    std::thread([work = std::move(work), use = std::move(use), owner = std::weak_ptr(isWanted_)] {
      postToMainThread([found = work(), use, owner]() mutable {
        if (!owner.expired()) use(std::move(found));
      });
    }).detach();
  }

  /// What is still to come isn't wanted any more.
  void drop() { isWanted_ = std::make_shared<bool>(); }

 private:
  std::shared_ptr<const bool> isWanted_ = std::make_shared<bool>();
};

}  // namespace tromelo
