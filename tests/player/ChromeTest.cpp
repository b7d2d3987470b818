#include <QCoreApplication>

#include "PlayerTest.h"
#include "engine/MpvValue.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using namespace std::chrono_literals;

struct ChromeTest : PlayerTest {
  ChromeTest() {
    report(MpvProperty::pause, false);
    showVideo(window_);
    takeSent();
  }

  /// What the overlay was told last, which the rules and it agree on.
  bool shown() {
    EXPECT_EQ(window_.overlay->chromeVisible, player().chromeVisible());
    return player().chromeVisible();
  }
  void hide() {
    window_.overlay->onActivity();
    clock_.advance(2000ms);
    ASSERT_FALSE(shown());
  }
};

TEST_F(ChromeTest, HidesTheControlsAfterTheDelayAndShowsThemOnActivity) {
  EXPECT_TRUE(shown());
  clock_.advance(1000ms);
  window_.overlay->onActivity();
  clock_.advance(1999ms);
  EXPECT_TRUE(shown());
  EXPECT_TRUE(window_.pointerShown);
  clock_.advance(1ms);
  EXPECT_FALSE(shown());
  EXPECT_TRUE(window_.overlay->wasAnimated);
  EXPECT_FALSE(window_.pointerShown);
  clock_.advance(60s);
  EXPECT_FALSE(shown());
  window_.overlay->onActivity();
  EXPECT_TRUE(shown());
  window_.overlay->onClick();
  EXPECT_FALSE(shown());
  window_.overlay->onClick();
  EXPECT_TRUE(shown());
  clock_.advance(2000ms);
  EXPECT_FALSE(shown());
}

TEST_F(ChromeTest, ThePositionIsFollowedWhereverItIsShown) {
  double seconds = 0;
  mpv_event_property change{"time-pos", MPV_FORMAT_DOUBLE, &seconds};
  for (const std::function<void()>& show :
       {std::function<void()>([&] { window_.overlay->onActivity(); }),
        {[&] { chrome().setShowsInfo(true); }}}) {
    hide();
    show();
    seconds += 10;
    mpv_.queue(MPV_EVENT_PROPERTY_CHANGE, &change, std::uint64_t(MpvProperty::timePos));
    mpv_.wake();
    EXPECT_TRUE(waitFor([&] { return playback_.elapsed() == seconds; }));
  }
}

TEST_F(ChromeTest, KeepsTheControlsWhileTheyAreNeeded) {
  for (const auto& [name, begin, end, endRestarts] :
       Table<const char*, std::function<void()>, std::function<void()>, bool>{
           {"paused", [&] { report(MpvProperty::pause, true); },
            [&] { report(MpvProperty::pause, false); }, true},
           {"a panel is open", [&] { chrome().toggle(PlayerPanel::queue); },
            [&] { chrome().toggle(PlayerPanel::queue); }, true},
           {"the list of speeds is open", [&] { chrome().setShowsSpeeds(true); },
            [&] { chrome().setShowsSpeeds(false); }, false},
           {"the position is dragged", [&] { playback_.beginScrubbing(); },
            [&] { playback_.endScrubbing(); }, false},
           {"the pointer is on them", [&] { window_.overlay->mouseInside = true; },
            [&] { window_.overlay->mouseInside = false; }, false},
       }) {
    SCOPED_TRACE(name);
    window_.overlay->onActivity();
    begin();
    clock_.advance(7000ms);
    EXPECT_TRUE(shown());
    end();
    clock_.advance(1999ms);
    EXPECT_EQ(shown(), endRestarts);
    clock_.advance(1ms);
    EXPECT_FALSE(shown());
  }
}

TEST_F(ChromeTest, ShowsTheControlsForAPauseAndForAPanel) {
  hide();
  report(MpvProperty::pause, true);
  EXPECT_TRUE(shown());
  report(MpvProperty::pause, false);
  hide();
  chrome().toggle(PlayerPanel::chapters);
  EXPECT_TRUE(shown());
  chrome().toggle(PlayerPanel::queue);
  EXPECT_EQ(chrome().panel(), PlayerPanel::queue);
  chrome().setShowsSpeeds(true);
  EXPECT_EQ(chrome().panel(), std::nullopt);
  chrome().toggle(PlayerPanel::queue);
  EXPECT_FALSE(chrome().showsSpeeds());
}

TEST_F(ChromeTest, TheChaptersPanelGoesWithTheChapters) {
  for (const auto panel : {PlayerPanel::chapters, PlayerPanel::queue}) {
    reportChapters({0});
    chrome().setPanel(panel);
    report(MpvProperty::chapterList, {});
    EXPECT_EQ(chrome().panel() == panel, panel == PlayerPanel::queue);
  }
}

TEST_F(ChromeTest, OnlyAWindowInUseLosesItsControls) {
  window_.key = false;
  window_.overlay->onClick();
  clock_.advance(10s);
  EXPECT_TRUE(shown());
  window_.fullscreen = true;
  window_.overlay->onActivity();
  clock_.advance(2000ms);
  EXPECT_FALSE(shown());
}

