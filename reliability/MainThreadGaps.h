#pragma once

#include <QFile>
#include <QTemporaryFile>
#include <atomic>
#include <chrono>
#include <cstdint>

namespace tromelo::testing {

/// What WatchMainThread.cpp, which is preloaded into the program, writes into the file that
/// TROMELO_GAPS names. The kernel has it zeroed.
struct GapsFound {
  std::atomic<std::uint32_t> longest;      // microseconds, until it is taken
  std::atomic<std::uint32_t> longestBusy;  // of these, the thread was computing
};

/// How long the main thread of the program was away: something that was posted to it had to wait.
class MainThreadGaps {
 public:
  MainThreadGaps() {
    if (file_.open() && file_.resize(sizeof(GapsFound)))
      found_ = reinterpret_cast<GapsFound*>(file_.map(0, sizeof(GapsFound)));
  }

  QString path() const { return file_.fileName(); }

  struct Gap {
    std::chrono::microseconds wait{};
    std::chrono::microseconds busy{};
  };
  /// The longest since the last call, and the longest time that it computed meanwhile: where that
  /// is much less, other processes had the processor.
  Gap takeLongest() {
    if (!found_) return {};
    return {std::chrono::microseconds(found_->longest.exchange(0)),
            std::chrono::microseconds(found_->longestBusy.exchange(0))};
  }

 private:
  QTemporaryFile file_;
  GapsFound* found_ = nullptr;
};

}  // namespace tromelo::testing
