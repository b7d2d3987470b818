#include "player/WindowFade.h"

#include <gtest/gtest.h>

#include "support/WaitFor.h"

namespace tromelo {
namespace {

using namespace std::chrono_literals;
using testing::waitFor;

class WindowFadeTest : public ::testing::Test {
 protected:
  auto counted() {
    return [this] { ++completed_; };
  }

  const ReducedMotion moving_{"0", {}};
  const ReducedMotion still_{"1", {}};
  QQuickItem root_;
  int completed_ = 0;
};

TEST_F(WindowFadeTest, IsAStepWhereNoMotionIsWanted) {
  WindowFade fade(root_, still_);
  std::vector<double> seen;
  QObject::connect(&root_, &QQuickItem::opacityChanged, &root_,
                   [&] { seen.push_back(root_.opacity()); });
  fade.start(0, 24h, QEasingCurve::Linear, counted());
  EXPECT_EQ(root_.opacity(), 0);
  EXPECT_EQ(completed_, 0) << "who starts a fade isn't ready for its end yet";
  EXPECT_TRUE(waitFor([this] { return completed_ == 1; }));
  EXPECT_EQ(seen, std::vector<double>{0});
}

TEST_F(WindowFadeTest, IsGivenUpForTheNextOne) {
  for (const ReducedMotion* wish : {&moving_, &still_}) {
    WindowFade fade(root_, *wish);
    fade.start(0, 20ms, QEasingCurve::Linear, [] { ADD_FAILURE() << "given up"; });
    fade.start(1, 20ms, QEasingCurve::Linear, counted());
    EXPECT_TRUE(waitFor([this] { return completed_ == 1; }));
    EXPECT_EQ(root_.opacity(), 1);
    completed_ = 0;
  }
}

}  // namespace
}  // namespace tromelo
