#pragma once

#include <string>

#include "engine/MpvValue.h"

namespace tromelo::testing {

// The engine's lists, spelled shortly.

inline MpvNode text(std::string value) { return MpvNode{std::move(value)}; }
inline MpvNode integer(std::int64_t value) { return MpvNode{value}; }
inline MpvNode number(double value) { return MpvNode{value}; }
inline MpvNode flag(bool value) { return MpvNode{value}; }
inline MpvNode map(MpvMap entries) { return MpvNode{std::move(entries)}; }
inline MpvValue listOf(MpvList entries) { return MpvNode{std::move(entries)}; }

/// What is no entry of any list.
inline MpvList notEntries() {
  return {flag(true), integer(1), number(1), text("text"), MpvNode{MpvList{map({})}}};
}

inline constexpr std::int64_t kHuge = INT64_MAX;

}  // namespace tromelo::testing
