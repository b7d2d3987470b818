#pragma once

#include <QUrl>
#include <optional>
#include <span>
#include <string>

namespace tromelo {

/// As the first argument, the process is another kind of program: the player's own helper, which
/// people don't start, or the desktop's thumbnailer.
constexpr const char* kPicturesOption = "--pictures";
constexpr const char* kLinesOption = "--lines";
constexpr const char* kThumbnailOption = "--thumbnail";

/// What the arguments ask for. Options that the program doesn't know are ignored.
struct CommandLine {
  std::optional<QUrl> file;     // the first argument that does not begin with "-", a path or a URL
  std::optional<double> start;  // seconds, from the first "--start="
  bool help = false;
  bool version = false;
  bool displaySelftest = false;
  bool report = false;
  bool isPrivate = false;
  bool timeline = false;

  /// `arguments` begins with the program's own name.
  static CommandLine parse(std::span<char* const> arguments);

  static std::string helpText();
};

}  // namespace tromelo
