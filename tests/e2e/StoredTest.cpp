#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

class Stored : public EndToEnd {
 protected:
  QStringList recents() const {
    QStringList paths;
    QFile file(player.homePath() + "/config/Tromelo/defaults.json");
    if (!file.open(QIODevice::ReadOnly)) return paths;
    for (const QJsonValue& path : QJsonDocument::fromJson(file.readAll())["recentFiles"].toArray())
      paths.append(path.toString());
    return paths;
  }
  /// Plays a file until the program knows it, then quits.
  void playOnce(const QString& path) {
    player.start({path});
    ASSERT_TRUE(player.waitUntilPlaying());
    ASSERT_EQ(player.quit(), 0);
  }
};

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

TEST_F(Stored, RecentFilesSurviveARestart) {
  const QString gone = player.homePath() + QStringLiteral("/gone.mp4");
  ASSERT_TRUE(QFile::copy(clip("sample.mp4"), gone));
  playOnce(gone);
  playOnce(clip("sample.mp4"));
  EXPECT_EQ(recents(), (QStringList{clip("sample.mp4"), gone}));
  ASSERT_TRUE(QFile::remove(gone));
  playOnce(clip("sample.mkv"));
  EXPECT_EQ(recents(), (QStringList{clip("sample.mkv"), clip("sample.mp4")}));
}

}  // namespace
}  // namespace tromelo::testing
