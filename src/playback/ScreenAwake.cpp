#include "playback/ScreenAwake.h"

#include "playback/PlaybackModel.h"

namespace tromelo {

bool keepsScreenAwake(const PlaybackModel& playback) {
  const bool hasPicture = playback.videoSize() != PlaybackState::kUnknown;
  return playback.isLoaded() && !playback.isPaused() && hasPicture && !playback.isShuttingDown();
}

}  // namespace tromelo
