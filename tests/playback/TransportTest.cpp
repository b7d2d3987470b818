#include <cmath>

#include "ModelTest.h"
#include "platform/FilePath.h"
#include "playback/SpeedLadder.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using P = MpvProperty;

QUrl film(const char* name) { return fileUrlFromPath(std::string("/films/") + name); }

struct Transport : ModelTest {
  /// What the engine is asked for by `action`.
  Requests asked(const std::function<void()>& action) {
    takeRequests();
    action();
    return takeRequests();
  }
};

TEST_F(Transport, OpeningShowsWhatIsComing) {
  model().reportPlaybackError("an earlier error");
  model().open(film("A film.mkv"), 90);
  EXPECT_EQ(model().title(), "A film");
  EXPECT_EQ(model().status(), "Opening media");
  EXPECT_EQ(model().errorMessage(), "");
  EXPECT_EQ(player_.take(), (QStringList{"awaiting", "not ready"}));
  EXPECT_EQ(takeRequests(),
            (Requests{{"loadfile", "/films/A film.mkv", "replace", "-1", "start=90.0"},
                      {"set", "pause", "no"}}));
}

TEST_F(Transport, TheFirstOfSeveralFilesPlaysAndTheOthersFollow) {
  EXPECT_EQ(asked([this] { model().open(QList<QUrl>()); }), Requests());
  const Requests expected{{"loadfile", "/films/a,\"1\".mkv", "replace", "-1", ""},
                          {"set", "pause", "no"},
                          {"loadfile", "/films/b\n.mkv", "append", "-1", ""},
                          {"loadfile", "/films/\xff.mkv", "append", "-1", ""}};
  const QList<QUrl> films{film("a,\"1\".mkv"), film("b\n.mkv"), film("\xff.mkv")};
  EXPECT_EQ(asked([&] { model().open(films); }), expected);
  EXPECT_EQ(asked([&] { model().openFiles(films); }), expected);
  EXPECT_EQ(asked([&] { model().enqueue(films); }), expected);
}

TEST_F(Transport, FilesOnAShareArePlayedWhereTheyAreMounted) {
  mountedPath_ = [](const QUrl& address) {
    return address.host() == u"nas" ? "/mnt" + address.path().toStdString() : std::string();
  };
  const QUrl mounted("smb://nas/b");
  const QUrl away("smb://away/c");
  const QString refusal = "Tromelo plays local files only.";
  const QStringList opening{"awaiting", "not ready"};
  for (const auto& [addresses, expected, hasWindow, calls] :
       Table<QList<QUrl>, std::vector<std::string>, bool, QStringList>{
           {{film("a"), mounted}, {"/films/a", "/mnt/b"}, false, opening},
           {{away, mounted}, {"/mnt/b"}, true, opening + QStringList{"toast " + refusal}},
           {{away}, {}, true, {"toast " + refusal}},
           {{away}, {}, false, {"library"}}}) {
    remake();
    player_ = {.calls = {}, .hasWindow = hasWindow};
    model().openFiles(addresses);
    EXPECT_TRUE(takeRequests().empty()) << "the main thread waited";
    ASSERT_TRUE(waitFor([this] { return !player_.calls.isEmpty(); }));
    EXPECT_EQ(player_.take(), calls);
    EXPECT_EQ(model().errorMessage() == refusal, addresses.contains(away));
    std::vector<std::string> paths;
    for (const auto& words : takeRequests())
      if (words.front() == "loadfile") paths.push_back(words[1]);
    EXPECT_EQ(paths, expected);
  }
}

TEST_F(Transport, WhatIsAddedWhileSomethingPlaysWaitsItsTurn) {
  const Requests expected{{"loadfile", "/films/c.mkv", "append", "-1", ""}};
  reportPlaylist({"a.mkv"}, 1);
  EXPECT_EQ(asked([this] { model().enqueue({film("c.mkv")}); }), expected);
  remake();
  load();
  EXPECT_EQ(asked([this] { model().enqueue({film("c.mkv")}); }), expected);
  EXPECT_EQ(asked([this] { model().enqueue({}); }), Requests());
}

