#include "EndToEnd.h"

namespace tromelo::testing {

TEST_F(EndToEnd, GoesToFullScreenAndBackToTheSizeItHad) {
  player.start({clip("sample.mp4"), "--start=4"});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.said("title"), "sample");
  EXPECT_GE(player.said("position").toDouble(), 4);
  const QSize before = player.windowSize();
  const QSize whole = screen::shot().size();
  EngineProbe engine = probe();
  for (const bool fullscreen : {true, false, true, false}) {
    const QSize size = fullscreen ? whole : before;
    engine.set("fullscreen", fullscreen);
    ASSERT_TRUE(player.waitUntil([&] { return player.windowSize() == size; }));
    EXPECT_TRUE(player.waitFor("fullscreen", fullscreen ? "yes" : "no"));
    EXPECT_TRUE(engine.waitFor("osd-width", size.width()));
    EXPECT_TRUE(engine.waitFor("osd-height", size.height()));
    EXPECT_TRUE(screen::waitForShot("fullscreen", showsTestPicture));
  }
}

TEST_F(EndToEnd, IsResizedMinimisedAndClosedByTheWindowManager) {
  if (!screen::isX11()) GTEST_SKIP() << "no one does that on the headless Wayland host";
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  const QString id = window("sample");
  for (const auto& [size, width, height] :
       {std::tuple{QSize(900, 700), 900, 506}, {QSize(800, 300), 533, 300}}) {
    screen::xdotool(
        {"windowsize", id, QString::number(size.width()), QString::number(size.height())});
    ASSERT_TRUE(player.waitUntil([&] { return player.windowSize() == size; }));
    EXPECT_TRUE(player.waitUntil([&] {
      return std::abs(engine.get("osd-width").toInt() - width) <= 2 &&
             std::abs(engine.get("osd-height").toInt() - height) <= 2;
    })) << width;
  }
  screen::xdotool({"windowminimize", id});
  ASSERT_TRUE(player.waitUntil([this] { return window("sample").isEmpty(); }));
  const auto position = [&] { return engine.get("time-pos").toDouble(); };
  const double hiddenAt = position();
  EXPECT_TRUE(player.waitUntil([&] { return position() > hiddenAt + 2; }));
  screen::xdotool({"windowactivate", id});
  EXPECT_TRUE(screen::waitForShot("back", showsTestPicture));

  ASSERT_TRUE(player.waitUntil([&] { return isActive("sample"); }));
  EXPECT_TRUE(window("^Tromelo$").isEmpty());
  screen::press("alt+F4");
  ASSERT_TRUE(player.waitFor("window", "none"));
  EXPECT_TRUE(player.isRunning());
  EXPECT_TRUE(screen::waitForShot("library", [](const QImage& image) {
    return !showsTestPicture(image) && image.pixelColor(image.rect().center()).lightness() < 60;
  }));
  EXPECT_FALSE(window("^Tromelo$").isEmpty());
}

}  // namespace tromelo::testing
