#include "app/CommandLine.h"

#include <charconv>
#include <cmath>
#include <string_view>

#include "platform/FilePath.h"

namespace tromelo {

namespace {

constexpr std::string_view kStart = "--start=";

std::optional<double> decimalNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
    return std::nullopt;
  return value;
}

}  // namespace

CommandLine CommandLine::parse(std::span<char* const> arguments) {
  CommandLine line;
  bool sawStart = false;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (!argument.starts_with('-')) {
      if (!line.file && !argument.empty()) line.file = urlFromArgument(argument);
    } else if (argument.starts_with(kStart)) {
      if (!sawStart) line.start = decimalNumber(argument.substr(kStart.size()));
      sawStart = true;
    }
    line.help |= argument == "--help" || argument == "-h";
    line.version |= argument == "--version";
    line.displaySelftest |= argument == "--display-selftest";
    line.report |= argument == "--report";
    line.timeline |= argument == "--timeline";
    line.isPrivate |= argument == "--private";
  }
  return line;
}

std::string CommandLine::helpText() {
  return R"(Usage: tromelo [FILE] [--start=SECONDS]

Plays FILE, or shows the library when there is none.

  --start=SECONDS     begin playing there, as in --start=90.5
  --private           write nothing of what is played: no place in it, no recent file
  --report            say on standard output what the player is doing, a "key: value" line a change
  --timeline          print on standard error how long each step took until the first picture
  --thumbnail [-s PIXELS] FILE PICTURE.png
                      write a picture of FILE, as desktops ask for it, and exit
  --display-selftest  print what the video path finds on this machine, and exit
  --help              print this, and exit
  --version           print the version, and exit

Environment:
  TROMELO_IPC=PATH    the engine answers JSON requests on a socket at PATH, for diagnosis
)";
}

}  // namespace tromelo
