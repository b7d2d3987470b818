#pragma once

#include <atomic>
#include <memory>

namespace tromelo {

class MpvEngine;

/// What libmpv wakes up: it survives the engine for as long as a task that it posted is waiting.
class WakeupTarget : public std::enable_shared_from_this<WakeupTarget> {
 public:
  /// Not owned; null before the engine runs and as soon as it ends. Main thread only.
  MpvEngine* engine = nullptr;

  /// libmpv's callback, with a WakeupTarget or null as its context; any thread. Posts one task that
  /// drains the engine's events on the main thread; while one is waiting no second is needed.
  static void wakeup(void* context);

 private:
  void drain();

  std::atomic<bool> posted_ = false;
};

}  // namespace tromelo
