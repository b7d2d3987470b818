#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

class Settings : public EndToEnd {
 protected:
  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "no one types on the headless Wayland host";
  }
  bool isGone(const char* title) { return window(title).isEmpty(); }
  [[nodiscard]] bool waitUntilActive(const char* title) {
    return player.waitUntil([&] { return isActive(title); });
  }
};

TEST_F(Settings, AreChangedByKeysWhileAFilmPlays) {
  player.start({clip("tracks.mkv")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  ASSERT_TRUE(player.waitUntil([&] { return isActive("tracks"); }));
  screen::press(QStringLiteral("ctrl+comma"));
  ASSERT_TRUE(waitUntilActive("^Settings"));
  const QString settings = window("^Settings");
  screen::press(QStringLiteral("Right"));  // to the page of subtitles
  for (const char* key : {"Tab", "Tab", "Tab", "Right", "Right", "Right"})
    screen::press(QString::fromLatin1(key));
  EXPECT_TRUE(engine.waitFor(QStringLiteral("sub-font-size"), 50));
  for (const char* key : {"Tab", "Tab", "Return"}) screen::press(QString::fromLatin1(key));
  EXPECT_TRUE(engine.waitFor(QStringLiteral("sub-color"), QStringLiteral("#FFFFED59")));

  screen::press(QStringLiteral("ctrl+comma"));
  EXPECT_EQ(window("^Settings"), settings);
  EXPECT_TRUE(isActive("^Settings"));
  screen::press(QStringLiteral("Escape"));
  EXPECT_TRUE(player.waitUntil([&] { return isGone("^Settings"); }));
  EXPECT_TRUE(player.isRevealed());
  EXPECT_EQ(player.said(QStringLiteral("status")), QStringLiteral("Playing"));
}

TEST_F(Settings, AreReachedThroughTheMenus) {
  player.start();
  ASSERT_TRUE(waitUntilActive("^Tromelo$"));
  for (const char* key : {"alt+h", "k"}) screen::press(QString::fromLatin1(key));
  ASSERT_TRUE(waitUntilActive("^Settings"));
  screen::press(QStringLiteral("ctrl+w"));
  ASSERT_TRUE(waitUntilActive("^Tromelo$"));
  for (const char* key : {"F10", "Right", "Right", "Right", "Down", "Return"})
    screen::press(QString::fromLatin1(key));
  ASSERT_TRUE(waitUntilActive("^About Tromelo$"));
  screen::press(QStringLiteral("ctrl+q"));
  EXPECT_EQ(player.waitForEnd(), 0);
}

}  // namespace
}  // namespace tromelo::testing
