#include <QDBusConnection>
#include <QDBusMessage>
#include <QUrl>
#include <utility>

#include "EndToEnd.h"
#include "IdleTime.h"
#include "support/BusDaemon.h"
#include "support/FakeScreenSaver.h"

namespace tromelo::testing {

/// What the desktop has to do with the program, on a session bus of the test's own.
struct DesktopEndToEnd : EndToEnd {
  DesktopEndToEnd() { player.environment.insert("DBUS_SESSION_BUS_ADDRESS", bus_.address()); }

  QString playerctl(const QStringList& arguments) {
    QProcess process;
    process.setProcessEnvironment(player.environment);
    process.start("playerctl", QStringList{"--player=tromelo"} + arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
  }
  [[nodiscard]] bool says(const QStringList& question, const QString& answer) {
    return player.waitUntil([&] { return playerctl(question) == answer; });
  }

  BusDaemon bus_;
  QDBusConnection desktop_ = bus_.connect("desktop");
};

TEST_F(DesktopEndToEnd, MediaControlsSteerWhatPlaysAndTheScreenStaysAwakeMeanwhile) {
  const FakeScreenSaver saver(desktop_);
  const auto isAwake = [&](bool awake) {
    return player.waitUntil([&] { return saver.held() == (awake ? 1u : 0u); });
  };
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_TRUE(isAwake(true));
  EXPECT_TRUE(says({"status"}, "Playing"));
  EXPECT_TRUE(says({"metadata", "xesam:title"}, "sample"));
  playerctl({"position", "1"});
  ASSERT_TRUE(player.waitUntil([&] { return probe().get("seeking") == false; }));
  EXPECT_EQ(saver.asked(), 1u) << "a seek let go of it";
  playerctl({"pause"});
  EXPECT_TRUE(says({"status"}, "Paused"));
  EXPECT_TRUE(isAwake(false));
  playerctl({"play"});
  EXPECT_TRUE(isAwake(true));
  playerctl({"position", "9.5"});  // to the end
  EXPECT_TRUE(isAwake(false));
  playerctl({"open", QUrl::fromLocalFile(clip("video-only.mkv")).toString()});
  EXPECT_TRUE(probe().waitFor("filename", "video-only.mkv"));
  EXPECT_TRUE(isAwake(true));
  desktop_.send(QDBusMessage::createMethodCall("org.mpris.MediaPlayer2.tromelo",
                                               "/org/mpris/MediaPlayer2", "org.mpris.MediaPlayer2",
                                               "Quit"));
  EXPECT_EQ(player.waitForEnd(), 0);
  EXPECT_TRUE(isAwake(false));

  player.start({clip("sample.mp4")});
  EXPECT_TRUE(isAwake(true));
  player.kill();
  EXPECT_TRUE(isAwake(false));
}

TEST_F(EndToEnd, AnXServerWithoutASessionBusStaysAwakeWhileAFilmPlays) {
  if (!screen::isX11()) GTEST_SKIP() << "a Wayland host has a protocol of its own";
  using std::chrono::milliseconds;
  screen::run("xset", {"s", "3"});
  IdleTime idle;
  milliseconds last{};
  const auto beginsAnew = [&] {
    const milliseconds before = std::exchange(last, idle.now());
    return last < before;
  };
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_TRUE(player.waitUntil(beginsAnew));
  last = {};
  EXPECT_TRUE(player.waitUntil(beginsAnew)) << "only once";
  probe().set("pause", true);
  EXPECT_TRUE(player.waitUntil([&] { return idle.now() > milliseconds(2500); }));
  screen::run("xset", {"s", "default"});
}

}  // namespace tromelo::testing
