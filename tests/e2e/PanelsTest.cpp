#include <QJsonArray>
#include <QJsonObject>

#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

// From the right end of the control bar's upper row to the middle of a button.
constexpr int kFullscreenButton = 14;
constexpr int kQueueButton = 86;
constexpr int kTracksButton = 122;
constexpr int kChaptersButton = 158;

/// A person's pointer on the panels, on X11.
class Panels : public EndToEnd {
 protected:
  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host has no pointer";
  }

  void start(const QStringList& clips, const char* title) {
    screen::movePointer({5, 700});
    player.start(clips);
    ASSERT_TRUE(player.waitUntilPlaying());
    ASSERT_TRUE(waitFor([&] {
      id = window(title);
      return !id.isEmpty() && isActive(title);
    }));
    probe().set(QStringLiteral("pause"), true);
    ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Paused")));
    screen::run(QStringLiteral("xdotool"),
                {QStringLiteral("windowsize"), id, QStringLiteral("1120"), QStringLiteral("700")});
    ASSERT_TRUE(waitFor([&] { return frame().width() > 1000; }))
        << id.toStdString() << " " << frame().width();
    screen::run(QStringLiteral("xdotool"),
                {QStringLiteral("windowmove"), id, QStringLiteral("60"), QStringLiteral("40")});
    ASSERT_TRUE(waitFor([&] { return frame().x() == 60; }));
    screen::movePointer(button(kFullscreenButton));
    ASSERT_TRUE(screen::waitForShot(QStringLiteral("panel-bar"),
                                    [&](const QImage& image) { return showsSymbol(image); }));
  }

  /// Where the last button is now: the bar has followed the window.
  bool showsSymbol(const QImage& image) {
    const QPoint place = button(kFullscreenButton);
    int darkest = 255;
    int lightest = 0;
    for (int x = -10; x <= 10; ++x)
      for (int y = -10; y <= 10; ++y) {
        const int light = image.pixelColor(place + QPoint(x, y)).lightness();
        darkest = std::min(darkest, light);
        lightest = std::max(lightest, light);
      }
    return darkest < 110 && lightest > 190;
  }

  QRect frame() { return screen::geometryOf(id); }
  QRect bar() {
    const QRect window = frame();
    return {window.center().x() - 380, window.y() + window.height() - 22 - 86, 760, 86};
  }
  QPoint button(int fromRight) {
    return {bar().x() + bar().width() - 18 - fromRight, bar().y() + 30};
  }
  /// In the open panel of this button: across from its middle, up from its lower edge.
  QPoint above(int fromRight, int across, int up) {
    return {button(fromRight).x() + across, bar().y() - 8 - up};
  }
  void open(int fromRight, const char* shot) {
    screen::click(button(fromRight));
    const QPoint inside = above(fromRight, 0, 4);
    ASSERT_TRUE(screen::waitForShot(QString::fromLatin1(shot), [&](const QImage& image) {
      return image.pixelColor(inside).lightness() < 110;
    }));
  }

  QString id;
};

constexpr int kRow = 30;  // from one row of a list to the next

TEST_F(Panels, ChooseTracksAndChapters) {
  ASSERT_NO_FATAL_FAILURE(start({clip("tracks.mkv")}, "tracks"));
  EngineProbe engine = probe();
  // Without a device the engine lets go of each sound track that is chosen.
  engine.set(QStringLiteral("ao"), QStringLiteral("null"));
  ASSERT_NO_FATAL_FAILURE(open(kTracksButton, "panel-tracks"));
  const auto track = [this](int down) { return above(kTracksButton, 0, 520 - down); };
  struct Row {
    const char* property;
    int down;  // from the panel's top
    QJsonValue value;
  };
  for (const Row& row : {Row{"sid", 45, false}, Row{"sid", 124, 2}, Row{"aid", 378, 2}}) {
    screen::click(track(row.down));
    EXPECT_TRUE(engine.waitFor(QString::fromLatin1(row.property), row.value)) << row.down;
  }
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("panel-tracks-chosen"),
                                  [](const QImage&) { return true; }));
  screen::click(frame().center() - QPoint(400, 0));
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("panel-closed"), [&](const QImage& image) {
    return image.pixelColor(above(kTracksButton, 0, 4)).lightness() > 110;
  }));

  ASSERT_NO_FATAL_FAILURE(open(kChaptersButton, "panel-chapters"));
  screen::click(above(kChaptersButton, 0, 10 + kRow / 2 + kRow));
  EXPECT_TRUE(engine.waitFor(QStringLiteral("chapter"), 1));
  EXPECT_TRUE(waitFor([&] { return engine.get(QStringLiteral("time-pos")).toDouble() >= 2.9; }));
}

TEST_F(Panels, TheQueueIsChangedByHand) {
  QStringList clips{clip("white.mp4")};
  for (const char* name : {"sample.mp4", "tracks.mkv", "short-wide.mp4"}) clips << clip(name);
  ASSERT_NO_FATAL_FAILURE(start({clips[0]}, "white"));
  EngineProbe engine = probe();
  for (const QString& file : clips.sliced(1))
    engine.command({QStringLiteral("loadfile"), file, QStringLiteral("append")});
  const auto left = [&] {
    QStringList files;
    for (const QJsonValue& entry : engine.get(QStringLiteral("playlist")).toArray())
      files << entry.toObject().value(QStringLiteral("filename")).toString();
    return files;
  };
  ASSERT_NO_FATAL_FAILURE(open(kQueueButton, "panel-queue-white"));
  // The second row's cross, then the last but one of those that are left, then the button.
  screen::click(above(kQueueButton, 145, 10 + kRow * 2 + kRow / 2));
  EXPECT_TRUE(waitFor([&] { return left() == QStringList({clips[0], clips[2], clips[3]}); }));
  screen::click(above(kQueueButton, 100, 10 + 3 * kRow + 24));
  EXPECT_TRUE(waitFor([&] { return left() == QStringList{clips[0]}; }));
}

TEST_F(Panels, AreReadOverAnyPicture) {
  for (const char* clipName : {"white.mp4", "black.mp4"})
    for (const char* rendering : {"glass", "material"}) {
      SCOPED_TRACE(std::string(clipName) + " " + rendering);
      player.environment.insert(QStringLiteral("TROMELO_GLASS"), QString::fromLatin1(rendering));
      const QByteArray title = QByteArray(clipName).first(5);
      ASSERT_NO_FATAL_FAILURE(start({clip(clipName)}, title.constData()));
      const QByteArray shot = "panel-tracks-" + title + '-' + rendering;
      ASSERT_NO_FATAL_FAILURE(open(kTracksButton, shot.constData()));
      ASSERT_EQ(player.quit(), 0);
    }
}

}  // namespace
}  // namespace tromelo::testing
