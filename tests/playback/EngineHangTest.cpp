#include "ModelTest.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using P = MpvProperty;
using namespace std::chrono_literals;

struct EngineHang : ModelTest {
  EngineHang() {
    plays();
    takeRequests();
  }

  void plays() {
    load(600);
    reportPlaylist({"a.mkv", "b.mkv", "c.mkv"}, 1);
    report(P::path, "/films/b.mkv");
    report(P::mediaTitle, "b");
    report(P::width, std::int64_t(640));
    report(P::height, std::int64_t(360));
    report(P::pause, false);
    report(event::PlaybackRestart{});
    report(P::timePos, 12.5);
  }
  /// It says what it is asked, or nothing.
  void wait(std::chrono::seconds seconds, bool answers = false) {
    for (auto second = 0s; second < seconds; ++second) {
      clock_.advance(1s);
      if (!answers) continue;
      for (const auto& words : takeRequests())
        if (words.front() == "get")
          mpv_.queue(MPV_EVENT_GET_PROPERTY_REPLY, nullptr, std::stoul(words[2]));
      model().engine().drainEvents();
    }
  }
};

TEST_F(EngineHang, AFilmGoesOnInANewEngineInItsPlaceOfTheQueue) {
  model().setVolume(40);
  takeRequests();
  wait(10s);
  EXPECT_EQ(mpv_.created, 2);
  EXPECT_TRUE(waitFor([&] { return mpv_.destroyed == 1; }));
  EXPECT_TRUE(player_.calls.contains("replace"));
  Requests loads;
  for (auto& words : takeRequests())
    if (words.front() == "loadfile") loads.push_back(words);
  EXPECT_EQ(loads, (Requests{{"loadfile", "/films/b.mkv", "replace", "-1", "start=12.5"},
                             {"loadfile", "/films/a.mkv", "insert-at", "0", ""},
                             {"loadfile", "/films/c.mkv", "append", "-1", ""}}));

  plays();
  wait(10s);  // at the same film once more
  EXPECT_EQ(mpv_.created, 3);
  EXPECT_TRUE(player_.calls.contains("library"));
  EXPECT_TRUE(model().errorMessage().startsWith("Could not play b: the graphics card stopped"));
  EXPECT_TRUE(waitFor([&] { return mpv_.destroyed == 2; }));
}

TEST_F(EngineHang, AFilmWhoseDeviceIsLostGoesOnAsItWas) {
  report(P::pause, true);
  takeRequests();
  report(event::VideoDeviceLost{});
  EXPECT_EQ(mpv_.created, 2);
  const auto sent = takeRequests();
  EXPECT_NE(std::ranges::find(sent, std::vector<std::string>{"set", "pause", "yes"}), sent.end());
  plays();
  report(P::pause, true);
  clock_.advance(2min);
  report(event::VideoDeviceLost{});  // by no means soon
  EXPECT_FALSE(player_.calls.contains("library"));
  EXPECT_TRUE(waitFor([&] { return mpv_.destroyed == 2; }));
}

TEST_F(EngineHang, AFilmThatHangsWhileItIsOpenedIsOpenedAgainAndThenGivenUp) {
  model().open(QUrl::fromLocalFile("/films/d.mkv"));
  wait(60s, true);  // it lies on a slow share
  EXPECT_EQ(mpv_.created, 1);
  wait(20s);
  EXPECT_EQ(mpv_.created, 2);
  EXPECT_TRUE(std::ranges::any_of(takeRequests(), [](const auto& words) {
    return words.front() == "loadfile" && words[1] == "/films/d.mkv" && words[4].empty();
  }));
  report(event::StartFile{});
  report(P::path, "/films/d.mkv");
  wait(20s);
  EXPECT_EQ(mpv_.created, 3);
  EXPECT_TRUE(model().errorMessage().startsWith("Could not play d: the graphics card or"));
  EXPECT_TRUE(player_.calls.contains("library"));
  EXPECT_TRUE(waitFor([&] { return mpv_.destroyed == 2; }));
}

TEST_F(EngineHang, WhatIsToldToAPausedFilmIsWaitedFor) {
  report(P::pause, true);
  wait(60s);  // nothing is expected of it
  mpv_.hangs = true;
  model().setVolume(40);
  wait(60s, true);  // it takes its time, and answers
  EXPECT_EQ(mpv_.created, 1);
  model().togglePlayback();
  wait(10s);
  EXPECT_EQ(mpv_.created, 1);
  wait(10s);
  EXPECT_EQ(mpv_.created, 2);
  EXPECT_TRUE(std::ranges::any_of(takeRequests(), [](const auto& words) {
    return words.front() == "loadfile" && words[1] == "/films/b.mkv" && words[4] == "start=12.5";
  }));
  EXPECT_TRUE(waitFor([&] { return mpv_.destroyed == 1; }));
}

TEST_F(EngineHang, AFilmThatWasClosedDoesntComeBack) {
  report(P::pause, true);
  mpv_.hangs = true;
  model().stop();
  wait(60s);  // neither engine does anything
  EXPECT_EQ(mpv_.created, 2);
  for (const auto& words : takeRequests()) EXPECT_NE(words.front(), "loadfile");
  EXPECT_EQ(model().errorMessage(), "");
  EXPECT_TRUE(waitFor([&] { return mpv_.destroyed == 1; }));
}

TEST_F(EngineHang, AnEngineThatAnswersOrNeedntMoveIsLeftAlone) {
  wait(60s, true);  // a picture that stands still
  report(P::timePos, 13.0);
  report(P::pause, true);
  wait(60s);
  report(P::pause, false);
  report(P::eofReached, true);
  wait(60s);
  EXPECT_EQ(mpv_.created, 1);
}

TEST(EngineWatchTest, RestsWhileItIsKnownThatTheFilmMoves) {
  ManualClock clock;
  bool moves = true;
  int looks = 0;
  int hangs = 0;
  EngineWatch watch(clock, {.patience =
                                [&] {
                                  ++looks;
                                  return 5s;
                                },
                            .ask = [](const auto&) {},
                            .hangs = [&] { ++hangs; },
                            .stands = [] {},
                            .moves = [&] { return moves; }});
  for (int i = 0; i < 3; ++i) {
    watch.heard();
    clock.advance(60s);
  }
  EXPECT_EQ(looks, 1);
  moves = false;
  watch.stopped();
  clock.advance(10s);
  EXPECT_EQ(hangs, 1);
}

}  // namespace tromelo::testing
