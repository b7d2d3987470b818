#include "RealPlayback.h"
#include "playback/EngineErrors.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

/// A little more than a frame of the clips.
constexpr double kFrame = 0.04;

struct WithoutSound : RealPlayback {
  WithoutSound() : RealPlayback(false) {}
};

TEST_F(RealPlayback, OpensShowsAndPlays) {
  ASSERT_TRUE(plays(clip("sample.mp4"), 4));
  EXPECT_TRUE(waitFor([this] { return position_ > 4.1; }));
  EXPECT_LT(position_, 8);
  const auto shows = [this](const char* field, const QVariant& text) {
    return waitFor([&] { return model_.property(field) == text; });
  };
  EXPECT_TRUE(shows("title", "sample"));
  EXPECT_TRUE(shows("videoSize", "640 × 360"));
  EXPECT_TRUE(shows("frameRate", "30 fps"));
  EXPECT_TRUE(shows("codec", "H264"));
  EXPECT_TRUE(shows("container", "MOV"));
  EXPECT_TRUE(shows("buffering", "Ready"));
  EXPECT_TRUE(shows("lastURL", clip("sample.mp4")));
  EXPECT_TRUE(waitFor([this] { return std::abs(model_.duration() - 10) < 0.1; }));
  EXPECT_TRUE(player_.calls.contains("reveal"));
  EXPECT_TRUE(waitFor([this] {
    return readFile(directory_.filePath("diagnostics/mpv.log"))
        .contains("playback restart complete");
  }));
  std::optional<std::string> ownLog;
  model_.engine().readProperty("log-file", [&](const auto& answer) { ownLog = answer; });
  EXPECT_TRUE(waitFor([&] { return ownLog.has_value(); }));
  EXPECT_EQ(ownLog, "");
}

TEST_F(RealPlayback, PausesSeeksAndScrubs) {
  ASSERT_TRUE(plays(clip("sample.mp4")));
  ASSERT_TRUE(pauses());
  EXPECT_EQ(model_.status(), "Paused");

  ASSERT_TRUE(seeks([this] { model_.seekTo(5.5); }));
  EXPECT_TRUE(waitFor([this] { return std::abs(position_ - 5.5) < kFrame; })) << position_;
  ASSERT_TRUE(seeks([this] { model_.seekBy(-2); }));
  EXPECT_TRUE(waitFor([this] { return std::abs(position_ - 3.5) < kFrame; })) << position_;

  // Key frames are a second apart.
  model_.beginScrubbing();
  ASSERT_TRUE(seeks([this] { model_.scrubTo(7.4); }));
  EXPECT_TRUE(waitFor([this] { return std::abs(position_ - 7) < kFrame; })) << position_;
  EXPECT_EQ(model_.scrubPosition(), 7.4);
  ASSERT_TRUE(seeks([this] { model_.endScrubbing(); }));
  EXPECT_TRUE(waitFor([this] { return std::abs(position_ - 7.4) < kFrame; })) << position_;

  model_.togglePlayback();
  EXPECT_TRUE(waitFor([this] { return model_.status() == "Playing"; }));
}

TEST_F(RealPlayback, SpeedDelaysVolumeAndLoopComeBackFromTheEngine) {
  ASSERT_TRUE(plays(clip("sample.mp4")));
  // What the engine reports back is noted apart from what the model shows at once.
  std::map<MpvProperty, MpvValue> reported;
  auto& onEvent = model_.engine().onEvent;
  onEvent = [&reported, former = onEvent](const MpvEvent& event) {
    if (const auto* change = std::get_if<event::Property>(&event))
      reported.insert_or_assign(change->property, change->value);
    former(event);
  };
  model_.stepSpeed(2);
  model_.setSubtitleDelay(0.25);
  model_.setAudioDelay(-0.5);
  model_.setVolume(40);
  model_.toggleLoop();
  using P = MpvProperty;
  for (const auto& [property, value] : Table<P, MpvValue>{{P::speed, 1.5},
                                                          {P::subDelay, 0.25},
                                                          {P::audioDelay, -0.5},
                                                          {P::volume, 40.0},
                                                          {P::loopFile, "inf"}})
    EXPECT_TRUE(waitFor([&, p = property, &v = value] { return reported[p] == v; }))
        << mpvPropertyName(property);
}

