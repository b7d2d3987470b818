#include "PlayerTest.h"
#include "display/PrivateDisplay.h"
#include "platform/FilePath.h"
#include "player/PlayerStage.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using namespace std::chrono_literals;
using PlayerWindowControllerTest = PlayerTest;

TEST_F(PlayerWindowControllerTest, DressesANewWindowUnseenAndRevealsItWhenTheVideoIsReady) {
  await();
  windows_.add(window_);
  EXPECT_EQ(window_.opacity, 0);
  EXPECT_EQ(window_.dressed, 1);
  EXPECT_EQ(window_.minimumSize, QSize(520, 300));
  EXPECT_NE(window_.overlay, nullptr);
  EXPECT_FALSE(window_.ordered);

  ready();
  EXPECT_TRUE(window_.ordered);
  clock_.advance(319ms);
  EXPECT_TRUE(library_.visible);
  EXPECT_EQ(window_.opacity, 0);
  EXPECT_EQ(library_.opacity, 1);
  clock_.advance(1ms);
  EXPECT_EQ(window_.opacity, 1);
  EXPECT_EQ(library_.opacity, 0);
  EXPECT_FALSE(library_.visible);

  window_.ordered = false;
  ready();  // after a seek
  EXPECT_FALSE(window_.ordered);
  await();
  ready();  // of a second file
  EXPECT_TRUE(window_.ordered);
  EXPECT_EQ(window_.fades, 1);
}

TEST_F(PlayerWindowControllerTest, RevealsAWindowThatIsReadyAtOnceOrNeverSaysSo) {
  for (const bool wasReady : {true, false}) {
    FakeVideoWindow window(clock_);
    await();
    player().setVideoReady(wasReady);
    windows_.add(window);
    EXPECT_EQ(player().isRevealed(), wasReady);
    clock_.advance(1499ms);
    EXPECT_EQ(player().isRevealed(), wasReady);
    clock_.advance(1ms);
    EXPECT_TRUE(player().isRevealed());
    takeDown(window);
  }
}

TEST_F(PlayerWindowControllerTest, LeavesWindowsAloneThatShowNoVideo) {
  window_.drawingSurface = false;
  windows_.add(window_);
  EXPECT_FALSE(player().hasWindow());
  window_.drawingSurface = true;
  Q_EMIT windows_.windowsChanged();
  EXPECT_TRUE(player().hasWindow());
}

TEST_F(PlayerWindowControllerTest, ASecondWindowTakesTheFirstOnesPlaceForGood) {
  showVideo(window_);
  FakeVideoWindow second(clock_);
  windows_.add(second);
  EXPECT_EQ(window_.overlay, nullptr);
  EXPECT_NE(second.overlay, nullptr);
  takeDown(second);
  EXPECT_FALSE(player().hasWindow());  // the first is not adopted again
  EXPECT_EQ(window_.dressed, 1);
}

TEST_F(PlayerWindowControllerTest, ClosesOnceHoweverOftenItIsAsked) {
  showVideo(window_);
  await();
  window_.hidePointer();
  player().close();
  player().close();
  EXPECT_FALSE(player().isAwaitingVideo());
  EXPECT_TRUE(library_.visible);
  takeDown(window_);
  EXPECT_TRUE(player().hasWindow()) << "it is fading";
  clock_.advance(239ms);
  EXPECT_EQ(takeSent(), Sent{"set pause yes"});
  clock_.advance(1ms);
  EXPECT_EQ(takeSent(), Sent{"stop"});
  EXPECT_FALSE(window_.ordered);
  EXPECT_TRUE(window_.pointerShown);
  EXPECT_EQ(window_.overlay, nullptr);
  EXPECT_FALSE(player().hasWindow());
  clock_.advance(79ms);
  EXPECT_EQ(library_.opacity, 0);
  clock_.advance(1ms);
  EXPECT_EQ(library_.opacity, 1);
  player().close();
  EXPECT_EQ(takeSent(), Sent{});
}

TEST_F(PlayerWindowControllerTest, AFileOpenedWhileThePlayerFadesStopsTheOldOneFirst) {
  showVideo(window_);
  player().close();
  clock_.advance(100ms);
  takeSent();
  playback_.open(fileUrlFromPath("/b.mkv"));
  EXPECT_EQ(takeSent(), (Sent{"stop", "loadfile /b.mkv replace -1 ", "set pause no"}));
  clock_.advance(240ms);
  EXPECT_EQ(takeSent(), Sent{});
}

TEST_F(PlayerWindowControllerTest, LeavesFullScreenBeforeItFadesOutOrWaitsTwoSeconds) {
  for (const bool leaves : {true, false}) {
    FakeVideoWindow window(clock_);
    showVideo(window);
    takeSent();
    window.fullscreen = true;
    player().close();
    EXPECT_EQ(takeSent(), (Sent{"set pause yes", "set fullscreen no"}));
    clock_.advance(1999ms);
    EXPECT_EQ(window.fades, 1);
    window.fullscreen = !leaves;
    if (leaves)
      Q_EMIT window.leftFullscreen();
    else
      clock_.advance(1ms);
    EXPECT_EQ(window.fades, 2);
    clock_.advance(2000ms);
    EXPECT_EQ(window.fades, 2);
    EXPECT_EQ(takeSent(), Sent{"stop"});
    takeDown(window);
  }
}

