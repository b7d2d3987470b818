// What the main thread and the engine tell each other of a window.
#include "DisplayTest.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

using WindowStateTest = DisplayTest;
using HostState = EngineWindow::HostState;

TEST_F(WindowStateTest, IsAnnouncedBeforeItsFirstBuffer) {
  TestToplevel toplevel(*client_);
  xdg_toplevel_set_title(toplevel.toplevel(), "Sintel.mkv");
  client_->roundtrip();
  settle();
  EXPECT_TRUE(added_.isEmpty());  // nothing is committed yet

  toplevel.start();
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->isMinimized());
  EXPECT_FALSE(window->isFullscreen());
  EXPECT_TRUE(window->hasDrawingSurface());
  EXPECT_EQ(window->title(), "Sintel.mkv");
  EXPECT_TRUE(window->size().isEmpty());
  EXPECT_EQ(display_->windows(), QList{window});
  EXPECT_EQ(toplevel.configure(), (TestToplevel::Configure{QSize(0, 0), {}}));
}

TEST_F(WindowStateTest, TellsTheSizeThatTheEngineCommitsAndNewTitles) {
  TestToplevel toplevel(*client_);
  toplevel.start();
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  const auto buffer = plainBuffer(*client_, QSize(64, 36));
  toplevel.commit(buffer.get());
  EXPECT_TRUE(wait([&] { return window->size() == QSize(64, 36); }));
  xdg_toplevel_set_title(toplevel.toplevel(), "Next \xE2\x80\x93 file");
  EXPECT_TRUE(wait([&] { return window->title() == QString::fromUtf8("Next \xE2\x80\x93 file"); }));
}

TEST_F(WindowStateTest, HostStateReachesTheEngine) {
  const struct {
    const char* name;
    HostState state;
    TestToplevel::Configure expected;
  } cases[] = {
      {"engine's own size", {{}, false, false, true}, {QSize(0, 0), {}}},
      {"size and focus",
       {{640, 360}, false, true, true},
       {QSize(640, 360), {XDG_TOPLEVEL_STATE_ACTIVATED}}},
      {"full screen",
       {{1280, 800}, true, true, true},
       {QSize(1280, 800), {XDG_TOPLEVEL_STATE_ACTIVATED, XDG_TOPLEVEL_STATE_FULLSCREEN}}},
      {"hidden",
       {{640, 360}, false, false, false},
       {QSize(640, 360), {XDG_TOPLEVEL_STATE_SUSPENDED}}},
      {"shown again", {{640, 360}, false, false, true}, {QSize(640, 360), {}}},
  };
  TestToplevel toplevel(*client_);
  toplevel.start();
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    window->setHostState(row.state);
    EXPECT_TRUE(wait([&] { return toplevel.configure() == row.expected; }));
  }
}

TEST_F(WindowStateTest, FullScreenIsAskedForAndTheHostAnswers) {
  TestToplevel toplevel(*client_);
  toplevel.start();
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  QList<bool> requests;
  QObject::connect(window, &EngineWindow::fullscreenRequested, [&](bool fullscreen) {
    requests.append(fullscreen);
    window->setHostState({fullscreen ? QSize(1280, 800) : QSize(640, 360), fullscreen, true, true});
  });

  xdg_toplevel_set_fullscreen(toplevel.toplevel(), nullptr);
  EXPECT_TRUE(wait([&] { return toplevel.configure()->size == QSize(1280, 800); }));
  EXPECT_TRUE(toplevel.configure()->states.contains(XDG_TOPLEVEL_STATE_FULLSCREEN));
  EXPECT_TRUE(window->isFullscreen());

  xdg_toplevel_unset_fullscreen(toplevel.toplevel());
  EXPECT_TRUE(wait([&] { return toplevel.configure()->size == QSize(640, 360); }));
  EXPECT_FALSE(toplevel.configure()->states.contains(XDG_TOPLEVEL_STATE_FULLSCREEN));
  EXPECT_FALSE(window->isFullscreen());
  EXPECT_EQ(requests, (QList{true, false}));
}

TEST_F(WindowStateTest, MayStartInFullScreen) {
  TestToplevel toplevel(*client_);
  xdg_toplevel_set_fullscreen(toplevel.toplevel(), nullptr);
  toplevel.start();
  EXPECT_TRUE(toplevel.configure()->states.contains(XDG_TOPLEVEL_STATE_FULLSCREEN));
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  EXPECT_TRUE(window->isFullscreen());
}

TEST_F(WindowStateTest, RequestsThatTheHostHasNoUseForAreAnsweredAtOnce) {
  TestToplevel toplevel(*client_);
  toplevel.start();
  const int before = toplevel.configures();
  xdg_toplevel_set_maximized(toplevel.toplevel());
  // The main thread runs no event loop meanwhile.
  client_->roundtrip();
  client_->roundtrip();
  EXPECT_EQ(toplevel.configures(), before + 1);
  EXPECT_FALSE(toplevel.configure()->states.contains(XDG_TOPLEVEL_STATE_MAXIMIZED));
}

TEST_F(WindowStateTest, MinimisedUntilTheHostShowsIt) {
  TestToplevel toplevel(*client_);
  toplevel.start();
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  xdg_toplevel_set_minimized(toplevel.toplevel());
  EXPECT_TRUE(wait([&] { return window->isMinimized(); }));
  window->setHostState({{}, false, true, true});
  EXPECT_TRUE(wait([&] { return !window->isMinimized(); }));
}

TEST_F(WindowStateTest, TakingThePictureAwayHidesTheWindowUntilItStartsAgain) {
  TestToplevel toplevel(*client_);
  toplevel.start();
  EngineWindow* window = announcedWindow();
  ASSERT_TRUE(window);
  int takenDown = 0;
  QObject::connect(window, &EngineWindow::takenDown, [&] { ++takenDown; });
  const auto buffer = plainBuffer(*client_, QSize(64, 36));
  toplevel.commit(buffer.get());
  toplevel.commit(nullptr);
  EXPECT_TRUE(wait([&] { return !window->isVisible(); }));
  wl_surface_commit(toplevel.surface());
  EXPECT_TRUE(wait([&] { return window->isVisible(); }));
  EXPECT_EQ(takenDown, 0);
  EXPECT_EQ(added_.size(), 1);
}

}  // namespace
}  // namespace tromelo::testing
