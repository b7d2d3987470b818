// What the engine gets back for a frame: its buffer, a frame callback, the time it was shown.
#include <chrono>

#include "DisplayTest.h"

namespace tromelo::testing {

using namespace std::chrono_literals;

Presentation justNow() { return {std::chrono::steady_clock::now().time_since_epoch(), {}}; }

/// A window with a sink that only the test empties, on a screen so slow that the display's own
/// timer is far away.
class FrameAnswersTest : public DisplayTest {
 protected:
  PrivateDisplay::Output output() const override { return {QSize(1280, 800), refreshMillihertz_}; }

  void SetUp() override {
    DisplayTest::SetUp();
    openWindow();
    window_->setSink(sink_);
    for (int i = 0; i < 3; ++i) addBuffer();
  }
  void TearDown() override {
    sink_.reset();
    DisplayTest::TearDown();
  }

  auto commit(std::size_t buffer) { return toplevel_->commit(buffers_[buffer].get()); }
  std::shared_ptr<Frame> takeFrame() {
    std::shared_ptr<Frame> frame;
    EXPECT_TRUE(wait([&] { return (frame = sink_->takeLast()) != nullptr; }));
    return frame;
  }

  int refreshMillihertz_ = 20;  // 50 seconds
  std::shared_ptr<KeepingSink> sink_ = std::make_shared<KeepingSink>();
};

TEST_F(FrameAnswersTest, ComeWhenTheFrameWasShownAndNotBefore) {
  std::uint64_t lastSequence = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const auto answers = commit(i);
    const auto frame = takeFrame();
    client_->roundtrip();
    EXPECT_EQ(answers->frameCallbacks, 0);
    EXPECT_FALSE(answers->presentation);
    const Presentation shown = justNow();
    frame->markShown(shown);
    ASSERT_TRUE(wait([&] { return answers->presentation && answers->frameCallbacks == 1; }));
    EXPECT_TRUE(answers->presentation->presented);
    EXPECT_EQ(answers->presentation->nanoseconds, std::uint64_t(shown.time.count()));
    EXPECT_EQ(answers->presentation->refresh, std::uint32_t(std::chrono::nanoseconds(50s).count()));
    EXPECT_GT(answers->presentation->sequence, lastSequence);
    lastSequence = answers->presentation->sequence;
  }
}

TEST_F(FrameAnswersTest, AreNotThoseOfTheFrameBefore) {
  const auto first = commit(0);
  const auto frame = takeFrame();
  const auto second = commit(1);
  frame->markShown(justNow());
  EXPECT_TRUE(wait([&] { return first->frameCallbacks == 1; }));
  EXPECT_EQ(second->frameCallbacks, 0);
}

TEST_F(FrameAnswersTest, ASupersededFrameIsDiscardedAndItsBufferComesBack) {
  const auto first = commit(0);
  const auto second = commit(1);
  EXPECT_TRUE(wait([&] { return first->presentation && buffers_[0]->releases() == 1; }));
  EXPECT_FALSE(first->presentation->presented);

  takeFrame()->markShown(justNow());
  EXPECT_TRUE(wait([&] { return second->presentation.has_value(); }));
  EXPECT_TRUE(second->presentation->presented);
  EXPECT_EQ(first->frameCallbacks, 1);
  EXPECT_EQ(second->frameCallbacks, 1);
}

TEST_F(FrameAnswersTest, ASinkThatComesLateGetsTheNewestFrame) {
  openWindow();
  commit(0);
  commit(1);
  EXPECT_TRUE(wait([&] { return buffers_[0]->releases() == 1; }));
  window_->setSink(sink_);
  EXPECT_EQ(takeFrame()->content().sequence, 2u);
}

