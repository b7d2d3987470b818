#include "support/ManualClock.h"

#include <algorithm>

namespace tromelo::testing {

class ManualClock::ManualTimer final : public Clock::Timer {
 public:
  ManualTimer(std::weak_ptr<Schedule> schedule, std::uint64_t id)
      : schedule_(std::move(schedule)), id_(id) {}
  ~ManualTimer() override {
    if (const auto schedule = schedule_.lock()) schedule->erase(id_);
  }

 private:
  std::weak_ptr<Schedule> schedule_;
  std::uint64_t id_;
};

double ManualClock::now() const { return std::chrono::duration<double>(now_).count(); }

std::unique_ptr<Clock::Timer> ManualClock::after(std::chrono::milliseconds delay,
                                                 std::function<void()> callback) {
  return add(delay, Time::zero(), std::move(callback));
}

std::unique_ptr<Clock::Timer> ManualClock::every(std::chrono::milliseconds interval,
                                                 std::function<void()> callback) {
  return add(interval, std::max(interval, Time(1)), std::move(callback));
}

std::unique_ptr<Clock::Timer> ManualClock::add(Time delay, Time interval,
                                               std::function<void()> callback) {
  const auto id = nextId_++;
  schedule_->emplace(id, Entry{now_ + delay, interval, std::move(callback)});
  return std::make_unique<ManualTimer>(schedule_, id);
}

void ManualClock::advance(std::chrono::milliseconds by) {
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

void ManualClock::fire(std::uint64_t id) {
  Entry& entry = schedule_->at(id);
  // A copy runs, since the callback may destroy its own timer.
  const auto callback = entry.callback;
  if (entry.interval == Time::zero()) {
    schedule_->erase(id);
  } else {
    entry.due += entry.interval;
  }
  callback();
}

}  // namespace tromelo::testing
