#include <QDBusConnection>
#include <QDBusMessage>
#include <QUrl>

#include "EndToEnd.h"
#include "support/BusDaemon.h"
#include "support/FakeScreenSaver.h"

namespace tromelo::testing {
namespace {

/// What the desktop has to do with the program, on a session bus of the test's own.
class DesktopEndToEnd : public EndToEnd {
 protected:
  DesktopEndToEnd() {
    player.environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus_.address());
  }
  ~DesktopEndToEnd() override { QDBusConnection::disconnectFromBus(QStringLiteral("desktop")); }

  QString playerctl(const QStringList& arguments) {
    QProcess process;
    process.setProcessEnvironment(player.environment);
    process.start(QStringLiteral("playerctl"),
                  QStringList{QStringLiteral("--player=tromelo")} + arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
  }
  [[nodiscard]] bool says(const QStringList& question, const QString& answer) {
    return player.waitUntil([&] { return playerctl(question) == answer; });
  }

  BusDaemon bus_;
  QDBusConnection desktop_ =
      QDBusConnection::connectToBus(bus_.address(), QStringLiteral("desktop"));
};

TEST_F(DesktopEndToEnd, MediaControlsShowAndSteerWhatPlays) {
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_TRUE(says({"status"}, "Playing"));
  EXPECT_TRUE(says({"metadata", "xesam:title"}, "sample"));
  EXPECT_EQ(playerctl({"metadata", "mpris:length"}).toLongLong() / 1'000'000, 10);
  EXPECT_EQ(playerctl({"metadata", "xesam:url"}),
            QUrl::fromLocalFile(clip("sample.mp4")).toString(QUrl::FullyEncoded));

  playerctl({"play-pause"});
  EXPECT_TRUE(player.waitFor("status", "Paused"));
  EXPECT_TRUE(says({"status"}, "Paused"));
  playerctl({"position", "5"});
  EXPECT_TRUE(says({"position"}, "5.000000"));
  playerctl({"volume", "0.25"});
  EXPECT_TRUE(probe().waitFor("volume", 25));

  probe().command({"loadfile", clip("sample.mkv"), "append"});
  probe().command({"set", "force-media-title", "second"});
  EXPECT_TRUE(says({"metadata", "xesam:title"}, "second"));
  playerctl({"next"});
  EXPECT_TRUE(probe().waitFor("filename", "sample.mkv"));
  playerctl({"open", QUrl::fromLocalFile(clip("video-only.mkv")).toString()});
  EXPECT_TRUE(probe().waitFor("filename", "video-only.mkv"));

  desktop_.send(QDBusMessage::createMethodCall(
      QStringLiteral("org.mpris.MediaPlayer2.tromelo"), QStringLiteral("/org/mpris/MediaPlayer2"),
      QStringLiteral("org.mpris.MediaPlayer2"), QStringLiteral("Quit")));
  EXPECT_EQ(player.waitForEnd(), 0);
}

TEST_F(DesktopEndToEnd, TheScreenStaysAwakeWhileAVideoPlays) {
  const FakeScreenSaver saver(desktop_);
  const auto isAwake = [&](bool awake) {
    return player.waitUntil([&] { return saver.held() == (awake ? 1u : 0u); });
  };
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_TRUE(isAwake(true));
  probe().command({"seek", 1, "absolute"});
  ASSERT_TRUE(player.waitUntil([&] { return probe().get("seeking") == false; }));
  EXPECT_EQ(saver.asked(), 1u) << "a seek let go of it";
  playerctl({"pause"});
  EXPECT_TRUE(isAwake(false));
  playerctl({"play"});
  EXPECT_TRUE(isAwake(true));
  playerctl({"position", "9.5"});  // to the end
  EXPECT_TRUE(isAwake(false));
  playerctl({"position", "1"});
  playerctl({"play"});
  EXPECT_TRUE(isAwake(true));
  EXPECT_EQ(player.quit(), 0);
  EXPECT_TRUE(isAwake(false));

  player.start({clip("sample.mp4")});
  EXPECT_TRUE(isAwake(true));
  QProcess::execute(QStringLiteral("kill"),
                    {QStringLiteral("-KILL"), QString::number(player.processId())});
  EXPECT_TRUE(isAwake(false));
}

}  // namespace
}  // namespace tromelo::testing
