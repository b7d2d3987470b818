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
  EXPECT_EQ(engine.get("sub-font-size").toDouble(), 60);
  EXPECT_EQ(engine.get("sub-color").toString(), "#FFFF0000");
  EXPECT_EQ(engine.get("sub-border-style").toString(), "background-box");
  EXPECT_EQ(engine.get("sub-font").toString(), "Helvetica Neue");
}

}  // namespace
}  // namespace tromelo::testing