TEST_F(PlayerWindowControllerTest, TheLibraryStaysAwayWhileTheEnginesOutputIsMadeAnew) {
  for (const bool comesAgain : {true, false}) {
    SCOPED_TRACE(comesAgain);
    FakeVideoWindow first(clock_);
    FakeVideoWindow next(clock_);
    showVideo(first);
    takeSent();
    player().restartVideo();
    EXPECT_EQ(takeSent(), Sent{"set vo gpu-next,gpu-next"});
    ready();  // what played before says so late
    player().setVideoReady(false);
    takeDown(first);
    EXPECT_FALSE(library_.visible);
    if (comesAgain) windows_.add(next);
    ready();
    EXPECT_EQ(player().isRevealed(), comesAgain);
    EXPECT_EQ(library_.visible, !comesAgain);
    windows_.windows.clear();
    takeDown(next);
    EXPECT_TRUE(library_.visible);
  }
}

TEST_F(PlayerWindowControllerTest, AWindowThatIsTakenDownLeavesTheLibraryUnlessAnotherFileComes) {
  for (const auto& [minimized, awaits, library, window] : Table<bool, bool, bool, bool>{
           {false, false, true, false}, {true, false, false, true}, {false, true, false, false}}) {
    FakeVideoWindow video(clock_);
    showVideo(video);
    video.minimized = minimized;
    if (awaits) await();
    takeDown(video);
    EXPECT_EQ(library_.visible, library);
    EXPECT_EQ(player().hasWindow(), window);
    if (!awaits) continue;
    ready();  // of a file without a picture
    EXPECT_TRUE(library_.visible);
  }
}

TEST_F(PlayerWindowControllerTest, ShowsAFileThatComesUpInTheWindowJustClosed) {
  showVideo(window_);
  player().close();
  clock_.advance(320ms);
  await();
  ready();
  EXPECT_TRUE(player().isRevealed());
  EXPECT_TRUE(window_.ordered);
}

TEST_F(PlayerWindowControllerTest, SortsDroppedFiles) {
  showVideo(window_);
  for (const auto& [dropped, sent, toast] :
       Table<std::vector<std::string>, Sent, std::optional<QString>>{
           {{"/a.mkv"}, {"loadfile /a.mkv replace -1 ", "set pause no"}, "Added to queue"},
           {{"/a.mkv", "/b.mp4"},
            {"loadfile /a.mkv replace -1 ", "set pause no", "loadfile /b.mp4 append -1 "},
            "Added 2 videos to queue"},
           {{"/a.mkv", "/My.Film.SRT"},
            {"sub-add /My.Film.SRT select", "loadfile /a.mkv replace -1 ", "set pause no"},
            "Subtitles: My.Film"},
           {std::vector<std::string>(), {}, {}}}) {
    QList<QUrl> urls;
    for (const std::string& path : dropped) urls.append(fileUrlFromPath(path));
    window_.overlay->onDropFiles(urls);
    EXPECT_EQ(takeSent(), sent);
    EXPECT_EQ(chrome().toast(), toast);
    clock_.advance(1400ms);
    takeSent();  // whether the engine answers is asked meanwhile
  }
  window_.overlay->onDropFiles({QUrl("smb://nas/a.mkv")});
  EXPECT_TRUE(waitFor([this] { return chrome().toast().has_value(); }));
  EXPECT_EQ(chrome().toast(), "Tromelo plays local files only.");
}

TEST_F(PlayerWindowControllerTest, AToastStaysForItsFullTime) {
  player().showToast("first");
  clock_.advance(1000ms);
  player().showToast("second");
  clock_.advance(1399ms);
  EXPECT_EQ(chrome().toast(), "second");
  clock_.advance(1ms);
  EXPECT_EQ(chrome().toast(), std::nullopt);
}

TEST_F(PlayerWindowControllerTest, AnOverlayThatNoWindowCameForGoesBeforeTheModel) {
  PrivateDisplay display;
  QQmlEngine engine;
  const ReducedMotion motion("1", std::nullopt);
  FakeOverlay* overlay = nullptr;
  PlayerStage stage(display, engine, motion, [&](auto&...) {
    auto made = std::make_unique<FakeOverlay>(overlay);
    overlay = made.get();
    return made;
  });
  stage.prepareWindow(playback_, player());
  EXPECT_NE(overlay, nullptr);
  playback_.setShuttingDown(true);
  EXPECT_EQ(overlay, nullptr);
}

TEST_F(PlayerWindowControllerTest, AdoptsNothingOnceTheProgramQuits) {
  showVideo(window_);
  player().prepareForTermination();
  EXPECT_EQ(window_.overlay, nullptr);
  FakeVideoWindow late(clock_);
  windows_.add(late);
  EXPECT_EQ(late.dressed, 0);
  clock_.advance(5000ms);
  EXPECT_EQ(takeSent(), Sent{});
}

TEST_F(PlayerWindowControllerTest, SurvivesAWindowThatDiesAtAnyMoment) {
  for (const auto after : {0ms, 100ms, 320ms, 400ms, 500ms}) {
    auto window = std::make_unique<FakeVideoWindow>(clock_);
    windows_.windows.clear();
    await();
    windows_.add(*window);
    ready();
    clock_.advance(after);
    player().close();
    clock_.advance(after);
    windows_.windows.clear();
    if (window->overlay) takeDown(*window);
    FakeVideoWindow next(clock_);
    showVideo(next);
    window.reset();
    EXPECT_TRUE(player().isRevealed());
    EXPECT_FALSE(player().isClosing());
    takeDown(next);
  }
}

}  // namespace tromelo::testing
