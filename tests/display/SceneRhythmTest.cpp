// When the scene paints, and when the engine hears of it.
#include <atomic>

#include "SceneTest.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

class SceneRhythmTest : public SceneTest {
 protected:
  void SetUp() override {
    SceneTest::SetUp();
    for (int i = 0; i < 3; ++i) addPlain();
    QObject::connect(
        scene_.get(), &QQuickWindow::frameSwapped, scene_.get(), [this] { ++swaps_; },
        Qt::DirectConnection);
    QObject::connect(item_, &EngineWindowItem::firstFrameShown, scene_.get(), [this] { ++first_; });
  }

  // Longer than the scene, which swaps until its end.
  std::atomic<int> swaps_ = 0;
  int first_ = 0;
};

TEST_F(SceneRhythmTest, PaintsOnceForEachFrameOfTheEngine) {
  constexpr int frames = 30;
  show(*buffers_[0]);
  swaps_ = 0;
  for (int i = 0; i < frames; ++i) show(*buffers_[std::size_t(i) % 3]);
  EXPECT_LE(swaps_, frames + 2) << "the host may ask for one of its own";
  settle();
  EXPECT_LE(first_, 1);
  EXPECT_GE(buffers_[1]->releases(), frames / 3) << "shared memory is copied";
}

TEST_F(SceneRhythmTest, IsReadyWhileItCannotBeSeenThrough) {
  // A player window fades in: its picture must be there before.
  item_->setOpacity(0);
  show(*buffers_[0]);
  EXPECT_TRUE(wait([&] { return first_ == 1; }));
  item_->setOpacity(1);
  EXPECT_EQ(middle(), QColor(Qt::red));
}

TEST_F(SceneRhythmTest, AHiddenWindowSuspendsTheEngineAndBlocksNothing) {
  show(*buffers_[0]);
  scene_->hide();
  EXPECT_TRUE(wait([&] { return toplevel_->isSuspended(); }));
  const auto answers = toplevel_->commit(buffers_[1].get());
  EXPECT_TRUE(wait([&] { return answers->frameCallbacks == 1; }));
  scene_->show();
  EXPECT_TRUE(wait([&] { return !toplevel_->isSuspended(); }));
  show(*buffers_[2]);
}

TEST_F(SceneRhythmTest, ASceneMayGoWithFramesOnTheWay) {
  toplevel_->commit(buffers_[0].get());
  closeScene();
  const auto answers = toplevel_->commit(buffers_[1].get());
  EXPECT_TRUE(wait([&] { return answers->frameCallbacks == 1; }));
  makeScene();
  item_->setEngineWindow(window_);
  show(*buffers_[2]);
  EXPECT_EQ(middle(), QColor(Qt::red));
}

}  // namespace tromelo::testing