TEST_F(Transport, ThePanelsAskAndDoAsTheyAreTold) {
  model().presentOpenPanel();
  EXPECT_EQ(chooser_.asked->prompt, "Play");
  EXPECT_TRUE(chooser_.asked->allowsSeveral);
  EXPECT_TRUE(chooser_.asked->extensions.isEmpty());
  EXPECT_EQ(asked([this] { chooser_.answer({film("a.mkv"), film("b.mkv")}); }),
            asked([this] { model().open({film("a.mkv"), film("b.mkv")}); }));

  model().presentQueuePanel();
  EXPECT_EQ(chooser_.asked->prompt, "Add to Queue");
  EXPECT_TRUE(chooser_.asked->allowsSeveral);
  EXPECT_TRUE(chooser_.asked->extensions.isEmpty());
  load();
  EXPECT_EQ(asked([this] { chooser_.answer({film("c.mkv")}); }),
            (Requests{{"loadfile", "/films/c.mkv", "append", "-1", ""}}));

  model().presentSubtitleFilePanel();
  EXPECT_EQ(chooser_.asked->prompt, "Add Subtitle");
  EXPECT_FALSE(chooser_.asked->allowsSeveral);
  EXPECT_EQ(chooser_.asked->extensions, subtitleExtensions());
  EXPECT_EQ(asked([this] { chooser_.answer({film("a.srt")}); }),
            (Requests{{"sub-add", "/films/a.srt", "select"}}));
}

TEST_F(Transport, PausesAndSeeksWhatIsLoaded) {
  EXPECT_EQ(asked([this] {
              model().togglePlayback();
              model().seekBy(10);
              model().seekTo(10);
            }),
            Requests());
  load();
  report(P::pause, false);
  EXPECT_EQ(asked([this] { model().togglePlayback(); }), (Requests{{"set", "pause", "yes"}}));
  EXPECT_FALSE(model().isPaused());
  report(P::pause, true);
  EXPECT_EQ(asked([this] { model().togglePlayback(); }), (Requests{{"set", "pause", "no"}}));
  EXPECT_EQ(asked([this] { model().seekBy(-10); }), (Requests{{"seek", "-10.0", "relative"}}));
  EXPECT_EQ(asked([this] { model().seekTo(12.25); }),
            (Requests{{"seek", "12.25", "absolute+exact"}}));
  EXPECT_EQ(asked([this] { model().seekTo(-3); }), (Requests{{"seek", "0.0", "absolute+exact"}}));
}

TEST_F(Transport, WhatIsNoNumberIsRefused) {
  load();
  model().beginScrubbing();
  for (const double wrong : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    EXPECT_EQ(asked([&] {
                model().seekBy(wrong);
                model().seekTo(wrong);
                model().scrubTo(wrong);
                model().setVolume(wrong);
                model().setSpeed(wrong);
                model().setSubtitleDelay(wrong);
                model().setAudioDelay(wrong);
              }),
              Requests());
    EXPECT_EQ(asked([&] { model().open(film("a.mkv"), wrong); })[0].back(), "");
  }
  EXPECT_EQ(model().scrubPosition(), 0);
  EXPECT_EQ(model().volume(), 100);
  EXPECT_EQ(model().speed(), 1);
}

TEST_F(Transport, DraggingSeeksCoarselyAtTimesAndExactlyAtTheEnd) {
  load();
  report(P::timePos, 30.0);
  const auto coarse = [](const char* position) {
    return Requests{{"seek", position, "absolute+keyframes"}};
  };
  model().beginScrubbing();
  EXPECT_TRUE(model().isScrubbing());
  EXPECT_EQ(model().scrubPosition(), 30.0);
  EXPECT_EQ(asked([this] { model().scrubTo(40); }), coarse("40.0"));
  clock_.advance(std::chrono::milliseconds(80));
  EXPECT_EQ(asked([this] { model().scrubTo(41); }), Requests());
  EXPECT_EQ(model().scrubPosition(), 41.0);
  clock_.advance(std::chrono::milliseconds(1));
  EXPECT_EQ(asked([this] { model().scrubTo(-1); }), coarse("0.0"));
  EXPECT_EQ(asked([this] { model().scrubTo(42.5); }), Requests());
  EXPECT_EQ(model().elapsed(), 30.0);
  EXPECT_EQ(asked([this] { model().endScrubbing(); }),
            (Requests{{"seek", "42.5", "absolute+exact"}}));
  EXPECT_EQ(model().elapsed(), 42.5);
  EXPECT_FALSE(model().isScrubbing());

  model().beginScrubbing();
  load();
  EXPECT_FALSE(model().isScrubbing()) << "that was in another file";
  clock_.advance(std::chrono::seconds(1));
  EXPECT_EQ(asked([this] { model().scrubTo(50); }), Requests());
  EXPECT_EQ(asked([this] { model().endScrubbing(); }), Requests());
}

