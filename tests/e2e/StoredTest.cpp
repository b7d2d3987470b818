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
  Stored() { QDir().mkpath(folder()); }

  QString folder() const { return player.homePath() + QStringLiteral("/config/Tromelo"); }
  QString file() const { return folder() + QStringLiteral("/defaults.json"); }
  void write(const QByteArray& text, const QString& place = {}) const {
    QFile out(place.isEmpty() ? file() : place);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(text);
  }
  QByteArray read() const {
    QFile in(file());
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
  }
  QStringList recents() const {
    QStringList paths;
    const auto stored = QJsonDocument::fromJson(read())[QStringLiteral("recentFiles")].toArray();
    for (const QJsonValue& path : stored) paths.append(path.toString());
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
  const QString former = player.homePath() + QStringLiteral("/config/Orvo");
  QDir().mkpath(former);
  write(text, former + QStringLiteral("/defaults.json"));
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

TEST_F(Stored, ADamagedFileIsSetAside) {
  write(R"({"playerSettings": {"subtitleSize": 6)");
  playOnce(clip("sample.mp4"));
  EXPECT_EQ(QDir(folder()).entryList({QStringLiteral("defaults.json.damaged-*")}).size(), 1);
  EXPECT_EQ(recents(), QStringList{clip("sample.mp4")});
}

TEST_F(Stored, SaysOnceThatNothingCanBeSavedAndPlaysOn) {
  QDir().mkpath(file());  // a directory in the file's place
  player.start({clip("sample.mp4"), QStringLiteral("--start=5")});
  ASSERT_TRUE(player.waitUntilPlaying());
  probe().command({QStringLiteral("loadfile"), clip("short-wide.mp4")});
  ASSERT_TRUE(player.waitFor(QStringLiteral("title"), QStringLiteral("short-wide")));
  EXPECT_EQ(player.quit(), 0);
  EXPECT_EQ(player.errors().count("can't be saved"), 1) << player.errors().toStdString();
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
