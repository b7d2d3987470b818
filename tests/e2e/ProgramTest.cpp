#include <QDir>
#include <QFile>

#include "EndToEnd.h"
#include "support/BusDaemon.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST_F(EndToEnd, QuitsInOrderDuringPlayback) {
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_FALSE(player.runtimeFiles().isEmpty());
  EXPECT_EQ(player.quit(), 0);
  EXPECT_EQ(player.runtimeFiles(), QStringList());
  for (const char* ours : {"QObject", "QSocket", "qrc:", "qt.", "ERROR: "})
    EXPECT_FALSE(player.errors().contains(ours)) << player.errors().toStdString();
  EXPECT_FALSE(readFile(player.logPath()).isEmpty());
}

TEST_F(EndToEnd, RunsSideBySideAndClearsUpAfterACrash) {
  RunningPlayer other;
  other.start({clip("sample.mp4")});
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(other.waitUntilPlaying());
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.runtimeFiles().size(), 2);
  other.kill();
  RunningPlayer third;
  third.start();
  ASSERT_TRUE(third.waitFor("status", "Open a video to begin"));
  EXPECT_EQ(player.runtimeFiles().size(), 2);
}

TEST_F(EndToEnd, AnswersForHelpWithoutADisplay) {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    player.environment.remove(name);
  const QProcessEnvironment without = player.environment;
  for (const char* option : {"--help", "--version"}) {
    player.start({option});
    EXPECT_EQ(player.waitForEnd(), 0) << option;
  }
  player.start();
  EXPECT_EQ(player.waitForEnd(), 1);
  EXPECT_TRUE(player.errors().contains("needs a display"));
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"}) {
    RunningPlayer other;
    other.environment = without;
    other.environment.insert(name, ":987");
    other.start();
    EXPECT_EQ(other.waitForEnd(), 1) << name;
    EXPECT_TRUE(other.errors().startsWith("Tromelo can't reach the display")) << name;
    EXPECT_EQ(other.errors().count('\n'), 1) << other.errors().toStdString();
  }
}

TEST_F(EndToEnd, ASecondStartHandsItsFileToTheFirst) {
  const BusDaemon bus;
  ASSERT_FALSE(bus.address().isEmpty());
  RunningPlayer second;
  for (RunningPlayer* each : {&player, &second})
    each->environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
  player.start();
  ASSERT_TRUE(player.waitFor("status", "Open a video to begin"));

  second.start({clip("sample.mp4"), "--start=3"});
  EXPECT_EQ(second.waitForEnd(), 0);
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.said("title"), "sample");
  EXPECT_GE(player.said("position").toDouble(), 3);

  probe().set("fullscreen", true);
  ASSERT_TRUE(player.waitFor("fullscreen", "yes"));
  RunningPlayer third;
  third.environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
  third.start({clip("white.mp4")});
  EXPECT_EQ(third.waitForEnd(), 0);
  ASSERT_TRUE(player.waitFor("title", "white"));
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.said("fullscreen"), "yes");
  EXPECT_EQ(player.quit(), 0);
}

TEST_F(EndToEnd, TheLanguageIsTheFirstOfThePersonsThatTheProgramKnows) {
  for (const auto& [languages, title] : Table<const char*, const char*>{
           {"fr:de_AT", "Kein Video ausgewählt"}, {"en_GB:de", "No video selected"}}) {
    RunningPlayer reader;
    reader.environment.insert("LANGUAGE", languages);
    reader.start();
    EXPECT_TRUE(reader.waitFor("title", title)) << languages;
    EXPECT_EQ(reader.quit(), 0);
  }
}

TEST_F(EndToEnd, SettingsReachTheEngineAndWrongOnesFallBackAlone) {
  // The former edition's, which are taken over.
  writeFile(player.homePath() + "/config/Orvo/defaults.json",
            R"({"playerSettings": {"subtitleSize": 60, "subtitleColor": [1, 0, 0, 1],
                "subtitleBorderStyle": "box", "subtitleFont": 7}})");
  player.start({clip("tracks.mkv")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  EXPECT_EQ(engine.get("sub-font-size").toDouble(), 60);
  EXPECT_EQ(engine.get("sub-color").toString(), "#FFFF0000");
  EXPECT_EQ(engine.get("sub-border-style").toString(), "background-box");
  EXPECT_EQ(engine.get("sub-font").toString(), "Helvetica Neue");
}

TEST_F(EndToEnd, PlaysSoundWithoutAPictureFromTheLibraryAfterAFileThatCannotBePlayed) {
  player.start();
  EngineProbe engine = probe();
  engine.set("ao", "null");  // the machine may have no sound
  engine.command({"loadfile", clip("text.mkv")});
  ASSERT_TRUE(
      player.waitUntil([&] { return player.said("status").startsWith(u"Could not play "); }));
  engine.command({"loadfile", clip("audio.m4a")});
  engine.set("pause", false);
  ASSERT_TRUE(player.waitFor("status", "Playing"));
  EXPECT_EQ(player.said("window"), "none");
  if (!screen::isX11()) return;
  ASSERT_TRUE(player.waitUntil([&] { return isActive("^Tromelo$"); }));
  screen::press("Escape");
  ASSERT_TRUE(player.waitFor("status", "Ready for a video"));
}

TEST_F(EndToEnd, TheLibraryComesBackWhereAPersonLeftIt) {
  if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host places windows itself";
  const auto frame = [this] { return screen::geometryOf(window("Tromelo")); };
  player.start();
  ASSERT_TRUE(player.waitUntil([&] { return frame().size() == QSize(1100, 720); }));
  const QString id = window("Tromelo");
  screen::xdotool({"windowsize", id, "900", "520"});
  screen::xdotool({"windowmove", id, "100", "80"});
  ASSERT_TRUE(
      player.waitUntil([&] { return frame().size() == QSize(900, 520) && frame().x() < 120; }));
  const QRect before = frame();
  ASSERT_EQ(player.quit(), 0);
  player.start();
  EXPECT_TRUE(player.waitUntil([&] { return frame() == before; }));
}

TEST_F(EndToEnd, PanelsAreReadOverAnyPicture) {
  if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host has no keys";
  screen::movePointer({5, 700});
  for (const QString title : {"white", "black"})
    for (const char* rendering : {"glass", "material"}) {
      const QString shot = title + '-' + rendering;
      SCOPED_TRACE(shot.toStdString());
      player.environment.insert("TROMELO_GLASS", rendering);
      player.start({clip(title + ".mp4")});
      ASSERT_TRUE(player.waitUntilPlaying());
      ASSERT_TRUE(player.waitUntil([&] { return isActive(title); }));
      probe().set("fullscreen", true);
      ASSERT_TRUE(player.waitFor("fullscreen", "yes"));
      probe().set("pause", true);
      ASSERT_TRUE(player.waitFor("status", "Paused"));
      screen::press("i");
      const QRect whole = screen::shot().rect();
      const QRect bar(whole.center().x() - 380, whole.bottom() - 107, 760, 86);
      const QRect info(whole.topRight() + QPoint(-328, 70), QSize(290, 60));
      EXPECT_TRUE(screen::waitForShot("bar-" + shot, [&](const QImage& image) {
        return screen::isRead(image, bar) && screen::isRead(image, info);
      }));
      screen::press("u");
      const QRect tracks(bar.right() - 290, bar.top() - 340, 300, 100);
      EXPECT_TRUE(screen::waitForShot(
          "tracks-" + shot, [&](const QImage& image) { return screen::isRead(image, tracks); }));
      ASSERT_EQ(player.quit(), 0);
    }
}

}  // namespace tromelo::testing
