#pragma once

#include "engine/MpvClientApi.h"

namespace tromelo::testing {

/// The real libmpv, but its picture and sound go nowhere; without a device it can't open the sound.
MpvClientApi headlessMpv(bool hasSoundDevice = true);

}  // namespace tromelo::testing
