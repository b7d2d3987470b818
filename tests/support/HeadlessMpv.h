#pragma once

#include <map>
#include <string>

#include "engine/MpvClientApi.h"

namespace tromelo::testing {

/// The real libmpv, but with neither picture nor sound; `overrides` are other option values that
/// take the place of the engine's own.
MpvClientApi headlessMpv(std::map<std::string, std::string> overrides = {});

}  // namespace tromelo::testing
