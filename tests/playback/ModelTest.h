#pragma once

#include <gtest/gtest.h>

#include "FakeChooser.h"
#include "FakePlayer.h"
#include "Reports.h"
#include "support/FakeMpv.h"
#include "support/Home.h"
#include "support/ManualClock.h"

namespace tromelo::testing {

/// The model over an engine that plays nothing, told what the engine reports.
struct ModelTest : ::testing::Test, protected Home, protected Reports {
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
        .mountedPath = mountedPath_,
        .mayDecodeInHardware = mayDecodeInHardware_});
    startRequests_ = takeRequests();
  }

  PlaybackModel& model() override { return *model_; }
  Requests takeRequests() { return std::exchange(mpv_.requests, {}); }

  FakeMpv mpv_;
  ManualClock clock_;
  FakeChooser chooser_;
  FakePlayer::Log player_;
  std::function<bool(const std::string&)> fileExists_ = fileExists;
  LocalFiles::PathOf mountedPath_ = [](const QUrl&) { return std::string(); };
  bool mayDecodeInHardware_ = true;
  std::unique_ptr<PlaybackModel> model_;
  Requests startRequests_;  // what the last model sent while it was made
};

}  // namespace tromelo::testing
