#pragma once

#include <span>
#include <vector>

#include "platform/UserDefaults.h"

namespace tromelo {

/// The former edition's stores, by its reverse-DNS name and by its plain one.
std::vector<UserDefaults> storesOfOrvo();

/// Once per user account: takes over the recents, settings and software-decode list of the former
/// edition, Orvo, where the present store has none. `sources` are asked in order.
void migrateDefaultsFromOrvo(UserDefaults& defaults, std::span<const UserDefaults> sources);

}  // namespace tromelo
