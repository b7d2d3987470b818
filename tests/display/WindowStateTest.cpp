// What the main thread and the engine tell each other of a window.
#include "DisplayTest.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using WindowStateTest = DisplayTest;

TEST_F(WindowStateTest, IsAnnouncedBeforeItsFirstBuffer) {
  toplevel_ = std::make_unique<TestToplevel>(*client_);
  xdg_toplevel_set_title(toplevel_->toplevel(), "Sintel.mkv");
  client_->roundtrip();
  settle();
  EXPECT_EQ(announced_, 0) << "nothing is committed yet";

  toplevel_->start();
  ASSERT_TRUE(wait([this] { return announced_ == 1; }));
  EXPECT_TRUE(window_->isVisible());
  EXPECT_TRUE(window_->hasDrawingSurface());
  EXPECT_EQ(window_->title(), "Sintel.mkv");
  EXPECT_TRUE(window_->size().isEmpty());
  EXPECT_EQ(toplevel_->configure(), (TestToplevel::Configure{QSize(0, 0), {}}));

  toplevel_->commit(&addBuffer());
  xdg_toplevel_set_title(toplevel_->toplevel(), "Next \xE2\x80\x93 file");
  EXPECT_TRUE(wait([&] {
    return window_->size() == pictureSize &&
           window_->title() == QString::fromUtf8("Next \xE2\x80\x93 file");
  }));
}

TEST_F(WindowStateTest, HostStateReachesTheEngine) {
  const struct {
    const char* name;
    EngineWindow::HostState state;
    TestToplevel::Configure expected;
  } cases[] = {
      {"size and focus",
       {{640, 360}, false, true, true},
       {QSize(640, 360), {XDG_TOPLEVEL_STATE_ACTIVATED}}},
      {"full screen",
       {{1280, 800}, true, true, true},
       {QSize(1280, 800), {XDG_TOPLEVEL_STATE_ACTIVATED, XDG_TOPLEVEL_STATE_FULLSCREEN}}},
      {"hidden", {{64, 36}, false, false, false}, {{64, 36}, {XDG_TOPLEVEL_STATE_SUSPENDED}}},
      {"shown again, in the engine's own size", {{}, false, false, true}, {QSize(0, 0), {}}},
  };
  openWindow();
  for (const auto& row : cases) {
    window_->setHostState(row.state);
    EXPECT_TRUE(wait([&] { return toplevel_->configure() == row.expected; })) << row.name;
  }
}

TEST_F(WindowStateTest, FullScreenIsAskedForAndTheHostAnswers) {
  openWindow();
  QList<bool> requests;
  QObject::connect(window_, &EngineWindow::fullscreenRequested, [&](bool fullscreen) {
    requests.append(fullscreen);
    window_->setHostState({QSize(1280, 800), fullscreen, true, true});
  });
  const auto isTold = [this](bool fullscreen) {
    return window_->isFullscreen() == fullscreen &&
           toplevel_->configure()->states.contains(XDG_TOPLEVEL_STATE_FULLSCREEN) == fullscreen;
  };
  xdg_toplevel_set_fullscreen(toplevel_->toplevel(), nullptr);
  EXPECT_TRUE(wait([&] { return isTold(true); }));
  xdg_toplevel_unset_fullscreen(toplevel_->toplevel());
  EXPECT_TRUE(wait([&] { return isTold(false); }));
  EXPECT_EQ(requests, (QList{true, false}));
}

TEST_F(WindowStateTest, MayStartInFullScreen) {
  toplevel_ = std::make_unique<TestToplevel>(*client_);
  xdg_toplevel_set_fullscreen(toplevel_->toplevel(), nullptr);
  toplevel_->start();
  EXPECT_TRUE(toplevel_->configure()->states.contains(XDG_TOPLEVEL_STATE_FULLSCREEN));
  EXPECT_TRUE(wait([this] { return announced_ == 1 && window_->isFullscreen(); }));
}

TEST_F(WindowStateTest, IsMinimisedUntilTheHostShowsItAndHiddenWithoutAPicture) {
  openWindow();
  xdg_toplevel_set_minimized(toplevel_->toplevel());
  EXPECT_TRUE(wait([&] { return window_->isMinimized(); }));
  window_->setHostState({{}, false, true, true});
  EXPECT_TRUE(wait([&] { return !window_->isMinimized(); }));
  int takenDown = 0;
  QObject::connect(window_, &EngineWindow::takenDown, [&] { ++takenDown; });
  toplevel_->commit(&addBuffer());
  toplevel_->commit(nullptr);
  EXPECT_TRUE(wait([&] { return !window_->isVisible(); }));
  wl_surface_commit(toplevel_->surface());
  EXPECT_TRUE(wait([&] { return window_->isVisible(); }));
  EXPECT_EQ(takenDown, 0);
  EXPECT_EQ(announced_, 1);
}

}  // namespace tromelo::testing
