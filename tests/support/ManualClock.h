#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>

#include "platform/Clock.h"

namespace tromelo::testing {

/// Time that stands still until a test moves it. It starts far from zero, as the machine's does.
class ManualClock final : public Clock {
 public:
  double now() const override;
  std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                               std::function<void()> callback) override;
  std::unique_ptr<Timer> every(std::chrono::milliseconds interval,
                               std::function<void()> callback) override;

  /// Fires what becomes due on the way, in order of time; a callback sees its own due time.
  void advance(std::chrono::milliseconds by);

  /// Timers that would still fire.
  std::size_t pendingTimers() const { return schedule_->size(); }

 private:
  using Time = std::chrono::milliseconds;
  struct Entry {
    Time due;
    Time interval;  // zero: once
    std::function<void()> callback;
  };
  using Schedule = std::map<std::uint64_t, Entry>;  // in order of creation
  class ManualTimer;

  std::unique_ptr<Timer> add(Time delay, Time interval, std::function<void()> callback);
  void fire(std::uint64_t id);

  Time now_ = std::chrono::hours(1);
  std::uint64_t nextId_ = 0;
  std::shared_ptr<Schedule> schedule_ = std::make_shared<Schedule>();
};

}  // namespace tromelo::testing
