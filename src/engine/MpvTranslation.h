#pragma once

#include <mpv/client.h>

#include <optional>
#include <string>

#include "engine/MpvEvent.h"

namespace tromelo {

struct MpvClientApi;

/// libmpv's own words for a status code, for people; none for a code of 0 or more, which is no
/// error.
std::optional<std::string> mpvErrorText(const MpvClientApi& api, int code);

/// None for what the program has no use for. `api` gives the texts of errors.
std::optional<MpvEvent> translateMpvEvent(const MpvClientApi& api, const mpv_event& received);

}  // namespace tromelo
