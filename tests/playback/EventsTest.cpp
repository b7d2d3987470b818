#include "ModelTest.h"
#include "platform/FilePath.h"
#include "playback/EngineErrors.h"
#include "support/Table.h"

namespace tromelo::testing {

using P = MpvProperty;

struct Events : ModelTest {};

TEST_F(Events, AnEngineThatDoesNotStartLeavesItsReason) {
  mpv_.optionResults["vo"] = MPV_ERROR_OPTION_ERROR;
  remake();
  const QString reason = QString("vo: ") + mpv_error_string(MPV_ERROR_OPTION_ERROR);
  EXPECT_EQ(model().status(), reason);
  EXPECT_EQ(model().errorMessage(), reason);
  model().open(fileUrlFromPath("/films/a.mkv"));
  model().setVolume(20);
  EXPECT_EQ(model().title(), "No video selected");
  EXPECT_TRUE(player_.calls.isEmpty());
  EXPECT_TRUE(mpv_.requests.empty());
}

TEST_F(Events, ANewFileForgetsTheLastOnesState) {
  load();
  for (const auto& [property, value] :
       std::initializer_list<std::pair<P, MpvValue>>{{P::timePos, 5.0},
                                                     {P::duration, 60.0},
                                                     {P::width, std::int64_t{640}},
                                                     {P::height, std::int64_t{360}},
                                                     {P::containerFps, 25.0},
                                                     {P::videoFormat, "h264"},
                                                     {P::fileFormat, "mkv"},
                                                     {P::decoderDrops, std::int64_t{1}},
                                                     {P::outputDrops, std::int64_t{2}},
                                                     {P::chapter, std::int64_t{1}},
                                                     {P::speed, 2.0},
                                                     {P::subDelay, 1.0}}) {
    report(property, value);
  }
  reportPlaylist({"a.mkv", "b.mkv"}, 1);
  report(event::StartFile{});

  EXPECT_EQ(model().status(), "Opening media");
  EXPECT_EQ(model().buffering(), "Loading");
  EXPECT_EQ(model().decoder(), "Selecting decoder");
  for (const char* forgotten : {"isLoaded", "elapsed", "duration", "scrubPosition",
                                "decoderFrameDrops", "outputFrameDrops"})
    EXPECT_EQ(model().property(forgotten).toDouble(), 0) << forgotten;
  EXPECT_EQ(model().videoSize() + model().frameRate() + model().codec(), "———");
  EXPECT_EQ(model().currentChapter(), std::nullopt);
  EXPECT_EQ(model().container(), "MKV");
  EXPECT_EQ(model().speed() + model().subtitleDelay() + double(model().queue().size()), 5);
  // One side of the new file's size doesn't go with the other of the old one's.
  report(P::width, std::int64_t{320});
  EXPECT_EQ(model().videoSize(), "—");
}

TEST_F(Events, WhatIsOverSaysSo) {
  const std::pair<MpvEvent, const char*> rows[] = {{event::EndFile{}, "Ready for a video"},
                                                   {event::Shutdown{}, "Playback engine stopped"}};
  for (const auto& [event, status] : rows) {
    load();
    report(event);
    EXPECT_FALSE(model().isLoaded()) << status;
    EXPECT_EQ(model().status(), status);
    EXPECT_EQ(model().buffering(), "—") << status;
    EXPECT_EQ(model().errorMessage(), "") << status;
  }
}

TEST_F(Events, AFailedCommandMattersWhileNothingPlays) {
  load();
  report(event::CommandFailed{"refused"});
  EXPECT_EQ(model().errorMessage(), "");
  report(event::EndFile{});
  report(event::CommandFailed{"refused"});
  EXPECT_EQ(model().errorMessage(), "refused");
  EXPECT_EQ(model().status(), "refused");
  EXPECT_EQ(model().buffering(), "Unavailable");
}

TEST_F(Events, AFileThatFailsGivesWayToTheNextOrClosesThePlayer) {
  for (const auto& [what, followedBy, hasWindow, calls] :
       Table<const char*, MpvEvent, bool, QStringList>{
           {"the next is coming", event::StartFile{}, true, {"toast Skipped Movie: no data"}},
           {"the last, with a window", event::Idle{}, true, {"not awaiting", "close"}},
           {"the last, without one", event::Idle{}, false, {"not awaiting", "library"}},
       }) {
    remake();
    player_ = {.calls = {}, .hasWindow = hasWindow};
    report(event::StartFile{});
    report(P::mediaTitle, "Movie.mkv");
    report(event::EndFile{"no data"});
    EXPECT_EQ(model().errorMessage(), "Could not play Movie: no data") << what;
    EXPECT_EQ(model().status(), model().errorMessage()) << what;
    EXPECT_EQ(model().buffering(), "Unavailable") << what;
    report(followedBy);
    EXPECT_EQ(player_.take(), calls) << what;
  }
}

TEST_F(Events, AFileWithoutItsOutputNamesWhatIsMissing) {
  const QString picture = videoOutputFault(true);
  for (const auto& [what, events, error] : Table<const char*, std::vector<MpvEvent>, QString>{
           {"told before the failure",
            {event::VideoOutputFailed{}, event::EndFile{"no data"}},
            "Could not play Movie: " + picture},
           {"told after it",
            {event::EndFile{"no data"}, event::VideoOutputFailed{}},
            "Could not play Movie: " + picture},
           {"neither picture nor sound",
            {event::VideoOutputFailed{}, event::AudioOutputFailed{}, event::EndFile{"no data"}},
            "Could not play Movie: " + picture},
           {"the sound plays on", {event::FileLoaded{}, event::VideoOutputFailed{}}, picture},
           {"the sound plays on, told early",
            {event::VideoOutputFailed{}, event::FileLoaded{}},
            picture},
           {"only sound",
            {event::EndFile{"no data"}, event::AudioOutputFailed{}},
            "Could not play Movie: " + audioOutputFault()},
           {"only the file before",
            {event::VideoOutputFailed{}, event::StartFile{}, event::EndFile{"no data"}},
            "Could not play Movie: no data"},
       }) {
    remake();
    report(event::StartFile{});
    report(P::mediaTitle, "Movie.mkv");
    for (const MpvEvent& event : events) report(event);
    EXPECT_EQ(model().errorMessage(), error) << what;
  }
}

TEST_F(Events, AMissingSoundDeviceIsToldOnceInTheWindowOfTheFilm) {
  report(event::StartFile{});
  report(event::AudioOutputFailed{});
  report(event::FileLoaded{});
  EXPECT_EQ(model().errorMessage(), audioOutputFault());
  EXPECT_TRUE(player_.calls.isEmpty());
  player_.hasWindow = true;
  report(event::PlaybackRestart{});
  EXPECT_EQ(player_.take(), (QStringList{"ready", "reveal", "toast " + audioOutputFault()}));
  load();
  report(event::AudioOutputFailed{});
  EXPECT_TRUE(player_.calls.isEmpty());
}

TEST_F(Events, SoundGoesElsewhereOnceWhereTheChosenDeviceIsMissing) {
  model().settings().setAudioDevice("alsa/gone");
  settle();
  load();
  takeRequests();
  const std::vector<std::string> elsewhere{"set", "audio-device", "auto"};
  const auto takeRequestsWithLeft = [&](double seconds) {
    Requests before = takeRequests();
    mpv_node left{.u = {.double_ = seconds}, .format = MPV_FORMAT_DOUBLE};
    mpv_event_property answer{"time-remaining", MPV_FORMAT_NODE, &left};
    mpv_.queue(MPV_EVENT_GET_PROPERTY_REPLY, &answer, std::stoull(before.back()[2]));
    model().engine().drainEvents();
    before.pop_back();
    std::ranges::copy(takeRequests(), std::back_inserter(before));
    return before;
  };
  report(event::AudioOutputFailed{});
  EXPECT_EQ(takeRequestsWithLeft(60),
            (Requests{elsewhere, {"set", "file-local-options/aid", "1"}}));
  report(event::AudioOutputFailed{});  // the desktop's fails too
  EXPECT_EQ(takeRequests(), Requests());
  clock_.advance(std::chrono::seconds(1));
  EXPECT_EQ(takeRequestsWithLeft(0.5), (Requests{{"set", "audio-device", "alsa/gone"}}))
      << "at its end the engine would wait for sound for ever";
}

TEST_F(Events, AFilmThatWasShownWithoutSoundHasBeenPlayed) {
  const event::EndFile end{.error = "no device", .lacksSoundDevice = true};
  report(event::StartFile{});
  report(event::VideoReconfigured{});  // the picture of the file before goes
  report(event::FileLoaded{});
  report(event::PlaybackRestart{});
  report(end);
  EXPECT_EQ(model().status(), "Could not play No video selected: " + audioOutputFault());
  load();
  report(event::VideoReconfigured{});
  report(event::PlaybackRestart{});
  player_.take();
  report(end);
  EXPECT_EQ(model().status(), "Ready for a video");
  report(event::StartFile{});
  EXPECT_TRUE(player_.calls.isEmpty());
}

TEST_F(Events, FilesThatFailBeforeTheQueueIsReportedAreNamedEach) {
  model().open(fileUrlFromPath("/films/former.mkv"));
  model().open(QList<QUrl>{fileUrlFromPath("/films/a.mkv"), fileUrlFromPath("/films/b.mkv"),
                           fileUrlFromPath("/films/c.mkv")});
  player_.take();
  report(event::FileQueued{100});
  report(event::EndFile{"gone", 100});
  for (const std::int64_t entry : {1, 2, 3}) report(event::FileQueued{entry});
  for (const std::int64_t entry : {1, 2, 3}) {
    report(event::StartFile{entry});
    report(event::EndFile{"gone", entry});
  }
  report(event::Idle{});
  reportPlaylist({"a.mkv", "b.mkv", "c.mkv"}, 9);
  EXPECT_EQ(player_.take(), (QStringList{"toast Skipped a: gone", "toast Skipped b: gone",
                                         "not awaiting", "library"}));
  EXPECT_EQ(model().errorMessage(), "Could not play c: gone");
}

TEST_F(Events, FilesThatReachTheEngineAfterTheFirstHasFailedArePlayed) {
  model().open(QList<QUrl>{fileUrlFromPath("/films/a.mkv"), fileUrlFromPath("/films/b.mkv")});
  player_.take();
  for (const MpvEvent& event : std::initializer_list<MpvEvent>{
           event::FileQueued{1}, event::StartFile{1}, event::EndFile{"gone", 1}, event::Idle{}})
    report(event);
  reportPlaylist({"a.mkv"}, 9);
  report(event::FileQueued{2});
  takeRequests();
  reportPlaylist({"a.mkv", "b.mkv"}, 9);
  EXPECT_EQ(takeRequests(), (Requests{{"playlist-play-index", "1"}}));
  report(event::StartFile{2});
  EXPECT_EQ(player_.take(), QStringList{"toast Skipped a: gone"});

  model().enqueue({fileUrlFromPath("/films/c.mkv")});
  report(event::EndFile{"gone", 2});
  report(event::Idle{});
  EXPECT_EQ(player_.take(), QStringList()) << "another is coming";
  report(event::CommandFailed{"refused"});
  EXPECT_EQ(player_.take(), (QStringList{"not awaiting", "library"}));
}

TEST_F(Events, NothingHappensOnceTheModelIsGone) {
  const auto handler = model().engine().onEvent;
  const auto answer = [this] {
    model().presentOpenPanel();
    return chooser_.answer;
  }();
  model_.reset();
  handler(event::StartFile{});
  answer({fileUrlFromPath("/films/a.mkv")});
  EXPECT_TRUE(mpv_.requests.empty());
}

}  // namespace tromelo::testing
