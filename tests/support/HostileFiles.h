#pragma once

#include <random>
#include <string>

namespace tromelo::testing {

/// Files that somebody might hand a player who means it no good, or has had bad luck: the generated
/// clips, damaged in a dozen ways, with senseless numbers, thousands of tracks, chapters in
/// chapters, and names that are hard to bear. The same seed makes the same.
class HostileFiles {
 public:
  /// In `folder`, which is made.
  HostileFiles(std::string folder, unsigned seed);

  struct File {
    std::string path;
    std::string what;  // of it is wrong
  };
  static constexpr int kinds = 14;  // which take turns, by number
  /// Each under another name, which is "hostile-" and `number` but for those of kind "name".
  File make(int number);

 private:
  std::string clip();

  std::string folder_;
  std::mt19937 random_;
};

}  // namespace tromelo::testing
