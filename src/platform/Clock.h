#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tromelo {

/// Monotonic time and timers of the main thread behind one interface, so that tests drive time.
/// Main thread only.
class Clock {
 public:
  /// Destroying it cancels what has not fired yet.
  class Timer {
   public:
    virtual ~Timer() = default;
  };

  virtual ~Clock() = default;

  /// Seconds since an arbitrary moment; never goes back.
  virtual double now() const = 0;

  /// Calls back once after `delay`, unless the timer is destroyed first. The callback may destroy
  /// its own timer.
  [[nodiscard]] virtual std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                                                     std::function<void()> callback) = 0;

  /// Calls back every `interval` until the timer is destroyed.
  [[nodiscard]] virtual std::unique_ptr<Timer> every(std::chrono::milliseconds interval,
                                                     std::function<void()> callback) = 0;
};

/// The machine's own time, on Qt's event loop.
class SystemClock final : public Clock {
 public:
  double now() const override;
  std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                               std::function<void()> callback) override;
  std::unique_ptr<Timer> every(std::chrono::milliseconds interval,
                               std::function<void()> callback) override;
};

}  // namespace tromelo
