
#include "ViewTest.h"
#include "support/Table.h"

namespace tromelo::testing {

struct ControlBarTest : ViewTest {
  ControlBarTest() {
    show("PlayerControlBar", {{"playback", playback()},
                              {"chrome", shownChrome()},
                              {"width", 760},
                              {"height", 86},
                              {"y", 342}});
  }
};

TEST_F(ControlBarTest, ButtonsTellTheEngine) {
  for (const char* name : {"backButton", "playerPlayPause", "forwardButton"}) {
    click(name);
    EXPECT_EQ(takeSent(), Sent()) << name << ": nothing is loaded";
  }
  load(100);
  reportPlaylist(3, 1);
  report(MpvProperty::pause, false);
  const Table<const char*, const char*> rows{
      {"muteButton", "set mute yes"},       {"muteButton", "set mute no"},
      {"previousButton", "playlist-prev"},  {"backButton", "seek -10.0 relative"},
      {"playerPlayPause", "set pause yes"}, {"forwardButton", "seek 10.0 relative"},
      {"nextButton", "playlist-next"}};
  for (const auto& [button, sent] : rows) {
    click(button);
    EXPECT_EQ(takeSent(), Sent{sent}) << button;
  }
}

TEST_F(ControlBarTest, ShowsWhatThereIs) {
  EXPECT_FALSE(isShown("previousButton") || isShown("nextButton") || isShown("chaptersButton"));
  EXPECT_FALSE(item("seekSlider")->isEnabled());
  reportPlaylist(1, 0);
  EXPECT_FALSE(isShown("previousButton") || isShown("nextButton"));
  load(100);
  reportPlaylist(2, 0);
  EXPECT_TRUE(isShown("previousButton") && isShown("nextButton"));
  EXPECT_FALSE(item("previousButton")->isEnabled());
  EXPECT_TRUE(item("nextButton")->isEnabled());
  EXPECT_TRUE(item("seekSlider")->isEnabled());

  reportChapters({0, 50});
  report(MpvProperty::timePos, 50.0);
  EXPECT_TRUE(isShown("chaptersButton"));
  layOut();
  const QList<QQuickItem*> marks = items("chapterMark");
  ASSERT_EQ(marks.size(), 1);
  const double middle = frame(item("seekSlider")).center().x();
  EXPECT_EQ(frame(marks.first()).center().x(), middle);
  EXPECT_LE(std::abs(item("seekSlider")->property("knobX").toDouble() +
                     frame(item("seekSlider")).x() - middle),
            0.5);
  EXPECT_EQ(text("elapsedTime"), "0:50");
  EXPECT_EQ(text("remainingTime"), "-0:50");
  view_->setVisible(false);
  report(MpvProperty::timePos, 60.0);
  EXPECT_EQ(text("elapsedTime"), "0:50") << "nobody sees it, and nothing is drawn anew";
  view_->setVisible(true);
  EXPECT_EQ(text("elapsedTime"), "1:00");

  report(MpvProperty::pause, false);
  EXPECT_EQ(text("playerPlayPause", "symbol"), "pause.fill");
  report(MpvProperty::mute, true);
  EXPECT_EQ(text("muteButton", "symbol"), "speaker.slash.fill");
  EXPECT_EQ(text("muteButton", "tip"), "Unmute (M)");
  report(MpvProperty::fullscreen, true);
  EXPECT_EQ(text("fullscreenButton", "tip"), "Exit full screen (F)");
}

TEST_F(ControlBarTest, DragsTheVolume) {
  const QRectF slider = frame("volumeSlider");
  click(slider.center());
  EXPECT_EQ(takeSent(), Sent{"set volume 50.0"});
  press(slider.center() + QPointF(3, 0));
  EXPECT_EQ(takeSent(), Sent()) << "on the knob";
  drag(slider.center() + QPointF(500, 30));
  EXPECT_EQ(takeSent(), Sent{"set volume 100.0"});
  release(slider.center());
}

TEST_F(ControlBarTest, DragsThePosition) {
  load(100);
  clock_.advance(std::chrono::seconds(1));
  QQuickItem* const slider = item("seekSlider");
  const QRectF place = frame(slider);
  const auto at = [&](double part) {
    return QPointF(place.x() + 8 + (place.width() - 16) * part, place.center().y());
  };
  press(at(0.25));
  EXPECT_TRUE(playback_.isScrubbing());
  EXPECT_EQ(takeSent(), Sent{"seek 25.0 absolute+keyframes"});
  drag(at(0.5));
  EXPECT_EQ(text("elapsedTime"), "0:50");
  EXPECT_EQ(text("remainingTime"), "-0:50");
  EXPECT_EQ(takeSent(), Sent()) << "too soon";
  release(at(0.5));
  EXPECT_FALSE(playback_.isScrubbing());
  EXPECT_EQ(takeSent(), Sent{"seek 50.0 absolute+exact"});

  press(at(0.75));
  view_->setParentItem(nullptr);
  EXPECT_FALSE(playback_.isScrubbing()) << "taken off its window under the hand";
  view_->setParentItem(&layer_);
  press(at(0.75));
  view_->setVisible(false);
  EXPECT_FALSE(playback_.isScrubbing()) << "hidden under the hand";
}

TEST_F(ControlBarTest, ChoosesASpeed) {
  report(MpvProperty::speed, 1.0004);
  EXPECT_EQ(text("speedMenu"), "1×");
  EXPECT_FALSE(item("speedMenu")->property("active").toBool());
  report(MpvProperty::speed, 1.002);
  EXPECT_TRUE(item("speedMenu")->property("active").toBool());
  report(MpvProperty::speed, 1.0004);
  EXPECT_FALSE(item("speedList"));
  click("speedMenu");
  ASSERT_TRUE(isShown("speedList"));
  EXPECT_EQ(only("speedCheckmark")->parentItem()->parentItem()->objectName(), "speed1×");
  click("speed1.25×");
  EXPECT_EQ(takeSent(), Sent{"set speed 1.25"});
  EXPECT_TRUE(item("speedMenu")->property("active").toBool());
  EXPECT_TRUE(waitFor([this] { return !item("speedList"); }));

  click("speedMenu");
  click("muteButton");
  EXPECT_EQ(takeSent(), Sent()) << "the press only dismissed the list";
  EXPECT_TRUE(waitFor([this] { return !item("speedList"); }));
  click("speedMenu");
  layer_.setVisible(false);
  EXPECT_TRUE(waitFor([this] { return !item("speedList"); }));
}

TEST_F(ControlBarTest, EverythingFitsAtTheLeastWidth) {
  load(100 * 3600);
  report(MpvProperty::speed, 1.25);
  for (const bool all : {false, true}) {
    reportPlaylist(all ? 3 : 1, 0);
    reportChapters(all ? std::vector<double>{0, 50} : std::vector<double>());
    for (const double width : {440.0, 480.0, 560.0, 620.0, 700.0, 760.0}) {
      SCOPED_TRACE(width);
      view_->setWidth(width);
      layOut();
      double end = frame(view_.get()).left();
      for (const char* name :
           {"muteButton", "volumeSlider", "previousButton", "backButton", "playerPlayPause",
            "forwardButton", "nextButton", "speedMenu", "chaptersButton", "tracksButton",
            "queueButton", "infoButton", "fullscreenButton"}) {
        if (!isShown(name)) continue;
        EXPECT_GE(frame(name).left(), end) << name;
        end = frame(name).right();
      }
      EXPECT_LE(end, frame("remainingTime").right());
      EXPECT_EQ(isShown("volumeSlider"), !all || width > 440);
      EXPECT_GE(item("remainingTime")->width(), item("remainingTime")->implicitWidth());
    }
    EXPECT_EQ(frame("playerPlayPause").center().x(), frame(view_.get()).center().x());
  }
}

TEST_F(ControlBarTest, TellsWhatAButtonIsForOnceThePointerRestsOnIt) {
  move(frame("queueButton").center());
  const auto tip = [this] { return item("queueButton")->findChild<QObject*>("toolTip"); };
  EXPECT_FALSE(tip());
  ASSERT_TRUE(waitFor([&] { return tip() != nullptr; }));
  EXPECT_EQ(tip()->property("text"), "Queue (Q)");
  click("queueButton");
  EXPECT_TRUE(waitFor([&] { return !tip(); }));
}

}  // namespace tromelo::testing
