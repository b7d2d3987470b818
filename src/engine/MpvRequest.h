#pragma once

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
using MpvRequest = std::variant<MpvCommand, MpvPropertyWrite>;

}  // namespace tromelo
