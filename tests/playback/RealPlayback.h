#pragma once

#include <gtest/gtest.h>

#include "FakeChooser.h"
#include "FakePlayer.h"
#include "platform/Clock.h"
#include "platform/FilePath.h"
#include "playback/PlaybackModel.h"
#include "support/Clips.h"
#include "support/HeadlessMpv.h"
#include "support/Home.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// The model over the real libmpv, without picture and sound.
struct RealPlayback : ::testing::Test, protected Home {
  explicit RealPlayback(bool hasSoundDevice = true)
      : model_({.api = headlessMpv(hasSoundDevice),
                .clock = clock_,
                .files = chooser_,
                .defaults = defaults_,
                .diagnosticsDirectory = directory_.filePath("diagnostics"),
                .makePlayer = [this](PlaybackModel&) {
                  return std::make_unique<FakePlayer>(player_);
                }}) {
    auto& onEvent = model_.engine().onEvent;
    onEvent = [this, toModel = onEvent](const MpvEvent& event) {
      note(event);
      toModel(event);
    };
  }
  ~RealPlayback() override {
    bool ended = false;
    model_.engine().terminate([&ended] { ended = true; });
    EXPECT_TRUE(waitFor([&ended] { return ended; }));
  }

  static QUrl clip(const std::string& name) { return fileUrlFromPath(clipPath(name)); }

  /// Opens a file and waits until it plays.
  [[nodiscard]] bool plays(const QUrl& url, std::optional<double> startAt = {}) {
    restarts_ = 0;
    model_.open(url, startAt);
    return waitFor([this] { return restarts_ > 0 && model_.isLoaded() && !model_.isPaused(); });
  }

  /// Does something that seeks, and waits until playback goes on from there.
  [[nodiscard]] bool seeks(const std::function<void()>& action) {
    restarts_ = 0;
    action();
    return waitFor([this] { return restarts_ > 0; });
  }

  [[nodiscard]] bool pauses() {
    model_.togglePlayback();
    return waitFor([this] { return model_.isPaused(); });
  }

  SystemClock clock_;
  FakeChooser chooser_;
  FakePlayer::Log player_;
  int restarts_ = 0;
  double position_ = 0;  // as the engine reports it, seconds
  PlaybackModel model_;

 private:
  void note(const MpvEvent& event) {
    if (std::holds_alternative<event::PlaybackRestart>(event)) ++restarts_;
    const auto* change = std::get_if<event::Property>(&event);
    if (!change || change->property != MpvProperty::timePos) return;
    if (const auto* seconds = change->value.as<double>()) position_ = *seconds;
  }
};

}  // namespace tromelo::testing
