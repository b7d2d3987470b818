#include <QCoreApplication>
#include <cmath>
#include <limits>

#include "Desktop.h"
#include "mpris/MprisService.h"
#include "mpris/MprisValues.h"
#include "platform/FilePath.h"
#include "playback/ModelTest.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using P = MpvProperty;

const QString kRootInterface = "org.mpris.MediaPlayer2";
const QString kPlayerInterface = "org.mpris.MediaPlayer2.Player";
const QString kName = "org.mpris.MediaPlayer2.tromelo";

struct Mpris : ModelTest {
  /// Two files of which the first plays, paused, at 10 of 60 seconds.
  void loadQueue() {
    report(event::StartFile{});
    report(P::mediaTitle, std::string("A film"));
    report(P::path, std::string("/films/a film.mkv"));
    report(event::FileLoaded{});
    reportQueue({7, 9}, 7);
    report(P::duration, 60.0);
    report(P::timePos, 10.0);
    takeRequests();
  }
  void reportQueue(const std::vector<std::int64_t>& entries, std::int64_t current) {
    MpvList list;
    for (const std::int64_t entry : entries)
      list.push_back(MpvNode{MpvMap{{"filename", MpvNode{"/films/" + std::to_string(entry)}},
                                    {"id", MpvNode{entry}},
                                    {"current", MpvNode{entry == current}}}});
    report(P::playlist, MpvNode{list});
  }
};

TEST_F(Mpris, TellsOfTheStateInTheDesktopsWords) {
  EXPECT_EQ(playbackStatus(model()), "Stopped");
  EXPECT_EQ(trackMetadata(model()), QVariantMap());
  loadQueue();
  const auto track = [](const char* number) {
    return QDBusObjectPath(QString("/org/tromelo/Tromelo/track/") + number);
  };
  EXPECT_EQ(trackMetadata(model()), (QVariantMap{{"mpris:trackid", QVariant::fromValue(track("7"))},
                                                 {"mpris:length", qlonglong(60'000'000)},
                                                 {"xesam:title", "A film"},
                                                 {"xesam:url", "file:///films/a%20film.mkv"}}));
  EXPECT_EQ(playbackStatus(model()), "Paused");
  report(P::pause, false);
  EXPECT_EQ(playbackStatus(model()), "Playing");
  EXPECT_EQ(loopStatus(model()), "None");
  model().toggleLoop();
  EXPECT_EQ(loopStatus(model()), "Track");

  for (const auto& [name, track, microseconds, seconds] :
       Table<const char*, QDBusObjectPath, qint64, std::optional<double>>{
           {"start", track("7"), 0, 0},
           {"end", track("7"), 60'000'000, 60},
           {"within", track("7"), 1'500'000, 1.5},
           {"before", track("7"), -1, {}},
           {"behind", track("7"), 60'000'001, {}},
           {"another file", track("9"), 1'500'000, {}}})
    EXPECT_EQ(wantedPosition(model(), track, microseconds), seconds) << name;

  reportQueue({9, 7}, 7);
  EXPECT_EQ(trackId(model()), track("7")) << "moved in the queue";
  report(P::duration, MpvValue());
  EXPECT_FALSE(canSeek(model()));
  EXPECT_FALSE(trackMetadata(model()).contains("mpris:length"));
}

struct MprisOnABus : Mpris {
  MprisOnABus() {
    EXPECT_TRUE(waitFor([this] { return desktop_.owns(kName); }));
  }

  Requests asked(const QString& method, const QVariantList& arguments = {}) {
    takeRequests();
    answer_ = desktop_.call(kPlayerInterface, method, arguments);
    return takeRequests();
  }
  Requests askedBySetting(const QString& property, const QVariant& value) {
    takeRequests();
    answer_ = desktop_.set(property, value);
    return takeRequests();
  }
  QStringList takeShell() { return std::exchange(shell_, {}); }
  std::unique_ptr<MprisService> serve(const QString& connection) {
    return std::make_unique<MprisService>(
        desktop_.connection(connection), model(),
        MprisShell{.raise = [this] { shell_ << "raise"; },
                   .quit = [this] { shell_ << "quit"; },
                   .stop = [this] { shell_ << "stop"; },
                   .toggleFullscreen = [this] { shell_ << "fullscreen"; }});
  }

  Desktop desktop_;
  QStringList shell_;
  QDBusMessage answer_;
  std::unique_ptr<MprisService> service_ = serve("player");
};

