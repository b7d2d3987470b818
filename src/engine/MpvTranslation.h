#pragma once

#include <mpv/client.h>

#include <optional>

#include "engine/MpvEvent.h"

namespace tromelo {

struct MpvClientApi;

/// None for what the program has no use for. `api` gives the texts of errors.
std::optional<MpvEvent> translateMpvEvent(const MpvClientApi& api, const mpv_event& received);

}  // namespace tromelo
