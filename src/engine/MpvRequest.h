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
  bool isNode = false;  // as a tree of values; else as people read it
};
/// As libmpv takes them; good for as long as the arguments are.
inline std::vector<const char*> mpvWords(const std::vector<std::string>& arguments) {
  std::vector<const char*> words;
  words.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  words.push_back(nullptr);
  return words;
}

using MpvRequest = std::variant<MpvCommand, MpvPropertyWrite, MpvPropertyRead>;

}  // namespace tromelo
