#pragma once

#include <gtest/gtest.h>

#include "FakeWindows.h"
#include "playback/FakeChooser.h"
#include "playback/Reports.h"
#include "player/PlayerWindowController.h"
#include "support/FakeMpv.h"
#include "support/Home.h"
#include "support/ManualClock.h"

namespace tromelo::testing {

/// What a player is made of.
struct PlayerParts : Home {
  PlaybackModel::Parts parts() {
    return {api_, clock_, files_, defaults_, directory_.path(), [this](PlaybackModel& playback) {
              return std::make_unique<PlayerWindowController>(playback, windows_, clock_);
            }};
  }

  ManualClock clock_;
  FakeWindowSystem windows_;
  FakeMpv mpv_;
  MpvClientApi api_ = mpv_.api();
  FakeChooser files_;
};

/// The player's rules over windows, an engine and time that do as a test says.
struct PlayerTest : ::testing::Test, protected PlayerParts, protected Reports {
  using Sent = std::vector<std::string>;

  PlayerTest() {
    library_.visible = true;
    player().setLibraryWindow(&library_);
    takeSent();
  }

  PlayerWindowController& player() {
    return static_cast<PlayerWindowController&>(playback_.player());
  }

  /// As the model does when a person opens a file.
  void await() {
    player().setAwaitingVideo(true);
    player().setVideoReady(false);
  }

  PlaybackModel& model() override { return playback_; }
  PlayerChrome& chrome() { return player().chrome(); }

  /// What the engine was told since the last call, a line each.
  Sent takeSent() {
    Sent lines;
    for (const auto& words : std::exchange(mpv_.requests, {})) {
      std::string line;
      for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
      lines.push_back(line);
    }
    return lines;
  }

  void ready() {
    player().setVideoReady(true);
    player().reveal();
  }

  void showVideo(FakeVideoWindow& window) {
    await();
    windows_.add(window);
    ready();
    clock_.advance(std::chrono::milliseconds(320));
  }

  /// The engine takes its window down.
  void takeDown(FakeVideoWindow& window) {
    window.visible = false;
    Q_EMIT windows_.windowsChanged();
  }

  FakeLibraryWindow library_{clock_};
  FakeVideoWindow window_{clock_};
  PlaybackModel playback_{parts()};
};

}  // namespace tromelo::testing
