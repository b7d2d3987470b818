#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

TEST_F(EndToEnd, PlaysAFileFromItsStartAndReturnsToTheLibrary) {
  player.start({clip("sample.mp4"), QStringLiteral("--start=4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.said(QStringLiteral("title")), QStringLiteral("sample"));
  EXPECT_GE(player.said(QStringLiteral("position")).toDouble(), 4);
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("playing"), showsTestPicture));
  if (!screen::isX11()) return;

  EXPECT_TRUE(player.waitUntil([this] { return window("^Tromelo$").isEmpty(); }));
  screen::press(QStringLiteral("alt+F4"));
  ASSERT_TRUE(player.waitFor(QStringLiteral("window"), QStringLiteral("none")));
  EXPECT_TRUE(player.isRunning());
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("library"), [](const QImage& image) {
    return !showsTestPicture(image) && image.pixelColor(image.rect().center()).lightness() < 60;
  }));
  EXPECT_FALSE(window("^Tromelo$").isEmpty());
}

TEST_F(EndToEnd, GoesToFullScreenAndBackToTheSizeItHad) {
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  const QSize before = player.windowSize();
  const QSize whole = screen::shot().size();
  EngineProbe engine = probe();
  for (int round = 0; round < 2; ++round) {
    engine.set(QStringLiteral("fullscreen"), true);
    ASSERT_TRUE(player.waitUntil([&] { return player.windowSize() == whole; }));
    EXPECT_TRUE(player.waitFor(QStringLiteral("fullscreen"), QStringLiteral("yes")));
    EXPECT_TRUE(engine.waitFor(QStringLiteral("osd-width"), whole.width()));
    EXPECT_TRUE(engine.waitFor(QStringLiteral("osd-height"), whole.height()));
    EXPECT_TRUE(screen::waitForShot(QStringLiteral("fullscreen"), showsTestPicture));

    engine.set(QStringLiteral("fullscreen"), false);
    ASSERT_TRUE(player.waitUntil([&] { return player.windowSize() == before; }));
    EXPECT_TRUE(engine.waitFor(QStringLiteral("osd-width"), before.width()));
    EXPECT_TRUE(engine.waitFor(QStringLiteral("osd-height"), before.height()));
  }
}

TEST_F(EndToEnd, PlaysOnWhileItIsMinimised) {
  if (!screen::isX11()) GTEST_SKIP() << "no one minimises windows on the headless Wayland host";
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  const QString id = window("sample");
  screen::run(QStringLiteral("xdotool"), {QStringLiteral("windowminimize"), id});
  ASSERT_TRUE(player.waitUntil([this] { return window("sample").isEmpty(); }));
  const auto position = [&] { return engine.get(QStringLiteral("time-pos")).toDouble(); };
  const double hiddenAt = position();
  EXPECT_TRUE(player.waitUntil([&] { return position() > hiddenAt + 2; }));
  screen::run(QStringLiteral("xdotool"), {QStringLiteral("windowactivate"), id});
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("back"), showsTestPicture));
}

TEST_F(EndToEnd, ResizesThePictureWithItsAspectKept) {
  if (!screen::isX11()) GTEST_SKIP() << "no one resizes windows on the headless Wayland host";
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  const QString id = window("sample");
  struct Row {
    QSize window;
    QSize picture;
  };
  for (const Row& row : {Row{{960, 540}, {960, 540}}, Row{{900, 700}, {900, 506}},
                         Row{{800, 300}, {533, 300}}, Row{{640, 360}, {640, 360}}}) {
    screen::run(QStringLiteral("xdotool"),
                {QStringLiteral("windowsize"), id, QString::number(row.window.width()),
                 QString::number(row.window.height())});
    ASSERT_TRUE(player.waitUntil([&] { return player.windowSize() == row.window; }));
    EXPECT_TRUE(player.waitUntil([&] {
      return std::abs(engine.get(QStringLiteral("osd-width")).toInt() - row.picture.width()) <= 2 &&
             std::abs(engine.get(QStringLiteral("osd-height")).toInt() - row.picture.height()) <= 2;
    })) << row.picture.width();
  }
}

}  // namespace
}  // namespace tromelo::testing
