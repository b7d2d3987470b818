#pragma once

#include <QAnimationDriver>
#include <chrono>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// While it lives, animations go on as a test says instead of with the time.
struct DrivenAnimations final : QAnimationDriver {
  DrivenAnimations() {
    connect(this, &QAnimationDriver::started, this, [this] { elapsed_ = {}; });
    install();
  }

  void advanceBy(std::chrono::milliseconds step) {
    settle();  // an animation starts when the event loop runs
    elapsed_ += step;
    advanceAnimation();
  }
  qint64 elapsed() const override { return elapsed_.count(); }

 private:
  std::chrono::milliseconds elapsed_{};
};

}  // namespace tromelo::testing
