// A window may go at any moment of its life, and takes nothing with it.
#include <sys/socket.h>

#include "DisplayTest.h"

namespace tromelo::testing {

enum class Moment { Created, Committed, Drawn, WaitingForTheScene, WithTheScene, Shown };
enum class End { WindowDestroyed, ClientGone, DisplayGone };

class WindowDestructionTest : public DisplayTest,
                              public ::testing::WithParamInterface<std::tuple<Moment, End>> {
 protected:
  void TearDown() override {
    frame_.reset();
    sink_.reset();
    DisplayTest::TearDown();
  }

  void live(Moment until) {
    toplevel_ = std::make_unique<TestToplevel>(*client_);
    client_->roundtrip();
    if (until == Moment::Created) return;
    wl_surface_commit(toplevel_->surface());
    client_->roundtrip();
    if (until == Moment::Committed) return;
    ASSERT_TRUE(wait([&] { return toplevel_->configures() > 0; }));
    toplevel_->commit(&addBuffer());
    if (until == Moment::Drawn) return;
    ASSERT_TRUE(wait([&] { return announced_ == 1; }));
    window_->setSink(sink_);
    ASSERT_TRUE(wait([&] { return sink_->commits() == 1; }));
    if (until == Moment::WaitingForTheScene) return;
    frame_ = sink_->takeLast();
    if (until == Moment::Shown) frame_->markShown({std::chrono::nanoseconds(1), {}});
  }

  std::shared_ptr<KeepingSink> sink_ = std::make_shared<KeepingSink>();
  std::shared_ptr<Frame> frame_;
};

TEST_P(WindowDestructionTest, LeavesNothingAndHarmsNobody) {
  const auto [moment, end] = GetParam();
  int takenDown = 0;
  QObject::connect(display_.get(), &PrivateDisplay::windowAdded, [&](EngineWindow* window) {
    QObject::connect(window, &EngineWindow::takenDown, [&takenDown, window] {
      ++takenDown;
      EXPECT_FALSE(window->isVisible());
      EXPECT_FALSE(window->hasDrawingSurface());
    });
  });
  live(moment);
  if (end == End::DisplayGone) display_.reset();
  // As when the engine dies: no destructor request goes out.
  if (end == End::ClientGone) shutdown(wl_display_get_fd(client_->display.get()), SHUT_RDWR);
  toplevel_.reset();
  buffers_.clear();
  if (end == End::WindowDestroyed && moment != Moment::Created) {
    EXPECT_TRUE(wait([&] { return takenDown == 1 && display_->windows().isEmpty(); }));
  }
  client_.reset();
  if (!display_) return;
  client_ = std::make_unique<TestClient>(display_->socketPath());
  openWindow();
  toplevel_.reset();
}

INSTANTIATE_TEST_SUITE_P(
    Moments, WindowDestructionTest,
    ::testing::Combine(::testing::Values(Moment::Created, Moment::Committed, Moment::Drawn,
                                         Moment::WaitingForTheScene, Moment::WithTheScene,
                                         Moment::Shown),
                       ::testing::Values(End::WindowDestroyed, End::ClientGone, End::DisplayGone)));

TEST_F(WindowDestructionTest, TheMainThreadsSideMayBeUsedUntilItIsGone) {
  openWindow();
  toplevel_.reset();
  client_->roundtrip();
  // The display's thread knows already, this one doesn't.
  window_->setHostState({QSize(10, 10), true, true, true});
  window_->setSink(sink_);
  window_->setExposed(false);
  EXPECT_TRUE(wait([&] { return display_->windows().isEmpty(); }));
}

}  // namespace tromelo::testing
