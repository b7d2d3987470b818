#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tromelo {

/// What is sent to the engine, in the order in which it was asked for. Text is bytes.
struct MpvCommand {
  std::vector<std::string> arguments;  // the first is the command's name
  std::uint64_t reply = 0;             // that its outcome comes back with
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
