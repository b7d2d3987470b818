#include "Nodes.h"

namespace tromelo::testing {

MpvNode text(std::string value) { return MpvNode{std::move(value)}; }

MpvNode integer(std::int64_t value) { return MpvNode{value}; }

MpvNode number(double value) { return MpvNode{value}; }

MpvNode flag(bool value) { return MpvNode{value}; }

MpvNode map(MpvMap entries) { return MpvNode{std::move(entries)}; }

MpvValue listOf(MpvList entries) { return MpvNode{std::move(entries)}; }

MpvList notEntries() {
  return {flag(true), integer(1), number(1), text("text"), MpvNode{MpvList{MpvNode{MpvMap{}}}}};
}

}  // namespace tromelo::testing
