#include <QDir>
#include <QFile>

#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

TEST_F(EndToEnd, QuitsInOrderDuringPlayback) {
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_FALSE(player.runtimeFiles().isEmpty());
  EXPECT_EQ(player.quit(), 0);
  EXPECT_EQ(player.runtimeFiles(), QStringList());
  for (const char* ours : {"QObject", "QSocket", "qrc:", "qt.", "ERROR: "})
    EXPECT_FALSE(player.errors().contains(ours)) << player.errors().toStdString();
  QFile log(player.logPath());
  ASSERT_TRUE(log.open(QIODevice::ReadOnly));
  EXPECT_FALSE(log.readAll().isEmpty());
}

TEST_F(EndToEnd, RunsSideBySideAndClearsUpAfterACrash) {
  RunningPlayer other;
  other.start({clip("sample.mp4")});
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(other.waitUntilPlaying());
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.runtimeFiles().size(), 2);
  QProcess::execute("kill", {"-KILL", QString::number(other.processId())});
  ASSERT_EQ(other.waitForEnd(), -1);
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

}  // namespace
}  // namespace tromelo::testing
