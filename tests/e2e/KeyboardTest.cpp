#include "EndToEnd.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

/// A person's keyboard.
struct Keyboard : EndToEnd {
  void SetUp() override {
    screen::movePointer({5, 700});
    const QString pictures = player.homePath() + "/pictures";
    writeFile(player.homePath() + "/config/user-dirs.dirs",
              "XDG_PICTURES_DIR=\"" + pictures.toStdString() + "\"\n");
    player.start({clip("tracks.mkv")});
    ASSERT_TRUE(player.waitUntilPlaying());
    ASSERT_TRUE(player.waitUntil([&] { return isActive("tracks"); }));
    screen::press("space");
    ASSERT_TRUE(player.waitFor("status", "Paused"));
  }

  double number(const char* property) { return probe().get(property).toDouble(); }
  /// By the window manager, which the window follows later than the engine asks.
  bool isFullscreen() {
    if (!screen::isX11()) return player.windowSize() == screen::shot().size();
    return screen::run("xprop", {"-id", window("tracks"), "_NET_WM_STATE"}).contains("FULLSCREEN");
  }
  /// On Wayland Qt learns a moment later than the host that a window is active, and a key that
  /// comes before that is lost.
  [[nodiscard]] bool pressUntilActive(const QStringList& keys, const QString& title) {
    return player.waitUntil([&] {
      for (const QString& key : keys) screen::press(key);
      return waitFor([&] { return isActive(title); }, std::chrono::seconds(5));
    });
  }
  /// Whatever was pressed before has been done.
  [[nodiscard]] bool drain() {
    const bool muted = probe().get("mute").toBool();
    screen::press("m");
    return probe().waitFor("mute", !muted);
  }
};

TEST_F(Keyboard, DrivesThePlayer) {
  EngineProbe engine = probe();
  for (const auto& [keys, property, value] :
       Table<const char*, const char*, QJsonValue>{{"Home", "pause", true},  // nobody's
                                                   {"bracketright", "speed", 1.25},
                                                   {"Down", "volume", 95},
                                                   {"KP_Up", "volume", 100},
                                                   {"shift+n", "chapter", 1}}) {
    screen::press(keys);
    EXPECT_TRUE(engine.waitFor(property, value)) << keys;
  }
  for (const auto& [keys, open] : {std::pair{"question", "shortcuts"}, {"q", "queue"}}) {
    screen::press(keys);
    EXPECT_TRUE(player.waitFor("panel", open)) << keys;
  }
  screen::press("f");
  ASSERT_TRUE(player.waitUntil([&] { return isFullscreen(); }));
  screen::press("Escape");
  EXPECT_TRUE(player.waitFor("panel", "none"));
  EXPECT_EQ(player.said("fullscreen"), "yes");
  screen::press("Escape");
  ASSERT_TRUE(player.waitUntil([&] { return !isFullscreen(); }));
  EXPECT_TRUE(player.waitFor("fullscreen", "no"));
  EXPECT_TRUE(player.isRevealed());
  screen::press("Escape");
  EXPECT_TRUE(player.waitFor("window", "none"));
}

TEST_F(Keyboard, AHeldKeyStopsWhenItIsLetGo) {
  for (const auto& [key, property, enough] :
       {std::tuple{"h", "sub-delay", 1.0}, {"e", "time-pos", 2.0}}) {
    SCOPED_TRACE(key);
    screen::holdKeys(key);
    EXPECT_TRUE(player.waitUntil([&] { return number(property) > enough; }));
    screen::letGoOfKeys(key);
    ASSERT_TRUE(drain());
    EXPECT_TRUE(probe().waitFor("pause", true));
    const double value = number(property);
    ASSERT_TRUE(drain());
    EXPECT_EQ(number(property), value);
  }
}

TEST_F(Keyboard, KeepsThePictureAndTheSignalOfAnHdrFilm) {
  probe().command({"loadfile", clip("hdr10.mkv")});
  ASSERT_TRUE(player.waitFor("signal", "HDR10 · PQ"));
  ASSERT_TRUE(player.waitUntil([&] { return isActive("hdr10"); }));
  screen::press("w");
  const QString pictures = player.homePath() + "/pictures/";
  ASSERT_TRUE(player.waitUntil([&] { return QDir(pictures).entryList(QDir::Files).size() == 2; }));
  const QByteArray sdr = readFile(pictures + "hdr10 – 0.00.00.png");
  const QByteArray hdr = readFile(pictures + "hdr10 – 0.00.00 HDR.png");
  EXPECT_TRUE(sdr.contains("IEND"));
  EXPECT_FALSE(sdr.contains("cICP"));
  // BT.2020, PQ, RGB, full range.
  EXPECT_TRUE(hdr.contains(QByteArray("cICP\x09\x10\x00\x01", 8)));
}

/// As where they are asked for right after the key for full screen.
TEST_F(Keyboard, SettingsStayAboveAFilmThatFillsTheScreen) {
  ASSERT_TRUE(pressUntilActive({"ctrl+comma"}, "^Settings"));
  probe().set("fullscreen", true);
  ASSERT_TRUE(player.waitUntil([&] { return isFullscreen(); }));
  EXPECT_TRUE(player.waitUntil([&] { return isActive("^Settings"); }));
  EXPECT_TRUE(pressUntilActive({"Escape"}, "tracks"));
}

TEST_F(Keyboard, KeysOfTheProgramPass) {
  ASSERT_TRUE(player.waitUntil([&] { return window("^Tromelo$").isEmpty(); }));
  screen::press("ctrl+shift+l");
  EXPECT_TRUE(player.waitUntil([&] { return isActive("^Tromelo$"); }));
  EXPECT_TRUE(pressUntilActive({"ctrl+comma"}, "^Settings"));
  EXPECT_TRUE(pressUntilActive({"Escape"}, "^Tromelo$"));
  EXPECT_TRUE(pressUntilActive({"alt+h", "a"}, "^About Tromelo"));
  // On Wayland a window that has just come may ask once more to be active.
  ASSERT_TRUE(player.waitUntil([&] {
    screen::activate(player.processId(), "tracks");
    return waitFor([&] { return isActive("tracks"); }, std::chrono::seconds(5));
  }));
  screen::press("ctrl+q");
  EXPECT_EQ(player.waitForEnd(), 0);
  EXPECT_EQ(player.runtimeFiles(), QStringList());
}

}  // namespace tromelo::testing