TEST_F(MprisOnABus, DoesWhatTheViewsDo) {
  for (const char* method : {"Next", "Previous", "Pause", "PlayPause", "Play", "Stop"})
    EXPECT_EQ(asked(method), Requests()) << method << " with nothing loaded";
  EXPECT_EQ(takeShell(), QStringList());
  loadQueue();
  const QVariant here = QVariant::fromValue(trackId(model()));
  const auto seconds = [](int number) { return QVariant(qlonglong(number) * 1'000'000); };
  for (const auto& [method, arguments, sent] : Table<const char*, QVariantList, Requests>{
           {"Play", {}, {{"set", "pause", "no"}}},
           {"Pause", {}, {{"set", "pause", "yes"}}},
           {"PlayPause", {}, {{"set", "pause", "no"}}},
           {"Next", {}, {{"playlist-next"}}},
           {"Previous", {}, {}},
           {"Seek", {seconds(-4)}, {{"seek", "-4.0", "relative"}}},
           {"Seek", {seconds(51)}, {{"playlist-next"}}},
           {"Seek", {std::numeric_limits<qlonglong>::max()}, {{"playlist-next"}}},
           {"SetPosition", {here, seconds(30)}, {{"seek", "30.0", "absolute+exact"}}},
           {"SetPosition", {here, seconds(61)}, {}},
           {"OpenUri", {"https://example.org/a.mkv"}, {}},
       })
    EXPECT_EQ(asked(method, arguments), sent) << method;
  EXPECT_EQ(answer_.errorName(), "org.freedesktop.DBus.Error.NotSupported");
  asked("Stop");
  desktop_.call(kRootInterface, "Raise", {});
  desktop_.call(kRootInterface, "Quit", {});
  EXPECT_EQ(takeShell(), QStringList({"stop", "raise", "quit"}));
  EXPECT_EQ(asked("OpenUri", {"file:///films/b%20b.mkv"}).front(),
            (std::vector<std::string>{"loadfile", "/films/b b.mkv", "replace", "-1", ""}));

  for (const auto& [property, value, sent] : Table<const char*, QVariant, Requests>{
           {"Volume", 0.25, {{"set", "volume", "25.0"}}},
           {"Volume", 3.0, {{"set", "volume", "100.0"}}},
           {"Rate", 1.5, {{"set", "speed", "1.5"}}},
           {"Rate", 50.0, {{"set", "speed", "3.0"}}},
           {"Rate", 0.0, {{"set", "pause", "yes"}}},
           {"LoopStatus", "Track", {{"set", "loop-file", "inf"}}},
           {"LoopStatus", "Track", {}},
           {"LoopStatus",
            "Playlist",
            {{"set", "loop-file", "no"}, {"set", "loop-playlist", "inf"}}},
           {"LoopStatus", "None", {{"set", "loop-playlist", "no"}}},
           {"LoopStatus", "All", {}},
       })
    EXPECT_EQ(askedBySetting(property, value), sent) << property;
}

TEST_F(MprisOnABus, RefusesWhatIsNoValueAndTellsAll) {
  loadQueue();
  for (const auto& [property, value, error] :
       Table<const char*, QVariant, const char*>{{"Volume", std::nan(""), "InvalidArgs"},
                                                 {"Volume", "nan", "InvalidArgs"},
                                                 {"Volume", QStringList("1"), "InvalidArgs"},
                                                 {"Rate", HUGE_VAL, "InvalidArgs"},
                                                 {"Rate", -HUGE_VAL, "InvalidArgs"},
                                                 {"Position", qlonglong(1), "PropertyReadOnly"},
                                                 {"Colour", 1, "UnknownProperty"}}) {
    EXPECT_EQ(askedBySetting(property, value), Requests()) << property;
    EXPECT_EQ(answer_.errorName(), QLatin1String("org.freedesktop.DBus.Error.") + error)
        << property;
  }
  const QVariantMap all = desktop_.properties();
  for (const char* name : {"Metadata", "CanSeek", "PlaybackStatus"})
    EXPECT_TRUE(all.contains(name));
  EXPECT_EQ(all["Volume"], QVariant(1.0));
  EXPECT_EQ(all["Position"], QVariant(qlonglong(10'000'000)));
}

