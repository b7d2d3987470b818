// A window may go at any moment of its life, and takes nothing with it.
#include <sys/socket.h>
#include <unistd.h>

#include "DisplayTest.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

enum class Moment {
  Created,
  Committed,
  Configured,
  Drawn,
  WaitingForTheScene,
  WithTheScene,
  Shown
};
enum class End { WindowDestroyed, ClientGone, DisplayGone };

class WindowDestructionTest : public DisplayTest,
                              public ::testing::WithParamInterface<std::tuple<Moment, End>> {
 protected:
  void TearDown() override {
    toplevel_.reset();
    buffer_.reset();
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
    if (until == Moment::Configured) return;
    buffer_ = plainBuffer(*client_, QSize(32, 18));
    toplevel_->commit(buffer_.get());
    if (until == Moment::Drawn) return;
    EngineWindow* window = announcedWindow();
    ASSERT_TRUE(window);
    window->setSink(sink_);
    ASSERT_TRUE(wait([&] { return sink_->commits() == 1; }));
    if (until == Moment::WaitingForTheScene) return;
    frame_ = sink_->takeLast();
    if (until == Moment::Shown) frame_->markShown({std::chrono::nanoseconds(1), {}});
  }

  std::unique_ptr<TestToplevel> toplevel_;
  std::unique_ptr<TestBuffer> buffer_;
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
  if (end == End::DisplayGone) {
    display_.reset();
  } else if (end == End::ClientGone) {
    // As when the engine dies: no destructor request goes out.
    const UniqueFd dead(dup(wl_display_get_fd(client_->display())));
    ASSERT_EQ(shutdown(dead.get(), SHUT_RDWR), 0);
  }
  toplevel_.reset();
  buffer_.reset();
  if (end == End::WindowDestroyed && moment != Moment::Created) {
    EXPECT_TRUE(wait([&] { return takenDown == 1 && display_->windows().isEmpty(); }));
  }
  client_.reset();
  if (!display_) return;
  connectClient();
  TestToplevel next(*client_);
  next.start();
  EXPECT_TRUE(next.configure());
}

INSTANTIATE_TEST_SUITE_P(
    Moments, WindowDestructionTest,
    ::testing::Combine(::testing::Values(Moment::Created, Moment::Committed, Moment::Configured,
                                         Moment::Drawn, Moment::WaitingForTheScene,
                                         Moment::WithTheScene, Moment::Shown),
                       ::testing::Values(End::WindowDestroyed, End::ClientGone, End::DisplayGone)));

TEST_F(WindowDestructionTest, TheMainThreadsSideMayBeUsedUntilItIsGone) {
  live(Moment::Drawn);
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  toplevel_.reset();
  client_->roundtrip();
  // The display's thread knows already, this one doesn't.
  window->setHostState({QSize(10, 10), true, true, true});
  window->setSink(sink_);
  window->setExposed(false);
  EXPECT_TRUE(wait([&] { return display_->windows().isEmpty(); }));
}

}  // namespace
}  // namespace tromelo::testing
