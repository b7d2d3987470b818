#include <QElapsedTimer>
#include <QFile>
#include <QUrl>

#include "Drag.h"
#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

constexpr int kClickInterval = 450;  // ms; presses further apart are not two of one

/// A person's pointer over a film.
struct HandOnThePicture : EndToEnd {
  void SetUp() override {
    screen::movePointer({5, 700});
    player.start({clip("sample.mp4")});
    ASSERT_TRUE(player.waitUntilPlaying());
    ASSERT_TRUE(waitFor([this] {
      id = window("sample");
      return !id.isEmpty() && isActive("sample") && window("^Tromelo$").isEmpty();
    }));
  }

  void pause() {
    EngineProbe engine = probe();
    engine.set("pause", true);
    ASSERT_TRUE(player.waitFor("status", "Paused"));
  }

  QRect frame() { return screen::geometryOf(id); }
  /// On the bare video.
  QPoint video() { return frame().center() - QPoint(0, 40); }

  /// Nothing but the control bar is dark all along a line through it.
  bool showsControls(const QImage& image) {
    const QRect window = frame();
    for (int x = window.left() + 60; x < window.right() - 60; x += 10)
      if (image.pixelColor(x, window.bottom() - 90).lightness() > 90) return false;
    return true;
  }
  bool controlsCome(const char* shot) {
    return screen::waitForShot(shot, [this](const QImage& image) { return showsControls(image); });
  }
  bool controlsGo(const char* shot) {
    return screen::waitForShot(shot, [this](const QImage& image) {
      return showsTestPicture(image) && !showsControls(image);
    });
  }

  /// So that the next press is not the second of two.
  void pauseBetweenPresses() {
    QElapsedTimer since;
    since.start();
    ASSERT_TRUE(waitFor([&] { return since.elapsed() > kClickInterval; }));
  }
  void clickAlone(QPoint place, int times = 1) {
    pauseBetweenPresses();
    screen::click(place, times);
  }

  QString id;
};

TEST_F(HandOnThePicture, ClicksAndTheWheelReachThePlayer) {
  pause();
  ASSERT_TRUE(controlsCome("hand-controls"));
  const QPoint place = video();
  screen::movePointer(place);
  EngineProbe engine = probe();
  const auto liftsSubtitles = [&] { return engine.get("sub-pos").toDouble() < 90; };
  EXPECT_TRUE(waitFor(liftsSubtitles));
  EXPECT_TRUE(waitFor(screen::showsPointer));
  clickAlone(place);
  EXPECT_TRUE(controlsGo("hand-clicked-away"));
  EXPECT_TRUE(engine.waitFor("sub-pos", 100));
  EXPECT_TRUE(waitFor([] { return !screen::showsPointer(); }));
  clickAlone(place);
  EXPECT_TRUE(controlsCome("hand-clicked-back"));
  EXPECT_TRUE(waitFor(liftsSubtitles));
  screen::movePointer(place + QPoint(3, 0));
  EXPECT_TRUE(waitFor(screen::showsPointer));

  for (const int button : {5, 5, 4}) {  // the wheel
    screen::pressButton(button);
    screen::releaseButton(button);
  }
  EXPECT_TRUE(engine.waitFor("volume", 98));
  for (const bool fullscreen : {true, false}) {
    clickAlone(place, 2);
    EXPECT_TRUE(engine.waitFor("fullscreen", fullscreen));
    ASSERT_TRUE(player.waitFor("fullscreen", fullscreen ? "yes" : "no"));
  }
}

TEST_F(HandOnThePicture, DragsTheWindowExactly) {
  pause();
  const QRect before = frame();
  const QPoint place = video();
  screen::dragPointer({place, place + QPoint(2, 1), place + QPoint(1, -2)});
  EXPECT_TRUE(controlsGo("hand-jitter")) << "it was a click";
  EXPECT_EQ(frame(), before);

  const auto drag = [this](QPoint from, QPoint by, QRect expected) {
    pauseBetweenPresses();
    screen::dragPointer({from, from + by / 2, from + by});
    if (screen::isX11()) {
      EXPECT_TRUE(waitFor([&] { return frame() == expected; }));
      return;
    }
    // The host moves it from where the pointer is when it hears of it.
    EXPECT_TRUE(waitFor([&] {
      const QPoint moved = frame().topLeft() - (expected.topLeft() - by);
      return frame().size() == expected.size() && moved.manhattanLength() > 20 &&
             QPoint::dotProduct(moved, by) > 0;
    })) << frame().x()
        << ' ' << frame().y();
  };
  drag(place, {-80, 44}, before.translated(-80, 44));
  const QRect moved = frame();
  drag(video(), {90, -80}, moved.translated(90, -80));
}

TEST_F(HandOnThePicture, DragsACornerWithTheAspectKept) {
  pause();
  const QRect before = frame();
  const QPoint corner(before.right() - 2, before.bottom() - 3);
  screen::dragPointer({corner, corner + QPoint(80, 10), corner + QPoint(160, 20)});
  EXPECT_TRUE(waitFor([&] {
    const QRect now = frame();
    if (screen::isX11()) return now == QRect(before.topLeft(), QSize(800, 450));
    // Where the host puts it is its business, as is how far a hand has to go first.
    return now.width() != before.width() && std::abs(now.width() * 9 - now.height() * 16) <= 32;
  }));
  EngineProbe engine = probe();
  EXPECT_TRUE(
      waitFor([&] { return std::abs(engine.get("osd-width").toInt() - frame().width()) <= 2; }));
}

TEST_F(HandOnThePicture, TakesDroppedFilesInTheirOrderAndNothingElse) {
  QStringList files;
  QStringList urls;
  for (const char name : std::string("dbace")) {
    files << player.homePath() + "/a " + name + ".mp4";
    ASSERT_TRUE(QFile::link(clip("short-wide.mp4"), files.last()));
    urls << QUrl::fromLocalFile(files.last()).toString(QUrl::FullyEncoded);
  }
  pause();
  const QPoint place = video();
  EngineProbe engine = probe();
  EXPECT_EQ(Drag("text/plain", {files[0]}).drop(place, false), "nothing");
  EXPECT_EQ(engine.get("playlist-count"), 1);
  Drag wanted("text/uri-list", urls);  // still there when the player fetches them
  EXPECT_EQ(wanted.drop(place, true), "copy");
  ASSERT_TRUE(engine.waitFor("playlist-count", 6));
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(engine.get(QString("playlist/%1/filename").arg(i + 1)), files[i]);
}

}  // namespace tromelo::testing
