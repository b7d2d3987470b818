// When the scene paints, and when the engine hears of it.
#include <atomic>

#include "SceneTest.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

class SceneRhythmTest : public SceneTest {
 protected:
  void SetUp() override {
    SceneTest::SetUp();
    for (int i = 0; i < 3; ++i) buffers_.push_back(plainBuffer(*client_, sceneSize));
    QObject::connect(
        window_.get(), &QQuickWindow::frameSwapped, window_.get(), [this] { ++swaps_; },
        Qt::DirectConnection);
  }

  bool isSuspended() const {
    return toplevel_->configure()->states.contains(XDG_TOPLEVEL_STATE_SUSPENDED);
  }

  std::atomic<int> swaps_ = 0;
};

TEST_F(SceneRhythmTest, PaintsOnceForEachFrameOfTheEngine) {
  constexpr int frames = 30;
  show(*buffers_[0]);
  const int before = swaps_;
  for (int i = 0; i < frames; ++i) show(*buffers_[std::size_t(i) % 3]);
  EXPECT_LE(swaps_ - before, frames + 2) << "the host may ask for one of its own";
}

TEST_F(SceneRhythmTest, SharedMemoryGoesBackAsSoonAsItIsCopied) {
  show(*buffers_[0]);
  EXPECT_TRUE(wait([&] { return buffers_[0]->releases() == 1; }));
}

TEST_F(SceneRhythmTest, SaysOnceThatTheFirstPictureIsThere) {
  int first = 0;
  QObject::connect(item_, &EngineWindowItem::firstFrameShown, [&] { ++first; });
  show(*buffers_[0]);
  show(*buffers_[1]);
  EXPECT_TRUE(wait([&] { return first == 1; }));
  show(*buffers_[2]);
  settle();
  EXPECT_EQ(first, 1);
}

TEST_F(SceneRhythmTest, IsReadyWhileItCannotBeSeenThrough) {
  // A player window fades in: its picture must be there before.
  item_->setOpacity(0);
  show(*buffers_[0]);
  item_->setOpacity(1);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
}

TEST_F(SceneRhythmTest, AHiddenWindowSuspendsTheEngineAndBlocksNothing) {
  show(*buffers_[0]);
  window_->hide();
  EXPECT_TRUE(wait([&] { return isSuspended(); }));
  const auto answers = toplevel_->commit(buffers_[1].get());
  EXPECT_TRUE(wait([&] { return answers->frameCallbacks == 1; }));
  window_->show();
  EXPECT_TRUE(wait([&] { return !isSuspended(); }));
  show(*buffers_[2]);
}

TEST_F(SceneRhythmTest, ASceneMayGoWithFramesOnTheWay) {
  toplevel_->commit(buffers_[0].get());
  closeScene();
  const auto answers = toplevel_->commit(buffers_[1].get());
  EXPECT_TRUE(wait([&] { return answers->frameCallbacks == 1; }));
  makeScene();
  item_->setEngineWindow(engineWindow_);
  show(*buffers_[2]);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
}

}  // namespace
}  // namespace tromelo::testing
