#include "playback/PlaybackModel.h"
#include "playback/SignalTexts.h"

namespace tromelo {

void PlaybackModel::updateDisplay(const std::optional<ScreenHeadroom>& screen) {
  if (!screen) return;
  display_ = displayText(*screen);
  describeOutput();
}

void PlaybackModel::describeSignal() {
  dynamicRange_ = dynamicRangeOf(inputs_);
  describeOutput();
}

void PlaybackModel::describeOutput() {
  output_ = outputText(inputs_, dynamicRange_).value_or(kUnknown);
}

}  // namespace tromelo
