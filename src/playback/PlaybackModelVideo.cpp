#include "platform/NumberText.h"
#include "playback/PlaybackModel.h"
#include "playback/SignalTexts.h"

namespace tromelo {

void PlaybackModel::updateDisplay(const std::optional<ScreenHeadroom>& screen) {
  if (!screen) return;
  display_ = displayText(*screen);
  describeOutput();
}

void PlaybackModel::setFullscreen(bool fullscreen) {
  engine_.setProperty("fullscreen", flagText(fullscreen));
}

void PlaybackModel::restartVideoOutput() {
  // libmpv does it for a value that differs from the one before. This one means the same: the
  // second is for where the first doesn't work.
  engine_.setProperty("vo", "gpu-next,gpu-next");
}

void PlaybackModel::describeSignal() {
  dynamicRange_ = dynamicRangeOf(inputs_);
  describeOutput();
}

void PlaybackModel::describeOutput() {
  output_ = outputText(inputs_, dynamicRange_).value_or(kUnknown);
}

}  // namespace tromelo
