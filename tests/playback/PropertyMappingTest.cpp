#include "playback/PropertyMapping.h"

#include <limits>

#include "ModelTest.h"
#include "support/Table.h"

namespace tromelo::testing {

using P = MpvProperty;

std::int64_t operator""_i(unsigned long long value) { return static_cast<std::int64_t>(value); }

struct Mapping : ModelTest {
  QVariant shown(const char* field) { return model().property(field); }
};

TEST_F(Mapping, EachKindOfValueChangesItsFieldOrLeavesIt) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const MpvValue none;
  for (const auto& [property, reports, field, expected] :
       Table<P, std::vector<MpvValue>, const char*, QVariant>{
           {P::mediaTitle, {"Movie.mkv"}, "title", "Movie"},
           {P::mediaTitle, {"Movie.mkv", none, 3_i}, "title", "Movie"},
           {P::duration, {12.5, none}, "duration", 0.0},
           {P::duration, {12.5, -1.0}, "duration", 0.0},
           {P::duration, {12.5, kInfinity}, "duration", 0.0},
           {P::pause, {false, none}, "isPaused", true},
           {P::volume, {30.0, none}, "volume", 30.0},
           {P::fullscreen, {true, none}, "isFullscreen", false},
           {P::videoFormat, {"h264", none}, "codec", "H264"},
           {P::fileFormat, {",,mkv"}, "container", "MKV"},
           {P::fileFormat, {"mkv", ","}, "container", "MKV"},
           {P::decoderDrops, {3_i, none}, "decoderFrameDrops", 0},
           {P::outputDrops, {4_i, none}, "outputFrameDrops", 0},
           {P::speed, {1.5, none}, "speed", 1.5},
           {P::mute, {true, none}, "isMuted", false},
           {P::subDelay, {0.5, none}, "subtitleDelay", 0.0},
           {P::audioDelay, {-0.5, none}, "audioDelay", 0.0},
           {P::loopFile, {"5"}, "isLooping", true},
           {P::loopFile, {"inf", "no"}, "isLooping", false},
           {P::loopFile, {"inf", 5_i}, "isLooping", false},
           {P::containerFps, {25.0}, "frameRate", "25 fps"},
           {P::containerFps, {25.0, none}, "frameRate", "25 fps"},
           {P::containerFps, {0.0}, "frameRate", "—"},
           {P::path, {"/films/50%.mkv"}, "lastURL", QUrl("file:///films/50%25.mkv")},
           {P::path, {"/films/\xff.mkv", none}, "lastURL", QUrl("file:///films/%FF.mkv")},
       }) {
    remake();
    for (const MpvValue& value : reports) report(property, value);
    EXPECT_EQ(shown(field), expected) << mpvPropertyName(property) << " after " << reports.size()
                                      << " reports: " << shown(field).toString().toStdString();
  }
}

TEST_F(Mapping, ThePositionIsThinnedForwardsOnly) {
  const Table<double, double> rows{{10.0, 10.0},   {10.1, 10.0}, {10.19, 10.0}, {10.25, 10.25},
                                   {10.15, 10.15}, {3.0, 3.0},   {NAN, 3.0},    {INFINITY, 3.0}};
  for (const auto& [reported, shown] : rows) {
    report(P::timePos, reported);
    EXPECT_DOUBLE_EQ(model().elapsed(), shown) << reported;
    EXPECT_DOUBLE_EQ(model().scrubPosition(), shown) << reported;
  }
  model().beginScrubbing();
  report(P::timePos, 40.0);
  EXPECT_EQ(model().elapsed(), 40.0);
  EXPECT_EQ(model().scrubPosition(), 3.0);
}

TEST_F(Mapping, WhatIsMadeOfSeveralValuesKeepsWhatWasLastSaid) {
  for (const auto& [property, value, size, rate] : Table<P, MpvValue, const char*, const char*>{
           {P::width, 1920_i, "—", "—"},
           {P::height, 1080_i, "1920 × 1080", "—"},
           {P::height, 0_i, "1920 × 1080", "—"},
           {P::width, {}, "1920 × 1080", "—"},
           {P::height, 800_i, "1920 × 800", "—"},
           {P::estimatedFps, 29.97, "1920 × 800", "30 fps"},
           {P::containerFps, 23.976, "1920 × 800", "24 fps"},
           {P::estimatedFps, 12.5, "1920 × 800", "24 fps"},
           {P::containerFps, "variable", "1920 × 800", "12.5 fps"},
       }) {
    report(property, value);
    EXPECT_EQ(model().videoSize(), size) << mpvPropertyName(property);
    EXPECT_EQ(model().frameRate(), rate) << mpvPropertyName(property);
  }
}

TEST_F(Mapping, BufferingShowsInTheStatus) {
  report(P::pausedForCache, true);
  EXPECT_EQ(model().buffering(), "Buffering");
  EXPECT_EQ(model().status(), "Open a video to begin");
  report(P::pausedForCache, false);
  EXPECT_EQ(model().buffering(), "Buffering");
  load();
  EXPECT_EQ(model().status(), "Opening media");
  report(P::pause, false);
  EXPECT_EQ(model().status(), "Playing");
  report(P::pausedForCache, true);
  EXPECT_EQ(model().status(), "Buffering");
  report(P::pause, true);
  EXPECT_EQ(model().status(), "Buffering");
  report(P::pausedForCache, {});
  EXPECT_EQ(model().buffering(), "Ready");
  EXPECT_EQ(model().status(), "Paused");
}

TEST_F(Mapping, AConfiguredPictureIsRevealed) {
  report(P::voConfigured, true);
  EXPECT_EQ(player_.take(), (QStringList{"ready", "reveal"}));
  report(P::voConfigured, false);
  report(P::voConfigured, {});
  EXPECT_EQ(player_.take(), (QStringList{"not ready", "not ready"}));
}

TEST_F(Mapping, EqualValuesAreNotAnnounced) {
  int paused = 0;
  int queue = 0;
  QObject::connect(&model(), &PlaybackModel::isPausedChanged, &model(), [&] { ++paused; });
  QObject::connect(&model(), &PlaybackModel::queueChanged, &model(), [&] { ++queue; });
  report(P::pause, true);
  EXPECT_EQ(paused, 0);
  for (int i = 0; i < 2; ++i) {
    report(P::pause, false);
    reportPlaylist({"a.mkv", "b.mkv"}, 0);
  }
  EXPECT_EQ(paused, 1);
  EXPECT_EQ(queue, 1);
  const std::vector<std::string> many(10000, "a.mkv");
  for (const std::size_t current : {0, 0, 9999}) reportPlaylist(many, current);
  EXPECT_EQ(queue, 3);
  EXPECT_FALSE(model().hasNext());
}

}  // namespace tromelo::testing
