#include "player/WindowFade.h"

#include <gtest/gtest.h>

#include "support/WaitFor.h"

namespace tromelo::testing {

using namespace std::chrono_literals;

/// Also that what began a fade isn't told of its end before it is ready for that.
TEST(WindowFadeTest, GivesUpTheOneBeforeAndIsAStepWhereNoMotionIsWanted) {
  for (const char* still : {"0", "1"}) {
    const ReducedMotion motion{still, {}};
    QQuickItem root;
    int steps = 0;
    int completed = 0;
    QObject::connect(&root, &QQuickItem::opacityChanged, &root, [&] { ++steps; });
    WindowFade fade(root, motion);
    fade.start(0, 24h, QEasingCurve::Linear, [] { ADD_FAILURE() << "given up"; });
    EXPECT_EQ(root.opacity(), motion.isWanted() ? 0 : 1);
    fade.start(0.5, 60ms, QEasingCurve::Linear, [&] { ++completed; });
    EXPECT_EQ(completed, 0);
    EXPECT_TRUE(waitFor([&] { return completed == 1; }));
    EXPECT_EQ(root.opacity(), 0.5);
    EXPECT_EQ(motion.isWanted(), steps == 2);
  }
}

}  // namespace tromelo::testing
