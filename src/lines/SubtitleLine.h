#pragma once

#include <QString>

namespace tromelo {

/// What a film's subtitles say at once.
struct SubtitleLine {
  double start = 0;  // seconds of the film, without any delay
  double end = 0;    // not before the start
  QString text;      // as people read it; rows are parted by LINE SEPARATOR

  friend bool operator==(const SubtitleLine&, const SubtitleLine&) = default;
};

}  // namespace tromelo
