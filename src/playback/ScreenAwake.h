#pragma once

namespace tromelo {

class PlaybackModel;

/// Whether the screen and the system are to stay awake: a picture plays and isn't paused. Seeking
/// and filling the cache don't interrupt that.
bool keepsScreenAwake(const PlaybackModel& playback);

}  // namespace tromelo
