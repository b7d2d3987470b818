#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "FakeChooser.h"
#include "FakePlayer.h"
#include "platform/UserDefaults.h"
#include "playback/PlaybackModel.h"
#include "support/FakeMpv.h"
#include "support/ManualClock.h"

namespace tromelo::testing {

/// The model over an engine that plays nothing, told what the engine reports.
class ModelTest : public ::testing::Test {
 protected:
  using Requests = std::vector<std::vector<std::string>>;

  ModelTest() { remake(); }

  /// For what shows when the model starts.
  void remake() {
    model_ = std::make_unique<PlaybackModel>(PlaybackModel::Parts{
        .api = mpv_.api(),
        .clock = clock_,
        .files = chooser_,
        .defaults = defaults_,
        .diagnosticsDirectory = directory_.filePath("state/diagnostics"),
        .makePlayer = [this](PlaybackModel&) { return std::make_unique<FakePlayer>(player_); },
        .fileExists = fileExists_,
        .mountedPath = mountedPath_});
    startRequests_ = takeRequests();
  }

  PlaybackModel& model() { return *model_; }
  void report(const MpvEvent& event) { model_->engine().onEvent(event); }
  void report(MpvProperty property, MpvValue value) {
    report(MpvEvent(std::in_place_type<event::Property>, property, std::move(value)));
  }
  /// A file that plays.
  void load() {
    report(event::StartFile{});
    report(event::FileLoaded{});
  }
  /// `names` in order, entries 1, 2, …; `current` the position of the one that plays.
  void reportPlaylist(const std::vector<std::string>& names, std::size_t current) {
    MpvList list;
    for (std::size_t i = 0; i < names.size(); ++i) {
      MpvMap entry{{"filename", MpvNode{"/films/" + names[i]}},
                   {"id", MpvNode{static_cast<std::int64_t>(i + 1)}}};
      if (i == current) entry["current"] = MpvNode{true};
      list.push_back(MpvNode{entry});
    }
    report(MpvProperty::playlist, MpvNode{list});
  }
  Requests takeRequests() { return std::exchange(mpv_.requests, {}); }

  QTemporaryDir directory_;
  UserDefaults defaults_{directory_.filePath(QStringLiteral("defaults.json"))};
  FakeMpv mpv_;
  ManualClock clock_;
  FakeChooser chooser_;
  FakePlayer::Log player_;
  std::function<bool(const std::string&)> fileExists_ = fileExists;
  LocalFiles::PathOf mountedPath_ = [](const QUrl&) { return std::string(); };
  std::unique_ptr<PlaybackModel> model_;
  Requests startRequests_;  // what the last model sent while it was made
};

}  // namespace tromelo::testing
