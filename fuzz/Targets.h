#pragma once

#include <source_location>
#include <span>

#include "Input.h"

namespace tromelo::fuzz {

/// Something that reads what others wrote. It is run with one input after the other in one process,
/// and is to leave nothing behind.
struct Target {
  const char* name;
  void (*run)(Input);
};

std::span<const Target> allTargets();

/// Ends the process where a promise isn't kept.
void check(bool holds, std::source_location where = std::source_location::current());

// In files of their names.
void settings(Input input);
void filmsFile(Input input);
void filmsRecords(Input input);
void arguments(Input input);
void mpris(Input input);
void engine(Input input);
void display(Input input);
void playlists(Input input);
void pictures(Input input);
void lines(Input input);

}  // namespace tromelo::fuzz
