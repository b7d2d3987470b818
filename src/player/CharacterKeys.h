#pragma once

#include <QString>

namespace tromelo {

class PlaybackModel;
class PlayerWindowController;

/// Does what the player has a key's characters for; false when they are for nothing. `isRepeat`
/// says that the key has been down before: then what must happen only once doesn't happen again.
bool actOnCharacters(const QString& characters, bool isRepeat, PlayerWindowController& player,
                     PlaybackModel& playback);

}  // namespace tromelo
