#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

namespace tromelo {

class MpvEngine;

/// What libmpv wakes up: it survives the engine for as long as a task that it posted is waiting.
class WakeupTarget : public std::enable_shared_from_this<WakeupTarget> {
 public:
  /// Not owned; null before the engine runs and as soon as it ends. Main thread only.
  MpvEngine* engine = nullptr;

  /// libmpv's callback, with a WakeupTarget or null as its context; any thread. Wakes the listener
  /// where there is one, else the main thread.
  static void wakeup(void* context);

  /// Posts one task that drains the engine's events on the main thread; while one is waiting no
  /// second is needed. Any thread.
  void post();

  /// Whether another thread listens in the main thread's place. Wakes that thread either way. Any
  /// thread.
  void setListener(bool listens);
  /// Waits until there was a wakeup since the last call; false when `patience` passes first. None:
  /// for ever. The listener's thread.
  bool listen(std::optional<std::chrono::milliseconds> patience);

 private:
  void drain();
  void wakeListener();

  std::atomic<bool> posted_ = false;
  std::atomic<bool> hasListener_ = false;
  std::mutex mutex_;
  std::condition_variable woken_;
  bool isWoken_ = false;  // since the listener listened; with the lock
};

}  // namespace tromelo
