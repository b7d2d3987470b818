#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>

#include "platform/Clock.h"

namespace tromelo::testing {

/// Time that stands still until a test moves it. It starts far from zero, as the machine's does.
struct ManualClock final : Clock {
  double now() const override { return std::chrono::duration<double>(now_).count(); }
  std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                               std::function<void()> callback) override {
    return add(delay, Time::zero(), std::move(callback));
  }
  std::unique_ptr<Timer> every(std::chrono::milliseconds interval,
                               std::function<void()> callback) override {
    return add(interval, std::max(interval, Time(1)), std::move(callback));
  }

  /// Fires what becomes due on the way, in order of time; a callback sees its own due time.
  void advance(std::chrono::milliseconds by) {
    const Time end = now_ + by;
    for (;;) {
      const auto next = std::ranges::min_element(
          *schedule_, {}, [](const Schedule::value_type& entry) { return entry.second.due; });
      if (next == schedule_->end() || next->second.due > end) break;
      now_ = std::max(now_, next->second.due);
      fire(next->first);
    }
    now_ = end;
  }

 private:
  using Time = std::chrono::milliseconds;
  struct Entry {
    Time due;
    Time interval;  // zero: once
    std::function<void()> callback;
  };
  using Schedule = std::map<std::uint64_t, Entry>;  // in order of creation
  struct ManualTimer final : Timer {
    ManualTimer(std::weak_ptr<Schedule> whole, std::uint64_t number)
        : schedule(std::move(whole)), id(number) {}
    ~ManualTimer() override {
      if (const auto left = schedule.lock()) left->erase(id);
    }
    std::weak_ptr<Schedule> schedule;
    std::uint64_t id;
  };

  std::unique_ptr<Timer> add(Time delay, Time interval, std::function<void()> callback) {
    const auto id = nextId_++;
    schedule_->emplace(id, Entry{now_ + delay, interval, std::move(callback)});
    return std::make_unique<ManualTimer>(schedule_, id);
  }
  void fire(std::uint64_t id) {
    Entry& entry = schedule_->at(id);
    // A copy runs, since the callback may destroy its own timer.
    const auto callback = entry.callback;
    if (entry.interval == Time::zero())
      schedule_->erase(id);
    else
      entry.due += entry.interval;
    callback();
  }

  Time now_ = std::chrono::hours(1);
  std::uint64_t nextId_ = 0;
  std::shared_ptr<Schedule> schedule_ = std::make_shared<Schedule>();
};

}  // namespace tromelo::testing
