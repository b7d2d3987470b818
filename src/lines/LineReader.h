#pragma once

#include <functional>
#include <span>

#include "lines/LineMessage.h"

namespace tromelo {

/// Reads all lines of subtitles of text. It waits for the disk, and what it reads may be anything:
/// it is for a process that does nothing else, and that another one ends.
class LineReader {
 public:
  struct Ears {
    std::function<void(const SubtitleLine&)> line;
    std::function<void(double progress)> progress;  // now and then
  };

  /// False where there are none, or not all.
  static bool read(const LineRequest& request, const Ears& ears);
};

/// What the process does that LineProcess starts: tells the lines on standard output. Gives its
/// exit status.
int runLineReader(std::span<char* const> arguments);

}  // namespace tromelo
