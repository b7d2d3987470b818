#pragma once

#include <optional>
#include <string>

namespace tromelo {

struct MpvClientApi;

/// libmpv's own words for a status code, for people; none for a code of 0 or more, which is no
/// error.
std::optional<std::string> mpvErrorText(const MpvClientApi& api, int code);

}  // namespace tromelo