TEST_F(Transport, VolumeIsClampedAndEndsMute) {
  report(P::mute, true);
  EXPECT_EQ(asked([this] { model().setVolume(-5); }), (Requests{{"set", "volume", "0.0"}}));
  EXPECT_TRUE(model().isMuted());
  EXPECT_EQ(asked([this] { model().setVolume(150); }),
            (Requests{{"set", "volume", "100.0"}, {"set", "mute", "no"}}));
  EXPECT_FALSE(model().isMuted());
  EXPECT_EQ(model().volume(), 100.0);
  EXPECT_EQ(asked([this] { model().setVolume(45); }), (Requests{{"set", "volume", "45.0"}}));
}

TEST_F(Transport, SpeedLoopAndDelaysShowAtOnce) {
  EXPECT_EQ(asked([this] { EXPECT_EQ(model().stepSpeed(1), 1.25); }),
            (Requests{{"set", "speed", "1.25"}}));
  EXPECT_EQ(model().speed(), 1.25);
  EXPECT_EQ(asked([this] { model().toggleLoop(); }), (Requests{{"set", "loop-file", "inf"}}));
  EXPECT_TRUE(model().isLooping());
  EXPECT_EQ(asked([this] { model().toggleLoop(); }), (Requests{{"set", "loop-file", "no"}}));
  EXPECT_EQ(asked([this] { model().setSubtitleDelay(0.12345); }),
            (Requests{{"set", "sub-delay", "0.123"}}));
  EXPECT_EQ(model().subtitleDelay(), 0.123);
  EXPECT_EQ(asked([this] { model().setAudioDelay(-0.0625); }),
            (Requests{{"set", "audio-delay", "-0.063"}}));
  EXPECT_EQ(model().audioDelay(), -0.063);
}

TEST_F(Transport, ALoopThatPlaysBeginsAtItsStart) {
  load();
  report(P::timePos, 5.0);
  model().markLoop();
  report(P::timePos, 9.05);
  report(P::pause, true);
  Requests expected{{"set", "file-local-options/ab-loop-a", "5.0"},
                    {"set", "file-local-options/ab-loop-b", "9.05"}};
  EXPECT_EQ(asked([this] { model().markLoop(); }), expected);
  model().markLoop();
  report(P::timePos, 5.0);
  model().markLoop();
  report(P::timePos, 9.05);
  report(P::pause, false);
  expected.push_back({"seek", "5.0", "absolute+exact"});
  EXPECT_EQ(asked([this] { model().markLoop(); }), expected);
}

TEST(AbLoopTest, TakesAMarkAfterTheOtherAndNone) {
  for (const auto& [before, now, after] : Table<AbLoop, double, AbLoop>{
           {{}, 5, {5, {}}},
           {{5, {}}, 9, {5, 9}},
           {{5, {}}, 2, {2, 5}},
           {{5, {}}, 5, {5, 5.1}},
           {{5, {}}, 4.99, {4.99, 5.09}},
           {{5, 9}, 7, {}},
       }) {
    const AbLoop loop = before.marked(now);
    EXPECT_EQ(loop.start, after.start) << now;
    EXPECT_EQ(loop.end.has_value(), after.end.has_value()) << now;
    EXPECT_DOUBLE_EQ(loop.end.value_or(0), after.end.value_or(0)) << now;
  }
  for (const auto& [text, mark] : Table<const char*, std::optional<double>>{
           {"no", {}}, {"62.500000", 62.5}, {"-1", -1}, {"nan", {}}, {"inf", {}}, {"", {}}})
    EXPECT_EQ(loopMark(text), mark) << text;
}

TEST(SpeedLadder, ClimbsByRungsAndStaysOn) {
  const Table<double, int, double> rows{
      {1.0, 1, 1.25},  {1.0, -1, 0.75}, {1.1, 1, 1.5},   {1.0005, 1, 1.25},
      {2.0, 1, 3.0},   {3.0, 1, 3.0},   {3.0, -1, 2.0},  {0.25, -1, 0.25},
      {0.1, -1, 0.25}, {8.0, -1, 2.0},  {1.0, 100, 3.0}, {1.0, -2147483647 - 1, 0.25}};
  for (const auto& [speed, steps, expected] : rows) {
    EXPECT_EQ(steppedSpeed(speed, steps), expected) << speed << " " << steps;
  }
}

}  // namespace tromelo::testing
