#pragma once

#include <string>

#include "engine/MpvValue.h"

namespace tromelo::testing {

// The engine's lists, spelled shortly.

MpvNode text(std::string value);
MpvNode integer(std::int64_t value);
MpvNode number(double value);
MpvNode flag(bool value);
MpvNode map(MpvMap entries);
MpvValue listOf(MpvList entries);

/// What is no entry of any list.
MpvList notEntries();

inline constexpr std::int64_t kHuge = INT64_MAX;

}  // namespace tromelo::testing
