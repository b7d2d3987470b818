#include "player/KeyPress.h"

#include <gtest/gtest.h>

namespace tromelo {
namespace {

class HeldKeyTest : public ::testing::Test {
 protected:
  bool isRepeat(quint32 code, quint64 time, bool isToldSo = false) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_F, {}, code, 0, 0, QStringLiteral("f"), isToldSo);
    event.setTimestamp(time);
    return held_.isRepeatedBy(event);
  }
  void release(quint32 code, quint64 time) {
    QKeyEvent event(QEvent::KeyRelease, Qt::Key_F, {}, code, 0, 0);
    event.setTimestamp(time);
    held_.release(event);
  }

  HeldKey held_;
};

TEST_F(HeldKeyTest, IsToldFromOneThatIsPressedAgain) {
  EXPECT_FALSE(isRepeat(0, 0));
  EXPECT_FALSE(isRepeat(41, 500));
  EXPECT_TRUE(isRepeat(41, 700, true));
  release(41, 800);
  EXPECT_TRUE(isRepeat(41, 800));
  EXPECT_FALSE(isRepeat(42, 800));
  EXPECT_FALSE(isRepeat(41, 801));
}

}  // namespace
}  // namespace tromelo
