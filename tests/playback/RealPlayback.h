#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "FakeChooser.h"
#include "FakePlayer.h"
#include "platform/Clock.h"
#include "playback/PlaybackModel.h"
#include "support/HeadlessMpv.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// The model over the real libmpv, without picture and sound.
class RealPlayback : public ::testing::Test {
 protected:
  ~RealPlayback() override {
    bool ended = false;
    model_->engine().terminate([&ended] { ended = true; });
    EXPECT_TRUE(waitFor([&ended] { return ended; }));
  }

  PlaybackModel& model() { return *model_; }

  QTemporaryDir directory_;
  SystemClock clock_;
  FakeChooser chooser_;
  FakePlayer::Log player_;
  std::unique_ptr<PlaybackModel> model_ = std::make_unique<PlaybackModel>(PlaybackModel::Parts{
      .api = headlessMpv(),
      .clock = clock_,
      .files = chooser_,
      .diagnosticsDirectory = directory_.filePath("diagnostics"),
      .makePlayer = [this](PlaybackModel&) { return std::make_unique<FakePlayer>(player_); }});
};

}  // namespace tromelo::testing
