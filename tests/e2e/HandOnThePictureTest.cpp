#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QUrl>

#include "Drag.h"
#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

constexpr int kClickInterval = 450;  // ms; presses further apart are not two of one

/// A person's pointer over a film.
class HandOnThePicture : public EndToEnd {
 protected:
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
    engine.set(QStringLiteral("pause"), true);
    ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Paused")));
  }

  QRect frame() { return screen::geometryOf(id); }
  /// On the bare video.
  QPoint video() { return frame().center() - QPoint(0, 40); }
  QPoint bar() { return {frame().center().x(), frame().bottom() - 60}; }

  /// Nothing but the control bar is dark all along a line through it.
  bool showsControls(const QImage& image) {
    const QRect window = frame();
    for (int x = window.left() + 60; x < window.right() - 60; x += 10)
      if (image.pixelColor(x, window.bottom() - 90).lightness() > 90) return false;
    return true;
  }
  bool controlsCome(const char* shot) {
    return screen::waitForShot(QString::fromLatin1(shot),
                               [this](const QImage& image) { return showsControls(image); });
  }
  bool controlsGo(const char* shot) {
    return screen::waitForShot(QString::fromLatin1(shot), [this](const QImage& image) {
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

TEST_F(HandOnThePicture, AClickTogglesTheControlsAndTwoTheFullScreen) {
  pause();
  ASSERT_TRUE(controlsCome("hand-controls"));
  const QPoint place = video();
  screen::movePointer(place);
  EngineProbe engine = probe();
  const auto liftsSubtitles = [&] { return engine.get(QStringLiteral("sub-pos")).toDouble() < 90; };
  EXPECT_TRUE(waitFor(liftsSubtitles));
  EXPECT_TRUE(waitFor(screen::showsPointer));
  clickAlone(place);
  EXPECT_TRUE(controlsGo("hand-clicked-away"));
  EXPECT_TRUE(engine.waitFor(QStringLiteral("sub-pos"), 100));
  EXPECT_TRUE(waitFor([] { return !screen::showsPointer(); }));
  clickAlone(place);
  EXPECT_TRUE(controlsCome("hand-clicked-back"));
  EXPECT_TRUE(waitFor(liftsSubtitles));
  screen::movePointer(place + QPoint(3, 0));
  EXPECT_TRUE(waitFor(screen::showsPointer));

  for (const bool fullscreen : {true, false}) {
    clickAlone(place, 2);
    EXPECT_TRUE(engine.waitFor(QStringLiteral("fullscreen"), fullscreen));
    ASSERT_TRUE(player.waitFor(QStringLiteral("fullscreen"), fullscreen ? "yes" : "no"));
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

TEST_F(HandOnThePicture, DragsTheEdgesWithTheAspectKept) {
  pause();
  const QRect before = frame();
  struct Row {
    const char* name;
    QPoint from;
    QPoint by;
    QRect after;  // on X11
  };
  const QPoint corner(before.right() - 2, before.bottom() - 3);
  const QRect larger(before.topLeft(), QSize(800, 450));
  EngineProbe engine = probe();
  for (const Row& row : {
           Row{"corner", corner, {160, 20}, larger},
           Row{"left edge",
               {larger.left() + 1, larger.center().y()},
               {160, 3},
               {before.left() + 160, before.top(), 640, 360}},
           Row{"top edge, to the least",
               {before.left() + 480, before.top() + 2},
               {0, 200},
               {before.left() + 160, before.top() + 60, 533, 300}},
       }) {
    screen::dragPointer({row.from, row.from + row.by / 2, row.from + row.by});
    EXPECT_TRUE(waitFor([&] {
      const QRect now = frame();
      if (screen::isX11()) return now == row.after;
      // Where the host puts it is its business, as is how far a hand has to go first.
      return now.width() != before.width() && std::abs(now.width() * 9 - now.height() * 16) <= 32;
    })) << row.name
        << ": " << frame().width() << 'x' << frame().height();
    if (!screen::isX11()) break;
  }
  EXPECT_TRUE(waitFor([&] {
    return std::abs(engine.get(QStringLiteral("osd-width")).toInt() - frame().width()) <= 2;
  }));
  EXPECT_FALSE(engine.get(QStringLiteral("fullscreen")).toBool());
}

TEST_F(HandOnThePicture, TheWheelSetsTheVolume) {
  screen::movePointer(video());
  EngineProbe engine = probe();
  for (const int button : {5, 5, 4}) {
    screen::pressButton(button);
    screen::releaseButton(button);
  }
  EXPECT_TRUE(engine.waitFor(QStringLiteral("volume"), 98));
}

TEST_F(HandOnThePicture, APointerOnTheBarKeepsTheControls) {
  EngineProbe engine = probe();
  engine.set(QStringLiteral("loop-file"), QStringLiteral("inf"));
  ASSERT_TRUE(controlsGo("hand-away"));
  screen::movePointer(bar() - QPoint(4, 0));
  screen::movePointer(bar());
  ASSERT_TRUE(controlsCome("hand-comes"));
  // Longer than they stay for a pointer that rests elsewhere.
  const double start = engine.get(QStringLiteral("playback-time")).toDouble();
  ASSERT_TRUE(waitFor([&] {
    return std::abs(engine.get(QStringLiteral("playback-time")).toDouble() - start) > 3;
  }));
  EXPECT_TRUE(controlsCome("hand-on-the-bar"));
  screen::movePointer(video());
  EXPECT_TRUE(controlsGo("hand-rests"));
  screen::movePointer(video() + QPoint(7, 0));
  EXPECT_TRUE(controlsCome("hand-moves"));
  screen::movePointer(frame().topLeft() + QPoint(40, 32));  // on the way back
  engine.set(QStringLiteral("fullscreen"), true);
  ASSERT_TRUE(player.waitFor(QStringLiteral("fullscreen"), QStringLiteral("yes")));
  EXPECT_TRUE(controlsGo("hand-left-behind"));
}

TEST_F(HandOnThePicture, TakesDroppedFilesInTheirOrderAndNothingElse) {
  const QString uris = QStringLiteral("text/uri-list");
  QStringList files;
  QStringList urls;
  for (int i = 0; i < 20; ++i) {
    files << player.homePath() + QStringLiteral("/%1 %2.mp4").arg(QChar(u'a' + i * 7 % 20)).arg(i);
    ASSERT_TRUE(QFile::link(clip("short-wide.mp4"), files.last()));
    urls << QString::fromUtf8(QUrl::fromLocalFile(files.last()).toEncoded());
  }
  pause();
  const QPoint place = video();
  EngineProbe engine = probe();
  std::array<QProcess, 3> sources;
  const QString link = QStringLiteral("https://example.org/film.mp4");
  Drag text(QStringLiteral("text/plain"), {files[0]});
  EXPECT_EQ(text.drop(place, false), "nothing");
  Drag web(uris, {link});
  EXPECT_EQ(web.drop(place, false), "nothing");
  EXPECT_EQ(engine.get(QStringLiteral("playlist-count")), 1);
  Drag wanted(uris, urls);
  EXPECT_EQ(wanted.drop(place, true), "copy");
  ASSERT_TRUE(engine.waitFor(QStringLiteral("playlist-count"), 21));
  for (int i = 0; i < 20; ++i)
    EXPECT_EQ(engine.get(QStringLiteral("playlist/%1/filename").arg(i + 1)), files[i]);
}

}  // namespace
}  // namespace tromelo::testing