TEST_F(FrameAnswersTest, AFrameSaysWhatIsNewAndWhatToShow) {
  commit(0);
  takeFrame();
  const Proxy<wp_viewport> viewport(
      wp_viewporter_get_viewport(client_->viewporter.get(), toplevel_->surface()));
  wp_viewport_set_source(viewport.get(), wl_fixed_from_int(4), wl_fixed_from_int(2),
                         wl_fixed_from_int(16), wl_fixed_from_int(9));
  wp_viewport_set_destination(viewport.get(), 160, 90);
  toplevel_->commit(buffers_[1].get(), QRect(1, 2, 3, 4));
  const auto frame = takeFrame();
  EXPECT_EQ(frame->content().buffer->size, pictureSize);
  EXPECT_EQ(frame->content().source, QRectF(4, 2, 16, 9));
  EXPECT_EQ(frame->content().size, QSize(160, 90));
  EXPECT_EQ(frame->content().damage, QRegion(1, 2, 3, 4));
}

TEST_F(FrameAnswersTest, AFrameMayOutliveWindowClientAndDisplay) {
  commit(0);
  const auto frame = takeFrame();
  toplevel_.reset();
  buffers_.clear();
  client_.reset();
  display_.reset();
  const auto& pixels = std::get<std::shared_ptr<const ShmPixels>>(frame->content().buffer->pixels);
  EXPECT_NE(pixels->data()[0], pixels->data()[2]);  // red, still mapped
  frame->markShown(justNow());
}

/// Reading there would kill the process.
TEST_F(FrameAnswersTest, MemoryThatIsNotThereEndsItsConnectionOnly) {
  TestClient bystander(display_->socketPath());
  commit(0);
  buffers_[0]->truncate();
  commit(0);
  EXPECT_FALSE(client_->roundtrip());
  EXPECT_EQ(client_->faultyInterface(), "wl_display");
  EXPECT_TRUE(bystander.roundtrip());
}

/// A second is what a hidden window waits for a callback, however fast or slow the screen is.
TEST_F(FrameAnswersTest, AHiddenEngineGetsItsCallbacksAndIsReminded) {
  window_->setHostState({{}, false, false, false});
  EXPECT_TRUE(wait([&] { return toplevel_->isSuspended(); }));
  for (std::size_t i = 0; i < 2; ++i) {
    const int told = toplevel_->configures();
    const auto answers = commit(i);
    EXPECT_TRUE(wait([&] { return toplevel_->configures() == told + 1; })) << "it draws";
    EXPECT_TRUE(wait([&] { return answers->frameCallbacks == 1; }));
    EXPECT_FALSE(answers->presentation && answers->presentation->presented);
    EXPECT_TRUE(wait([&] { return toplevel_->configures() == told + 2; })) << "it was answered";
    EXPECT_TRUE(toplevel_->isSuspended());
  }
}

class BusySceneTest : public FrameAnswersTest {
 protected:
  BusySceneTest() { refreshMillihertz_ = 60'000; }
};

TEST_F(BusySceneTest, TheDisplaysOwnTimerAnswersWhereTheSceneDoesNot) {
  // Nothing here runs the main thread's event loop.
  for (std::size_t i = 0; i < 20; ++i) {
    const auto answers = commit(i % 3);
    while (answers->frameCallbacks == 0) ASSERT_TRUE(client_->roundtrip());
    EXPECT_FALSE(answers->presentation);
  }
  // Two are with the engine all the time: one waits for the scene, and the others came back.
  EXPECT_EQ(sink_->commits(), 20);
  EXPECT_EQ(buffers_[0]->releases() + buffers_[1]->releases() + buffers_[2]->releases(), 19);
}

TEST_F(BusySceneTest, SurfacesWithoutAWindowAreAnsweredToo) {
  const Proxy<wl_surface> surface(wl_compositor_create_surface(client_->compositor.get()));
  int done = 0;
  static constexpr wl_callback_listener listener{
      .done = [](void* self, wl_callback*, std::uint32_t) { ++*static_cast<int*>(self); }};
  const Proxy<wl_callback> callback(wl_surface_frame(surface.get()));
  wl_callback_add_listener(callback.get(), &listener, &done);
  wl_surface_attach(surface.get(), buffers_[0]->get(), 0, 0);
  wl_surface_commit(surface.get());
  EXPECT_TRUE(wait([&] { return done == 1 && buffers_[0]->releases() == 1; }));
}

}  // namespace tromelo::testing
