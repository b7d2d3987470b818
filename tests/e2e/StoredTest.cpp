#include <QDir>
#include <QFile>

#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

using Stored = EndToEnd;

TEST_F(Stored, SettingsReachTheEngineAndWrongOnesFallBackAlone) {
  const QByteArray text = R"({"playerSettings": {"subtitleSize": 60, "subtitleBold": true,
    "subtitleColor": [1, 0, 0, 1], "subtitleBorderStyle": "box", "subtitleFont": 7}})";
  // The former edition's, which are taken over.
  QDir().mkpath(player.homePath() + "/config/Orvo");
  QFile former(player.homePath() + "/config/Orvo/defaults.json");
  ASSERT_TRUE(former.open(QIODevice::WriteOnly));
  former.write(text);
  former.close();
  player.start({clip("tracks.mkv")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  EXPECT_EQ(engine.get(QStringLiteral("sub-font-size")).toDouble(), 60);
  EXPECT_TRUE(engine.get(QStringLiteral("sub-bold")).toBool());
  EXPECT_EQ(engine.get(QStringLiteral("sub-color")).toString(), QStringLiteral("#FFFF0000"));
  EXPECT_EQ(engine.get(QStringLiteral("sub-border-style")).toString(),
            QStringLiteral("background-box"));
  EXPECT_EQ(engine.get(QStringLiteral("sub-font")).toString(), QStringLiteral("Helvetica Neue"));
}

}  // namespace
}  // namespace tromelo::testing
