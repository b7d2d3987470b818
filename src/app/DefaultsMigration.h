#pragma once

#include <span>

#include "platform/UserDefaults.h"

namespace tromelo {

/// Once per user account: takes over the recents, settings and software-decode list of the former
/// edition, Orvo, where the present store has none. `sources` are asked in order.
void migrateDefaultsFromOrvo(UserDefaults& defaults, std::span<const UserDefaults> sources);

}  // namespace tromelo
