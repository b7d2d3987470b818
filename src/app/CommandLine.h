#pragma once

#include <optional>
#include <span>
#include <string>

namespace tromelo {

/// What the arguments ask for. A path keeps its bytes. Options that the program doesn't know are
/// ignored.
struct CommandLine {
  std::optional<std::string> path;  // the first argument that does not begin with "-"
  std::optional<double> start;      // seconds, from the first "--start="
  bool help = false;
  bool version = false;
  bool displaySelftest = false;
  bool report = false;

  /// `arguments` begins with the program's own name.
  static CommandLine parse(std::span<char* const> arguments);

  static std::string helpText();
};

}  // namespace tromelo