TEST_F(MprisOnABus, SignalsWhatHasChangedOnceAndJumpsOnly) {
  loadQueue();
  ASSERT_TRUE(waitFor([this] { return !desktop_.changes.isEmpty(); }));
  ASSERT_EQ(desktop_.changes.size(), 1);
  QStringList names = desktop_.changes.takeFirst().keys();
  EXPECT_EQ(names, QStringList({"CanGoNext", "CanPause", "CanPlay", "CanSeek", "Metadata",
                                "PlaybackStatus"}));

  report(event::PlaybackRestart{});  // the file starts where it was asked to
  report(P::timePos, 0.0);
  report(event::PlaybackRestart{});  // a seek to 30 that ended at 28
  report(P::timePos, 28.0);
  for (const double position : {28.3, 29.0, 32.0}) report(P::timePos, position);
  report(P::pause, false);
  ASSERT_TRUE(waitFor([this] { return !desktop_.changes.isEmpty(); }));
  EXPECT_EQ(desktop_.changes, QList<QVariantMap>({{{"PlaybackStatus", "Playing"}}}));
  EXPECT_EQ(desktop_.seeks, QList<qlonglong>({0, 28'000'000}));
  EXPECT_EQ(desktop_.properties()["Position"], QVariant(qlonglong(32'000'000)));
}

TEST_F(MprisOnABus, ShowsTheQueueAndChangesIt) {
  loadQueue();
  const QString tracks = "org.mpris.MediaPlayer2.TrackList";
  const auto path = [](int entry) { return QVariant::fromValue(trackId(qint64(entry))); };
  const auto shown = [&] {
    return qdbus_cast<QList<QDBusObjectPath>>(desktop_.properties(tracks)["Tracks"]);
  };
  EXPECT_EQ(shown(), QList<QDBusObjectPath>({trackId(7), trackId(9)}));
  const auto asks = [&](const QString& method, const QVariantList& arguments) {
    takeRequests();
    answer_ = desktop_.call(tracks, method, arguments);
    return takeRequests();
  };
  const QVariant none = QVariant::fromValue(noTrack());
  const auto load = [](const char* place) {
    return std::vector<std::string>{"loadfile", "/films/b.mkv", "insert-at", place, ""};
  };
  for (const auto& [method, arguments, sent] : Table<const char*, QVariantList, Requests>{
           {"GoTo", {path(9)}, {{"playlist-play-index", "1"}}},
           {"GoTo", {path(8)}, {}},
           {"RemoveTrack", {path(9)}, {{"playlist-remove", "1"}}},
           {"RemoveTrack", {path(7)}, {}},
           {"AddTrack", {"file:///films/b.mkv", path(7), false}, {load("1")}},
           {"AddTrack",
            {"file:///films/b.mkv", none, true},
            {load("0"), {"playlist-play-index", "0"}}},
           {"AddTrack", {"https://example.org/b.mkv", none, true}, {}},
       })
    EXPECT_EQ(asks(method, arguments), sent) << method;
  EXPECT_EQ(answer_.errorName(), "org.freedesktop.DBus.Error.NotSupported");
  asks("GetTracksMetadata",
       {QVariant::fromValue(QList<QDBusObjectPath>{trackId(9), trackId(8), trackId(7)})});
  const auto told = qdbus_cast<QList<QVariantMap>>(answer_.arguments().value(0));
  ASSERT_EQ(told.size(), 2);
  EXPECT_EQ(told[0]["xesam:url"], "file:///films/9");
  EXPECT_EQ(told[1]["xesam:title"], "A film");

  ASSERT_TRUE(waitFor([this] { return !desktop_.trackSignals.isEmpty(); }));
  desktop_.trackSignals.clear();
  for (const auto& [entries, signal] : Table<std::vector<std::int64_t>, const char*>{
           {{7, 11, 9}, "TrackAdded"}, {{7, 9}, "TrackRemoved"}, {{9, 7}, "TrackListReplaced"}}) {
    reportQueue(entries, 7);
    EXPECT_TRUE(waitFor([&] { return !desktop_.trackSignals.isEmpty(); })) << signal;
    EXPECT_EQ(std::exchange(desktop_.trackSignals, {}), QStringList{signal});
  }
}

TEST_F(MprisOnABus, ASecondPlayerHasANameOfItsOwn) {
  const QString instance = kName + QString(".instance%1").arg(QCoreApplication::applicationPid());
  auto second = serve("second");
  EXPECT_TRUE(waitFor([&] { return desktop_.owns(instance); }));
  EXPECT_TRUE(desktop_.owns(kName));
  second.reset();
  service_.reset();
  EXPECT_TRUE(waitFor([&] { return !desktop_.owns(instance) && !desktop_.owns(kName); }));
}

}  // namespace tromelo::testing
