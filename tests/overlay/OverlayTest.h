#pragma once

#include "ViewTest.h"
#include "overlay/QuickPlayerOverlay.h"

namespace tromelo::testing {

/// The whole overlay over a video, and what it says.
struct OverlayTest : ViewTest {
  OverlayTest() {
    host_.setFlag(Qt::FramelessWindowHint);
    makeOverlay();
  }
  ~OverlayTest() override {
    overlay_.reset();
    settle();
  }

  void makeOverlay() {
    overlay_.reset();
    overlay_ = std::make_unique<QuickPlayerOverlay>(
        engine_, layer_, playback_, player(), reducedMotion_, clock_, [this] { return pointer_; });
    overlay_->onActivity = [this] { said_ << "activity"; };
    overlay_->onClick = [this] { said_ << "click"; };
    overlay_->onScroll = [this](double steps) { said_ << "scroll " + QString::number(steps); };
    overlay_->onLayout = [this] { said_ << "layout"; };
    settle();
    said_.clear();
  }
  QStringList take() { return std::exchange(said_, {}); }

  const ReducedMotion reducedMotion_{"0", {}};
  std::unique_ptr<QuickPlayerOverlay> overlay_;
  QStringList said_;
};

}  // namespace tromelo::testing
