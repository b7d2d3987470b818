#pragma once

#include <cstdio>

namespace tromelo {

/// The steps of a start and when each was done, for `--timeline`: measured from the making of the
/// process on, which the kernel tells to a hundredth of a second. Any thread, but for begin();
/// costs nothing where nobody has begun.
class Timeline {
 public:
  /// Steps are kept from here on. Before there are other threads.
  static void begin();

  static bool isRunning();

  /// `step` lives for ever. Each is kept once.
  static void note(const char* step);

  /// The last step, with which all are printed: a line for each, by time, with its thread's name.
  static void finish(const char* step, std::FILE* out = stderr);
};

}  // namespace tromelo