TEST_F(ChromeTest, FollowsTheDelayThatThePersonChooses) {
  playback_.settings().setAutoHideDelay(0);
  QCoreApplication::processEvents();
  clock_.advance(1h);
  EXPECT_TRUE(shown());
  playback_.settings().setAutoHideDelay(0.5);
  QCoreApplication::processEvents();
  clock_.advance(499ms);
  EXPECT_TRUE(shown());
  clock_.advance(1ms);
  EXPECT_FALSE(shown());
}

TEST_F(ChromeTest, AKeptPictureIsOfferedForAWhile) {
  const auto offers = [this](const char* what) { return chrome().property(what).toBool(); };
  player().showKeptPicture(QUrl("file:///Pictures/Film.png"));
  EXPECT_EQ(chrome().toast(), "Picture kept: Film.png");
  clock_.advance(5000ms);
  EXPECT_TRUE(offers("offersPicture"));
  EXPECT_FALSE(offers("offersStartOver"));
  clock_.advance(5000ms);
  EXPECT_FALSE(offers("offersPicture"));
}

TEST_F(ChromeTest, AClosingWindowKeepsItsControlsAndTheNextOneBeginsWithThem) {
  window_.fullscreen = true;  // so that it takes time
  chrome().setShowsInfo(true);
  player().close();
  clock_.advance(2000ms);
  EXPECT_TRUE(shown());
  chrome().setPanel(PlayerPanel::queue);
  player().showToast("Volume 50%");
  clock_.advance(1000ms);
  ASSERT_EQ(window_.overlay, nullptr);
  EXPECT_FALSE(chrome().showsInfo());
  EXPECT_EQ(chrome().panel(), std::nullopt);
  EXPECT_EQ(chrome().toast(), std::nullopt);
  FakeVideoWindow next(clock_);
  showVideo(next);
  clock_.advance(2000ms);
  EXPECT_FALSE(player().chromeVisible());
  takeDown(next);
  FakeVideoWindow third(clock_);
  showVideo(third);
  EXPECT_TRUE(player().chromeVisible() && third.overlay->chromeVisible);
  takeDown(third);
}

TEST_F(ChromeTest, LooksAtTheScreenEverySecondWhileTheInfoIsShown) {
  FakeVideoWindow next(clock_);
  next.headroom = ScreenHeadroom{4, 3.5};
  await();
  windows_.add(next);
  EXPECT_TRUE(playback_.display().contains("now 3.5")) << "it was adopted";
  next.headroom = ScreenHeadroom{4, 2.5};
  ready();
  EXPECT_TRUE(playback_.display().contains("now 2.5")) << "it was revealed";
  const auto now = [&](double headroom) {
    next.headroom = ScreenHeadroom{4, headroom};
    return QString("EDR · 4.0× headroom (now %1×)").arg(headroom, 0, 'f', 1);
  };
  QString text = now(2);
  chrome().setShowsInfo(true);
  EXPECT_EQ(playback_.display(), text);
  text = now(3);
  clock_.advance(1000ms);
  EXPECT_EQ(playback_.display(), text);
  chrome().setShowsInfo(false);
  now(1);
  clock_.advance(5000ms);
  EXPECT_EQ(playback_.display(), text);
  text = now(2);
  Q_EMIT next.screenChanged();
  EXPECT_EQ(playback_.display(), text);
  takeDown(next);
}

TEST_F(ChromeTest, ScrollingSetsTheVolumeAndSaysIt) {
  report(MpvProperty::volume, 97.4);
  window_.overlay->onScroll(2);
  EXPECT_EQ(chrome().toast(), "Volume 99%");
  window_.overlay->onScroll(2);
  EXPECT_EQ(chrome().toast(), "Volume 100%");
  EXPECT_EQ(takeSent(), (Sent{"set volume 99.4", "set volume 100.0"}));
}

TEST_F(ChromeTest, SubtitlesRiseAboveTheControlsAndSinkWithThem) {
  window_.overlay->size = 400;
  const std::pair<double, Sent> rows[] = {
      {60, {"set sub-pos 82.50"}},  {60.9, {}}, {62, {"set sub-pos 82.00"}},
      {200, {"set sub-pos 55.00"}}, {399, {}},  {60, {"set sub-pos 82.50"}},
  };
  for (const auto& [top, sent] : rows) {
    window_.overlay->top = top;
    window_.overlay->onLayout();
    EXPECT_EQ(takeSent(), sent) << top;
  }
  window_.overlay->onClick();
  window_.overlay->onLayout();
  EXPECT_EQ(takeSent(), Sent{"set sub-pos 100.00"});
  window_.overlay->onClick();
  EXPECT_EQ(takeSent(), Sent{"set sub-pos 82.50"});
  window_.overlay->size = 0;
  window_.overlay->onLayout();
  EXPECT_EQ(takeSent(), Sent{"set sub-pos 100.00"});
  window_.overlay->size = 400;
  window_.overlay->onLayout();
  takeSent();
  takeDown(window_);
  EXPECT_EQ(takeSent(), Sent{"set sub-pos 100.00"});
}

}  // namespace tromelo::testing
