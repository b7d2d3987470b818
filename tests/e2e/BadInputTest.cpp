#include <QDir>
#include <QFile>

#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

TEST_F(EndToEnd, SaysWhatIsWrongWithAFileAndGoesOn) {
  player.start();
  ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Open a video to begin")));
  EngineProbe engine = probe();
  for (const char* name : {"empty.mkv", "text.mkv", "missing.mkv"}) {
    engine.command({QStringLiteral("loadfile"), clip(name), QStringLiteral("replace")});
    ASSERT_TRUE(player.waitUntil([&] {
      return player.said(QStringLiteral("error")).startsWith(u"Could not play ") &&
             player.said(QStringLiteral("status")) == player.said(QStringLiteral("error"));
    })) << name;
    engine.command({QStringLiteral("loadfile"), clip("short-wide.mp4")});
    ASSERT_TRUE(player.waitUntil([&] { return player.isRevealed(); })) << name;
    engine.command({QStringLiteral("stop")});
    ASSERT_TRUE(player.waitFor(QStringLiteral("window"), QStringLiteral("none")));
  }
  EXPECT_EQ(player.quit(), 0);
}

TEST_F(EndToEnd, PlaysAPathOfStrangeBytes) {
  const QString strange = player.homePath() + QStringLiteral("/new\nline, \"quoted\" %20 'é'.mp4");
  ASSERT_TRUE(QFile::copy(clip("sample.mp4"), strange));
  player.start({strange});
  EXPECT_TRUE(player.waitUntilPlaying());
}

TEST_F(EndToEnd, PlaysSoundWithoutAPictureFromTheLibrary) {
  player.start();
  EngineProbe engine = probe();
  engine.set(QStringLiteral("ao"), QStringLiteral("null"));  // the machine may have no sound
  engine.command({QStringLiteral("loadfile"), clip("audio.m4a")});
  engine.set(QStringLiteral("pause"), false);
  ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Playing")));
  EXPECT_EQ(player.said(QStringLiteral("window")), QStringLiteral("none"));
  if (!screen::isX11()) return;
  ASSERT_TRUE(player.waitUntil([&] { return isActive("^Tromelo$"); }));
  screen::press(QStringLiteral("space"));
  ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Paused")));
  screen::press(QStringLiteral("Escape"));
  ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Ready for a video")));
}

}  // namespace
}  // namespace tromelo::testing
