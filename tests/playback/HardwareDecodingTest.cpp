#include <QJsonArray>
#include <algorithm>

#include "ModelTest.h"
#include "platform/FilePath.h"
#include "support/Table.h"

namespace tromelo::testing {

using P = MpvProperty;

struct Decoder : ModelTest {
  static constexpr const char* kRejected = "Software (stream rejected by VideoToolbox)";

  void fails() { report(event::HardwareDecodeError{}); }
};

TEST(HardwareDecoding, IsGivenUpAfterErrorsThatSeekingDoesNotExplain) {
  constexpr double kRestart = 100;
  for (const auto& [what, errors, expected] :
       Table<const char*, std::vector<double>, std::optional<double>>{
           {"in the middle of playback", {105}, 105},
           {"just after a seek", {100.5}, {}},
           {"exactly a second after it", {101}, {}},
           {"two bursts just after it", {99, 100.5}, 99},
           {"two bursts around a seek", {100.1, 100.4, 101.5}, 101.5},
           {"one burst", {100, 100.1, 100.2, 100.3, 100.5, 100.6, 100.7, 100.8, 100.9}, {}}}) {
    SCOPED_TRACE(what);
    HardwareDecoding decoding;
    decoding.lastPlaybackRestart = kRestart - 10;
    std::optional<double> givenUpAt;
    for (const double error : errors) {
      if (error >= kRestart) decoding.lastPlaybackRestart = kRestart;
      if (!decoding.givesUpAfterError(error)) continue;
      EXPECT_FALSE(givenUpAt);
      givenUpAt = error;
    }
    EXPECT_EQ(givenUpAt, expected);
    EXPECT_EQ(decoding.forcedSoftware, givenUpAt.has_value());
  }
}

TEST(HardwareDecoding, ASecondBurstCountsHoweverSoonAfterASeek) {
  HardwareDecoding decoding;
  decoding.lastPlaybackRestart = 100;
  EXPECT_FALSE(decoding.givesUpAfterError(100.5));
  for (const double seek : {101, 102, 103}) {  // a burst goes on however long it has lasted
    decoding.lastPlaybackRestart = seek;
    for (const double error : {0.1, 0.7}) EXPECT_FALSE(decoding.givesUpAfterError(seek + error));
  }
  decoding.lastPlaybackRestart = 105;
  decoding.fileStarted();
  EXPECT_FALSE(decoding.givesUpAfterError(105.1));  // of another file
  decoding.lastPlaybackRestart = 107;
  EXPECT_TRUE(decoding.givesUpAfterError(107.2));
}

TEST_F(Decoder, FallsBackForThisFileAndOpensItInSoftwareFromThenOn) {
  clock_.advance(std::chrono::seconds(100));
  load();
  report(P::path, "/films/a.mkv");
  report(P::hwdecCurrent, "vaapi");
  report(event::PlaybackRestart{});
  EXPECT_EQ(model().decoder(), "Hardware (vaapi)");
  takeRequests();
  fails();
  EXPECT_EQ(takeRequests(), Requests());
  clock_.advance(std::chrono::milliseconds(1001));
  fails();
  fails();
  EXPECT_EQ(takeRequests(), (Requests{{"set", "file-local-options/hwdec", "no"}}));
  report(P::hwdecCurrent, "vaapi");
  EXPECT_EQ(model().decoder(), "Hardware (vaapi)");
  for (const MpvValue& none : {MpvValue("no"), MpvValue(""), MpvValue()}) {
    report(P::hwdecCurrent, none);
    EXPECT_EQ(model().decoder(), kRejected);
  }

  report(event::StartFile{});
  report(P::path, "/films/b.mkv");
  report(P::hwdecCurrent, "no");
  EXPECT_EQ(model().decoder(), "Selecting decoder");
  report(event::FileLoaded{});
  report(P::hwdecCurrent, "no");
  EXPECT_EQ(model().decoder(), "Software (FFmpeg)");
  for (int file = 0; file < 2; ++file) {  // one burst in each
    report(event::StartFile{});
    report(P::path, "/films/b.mkv");
    report(event::FileLoaded{});
    report(event::PlaybackRestart{});
    fails();
    clock_.advance(std::chrono::seconds(2));
  }
  EXPECT_EQ(takeRequests(), Requests());

  model().open(fileUrlFromPath("/films/a.mkv"), 12.5);
  EXPECT_EQ(takeRequests().front().back(), "start=12.5,hwdec=no");
  model().enqueue({fileUrlFromPath("/films/a.mkv"), fileUrlFromPath("/films/b.mkv")});
  const auto requests = takeRequests();
  EXPECT_EQ(requests[0].back(), "hwdec=no");
  EXPECT_EQ(requests[1].back(), "");
  report(event::StartFile{});
  report(P::path, "/films/a.mkv");
  report(P::hwdecCurrent, "no");
  EXPECT_EQ(model().decoder(), kRejected);
}

TEST_F(Decoder, InHardwareIsntTriedWhereThereIsNone) {
  const std::vector<std::string> software{"set", "hwdec", "no"};
  EXPECT_EQ(std::ranges::count(startRequests_, software), 0);
  mayDecodeInHardware_ = false;
  remake();
  EXPECT_EQ(std::ranges::count(startRequests_, software), 1);
}

TEST_F(Decoder, WhatFellBackIsStoredWholeAndReadAtTheNextStart) {
  const QString key = "softwareDecodeFiles";
  defaults_.set(key, QJsonArray{"/films/b.mkv", 1, QJsonValue(), "", QJsonArray{"/films/c.mkv"}});
  remake();
  clock_.advance(std::chrono::seconds(100));
  load();
  report(P::path, "/films/\xff %41.mkv");
  fails();
  EXPECT_EQ(defaults_.value(key), (QJsonArray{"/films/b.mkv", "file:///films/%FF%20%2541.mkv"}));
  remake();
  const Table<const char*, const char*> rows{
      {"/films/\xff %41.mkv", "hwdec=no"}, {"/films/b.mkv", "hwdec=no"}, {"/films/c.mkv", ""}};
  for (const auto& [path, options] : rows) {
    takeRequests();
    model().open(fileUrlFromPath(path));
    EXPECT_EQ(takeRequests().front().back(), options) << path;
  }
  defaults_.set(key, "/films/b.mkv");
  remake();
  model().open(fileUrlFromPath("/films/b.mkv"));
  EXPECT_EQ(takeRequests().front().back(), "");
}

TEST_F(Decoder, AFileWithoutAKnownPathFallsBackAndIsNotRemembered) {
  clock_.advance(std::chrono::seconds(100));
  load();
  takeRequests();
  fails();
  EXPECT_EQ(takeRequests(), (Requests{{"set", "file-local-options/hwdec", "no"}}));
  EXPECT_FALSE(defaults_.contains("softwareDecodeFiles"));
  report(P::path, "/films/a.mkv");
  report(P::hwdecCurrent, "no");
  EXPECT_EQ(model().decoder(), "Software (FFmpeg)");
}

}  // namespace tromelo::testing
