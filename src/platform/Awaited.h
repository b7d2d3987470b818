#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace tromelo {

/// What one thread waits for and another finds out, perhaps when nobody waits any more.
template <typename T>
class Awaited {
 public:
  void put(std::optional<T> found) {
    const std::scoped_lock lock(mutex_);
    found_ = std::move(found);
    isThere_ = true;
    arrived_.notify_all();
  }

  std::optional<T> wait(std::chrono::steady_clock::time_point until) {
    std::unique_lock lock(mutex_);
    if (!arrived_.wait_until(lock, until, [this] { return isThere_; })) return {};
    return found_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable arrived_;
  bool isThere_ = false;
  std::optional<T> found_;
};

}  // namespace tromelo
