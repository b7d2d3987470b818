#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <optional>
#include <random>
#include <string>

#include "EngineProbe.h"
#include "ProcessUse.h"
#include "RunningPlayer.h"
#include "SoundServer.h"

namespace tromelo::testing {

/// Keys that a person may press while a film plays, without a file being written or a dialog
/// opened.
inline constexpr std::array kPlayerKeys{
    "space",    "Left", "Right", "shift+Right", "Up", "Down", "bracketleft", "bracketright",
    "equal",    "i",    "u",     "c",           "q",  "d",    "x",           "l",
    "question", "f",    "v",     "b",           "g",  "h",    "m",           "n",
    "p",        "e"};

/// Somebody who opens, plays, seeks, pauses and closes films, presses keys, changes the window's
/// size, opens other windows and pulls the plugs of speakers and screen without a plan, and often
/// without waiting for what comes of it. The same seed does the same. X11.
class RandomUse {
 public:
  /// `player` has been started, and `sound` too.
  RandomUse(RunningPlayer& player, SoundServer& sound, unsigned seed);

  struct Step {
    std::string name;
    bool isDone = false;                                    // what had to come of it came
    std::optional<std::chrono::milliseconds> closing = {};  // from the key to the library
    std::optional<ProcessUse> use = {};                     // at rest, in the library
  };
  Step step();
  /// How often the program has replaced the engine.
  int replaced() const { return engine_.replaced; }
  /// What the engine is at, a line for each of its values, and what it logged last.
  std::string engineState();

  Step openAndWait();
  Step close();

 private:
  Step open(bool waits);
  Step next(bool waits);
  Step seek();
  Step pause();
  Step pressKey();
  Step resize();
  Step openOtherWindow();
  Step plug();
  bool chance(double probability);
  int below(int limit);
  void tell(const std::function<void()>& requests);
  bool waitForFilm(const QString& name);
  bool waitForKeyboard();
  bool waitForIdle();
  bool closePanel();

  RunningPlayer& player_;
  SoundServer& sound_;
  EngineProbe engine_;
  std::mt19937 random_;
  bool hasSpeakers_ = true;
};

}  // namespace tromelo::testing