TEST_F(RealPlayback, AFileStaysAtItsEndOrStartsOver) {
  ASSERT_TRUE(plays(clip("short-wide.mp4")));
  EXPECT_TRUE(waitFor([this] { return model_.isPaused(); }));
  EXPECT_TRUE(model_.isLoaded());
  EXPECT_EQ(model_.status(), "Paused");

  ASSERT_TRUE(plays(clip("short-wide.mp4")));
  model_.toggleLoop();
  EXPECT_TRUE(waitFor([this] { return restarts_ >= 2; }));
  EXPECT_FALSE(model_.isPaused());
}

TEST_F(RealPlayback, StaysBetweenTwoMarksUntilAnotherFileComes) {
  ASSERT_TRUE(plays(clip("sample.mp4")));
  ASSERT_TRUE(waitFor([this] { return position_ > 1; }));
  model_.markLoop();
  ASSERT_TRUE(waitFor([this] { return position_ > 1.6; }));
  restarts_ = 0;
  model_.markLoop();
  const AbLoop loop = model_.abLoop();
  ASSERT_TRUE(loop.isWhole());
  const auto goesRound = [&] {
    if (restarts_ == 0) return false;
    EXPECT_GE(position_, *loop.start - kFrame);
    EXPECT_LE(position_, *loop.end + 5 * kFrame);
    return restarts_ == 3;
  };
  EXPECT_TRUE(waitFor(goesRound));

  ASSERT_TRUE(plays(clip("short-wide.mp4")));
  EXPECT_EQ(model_.abLoop(), AbLoop());
  std::optional<std::string> mark;
  model_.engine().readProperty("ab-loop-a", [&](const auto& answer) { mark = answer; });
  EXPECT_TRUE(waitFor([&] { return mark.has_value(); }));
  EXPECT_EQ(mark, "no");
}

TEST_F(RealPlayback, SeveralFilesPlayOneAfterTheOther) {
  model_.open(QList<QUrl>{clip("short-wide.mp4"), clip("short-tall.mp4")});
  ASSERT_TRUE(waitFor([this] { return model_.queue().size() == 2 && model_.hasNext(); }));
  EXPECT_TRUE(waitFor([this] { return model_.videoSize() == "180 × 320"; }));
  EXPECT_TRUE(model_.hasPrevious() && !model_.hasNext());
  EXPECT_TRUE(waitFor([this] { return model_.title() == "short-tall"; }));
}

TEST_F(WithoutSound, FilmsPlayOneAfterTheOtherAndSoundIsMissedOnce) {
  player_.hasWindow = true;
  model_.open(QList<QUrl>{clip("short-wide.mp4"), clip("short-square.mp4"), clip("audio.m4a"),
                          clip("short-tall.mp4")});
  ASSERT_TRUE(waitFor([this] { return model_.title() == "short-tall" && model_.isPaused(); }));
  const QString missing = audioOutputFault();
  EXPECT_EQ(player_.calls.filter("toast").join('\n'),
            "toast " + missing + "\ntoast Skipped audio: " + missing);
  EXPECT_FALSE(player_.calls.contains("close"));
}

TEST_F(RealPlayback, LosesNoRequestOfThousands) {
  constexpr int kFiles = 3000;
  for (int i = 0; i < kFiles; ++i)
    model_.engine().command({"loadfile", "/" + std::to_string(i), "append", "-1", ""});
  ASSERT_TRUE(waitFor([this] { return model_.queue().size() == kFiles; }));
  EXPECT_EQ(model_.queue().last().path, QString("/%1").arg(kFiles - 1));
}

}  // namespace tromelo::testing
