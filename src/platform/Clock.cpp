#include "platform/Clock.h"

#include <QTimer>

namespace tromelo {

namespace {

class QtTimer final : public Clock::Timer {
 public:
  QtTimer(std::chrono::milliseconds interval, bool repeats, std::function<void()> callback) {
    timer_.setInterval(interval);
    timer_.setSingleShot(!repeats);
    // A copy runs, since the callback may destroy this timer and the function with it.
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [callback = std::move(callback)] {
      const auto copy = callback;
      copy();
    });
    timer_.start();
  }

 private:
  QTimer timer_;
};

}  // namespace

double SystemClock::now() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::unique_ptr<Clock::Timer> SystemClock::after(std::chrono::milliseconds delay,
                                                 std::function<void()> callback) {
  return std::make_unique<QtTimer>(delay, false, std::move(callback));
}

std::unique_ptr<Clock::Timer> SystemClock::every(std::chrono::milliseconds interval,
                                                 std::function<void()> callback) {
  return std::make_unique<QtTimer>(interval, true, std::move(callback));
}

}  // namespace tromelo
