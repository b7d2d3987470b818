#pragma once

#include "engine/MpvValue.h"

namespace tromelo {

struct MpvClientApi;

/// Where sound can go now, as "audio-device-list" tells it; no list where nobody can tell. Asks an
/// engine of its own, since one that plays knows nothing of a device that comes to a sound server
/// which had none. Takes some tenths of a second; any thread.
MpvValue findSoundDevices(const MpvClientApi& api);

}  // namespace tromelo
