#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tromelo {

/// What is sent to the engine, in the order in which it was asked for.
struct MpvCommand {
  std::vector<std::string> arguments;  // the first is the command's name
};
struct MpvPropertyWrite {
  std::string name;
  std::string value;
};
struct MpvPropertyRead {
  std::string name;
  std::uint64_t reply;  // that the answer comes back with
};
using MpvRequest = std::variant<MpvCommand, MpvPropertyWrite, MpvPropertyRead>;

}  // namespace tromelo
