#include <QDBusMessage>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <set>

#include "RandomUse.h"
#include "ReliabilityTest.h"
#include "films/FilmDatabase.h"
#include "platform/FilePath.h"
#include "support/BusDaemon.h"
#include "support/FakeScreenSaver.h"
#include "support/Files.h"

namespace tromelo::testing {
namespace {

constexpr std::array kPlayed{"sample.mp4", "short-wide.mp4", "short-tall.mp4", "tracks.mkv",
                             "hdr10.mkv",  "sample.mkv",     "covered.m4a",    "video-only.mkv"};

/// Settings are on disk by then, even where other processes have the processors.
constexpr std::chrono::seconds kWritten(3);
constexpr int kLongestLife = 4000;  // milliseconds

class KilledTest : public ReliabilityTest {
 protected:
  void SetUp() override {
    ReliabilityTest::SetUp();
    for (const char* name : {"TMPDIR", "XDG_CACHE_HOME", "XDG_PICTURES_DIR"}) {
      const QString path = player.homePath() + '/' + name;
      QDir().mkpath(path);
      player.environment.insert(name, path);
    }
    player.environment.insert("DBUS_SESSION_BUS_ADDRESS", bus_.address());
    others_ = player.runtimeFiles();
  }

  int below(int limit) { return int(random_() % unsigned(limit)); }

  void call(const char* service, const char* path, const char* interface, const char* method,
            const QVariantList& arguments = {}) {
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    desktop_.send(message);
  }
  void control(const char* method, const QVariantList& arguments = {}) {
    call("org.mpris.MediaPlayer2.tromelo", "/org/mpris/MediaPlayer2",
         "org.mpris.MediaPlayer2.Player", method, arguments);
  }

  /// Something that a person does, without waiting for what comes of it.
  void act() {
    static constexpr std::array kSettingsKeys{"ctrl+comma", "Tab", "space", "Down", "Left"};
    const QString film = clip(kPlayed[std::size_t(below(kPlayed.size()))]);
    switch (below(6)) {
      case 0:
        return call("org.tromelo.Tromelo", "/org/tromelo/Tromelo", "org.freedesktop.Application",
                    "Open", {QStringList{QUrl::fromLocalFile(film).toString()}, QVariantMap()});
      case 1:
        return control("Seek", {qlonglong(below(4'000'000))});
      case 2:
        return control("PlayPause");
      case 3:
        return screen::press(kSettingsKeys[std::size_t(below(kSettingsKeys.size()))]);
      default:
        return screen::press(kPlayerKeys[std::size_t(below(kPlayerKeys.size()))]);
    }
  }

  void live() {
    const QDeadlineTimer end(below(kLongestLife));
    std::map<QString, QDeadlineTimer> played;
    while (!end.hasExpired()) {
      act();
      (void)waitFor([&] { return end.hasExpired(); }, std::chrono::milliseconds(below(200)));
      if (player.said("status") == "Playing")
        played.try_emplace(player.said("title"), QDeadlineTimer(kWritten));
    }
    player.kill();
    for (const auto& [title, isWritten] : played)
      if (isWritten.hasExpired()) known_.insert(title);
  }

  /// Of processes that have our home: the program's own children.
  QStringList processes() const {
    QStringList found;
    for (const QString& id : QDir("/proc").entryList(QDir::Dirs))
      if (readFile("/proc/" + id + "/environ").contains(player.homePath().toUtf8())) found << id;
    return found;
  }

  QStringList files(const QString& folder) const {
    QStringList found;
    QDirIterator all(player.homePath() + '/' + folder, QDir::Files | QDir::Hidden | QDir::System,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) found << all.next().sliced(player.homePath().size() + 1);
    return found;
  }

  void expectWhole() {
    const QByteArray text = readFile(player.homePath() + "/config/Tromelo/defaults.json");
    QJsonParseError error{};
    const QJsonObject settings = QJsonDocument::fromJson(text, &error).object();
    EXPECT_TRUE(text.isEmpty() || !settings.isEmpty()) << error.errorString().toStdString();
    QStringList recents;
    for (const auto& file : settings["recentFiles"].toArray())
      recents << lastPathComponentWithoutExtension(QUrl::fromLocalFile(file.toString()));
    for (const QString& title : known_)
      EXPECT_TRUE(recents.contains(title))
          << title.toStdString() << " isn't among the recent files";
    FilmDatabase films(player.homePath() + "/data/Tromelo/films.sqlite");
    const auto checked = films.run("PRAGMA integrity_check");
    ASSERT_TRUE(checked) << films.takeFault().toStdString();
    EXPECT_EQ(checked->first().first().toString(), "ok");
    EXPECT_FALSE((files("data") + files("config")).join(' ').contains("damaged"));
  }

  void expectNothingLeft() {
    EXPECT_TRUE(waitFor([this] { return processes().isEmpty(); }, std::chrono::seconds(10)))
        << "processes " << processes().join(' ').toStdString();
    EXPECT_TRUE(waitFor([this] { return saver_.held() == 0; }, std::chrono::seconds(10)));
    ASSERT_TRUE(starts());
    ASSERT_TRUE(player.waitFor("status", "Open a video to begin"));
    EXPECT_EQ(player.runtimeFiles().size(), others_.size() + 1);
    EXPECT_EQ(player.said("error"), "");
    EXPECT_EQ(player.quit(), 0);
    EXPECT_EQ(files("TMPDIR"), QStringList());
    // What settings are written through, before it takes the file's place.
    for (const QString& file : files("config"))
      EXPECT_TRUE(file.endsWith("/defaults.json") || file.endsWith(".lock")) << file.toStdString();
  }

  BusDaemon bus_;
  QDBusConnection desktop_ = bus_.connect("desktop");
  FakeScreenSaver saver_{bus_.connect("saver")};
  std::mt19937 random_{seed};
  QStringList others_;
  std::set<QString> known_;  // titles of films that must be among the recent files
};

TEST_F(KilledTest, LosesNothingAndLeavesNothingBehind) {
  const unsigned times = number("TROMELO_TIMES", 200);
  unsigned playing = 0;
  unsigned i = 0;
  for (; i < times && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    player.start(below(3) ? QStringList{clip(kPlayed[std::size_t(below(kPlayed.size()))])}
                          : QStringList());
    live();
    playing += player.isRevealed();
    expectWhole();
    expectNothingLeft();
  }
  std::cout << "Killed " << i << " times, " << playing << " of them with a film on the screen\n";
  EXPECT_GT(saver_.asked(), 0U);
}

}  // namespace
}  // namespace tromelo::testing
